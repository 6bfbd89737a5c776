import assert from "node:assert/strict";
import { existsSync } from "node:fs";
import { readFile } from "node:fs/promises";
import { createRequire } from "node:module";
import { resolve } from "node:path";
import { after, before, describe, test } from "node:test";
import { walk } from "../tools/walk.mjs";
import { store, worlds } from "../tools/worlds.mjs";
import { barriers, quiet, tooWide, unreachable } from "./look.mjs";
import { openGame } from "./open.mjs";

const engine = resolve(import.meta.dirname, "../public/engine.wasm");
const axe = await readFile(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");

describe("every screen", { skip: !existsSync(engine) && "the engine is not built for the browser" }, () => {
  let house;
  before(async () => (house = await openGame()));
  after(() => house?.close());

  for (const world of ["first weeks", "decade"]) {
    test(`is open to everybody, in either light, in large letters on a small phone: ${world}`, async () => {
      const { page, context, faults } = await house.open({ address: `${house.home}licenses.txt`, bypassCSP: true });
      await store(page, worlds[world]());
      await page.goto(`${house.home}?seed=7`);
      await page.locator(".layer.top").waitFor();
      await page.evaluate(axe);
      const found = [];
      await walk(page, async (name) => {
        const note = (where, faults) => found.push(...faults.map((fault) => `${name}, ${where}: ${fault}`));
        await quiet(page);
        note("dark", await barriers(page));
        await page.emulateMedia({ colorScheme: "light" });
        note("light", await barriers(page, "color-contrast"));
        await page.emulateMedia({ colorScheme: "dark" });
        await page.setViewportSize({ width: 320, height: 568 });
        note("320 px", await tooWide(page));
        await page.evaluate(() => (document.documentElement.style.fontSize = "200%"));
        await quiet(page);
        note("200 %", [...(await tooWide(page)), ...(await unreachable(page))]);
        await page.evaluate(() => (document.documentElement.style.fontSize = ""));
        await page.setViewportSize({ width: 390, height: 844 });
      });
      assert.deepEqual(found, []);
      assert.deepEqual(
        faults.filter((fault) => !fault.includes("404")),
        [],
      );
      await context.close();
    });
  }
});
