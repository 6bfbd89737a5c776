import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { openStage } from "./open.mjs";

let stage;
before(async () => (stage = await openStage()));
after(() => stage.close());

const tabs = ["Home", "Music"].map((label) => ({ label, icon: "home" }));
const header = { cash: "$100", energy: "7 / 10", energyShare: 0.7, date: "Week 1, 2023" };
const song = { kind: "rows", items: [{ title: "Paper Lanterns", subtitle: "Single", value: "1,204", id: "song:1" }] };
const job = {
  kind: "rows",
  items: [{ title: "Guitar", price: { energy: 10, dollars: "$900" }, tone: "locked", id: "buy:1" }],
};
const genre = { kind: "choice", id: "genre", label: "Genre", options: [{ label: "Pop" }, { label: "Folk" }] };
const toggle = { kind: "toggle", id: "band", label: "Invite the band" };
const answer = (more = {}) => ({
  header,
  tabs,
  tab: 0,
  stack: [1, 5],
  view: {
    key: 5,
    title: "My Music",
    help: { title: "Songs", text: "What a song is." },
    blocks: [{ kind: "heading", text: "Songs" }, song, job, genre, toggle],
    mainAction: { id: "go", label: "Release", price: { energy: 5, affordable: true } },
  },
  ...more,
});

async function open(first = answer(), options) {
  const { page, context, faults } = await stage.open(options);
  await page.evaluate((first) => window.stage.show(first), first);
  const close = async () => {
    assert.deepEqual(faults, []);
    await context.close();
  };
  return { page, close };
}

/** How far apart two colours are for the eye: 1 to 21. */
function contrast(a, b) {
  const light = ([r, g, b]) => {
    const part = (value) => (value <= 0.04045 ? value / 12.92 : ((value + 0.055) / 1.055) ** 2.4);
    return 0.2126 * part(r / 255) + 0.7152 * part(g / 255) + 0.0722 * part(b / 255);
  };
  const [dark, bright] = [light(a), light(b)].sort((x, y) => x - y);
  return (bright + 0.05) / (dark + 0.05);
}

test("colours of text stand out from everything that they are used on", async () => {
  const { page, close } = await open();
  const apps = "chart chirp report bank live merch video label gala love family estate".split(" ");
  const themes = ["", ...apps.map((app) => `theme-${app}`), "mourning layer"];
  const readable = [
    // [text, grounds from below to the top, least contrast]
    ...["--text", "--text-2", "--text-3"].flatMap((text) => [
      [text, ["--bg"], 4.5],
      [text, ["--card"], 4.5],
    ]),
    ["--text", ["--raised"], 7],
    ["--text-2", ["--card-top"], 4.5],
    ["--text-2", ["--dialog"], 4.5],
    ["--green", ["--card"], 4.5],
    ["--green", ["--bg", "--green-pill"], 4.5],
    ["--red", ["--card"], 4.5],
    ["--red", ["--bg", "--red-pill"], 4.5],
    ["--orange", ["--card"], 4.5],
    ["--yellow", ["--bg", "--yellow-pill"], 4.5],
    ["--segment-text", ["--segment"], 4.5],
    ["--accent-text", ["--bg"], 4.5],
    ["--accent-text", ["--card"], 4.5],
    ["--accent", ["--card"], 3],
    ["--on-main", ["--main-top"], 3], // large and bold
    ["--on-main", ["--main-bottom"], 4],
  ];
  const low = [];
  for (const look of ["dark", "light"]) {
    for (const theme of themes) {
      const colours = await page.evaluate(
        ([look, theme, names]) => {
          document.documentElement.dataset.appearance = look;
          const probe = document.body.appendChild(Object.assign(document.createElement("i"), { className: theme }));
          const canvas = Object.assign(document.createElement("canvas"), { width: 1, height: 1 });
          const brush = canvas.getContext("2d", { willReadFrequently: true });
          const mixed = (layers) => {
            for (const layer of layers) {
              brush.fillStyle = getComputedStyle(probe).getPropertyValue(layer).trim();
              brush.fillRect(0, 0, 1, 1);
            }
            return [...brush.getImageData(0, 0, 1, 1).data].slice(0, 3);
          };
          const result = names.map(([text, grounds]) => [mixed([...grounds, text]), mixed(grounds)]);
          probe.remove();
          return result;
        },
        [look, theme, readable],
      );
      for (const [i, [text, grounds, least]] of readable.entries()) {
        const ratio = contrast(...colours[i]);
        if (ratio < least) low.push(`${look} ${theme}: ${text} on ${grounds.at(-1)} is ${ratio.toFixed(2)} : 1`);
      }
    }
  }
  assert.deepEqual(low, []);
  await close();
});

