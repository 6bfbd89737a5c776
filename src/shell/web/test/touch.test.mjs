// What the blocks do under fingers and keys.
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { candidateDeck, screens } from "./fixtures/screens.mjs";
import { openStage } from "./open.mjs";

let stage;
before(async () => (stage = await openStage()));
after(() => stage.close());

async function open(answer, options) {
  const { page, context, faults } = await stage.open(options);
  const show = (answer, next = []) =>
    page.evaluate(
      ([answer, next]) => {
        window.stage.player.answers.push(...next);
        window.stage.show(answer);
      },
      [answer, next],
    );
  await show(answer);
  const presses = () => page.evaluate(() => window.stage.player.presses.map(([, id, value]) => [id, value]));
  const close = async () => {
    assert.deepEqual(faults, []);
    await context.close();
  };
  return { page, show, presses, close };
}

const withBlocks = (screen, ...blocks) => ({ ...screen, view: { ...screen.view, blocks } });

test("a candidate is answered by button, key and swipe alike, and the next one is told", async () => {
  const deckOf = (name) => withBlocks(screens.dating, candidateDeck(name, "31", 71, "Hello."));
  const { page, show, presses, close } = await open(screens.dating, { reducedMotion: "no-preference" });
  await show(screens.dating, ["Ada", "Milo", "June", "Otis"].map(deckOf));
  const card = page.getByRole("article");

  const like = page.getByRole("button", { name: "Like, 3 energy", exact: true });
  await like.click();
  await page.getByRole("article", { name: "Ada" }).waitFor();
  assert.ok(await like.evaluate((button) => button === document.activeElement), "the focus stays on the button");
  assert.equal(await page.locator("bb-deck [aria-live]").textContent(), "Ada, 31, Physical Therapist, chemistry 71");

  await card.focus();
  await page.keyboard.press("ArrowUp");
  await page.getByRole("article", { name: "Milo" }).waitFor();

  /** Drags the card and tells what mark stands on it before it is let go. */
  const drag = async (x, y) => {
    const box = await card.boundingBox();
    const [fromX, fromY] = [box.x + box.width / 2, box.y + box.height / 2];
    await page.mouse.move(fromX, fromY);
    await page.mouse.down();
    for (let i = 1; i <= 8; i += 1) {
      await page.mouse.move(fromX + (x * i) / 8, fromY + (y * i) / 8);
      await page.waitForTimeout(40);
    }
    const toward = await card.getAttribute("data-toward");
    await page.mouse.up();
    return toward;
  };
  assert.equal(await drag(-60, 0), "", "too short a pull means nothing");
  assert.equal(await page.getByRole("article").getAttribute("aria-label"), "Milo");
  assert.equal(await drag(-200, 0), "left");
  await page.getByRole("article", { name: "June" }).waitFor();
  assert.equal(await drag(10, -200), "up");
  await page.getByRole("article", { name: "Otis" }).waitFor();
  assert.equal(await drag(200, 0), "right"); // the game refuses: the same one again
  await page.waitForTimeout(500);
  assert.equal(await page.locator(".deck-card").count(), 1, "nothing is left of the cards that flew away");
  assert.equal(await page.getByRole("article").getAttribute("aria-label"), "Otis");
  assert.deepEqual(
    (await presses()).map(([id]) => id),
    ["like", "super", "pass", "super", "like"],
  );
  await close();
});

test("what looks small has 44 pixels for a finger", async () => {
  const kinds = ["Songs", "Albums"].map((label) => ({ label }));
  const { page, close } = await open(
    withBlocks(
      screens.create,
      { kind: "choice", id: "kind", style: "segments", options: kinds },
      { kind: "field", id: "name", label: "Name", suggest: "dice" },
    ),
  );
  const missed = await page.evaluate(() => {
    const small = [...document.querySelectorAll(".round, .suggest, .segment")];
    const reached = (each, x, y) => each.contains(document.elementFromPoint(x, y));
    const narrow = small.filter((each) => {
      const box = each.getBoundingClientRect();
      const [x, y] = [box.x + box.width / 2, box.y + box.height / 2];
      return ![-21.5, 0, 21.5].every((by) => reached(each, x, y + by) && reached(each, x + by, y));
    });
    return [small.length, narrow.map(({ className, textContent }) => `${className} ${textContent.trim()}`)];
  });
  assert.ok(missed[0] > 3);
  assert.deepEqual(missed[1], []);
  await close();
});

