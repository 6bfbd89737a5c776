import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { openStage } from "./open.mjs";

let stage;
before(async () => (stage = await openStage()));
after(() => stage.close());

const tabs = ["Home", "Music", "Life", "Business", "Social"].map((label) => ({ label, icon: "home" }));
const header = { cash: "$100", energy: "7 / 10", energyShare: 0.7, date: "Week 1, 2023" };

/** An answer with one screen on top of a stack. */
function answer(blocks, { key = 5, stack = [key], tab = 0, title = `Screen ${key}`, mainAction, ...more } = {}) {
  return { header, tabs, tab, stack, view: { key, title, blocks, mainAction }, ...more };
}

async function open(first, options) {
  const { page, context, faults } = await stage.open(options);
  await page.evaluate((first) => window.stage.show(first), first);
  return {
    page,
    answerNext: (...answers) => page.evaluate((answers) => void window.stage.player.answers.push(...answers), answers),
    presses: () => page.evaluate(() => window.stage.player.presses.splice(0)),
    async close() {
      assert.deepEqual(faults, []);
      await context.close();
    },
  };
}

test("a typed text is told when the field is left, and before anything else is pressed", async () => {
  const field = { kind: "field", id: "title", label: "Title", value: "Old", maxLength: 5, suggest: "dice" };
  const { page, presses, close } = await open(answer([field, { kind: "button", id: "record", label: "Record" }]));
  const box = page.getByRole("textbox", { name: "Title" });

  await box.fill("New");
  await page.getByRole("button", { name: "Record" }).click();
  assert.deepEqual(await presses(), [
    ["5", "title", "New"],
    ["5", "record", ""],
  ]);
  // The engine went on saying "Old": a text that is refused does not stay on the screen.
  assert.equal(await box.inputValue(), "Old");

  await box.fill("🎸🎸🎸🎸🎸🎸🎸");
  assert.equal(await box.inputValue(), "🎸🎸🎸🎸🎸");
  await box.press("Enter");
  assert.deepEqual(await presses(), [["5", "title", "🎸🎸🎸🎸🎸"]]);

  await box.fill("Left");
  await page.getByRole("heading", { name: "Screen 5" }).click();
  await page.waitForFunction(() => window.stage.player.presses.length > 0);
  assert.deepEqual(await presses(), [["5", "title", "Left"]]);

  await page.getByRole("button", { name: "Suggest: Title" }).click();
  assert.deepEqual(await presses(), [["5", "dice", ""]]);

  const mainAction = { id: "start", label: "Start" };
  await page.evaluate((next) => window.stage.show(next), answer([field], { key: 6, mainAction }));
  await box.fill("Nova");
  await box.press("Enter");
  assert.deepEqual(await presses(), [
    ["6", "title", "Nova"],
    ["6", "start", ""],
  ]);
  await close();
});

test("switches, segments, options and row menus press what they say, and show what the engine says", async () => {
  const price = { dollars: "$560", affordable: true };
  const options = [
    { label: "Pop" },
    { label: "Rock", note: "Needs a guitar", tone: "locked" },
    { label: "Folk", note: "Rating | 15", price },
  ];
  const { page, presses, close } = await open(
    answer([
      { kind: "toggle", id: "band", label: "Invite the band" },
      { kind: "choice", id: "sort", label: "Sort", style: "segments", options },
      { kind: "choice", id: "genre", label: "Genre", options, selected: 2 },
      { kind: "rows", items: [{ title: "Ada", id: "ada", actions: [{ id: "fire:1", label: "Let go", tone: "bad" }] }] },
    ]),
  );
  await page.getByRole("switch", { name: "Invite the band" }).click();
  await page.locator(".segment", { hasText: "Rock" }).click();
  await page.getByRole("button", { name: /Genre Folk Rating . 15 · .560/ }).click();
  await page.getByRole("dialog").getByRole("button", { name: "Rock" }).click();
  await page.getByRole("button", { name: "More for Ada" }).click();
  await page.getByRole("dialog").getByRole("button", { name: "Let go" }).click();
  await page.getByRole("button", { name: "Ada", exact: true }).click();
  assert.deepEqual(await presses(), [
    ["5", "band", "1"],
    ["5", "sort", "1"],
    ["5", "genre", "1"],
    ["5", "fire:1", ""],
    ["5", "ada", ""],
  ]);
  assert.equal(await page.getByRole("switch").isChecked(), false);
  assert.equal(await page.getByRole("radio", { name: "Pop" }).isChecked(), true);

  await page.getByRole("button", { name: "Genre" }).click();
  await page.keyboard.press("Escape");
  assert.equal(await page.getByRole("dialog").count(), 0);
  assert.deepEqual(await presses(), []);
  await close();
});

