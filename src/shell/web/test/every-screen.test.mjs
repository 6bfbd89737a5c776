import assert from "node:assert/strict";
import { existsSync } from "node:fs";
import { readFile } from "node:fs/promises";
import { createRequire } from "node:module";
import { resolve } from "node:path";
import { after, before, describe, test } from "node:test";
import { everyScreen } from "../tools/screens.mjs";
import { walk } from "../tools/walk.mjs";
import { openWorld, world } from "../tools/worlds.mjs";
import { barriers, brokenWords, cutRings, drawnLate, quiet, tooWide, unreachable } from "./look.mjs";
import { openGame } from "./open.mjs";

const engine = resolve(import.meta.dirname, "../public/engine.wasm");
const axe = await readFile(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");

describe("every screen", { skip: !existsSync(engine) && "the engine is not built for the browser" }, () => {
  let house;
  before(async () => (house = await openGame()));
  after(() => house?.close());

  test("has a way that leads the gallery to it", async () => {
    const screens = await everyScreen();
    assert.ok(screens.length > 100, `only ${screens.length} screens are listed`);
    const unseen = screens.filter(({ sights }) => sights.length === 0).map(({ name }) => name);
    assert.deepEqual(unseen, []);
  });

  test("is open to everybody, in either light, in large letters on a small phone", async () => {
    const seen = new Set();
    const found = [];
    for (const career of ["mid-career", "golden_decade", "new"]) {
      const { page, context, faults } = await house.open({ address: "about:blank", bypassCSP: true });
      await openWorld(page, house.home, world(career));
      await page.evaluate(axe);
      await walk(page, async (name) => {
        if (seen.has(name)) return;
        seen.add(name);
        const note = (where, faults) => found.push(...faults.map((fault) => `${name}, ${where}: ${fault}`));
        await quiet(page);
        note("dark", [...(await barriers(page)), ...(await drawnLate(page)), ...(await cutRings(page))]);
        await page.emulateMedia({ colorScheme: "light" });
        note("light", await barriers(page, "color-contrast"));
        await page.emulateMedia({ colorScheme: "dark" });
        await page.setViewportSize({ width: 320, height: 568 });
        note("320 px", await tooWide(page));
        await page.evaluate(() => (document.documentElement.style.fontSize = "200%"));
        note("200 %", [...(await tooWide(page)), ...(await unreachable(page)), ...(await brokenWords(page))]);
        await page.evaluate(() => (document.documentElement.style.fontSize = ""));
        await page.setViewportSize({ width: 390, height: 844 });
      });
      assert.deepEqual(faults, []);
      await context.close();
    }
    assert.deepEqual(found, []);
    assert.ok(seen.size > 40, `${seen.size} screens and messages`);
  });
});
