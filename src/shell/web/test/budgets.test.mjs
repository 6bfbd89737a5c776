// What the page may weigh and cost. The limits are generous: they catch what makes it twice as slow, on any machine.
import assert from "node:assert/strict";
import { readdir, readFile } from "node:fs/promises";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { gzipSync } from "node:zlib";
import { century, openWorld, settled, world } from "../tools/worlds.mjs";
import { countCosts, median, timePresses } from "./cost.mjs";
import { answerAlerts, press } from "./life.mjs";
import { openGame } from "./open.mjs";

/** A phone of the middle class is about four times slower than a desktop machine. */
const slowdown = 4;

let game;

before(async () => {
  game = await openGame();
});
after(() => game.close());

test("the page stays light on the line", async () => {
  const weights = new Map();
  for (const folder of ["", "assets"]) {
    for (const entry of await readdir(join(game.folder, folder), { withFileTypes: true })) {
      if (entry.isFile())
        weights.set(entry.name, gzipSync(await readFile(join(game.folder, folder, entry.name))).length / 1024);
    }
  }
  const weigh = (pattern) => [...weights].reduce((sum, [name, size]) => sum + (pattern.test(name) ? size : 0), 0);
  const limits = [
    // All that has to be there before the first screen; the rest comes when it is asked for.
    [/^(?!sw|portraits|drawings|late-glyphs|story-picture|ahead|reading-worker).*\.js$/, 92],
    [/^portraits.*\.js$/, 140],
    [/^drawings.*\.js$/, 25],
    [/^late-glyphs.*\.js$/, 18],
    [/\.css$/, 25],
    [/^engine\.wasm$/, 442],
  ];
  for (const [pattern, limit] of limits) {
    const kilobytes = weigh(pattern);
    assert.ok(kilobytes > 0 && kilobytes <= limit, `${pattern} weighs ${kilobytes.toFixed(0)} KB of ${limit}`);
  }
});

test("a press is painted and a report shown at once", async () => {
  const { page, context, faults } = await game.open({ address: "about:blank" });
  await openWorld(page, game.home, world("golden_decade"));
  await page.waitForFunction(
    () => [...document.querySelectorAll(".layer.ahead bb-blocks")].filter(({ foreseen }) => foreseen).length >= 4,
  );
  const count = await countCosts(game.browser, page);
  const tab = (name, n) => count.press(name, (n) => document.querySelectorAll(".tab-bar button")[n].click(), n);
  const button = (name, label) =>
    count.press(
      name,
      (label) => {
        const named = ({ ariaLabel, textContent }) => (ariaLabel ?? textContent).includes(label);
        [...document.querySelectorAll(".layer.top button")].find(named).click();
      },
      label,
    );
  for (const n of [1, 2, 3, 4]) await tab("first", n);
  for (let round = 0; round < 4; round += 1) {
    for (const n of [1, 2, 3, 4, 1]) await tab("press", n);
    await button("press", "Create a Song");
    await button("press", "Back");
    await tab("press", 0);
    await button("report", "END THE WEEK");
    await page.evaluate(() => {
      const { player } = document.querySelector("backbeat-app");
      for (let i = 0; i < 50 && (player.answer.alert || player.answer.modal); i += 1) {
        const { alert, view } = player.answer;
        if (alert) player.act("alert", String(alert.key), "0");
        else player.act(view.key, view.mainAction.id);
      }
    });
  }
  const { first, press: presses, report: reports } = await count.end();
  const list = (costs) => costs.map((ms) => ms.toFixed(0));
  const told = `first visits ${list(first)}, presses ${list(presses)}, reports ${list(reports)} ms`;
  assert.ok(median(first) * slowdown <= 60, told);
  assert.ok(median(presses) * slowdown <= 90, told);
  assert.ok(median(reports) * slowdown <= 160, told);
  assert.deepEqual(faults, []);
  await context.close();
});