test("a window of a long list is moved by its neighbours", async () => {
  const items = Array.from({ length: 50 }, (_, i) => ({ title: `Song ${i}` }));
  const list = { kind: "rows", id: "songs", items, total: 120, from: 50 };
  const { page, presses, close } = await open(answer([list]));
  await page.getByRole("button", { name: "More" }).click();
  await page.getByRole("button", { name: "Earlier" }).click();
  assert.deepEqual(await presses(), [
    ["5", "songs", "100"],
    ["5", "songs", "0"],
  ]);
  await close();
});

test("an alert must be answered, one after the other, by key or by hand", async () => {
  const buttons = [{ label: "Not now", style: "cancel" }, { label: "Share it" }];
  const first = { key: 8, title: "Take five", message: "\nA first line.\nA second one.", buttons };
  const second = { key: 9, title: "Done", message: "\nThat was it.", buttons: [{ label: "👍" }] };
  const { page, presses, answerNext, close } = await open(answer([], { alert: first }));
  const alert = page.getByRole("alertdialog");
  assert.equal(await alert.locator("p").textContent(), "A first line.\nA second one.");
  for (let i = 0; i < 4; i += 1) {
    await page.keyboard.press("Tab");
    assert.ok(
      await page.evaluate(() => document.activeElement === document.body || !!document.activeElement.closest(".alert")),
    );
  }
  await answerNext(answer([], { alert: second }), answer([], { alert: null }));
  await page.keyboard.press("Escape");
  assert.deepEqual(await presses(), [["alert", "8", "0"]]);
  await page.getByRole("alertdialog", { name: "Done" }).waitFor();
  await page.keyboard.press("Enter");
  assert.deepEqual(await presses(), [["alert", "9", "0"]]);
  await alert.waitFor({ state: "hidden" });
  await close();
});

test("the main button is bright only when the screen says so, and a locked one can still be pressed", async () => {
  const main = { id: "sell", label: "Sell" };
  const { page, presses, close } = await open(answer([], { mainAction: main }));
  const look = () => page.getByRole("button", { name: "Sell" }).evaluate((it) => getComputedStyle(it).backgroundImage);
  assert.equal(await look(), "none");
  const show = (more) =>
    page.evaluate((next) => window.stage.show(next), answer([], { mainAction: { ...main, ...more } }));
  await show({ style: "primary" });
  assert.notEqual(await look(), "none");
  await show({ style: "primary", tone: "locked" });
  assert.equal(await look(), "none");
  await page.getByRole("button", { name: "Sell locked" }).click();
  assert.deepEqual(await presses(), [["5", "sell", ""]]);
  await close();
});