test("the keyboard goes through everything in reading order, sees where it is, and comes back from a sheet", async () => {
  const { page, close } = await open();
  const names = [];
  for (let i = 0; i < 20; i += 1) {
    await page.keyboard.press("Tab");
    const at = await page.evaluate(() => {
      const { activeElement: focused } = document;
      if (focused === document.body) return null;
      const { outlineStyle, outlineWidth } = getComputedStyle(focused);
      const drawn = focused.closest("label") ?? focused;
      const ring = [focused, drawn, drawn.parentElement, focused.nextElementSibling].some(
        (element) => element && getComputedStyle(element).outlineStyle !== "none",
      );
      const { left, top, width, height } = focused.getBoundingClientRect();
      const hit = document.elementFromPoint(left + width / 2, top + height / 2);
      return {
        name: focused.getAttribute("aria-label") ?? focused.textContent.trim().replace(/\s+/g, " "),
        ring: ring || (outlineStyle !== "none" && outlineWidth !== "0px"),
        seen: hit !== null && (focused.contains(hit) || drawn.contains(hit)),
      };
    });
    if (!at) break;
    assert.ok(at.ring && at.seen, `${at.name}: ring ${at.ring}, seen ${at.seen}`);
    names.push(at.name);
  }
  const order = ["Back", "About: Songs", "Paper Lanterns", "Guitar", "Genre", "Invite", "Release", "Home", "Music"];
  assert.equal(names.length, order.length, names.join(" > "));
  for (const [i, name] of order.entries()) assert.ok(names[i] === "" || names[i].includes(name), names.join(" > "));

  for (const [opener, inside] of [
    ["About: Songs", "What a song is."],
    ["Genre", "Folk"],
  ]) {
    const button = page.getByRole("button", { name: opener });
    await button.focus();
    await page.keyboard.press("Enter");
    await page.getByRole("dialog").getByText(inside).waitFor();
    await page.keyboard.press("Escape");
    await page.getByRole("dialog").waitFor({ state: "hidden" });
    assert.ok(await button.evaluate((element) => element === document.activeElement), `${opener} has the focus again`);
  }
  await page.getByRole("switch").focus();
  await page.keyboard.press("Space");
  await page.getByRole("button", { name: "Release" }).focus();
  await page.keyboard.press("Enter");
  const presses = await page.evaluate(() => window.stage.player.presses);
  assert.deepEqual(presses, [
    ["5", "band", "1"],
    ["5", "go", ""],
  ]);
  await close();
});

test("a screen reader hears rows, prices and alerts in order", async () => {
  const { page, close } = await open();
  const heard = await page.locator(".phone").ariaSnapshot();
  const order = [
    'button "Back"',
    'heading "My Music"',
    "Cash $100",
    "7 / 10",
    "Week 1, 2023",
    'heading "Songs"',
    "Paper Lanterns Single 1,204",
    "Guitar costs 10 energy and $900, more than you have locked",
    'button "Genre',
    'switch "Invite the band"',
    "Release costs 5 energy",
    'navigation "Tabs"',
  ];
  let from = 0;
  for (const piece of order) {
    const at = heard.replace(/\s+/g, " ").indexOf(piece, from);
    assert.ok(at >= 0, `"${piece}" comes after what was before it in:\n${heard}`);
    from = at;
  }

  const alert = {
    key: 8,
    title: "Take five",
    message: "\nYou are tired.",
    buttons: [{ label: "Not now" }, { label: "Rest" }],
  };
  await page.evaluate((next) => window.stage.show(next), answer({ alert }));
  const told = page.getByRole("alertdialog", { name: "Take five", description: "You are tired." });
  await told.waitFor();
  assert.match(await told.ariaSnapshot(), /heading "Take five"[^]*You are tired[^]*Not now[^]*Rest/);
  await close();
});

test("with less movement nothing moves or counts", async () => {
  const figures = { kind: "figures", items: [{ label: "Streams", value: "$1,250", amount: 1250 }] };
  const { page, close } = await open(answer({ view: { key: 5, title: "A", blocks: [figures] } }));
  assert.equal(await page.locator(".figure-value").textContent(), "$1,250");
  await page.evaluate((next) => window.stage.show(next), answer({ stack: [1, 5, 6], view: { key: 6, title: "B" } }));
  const moved = await page.evaluate(() =>
    document.getAnimations().flatMap(({ effect }) => effect.getKeyframes().flatMap(Object.keys)),
  );
  assert.ok(!moved.some((property) => ["transform", "translate", "scale", "left"].includes(property)));
  await close();
});
