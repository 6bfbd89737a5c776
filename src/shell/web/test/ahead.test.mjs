// What the tabs open with is drawn before anybody presses them, and nobody can tell but by the time that a press takes.
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { openWorld, world } from "../tools/worlds.mjs";
import { openGame } from "./open.mjs";

let game;

before(async () => {
  game = await openGame();
});
after(() => game.close());

/** The page has only as many idle moments as the test lets it have. */
const holdIdleMoments = () => {
  const waiting = [];
  window.requestIdleCallback = (work) => waiting.push(work);
  window.Worker = class extends Worker {
    constructor(...from) {
      super(...from);
      this.addEventListener("message", () => setTimeout(() => (window.rehearsed = true)));
    }
  };
  window.idleMoment = () => waiting.splice(0).forEach((work) => work({}));
};
const idleMoment = async (page) => {
  await page.evaluate(() => window.idleMoment());
  await page.evaluate(() => new Promise((done) => setTimeout(done)));
};

const open = async (init) => {
  const opened = await game.open({ address: "about:blank", reducedMotion: "no-preference", init });
  await openWorld(opened.page, game.home, world("golden_decade"));
  return opened;
};
const tab = (page, name) => page.locator(".tab-bar").getByRole("button", { name });
const wholeOnTop = (page) => page.waitForFunction(() => document.querySelector(".layer.top bb-blocks").whole);

test("tabs are drawn ahead out of reach, and pressed they are as if they were new", async () => {
  const { page, context, faults } = await open();
  await page.waitForFunction(
    () => [...document.querySelectorAll(".layer.ahead bb-blocks")].filter((one) => one.foreseen).length === 4,
  );
  assert.equal(await page.locator(".layer.ahead").getByRole("button").count(), 0, "nobody finds them");
  await page.evaluate(() => {
    const { player } = document.querySelector("backbeat-app");
    window.pressed = new TextDecoder().decode(player.replayFile().bytes).match(/^act /gm);
    player.ahead = () => console.error("a tab is asked for twice");
    window.ahead = new Map([...document.querySelectorAll(".layer.ahead")].map((one) => [one.dataset.screen, one]));
    window.counted = new Set();
    const cash = window.ahead.get("FinancialViewController").querySelector(".figure-value");
    new MutationObserver(() => window.counted.add(cash.textContent)).observe(cash, {
      characterData: true,
      subtree: true,
    });
  });
  assert.equal(await page.evaluate(() => window.pressed), null, "for the engine nothing has happened");
  for (const name of [/^Social/, /^Life/, /^Music/, /^Business/]) {
    await tab(page, name).click();
    await wholeOnTop(page);
    const kept = await page.evaluate(() => {
      const top = document.querySelector(".layer.top");
      return window.ahead.get(top.dataset.screen) === top && !top.matches(".ahead");
    });
    assert.ok(kept, `${name} is drawn anew`);
  }
  await page.waitForFunction(() => window.counted.size > 2); // figures count when they are seen
  assert.deepEqual(faults, []);
  await context.close();
});

test("samples of other screens are drawn out of reach, and nothing of them stays", async () => {
  const { page, context, faults } = await open(holdIdleMoments);
  await page.waitForFunction(() => window.rehearsed); // its own samples are replaced by these
  const samples = () => page.locator(".layer.ahead bb-blocks", { hasText: "A sample" });
  await page.evaluate(() => {
    const blocks = [{ kind: "text", text: "A sample" }];
    document.querySelector("backbeat-app").ahead.rehearse([
      { key: -1, blocks },
      { key: -1, blocks },
    ]);
  });
  const counts = new Set();
  for (let moments = 0; moments < 500 && !(counts.has(1) && (await samples().count()) === 0); moments += 1) {
    await idleMoment(page);
    counts.add(await samples().count());
  }
  assert.deepEqual(counts, new Set([0, 1]));
  assert.equal(await page.locator(".layer").count(), 5, "the tabs are there");
  assert.deepEqual(faults, []);
  await context.close();
});

test("a tab that is pressed while it is being drawn is as whole as any", async () => {
  const { page, context, faults } = await open(holdIdleMoments);
  const shown = () => page.locator(".layer.top .page").innerText();
  const drawing = () =>
    page.evaluate(() => {
      const [last] = [...document.querySelectorAll(".layer.ahead bb-blocks")].filter((one) => !one.foreseen);
      return last?.childElementCount ?? 0;
    });
  for (let moments = 0; (await drawing()) < 2; moments += 1) {
    assert.ok(moments < 500, "nothing is ever half drawn");
    await idleMoment(page);
  }
  await tab(page, /^Music/).click();
  await wholeOnTop(page);
  const half = await shown();

  const unprepared = await open(holdIdleMoments);
  await tab(unprepared.page, /^Music/).click();
  await wholeOnTop(unprepared.page);
  assert.equal(half, await unprepared.page.locator(".layer.top .page").innerText());
  assert.deepEqual([...faults, ...unprepared.faults], []);
  await unprepared.context.close();
  await context.close();
});