test("what is pinned never lies under the tabs, and everything scrolls clear of it", async () => {
  const blocks = Array.from({ length: 40 }, (_, i) => ({ kind: "text", text: `Line ${i}` }));
  const mainAction = { id: "go", label: "Release" };
  const root = { mainAction, endWeek: true };
  const pushed = { mainAction, stack: [1, 5] };
  for (const [lines, more] of [blocks, []].flatMap((lines) => [root, pushed].map((more) => [lines, more]))) {
    const { page, presses, close } = await open(answer(lines, more), { width: 320, height: 568 });
    const box = (name) => page.getByRole("button", { name }).boundingBox();
    const pinned = more === root ? /^END THE WEEK/ : "Release";
    const [release, lowest] = [await box("Release"), await box(pinned)];
    const bar = await page.locator(".tab-bar").boundingBox();
    const below = bar.y - (lowest.y + lowest.height);
    assert.ok(below >= 0 && below < 24, "the button lies right above the tabs");
    if (more === root) assert.ok(release.y < 200, "the root's own button stands at the head");
    if (lines === blocks) {
      await page.locator(".layer.top .scroll").evaluate((scroll) => scroll.scrollTo(0, scroll.scrollHeight));
      const last = await page.getByText("Line 39").boundingBox();
      assert.ok(last.y + last.height <= (await box(pinned)).y);
      const moved = await page.locator(".layer.top .scroll").evaluate((scroll) => {
        scroll.scrollTo(0, 300);
        for (const button of scroll.querySelectorAll(".dock button")) button.focus();
        return scroll.scrollTop - 300;
      });
      assert.equal(moved, 0, "reaching a pinned button scrolls nothing");
    }
    await page.getByRole("button", { name: pinned }).click();
    assert.deepEqual(await presses(), [more === root ? ["nav", "endTheWeekButton", ""] : ["5", "go", ""]]);
    await close();
  }
});

test("screens are found again as they were left", async () => {
  const long = Array.from({ length: 60 }, (_, i) => ({ kind: "rows", items: [{ title: `Row ${i}`, id: `row:${i}` }] }));
  const root = answer(long, { key: 1 });
  const detail = answer([], { key: 2, stack: [1, 2] });
  const music = answer([], { key: 3, tab: 1 });
  const { page, presses, answerNext, close } = await open(root);
  const scrolled = () => page.locator(".layer.top .scroll").evaluate((scroll) => Math.round(scroll.scrollTop));
  await page.locator(".row").nth(59).waitFor({ state: "attached" });
  await page.locator(".layer.top .scroll").evaluate((scroll) => scroll.scrollTo(0, 900));
  await answerNext(detail, root);
  await page.getByRole("button", { name: "Row 18" }).click();
  await page.getByRole("heading", { name: "Screen 2" }).waitFor();
  const before = await page.locator(".layer.beneath .scroll").evaluate((scroll) => Math.round(scroll.scrollTop));
  assert.ok(before > 500);
  await page.waitForFunction(() => !document.querySelector(".moving"));
  const reached = await page
    .locator(".layer.beneath button")
    .first()
    .evaluate((button) => {
      button.focus();
      return document.activeElement === button || button.checkVisibility();
    });
  assert.equal(reached, false, "the screen below cannot be reached");
  await page.getByRole("button", { name: "Back" }).click();
  assert.equal(await scrolled(), before);
  assert.equal(await page.evaluate(() => document.activeElement.textContent.trim()), "Row 18");

  await answerNext(music, root);
  await page.getByRole("button", { name: "Music" }).click();
  await page.getByRole("heading", { name: "Screen 3" }).waitFor();
  await page.getByRole("button", { name: "Home" }).click();
  await page.getByRole("heading", { name: "Screen 1" }).waitFor();
  assert.equal(await scrolled(), before);
  assert.deepEqual(
    (await presses()).map(([screen, id, value]) => `${screen} ${id} ${value}`.trim()),
    ["1 row:18", "nav back", "tabs tab 1", "tabs tab 0"],
  );
  await close();
});