test("a slider presses once when let go, and says what only it can know meanwhile", async () => {
  const { page, presses, close } = await open(screens.create);
  const slider = page.getByRole("slider", { name: "Quantity" });
  assert.equal(await slider.getAttribute("aria-valuetext"), "20,000");
  await slider.scrollIntoViewIfNeeded();
  const box = await slider.boundingBox();
  const y = box.y + box.height / 2;
  assert.ok(box.height >= 44);
  await page.mouse.move(box.x + 14 + ((box.width - 28) * 19) / 86, y);
  await page.mouse.down();
  for (const share of [0.4, 0.6, 0.5]) await page.mouse.move(box.x + box.width * share, y);
  assert.deepEqual(await presses(), [], "nothing is pressed while it is held");
  assert.match(await slider.getAttribute("aria-valuetext"), /^4[34] of 87$/);
  await page.mouse.up();
  assert.deepEqual(await presses(), [["quantity", "43"]]);
  assert.equal(await slider.inputValue(), "19", "the engine's answer has the last word");
  await slider.press("ArrowRight");
  assert.deepEqual((await presses()).at(-1), ["quantity", "20"]);
  await close();
});

test("a stepper steps, goes on while it is held, and stops at its end", async () => {
  const { page, show, presses, close } = await open(screens.offer);
  const at = (years, canMore = true) =>
    withBlocks(screens.offer, { kind: "stepper", id: "years", label: "Contract", value: `${years} years`, canMore });
  await show(at(1), [at(2), at(3), at(4), at(5, false)]);
  const more = page.getByRole("button", { name: "More Contract" });
  await more.click();
  assert.deepEqual(await presses(), [["years", "1"]]);
  await more.hover();
  await page.mouse.down();
  await page.getByText("5 years").waitFor();
  await page.waitForTimeout(250);
  await page.mouse.up();
  assert.equal((await presses()).length, 4, "held, it stops at the end; let go, it does not step once more");
  assert.equal(await more.getAttribute("aria-disabled"), "true");
  await more.click({ force: true });
  assert.equal((await presses()).length, 4);
  await page.getByRole("button", { name: "Less Contract" }).click();
  assert.deepEqual((await presses()).at(-1), ["years", "-1"]);
  await close();
});

test("totals run to their new value, and the dial is lit as far as the chance", async () => {
  const { page, show, close } = await open(screens.planner, { reducedMotion: "no-preference" });
  const totals = [
    { label: "seats", value: "46,100" },
    { label: "One offer a visit", value: "30% Chance", share: 0.3 },
  ];
  const seen = page.evaluate(
    () =>
      new Promise((done) => {
        const values = [];
        const look = () => {
          values.push(document.querySelector(".total-value").textContent.trim());
          if (values.at(-1) === "46,100") done(values);
          else requestAnimationFrame(look);
        };
        look();
      }),
  );
  await show({ ...screens.planner, view: { ...screens.planner.view, totals } });
  const between = (await seen).map((value) => Number(value.replace(",", "")));
  assert.ok(
    between.some((value) => value > 36_100 && value < 46_100),
    `${between}`,
  );
  const dial = page.getByRole("meter", { name: "One offer a visit" });
  assert.equal(await dial.getAttribute("aria-valuenow"), "30");
  assert.equal(await dial.locator(".lit").count(), 10);
  assert.match(await dial.getAttribute("class"), /tone-warning/);
  await close();
});

