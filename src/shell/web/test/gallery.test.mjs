import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { createRequire } from "node:module";
import { resolve } from "node:path";
import { after, before, test } from "node:test";
import hostile from "./fixtures/hostile.mjs";
import { barriers, quiet, tooWide } from "./look.mjs";
import { openStage } from "./open.mjs";

const here = import.meta.dirname;
const fixture = async (name) => JSON.parse(await readFile(resolve(here, "fixtures", `${name}.json`), "utf8"));
// Written by the engine's tests: every block with all that it can say, and with nothing.
const engineMade = ["engine/every-block", "engine/barest-blocks"];
const screens = { hostile };
let stage;

before(async () => {
  for (const name of ["home", "blocks", "report", ...engineMade]) screens[name] = await fixture(name);
  stage = await openStage();
});
after(() => stage.close());

const show = async (page, answer) => {
  await page.evaluate((answer) => window.stage.show(answer), answer);
  await quiet(page);
};

for (const theme of ["dark", "light"]) {
  for (const width of [320, 390]) {
    test(`every block fits, ${theme}, ${width} px`, async () => {
      const { page, context, faults } = await stage.open({ theme, width });
      for (const [name, answer] of Object.entries(screens)) {
        await show(page, answer);
        assert.deepEqual(await tooWide(page), [], name);
      }
      assert.deepEqual(faults, []);
      await context.close();
    });
  }

  test(`no serious barrier for anybody, ${theme}`, async () => {
    const { page, context, faults } = await stage.open({ theme, bypassCSP: true });
    const axe = await readFile(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");
    for (const name of ["home", "blocks", "report", "engine/every-block"]) {
      await show(page, screens[name]);
      await page.evaluate(axe);
      assert.deepEqual(await barriers(page), [], name);
    }
    assert.deepEqual(faults, []);
    await context.close();
  });
}

test("every glyph that the engine may name has a drawing", async () => {
  const header = await readFile(resolve(here, "../../../core/icons.h"), "utf8");
  const names = [...header.slice(header.indexOf("icons = {")).matchAll(/"([\w-]+)"/g)].map(([, name]) => name);
  assert.ok(names.length > 0);
  const { page, context, faults } = await stage.open();
  const missing = await page.evaluate(
    (names) =>
      names.filter(
        (name) => !window.stage.isIcon(name) || !document.querySelector(`#glyph-${name}`)?.childElementCount,
      ),
    names,
  );
  assert.deepEqual(missing, []);
  assert.deepEqual(faults, []);
  await context.close();
});

test("a sleeve follows from its name, and names make many sleeves", async () => {
  const { page, context, faults } = await stage.open();
  const [same, different] = await page.evaluate(() => {
    const { sleeve } = window.stage;
    const many = Array.from({ length: 300 }, (_, i) => sleeve(`Song ${i}`));
    return [sleeve("Paper Lanterns") === sleeve("Paper Lanterns"), new Set(many).size];
  });
  assert.ok(same);
  assert.ok(different > 200, `only ${different} of 300 sleeves differ`);
  assert.deepEqual(faults, []);
  await context.close();
});