test("a swipe from the edge, Escape and the device's own back all go back; a modal screen does not", async () => {
  const detail = answer([], { key: 2, stack: [1, 2] });
  const { page, presses, answerNext, close } = await open(detail, { reducedMotion: "no-preference" });
  const back = [["nav", "back", ""]];

  await page.mouse.move(3, 400);
  await page.mouse.down();
  await page.mouse.move(120, 400, { steps: 4 });
  await page.waitForTimeout(300);
  await page.mouse.move(30, 400, { steps: 4 });
  await page.mouse.up();
  assert.deepEqual(await presses(), [], "a swipe taken back goes nowhere");

  await page.mouse.move(3, 400);
  await page.mouse.down();
  await page.mouse.move(320, 400, { steps: 6 });
  await page.mouse.up();
  assert.deepEqual(await presses(), back);
  await page.keyboard.press("Escape");
  assert.deepEqual(await presses(), back);
  await page.evaluate(() => history.back());
  await page.waitForFunction(() => window.stage.player.presses.length > 0);
  assert.deepEqual(await presses(), back);

  await answerNext(answer([{ kind: "button", id: "close", label: "Close" }], { key: 7, stack: [1, 7], modal: true }));
  await page.keyboard.press("Escape");
  await presses();
  await page.getByRole("heading", { name: "Screen 7" }).waitFor();
  assert.equal(await page.getByRole("button", { name: "Back" }).count(), 0);
  assert.equal(await page.locator(".tab-bar[inert]").count(), 1, "the tabs are covered");
  await page.keyboard.press("Escape");
  assert.deepEqual(await presses(), []);
  await close();
});

test("figures count up together and any tap shows them finished", async () => {
  const figures = { kind: "figures", items: [{ label: "Streams", value: "$1,250", amount: 1250 }] };
  const { page, answerNext, close } = await open(answer([figures]), { reducedMotion: "no-preference" });
  const shown = () => page.locator(".figure-value").textContent();
  assert.notEqual(await shown(), "$1,250");
  await page.mouse.click(200, 500);
  assert.equal(await shown(), "$1,250");

  await answerNext(answer([{ ...figures, items: [{ label: "Streams", value: "$9,000", amount: 9000 }] }]));
  await page.getByRole("button", { name: "Home" }).click();
  await page.waitForFunction(() => document.querySelector(".figure-value").textContent === "$9,000");
  await close();
});

test("a song can be heard where that is wanted, and falls silent when one goes on", async () => {
  const cover = {
    kind: "cover",
    title: "Paper Lanterns",
    picture: { kind: "cover", name: "x" },
    hook: "Paper Lanterns|Pop",
  };
  const song = answer([cover, { kind: "button", id: "go", label: "Release" }]);
  const settings = answer([], { key: 9, title: "Settings" });
  settings.view.screen = "SettingsViewController";
  const { page, presses, answerNext, close } = await open(song);
  const hear = page.getByRole("button", { name: "Hear the hook" });
  const wanted = page.getByRole("switch", { name: /Sound/ });
  const offered = page.getByRole("button", { name: "Hear it?" });
  assert.equal(await hear.count(), 0, "off until asked for");
  assert.equal(await offered.count(), 1);
  await answerNext(settings, song, song);
  await page.getByRole("button", { name: "Home" }).click();
  await wanted.click();
  await page.getByRole("button", { name: "Music" }).click();
  assert.equal(await offered.count(), 0, "who has chosen is not asked again");
  await hear.click();
  await page.getByRole("button", { name: "Stop the hook" }).waitFor();
  await page.getByRole("button", { name: "Release" }).click();
  await hear.waitFor();
  assert.deepEqual(
    (await presses()).map(([, id]) => id),
    ["tab", "tab", "go"],
  );
  await page.reload();
  await page.evaluate((song) => window.stage.show(song), song);
  await hear.waitFor();

  const told = await page.evaluate(() => {
    const { tuneOf, hookLength } = window.stage;
    const told = (hook) => JSON.stringify(tuneOf(hook));
    const songs = Array.from({ length: 40 }, (_, i) => `Song ${i}|${["Pop", "Metal", "no such", ""][i % 4]}`);
    const notes = songs.flatMap((song) => tuneOf(song).notes);
    return {
      same: told("A|Jazz") === told("A|Jazz"),
      different: new Set(songs.map(told)).size,
      whole: notes.every(({ at, pitch, loudness }) => at >= 0 && at < hookLength && pitch < 4000 && loudness <= 1),
    };
  });
  assert.deepEqual(told, { same: true, different: 40, whole: true });
  await close();
});

