import assert from "node:assert/strict";
import { existsSync } from "node:fs";
import { readFile } from "node:fs/promises";
import { createRequire } from "node:module";
import { resolve } from "node:path";
import { after, before, describe, test } from "node:test";
import { everyScreen, openSight } from "../tools/screens.mjs";
import { walk } from "../tools/walk.mjs";
import { openWorld, world } from "../tools/worlds.mjs";
import { barriers, brokenWords, cutRings, drawnLate, quiet, tooWide, unreachable } from "./look.mjs";
import { openGame } from "./open.mjs";

const engine = resolve(import.meta.dirname, "../public/engine.wasm");
const axe = await readFile(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");

/** What anybody could stumble over on the screen that stands there, in either light, on small phones and in large letters. */
async function stumbles(page) {
  const found = [];
  const note = (where, faults) => found.push(...faults.map((fault) => `${where}: ${fault}`));
  const small = (width, height) => page.setViewportSize({ width, height });
  const letters = (size) => page.evaluate((size) => (document.documentElement.style.fontSize = size), size);
  await quiet(page);
  note("dark", [...(await barriers(page)), ...(await drawnLate(page)), ...(await cutRings(page))]);
  await page.emulateMedia({ colorScheme: "light" });
  note("light", await barriers(page, "color-contrast"));
  await page.emulateMedia({ colorScheme: "dark" });
  await small(320, 568);
  note("320 px", [...(await tooWide(page)), ...(await brokenWords(page))]);
  await letters("200%");
  note("320 px, 200 %", [...(await tooWide(page)), ...(await unreachable(page)), ...(await brokenWords(page))]);
  await small(390, 844);
  note("200 %", [...(await tooWide(page)), ...(await brokenWords(page))]);
  await letters("");
  return found;
}

describe("every screen", { skip: !existsSync(engine) && "the engine is not built for the browser" }, () => {
  let house;
  let screens;
  before(async () => {
    house = await openGame();
    screens = await everyScreen();
  });
  after(() => house?.close());

  const openAnew = () => house.open({ address: "about:blank", bypassCSP: true });

  test("has a way that leads the gallery to it", () => {
    assert.ok(screens.length > 100, `only ${screens.length} screens are listed`);
    const unseen = screens.filter(({ sights }) => sights.length === 0).map(({ name }) => name);
    assert.deepEqual(unseen, []);
  });

  test("is open to everybody, in either light, in large letters on a small phone", async () => {
    const seen = new Set();
    const found = [];
    for (const career of ["mid-career", "golden_decade", "new"]) {
      const { page, context, faults } = await openAnew();
      await openWorld(page, house.home, world(career));
      await page.evaluate(axe);
      await walk(page, async (name) => {
        if (seen.has(name)) return;
        seen.add(name);
        found.push(...(await stumbles(page)).map((stumble) => `${name}, ${stumble}`));
      });
      assert.deepEqual(faults, []);
      await context.close();
    }
    assert.deepEqual(found, []);
    assert.ok(seen.size > 40, `${seen.size} screens and messages`);
  });

  const skip = !process.env.BACKBEAT_EVERY_SCREEN && "only in the long check";
  test("and so is each of them where it is fullest", { skip }, async () => {
    const found = [];
    for (const { name, sights } of screens) {
      const { page, context, faults } = await openAnew();
      await openSight(page, house.home, name, sights[0]);
      await page.evaluate(axe);
      found.push(...[...(await stumbles(page)), ...faults].map((fault) => `${name}, ${fault}`));
      await context.close();
    }
    assert.deepEqual(found, []);
  });
});
