import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { createRequire } from "node:module";
import { resolve } from "node:path";
import { after, before, test } from "node:test";
import hostile from "./fixtures/hostile.mjs";
import { openStage } from "./open.mjs";

const here = import.meta.dirname;
const fixture = async (name) => JSON.parse(await readFile(resolve(here, "fixtures", `${name}.json`), "utf8"));
const screens = { hostile };
let stage;

before(async () => {
  for (const name of ["home", "blocks", "report"]) screens[name] = await fixture(name);
  stage = await openStage();
});
after(() => stage.close());

/** Shows an answer and waits until nothing fades or slides any more: a half-faded text has no contrast. */
const show = (page, answer) =>
  page.evaluate(async (answer) => {
    window.stage.show(answer);
    await document.fonts.ready;
    await new Promise(requestAnimationFrame);
    const ending = document.getAnimations().filter(({ effect }) => effect.getComputedTiming().endTime !== Infinity);
    await Promise.allSettled(ending.map(({ finished }) => finished));
  }, answer);

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
    const { page, context } = await stage.open({ theme, bypassCSP: true });
    const axe = await readFile(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");
    for (const name of ["home", "blocks", "report"]) {
      await show(page, screens[name]);
      await page.evaluate(axe);
      const { violations } = await page.evaluate(() => window.axe.run());
      const grave = violations
        .filter(({ impact }) => impact === "serious" || impact === "critical")
        .map(({ id, nodes }) => `${id}: ${nodes.map((node) => node.html.slice(0, 120)).join(" | ")}`);
      assert.deepEqual(grave, [], name);
    }
    await context.close();
  });
}

/** What sticks out of the screen or of the row, card or button it lies in. */
function tooWide(page) {
  return page.evaluate(() => {
    const scroll = document.querySelector(".layer.top .scroll");
    const room = scroll.getBoundingClientRect();
    const found = scroll.scrollWidth > scroll.clientWidth ? ["the screen scrolls sideways"] : [];
    const pieces = ".status > *, .row-main > *, .card > *, .button > *, .heading > *, .line > *, .dock > *";
    for (const piece of scroll.querySelectorAll(pieces)) {
      const box = piece.getBoundingClientRect();
      if (box.width === 0 || piece.classList.contains("unseen") || piece.closest(".table")) continue;
      if (box.left < room.left - 0.5 || box.right > room.right + 0.5) found.push(piece.outerHTML.slice(0, 120));
    }
    const status = [...scroll.querySelectorAll(".status > *")].map((piece) => piece.getBoundingClientRect());
    for (const [i, a] of status.entries()) {
      for (const b of status.slice(i + 1)) {
        const apart = a.right <= b.left + 0.5 || b.right <= a.left + 0.5 || a.bottom <= b.top || b.bottom <= a.top;
        if (!apart) found.push("pieces of the status row overlap");
      }
    }
    return found;
  });
}

test("every glyph that the engine may name has a drawing", async () => {
  const header = await readFile(resolve(here, "../../../core/icons.h"), "utf8");
  const names = [...header.slice(header.indexOf("icons = {")).matchAll(/"([\w-]+)"/g)].map(([, name]) => name);
  assert.ok(names.length > 0);
  const { page, context } = await stage.open();
  const missing = await page.evaluate(
    (names) =>
      names.filter(
        (name) => !window.stage.isIcon(name) || !document.querySelector(`#glyph-${name}`)?.childElementCount,
      ),
    names,
  );
  assert.deepEqual(missing, []);
  await context.close();
});

test("a sleeve follows from its name, and names make many sleeves", async () => {
  const { page, context } = await stage.open();
  const [same, different] = await page.evaluate(() => {
    const { sleeve } = window.stage;
    const many = Array.from({ length: 300 }, (_, i) => sleeve(`Song ${i}`));
    return [sleeve("Paper Lanterns") === sleeve("Paper Lanterns"), new Set(many).size];
  });
  assert.ok(same);
  assert.ok(different > 200, `only ${different} of 300 sleeves differ`);
  await context.close();
});