test("a release plays once: the sleeve turns, the song is heard where that is wanted", async () => {
  const cover = { kind: "cover", title: "Tide", picture: { kind: "cover", name: "Tide" }, hook: "Tide|Pop" };
  const more = { key: 6, stack: [1, 6] };
  const made = answer([cover], { ...more, mainAction: { id: "releaseButton", label: "RELEASE" } });
  const out = answer([cover], { ...more, feedback: "success" });
  const { page, answerNext, close } = await open(made, { reducedMotion: "no-preference" });
  const turns = () => page.evaluate(() => document.querySelector(".head .picture").getAnimations().length);
  await answerNext({ ...made, feedback: "energyBounce" }, out);
  await page.getByRole("button", { name: "RELEASE" }).click();
  assert.equal(await turns(), 0, "a refusal is no release");
  await page.getByRole("button", { name: "Hear it?" }).click();
  await page.getByRole("button", { name: "RELEASE" }).click();
  await page.getByRole("button", { name: "Stop the hook" }).waitFor();
  await page.waitForFunction(() => document.querySelector(".head .picture").getAnimations().length === 1);
  await answerNext(answer([], { key: 1, stack: [1] }), out);
  await page.getByRole("button", { name: "Back" }).click();
  await page.getByRole("heading", { name: "Screen 1" }).waitFor();
  await page.getByRole("button", { name: "Home" }).click();
  await page.getByRole("heading", { name: "Screen 6" }).waitFor();
  await page.getByRole("button", { name: "Hear the hook" }).waitFor();
  await close();
});

test("what grew says by how much, where it stands, and is gone", async () => {
  const level = (value) => answer([{ kind: "rows", items: [{ title: "Voice", value, share: 0.1, id: "voice" }] }]);
  const { page, answerNext, close } = await open(level("1,004"), { reducedMotion: "no-preference" });
  await answerNext(level("1,007"), level("1,005"));
  const told = () =>
    page.evaluate(async () => {
      const seen = [];
      new MutationObserver((changes) => {
        for (const { addedNodes } of changes) seen.push(...[...addedNodes].map(({ textContent }) => textContent));
      }).observe(document.body, { childList: true });
      document.querySelector(".row-main").click();
      await new Promise((done) => setTimeout(done, 200));
      return seen;
    });
  assert.deepEqual(await told(), ["+3"]);
  assert.deepEqual(await told(), [], "a loss says nothing");
  await page.locator(".gain").waitFor({ state: "detached" });
  await close();
});

test("a name has its face while it is typed", async () => {
  const named = answer([{ kind: "field", id: "name", label: "Artist name" }], { modal: true });
  Object.assign(named.view, { screen: "EnterNameViewController", picture: { kind: "person", name: "" } });
  const { page, presses, close } = await open(named);
  const face = page.locator(".title-row .picture.person img");
  await page.getByRole("textbox").pressSequentially("No");
  const first = await face.getAttribute("src");
  await page.getByRole("textbox").pressSequentially("va");
  await page.waitForFunction((first) => document.querySelector(".title-row img").src !== first, first);
  assert.deepEqual(await presses(), [], "the engine hears of it when the field is left");
  await close();
});

test("a long list draws only what is near", async () => {
  const items = Array.from({ length: 1500 }, (_, i) => ({
    title: `Song ${i}`,
    subtitle: "Single",
    value: `${i}`,
    id: `s:${i}`,
  }));
  const { page, presses, close } = await open(answer([{ kind: "rows", items }]));
  const drawn = () =>
    page.evaluate(
      () =>
        [...document.querySelectorAll(".row")].filter((row) =>
          row.firstElementChild.checkVisibility({ contentVisibilityAuto: true }),
        ).length,
    );
  assert.ok((await drawn()) < 100, `${await drawn()} rows are drawn`);
  const last = page.locator(".row:nth-child(1500) button");
  await last.scrollIntoViewIfNeeded();
  await last.click();
  assert.deepEqual(await presses(), [["5", "s:1499", ""]]);
  assert.ok((await drawn()) < 100);
  await close();
});