// What a player waits for, from the finger to the glass: a press waits for its turn, for a frame and for the screen too.
// The limits are what a busy machine still keeps; the aim is 100 ms for a press and 200 for a report on a quiet one.
test("a press is on the glass soon, in a career of ten years", async () => {
  const { page, context, faults } = await game.open({ address: "about:blank", reducedMotion: "no-preference" });
  await openWorld(page, game.home, world("golden_decade"));
  const time = await timePresses(page, slowdown);
  const tab = (n) => page.locator(".tab-bar button").nth(n);
  const button = (name) => page.locator(".layer.top").getByRole("button", { name }).first();
  for (let round = 0; round < 2; round += 1) {
    for (const n of [1, 2, 3, 4, 1]) await time("press", tab(n));
    await time("press", button("Create a Song"));
    await time("press", button("Back"));
    await time("press", tab(0));
    await time("report", button("END THE WEEK"));
    await answerAlerts(page);
    await time("press", button("Continue"));
    await answerAlerts(page);
  }
  const { press: presses, report: reports } = time.waits;
  const told = `presses ${presses}, reports ${reports} ms`;
  assert.ok(median(presses) <= 400, told);
  assert.ok(median(reports) <= 1500, told);
  assert.deepEqual(faults, []);
  await context.close();
});

// A frame that takes longer than 50 ms is seen as a jerk. A busy machine adds to what a frame costs: the best of three
// counts. The song enters the chart with its first week, so that the report has a sleeve that turns, paper in the air and
// figures that count.
test("a release and the report that celebrates it move without a jerk", async () => {
  const { page, context, faults } = await game.open({ address: "about:blank", reducedMotion: "no-preference" });
  await openWorld(page, game.home, world("star"));
  const count = await countCosts(game.browser, page);
  const moment = (name, label, ms) =>
    count.moment(
      name,
      ms,
      (label) =>
        [...document.querySelectorAll(".layer.top button")].find((one) => one.textContent.includes(label)).click(),
      label,
    );
  for (const title of ["Paper Lanterns", "Static Hearts", "Harbour"]) {
    await press(page, /^Music/);
    await press(page, /^Create a Song/);
    await page.getByRole("textbox", { name: "Title" }).fill(title);
    await press(page, /^Create song/);
    await answerAlerts(page);
    await press(page, title);
    await page.waitForFunction(() => !document.querySelector(".moving"));
    await moment("release", "RELEASE", 1700);
    await answerAlerts(page);
    await press(page, "Back");
    await press(page, /^Home/);
    await moment("report", "END THE WEEK", 2400);
    assert.equal(await page.locator(".layer.top .poster.celebrate .cover").count(), 1, title);
    await answerAlerts(page);
    await press(page, "Continue");
    await answerAlerts(page);
  }
  const frames = await count.end();
  for (const [name, longest] of Object.entries(frames)) {
    const told = `the longest frames of each ${name}: ${longest.map((ms) => (ms * slowdown).toFixed(0))} ms`;
    assert.ok(Math.min(...longest) > 0 && Math.min(...longest) * slowdown <= 50, told);
  }
  assert.deepEqual(faults, []);
  await context.close();
});

test("a career of a hundred years is resumed soon", async () => {
  const { page, context, faults } = await game.open({ address: "about:blank" });
  await openWorld(page, game.home, century());
  await settled(page); // its rows get their checks first
  const session = await context.newCDPSession(page);
  await session.send("Emulation.setCPUThrottlingRate", { rate: slowdown });
  const start = Date.now();
  await page.reload();
  await page.locator(".layer.top").first().waitFor();
  const took = Date.now() - start;
  assert.ok(took <= 8000, `it took ${took} ms`);
  assert.deepEqual(faults, []);
  await context.close();
});

test("it starts soon and takes little memory", async () => {
  const { page, context, faults } = await game.open({ address: "about:blank" });
  const session = await context.newCDPSession(page);
  await session.send("Emulation.setCPUThrottlingRate", { rate: slowdown });
  const start = Date.now();
  await page.goto(game.home);
  await page.locator(".layer.top").first().waitFor();
  const took = Date.now() - start;
  assert.ok(took <= 7000, `the first screen took ${took} ms`);
  const { usedSize } = await session.send("Runtime.getHeapUsage");
  assert.ok(usedSize <= 40e6, `the page holds ${(usedSize / 1e6).toFixed(0)} MB`);
  assert.deepEqual(faults, []);
  await context.close();
});