test("a strip is scrolled by keys and shows that there is more", async () => {
  const { page, show, close } = await open(screens.label);
  const strip = page.locator(".strip");
  await strip.getByRole("button").first().focus();
  for (let i = 0; i < 3; i += 1) await page.keyboard.press("Tab");
  assert.ok((await strip.evaluate((list) => list.scrollLeft)) > 0, "what has the focus is scrolled to");

  const silent = screens.label.view.blocks.map((block) =>
    block.style === "strip" ? { ...block, items: block.items.map(({ id, ...item }) => item) } : block,
  );
  await show(withBlocks({ ...screens.label, stack: [1, 7], view: { ...screens.label.view, key: 7 } }, ...silent));
  const still = page.locator(".layer.top .strip");
  await still.focus();
  await page.keyboard.press("ArrowRight");
  await page.waitForFunction(() => document.querySelector(".layer.top .strip").scrollLeft > 0);
  const cut = await still.evaluate((list) => {
    list.scrollLeft = 0;
    return [...list.children].some((item) => {
      const { left, right } = item.getBoundingClientRect();
      return left < innerWidth && right > innerWidth;
    });
  });
  assert.ok(cut, "a part of the next item is seen");
  await close();
});

test("a year is shared as a picture of 1080 by 1920", async () => {
  const { page, presses, close } = await open(screens.year);
  const [download] = await Promise.all([
    page.waitForEvent("download"),
    page.getByRole("button", { name: "Share" }).click(),
  ]);
  assert.equal(download.suggestedFilename(), "nova-reyes-2031.png");
  const chunks = [];
  for await (const chunk of await download.createReadStream()) chunks.push(chunk);
  const bytes = Buffer.concat(chunks);
  assert.equal(bytes.toString("latin1", 1, 4), "PNG");
  assert.deepEqual([bytes.readUInt32BE(16), bytes.readUInt32BE(20)], [1080, 1920]);
  // Something is on it: skies and letters do not pack as well as one colour would.
  assert.ok(bytes.length > 60_000, `${bytes.length} bytes`);
  assert.deepEqual(await presses(), [], "the game need not know");
  await page.getByRole("button", { name: "Done" }).click();
  assert.deepEqual(await presses(), [["done", ""]]);
  await close();
});

test("children stand under their parents, and nobody over another", async () => {
  const { page, show, close } = await open(screens.dynasty);
  const places = () =>
    page.evaluate(() =>
      Object.fromEntries(
        [...document.querySelectorAll(".layer.top .kin")].map((kin) => {
          const { left, right, top } = kin.getBoundingClientRect();
          return [kin.querySelector("b").textContent, { left, right, top }];
        }),
      ),
    );
  const family = await places();
  const middle = ({ left, right }) => (left + right) / 2;
  const ofNova = ["Ada Reyes", "Milo", "June"].map((name) => middle(family[name]));
  assert.ok(Math.abs(ofNova[1] - (middle(family["Nova Reyes"]) + middle(family.Theo)) / 2) < 2);
  assert.ok(Math.abs(middle(family.Otis) - ofNova[0]) < 2, "the first child of Ada stands under her");
  const people = Array.from({ length: 9 }, (_, i) => ({
    title: `Kin ${i}`,
    generation: i > 0 ? 1 : 0,
    parent: i > 0 ? 0 : -1,
  }));
  await show(
    withBlocks(
      { ...screens.dynasty, stack: [1, 9], view: { ...screens.dynasty.view, key: 9 } },
      { kind: "tree", people },
    ),
  );
  const row = Object.values(await places())
    .slice(1)
    .sort((a, b) => a.left - b.left);
  for (const [i, one] of row.entries()) assert.ok(i === 0 || one.left >= row[i - 1].right - 0.5);
  await close();
});

test("with less movement the news stands at once", async () => {
  const { page, close } = await open(screens.hit);
  const moving = await page.evaluate(
    () => document.getAnimations().filter(({ playState }) => playState === "running").length,
  );
  assert.equal(moving, 0);
  assert.equal(await page.locator("bb-confetti i").count(), 46);
  await close();
});
