// Where two screens find room beside each other, and the keys that play there.
import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { createRequire } from "node:module";
import { resolve } from "node:path";
import { after, before, test } from "node:test";
import hostile from "./fixtures/hostile.mjs";
import { openWorld, world } from "../tools/worlds.mjs";
import { barriers, quiet, tooWide, unreachable } from "./look.mjs";
import { openGame, openStage } from "./open.mjs";

const desk = { width: 1440, height: 900 };
const home = JSON.parse(await readFile(resolve(import.meta.dirname, "fixtures/home.json"), "utf8"));
const axe = await readFile(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");
let stage;
let game;

before(async () => {
  [stage, game] = [await openStage(), await openGame()];
});
after(() => Promise.all([stage.close(), game.close()]));

const row = (id) => ({ kind: "rows", items: [{ title: `Row ${id}`, id, opens: true }] });
const view = (key, blocks) => ({ key, title: `Screen ${key}`, blocks });
const music = { ...home, tab: 1, stack: [3], endWeek: true, view: view(3, [row("a"), row("b")]), beside: home.view };
const song = { ...home, tab: 1, stack: [3, 8], view: view(8, [row("c")]), beside: structuredClone(music.view) };
const panels = (page) =>
  page.locator(".layer:is(.left, .right, .wide)").evaluateAll((layers) =>
    layers
      .filter((layer) => layer.checkVisibility({ visibilityProperty: true }))
      .sort((a, b) => a.getBoundingClientRect().left - b.getBoundingClientRect().left)
      .map((layer) => layer.ariaLabel),
  );

test("the root lies beside what it led to, else home does; a press goes to the screen that it was meant for", async () => {
  const { page, context, faults } = await stage.open(desk);
  const next = (...answers) => page.evaluate((answers) => void window.stage.player.answers.push(...answers), answers);
  const presses = () =>
    page.evaluate(() => window.stage.player.presses.splice(0).map((press) => press.join(" ").trim()));
  await page.evaluate((first) => window.stage.show(first), home);
  await page.waitForFunction(() => window.stage.player.presses.length > 0);
  assert.deepEqual(await presses(), ["nav desk 1"]);
  assert.deepEqual(await panels(page), ["Nova Reyes"]);

  await next(music, song);
  await page.keyboard.press("2");
  assert.deepEqual(await panels(page), ["Screen 3", "Nova Reyes"]);
  await page.keyboard.press("ArrowDown");
  await page.keyboard.press("ArrowDown");
  await page.keyboard.press("Enter");
  assert.deepEqual(await presses(), ["tabs tab 1", "3 b"]);
  assert.deepEqual(await panels(page), ["Screen 3", "Screen 8"]);
  assert.equal(
    await page
      .locator(".left [aria-current]")
      .textContent()
      .then((text) => text.trim()),
    "Row b",
  );

  await next(music, music);
  await page.getByRole("button", { name: "Row a" }).click();
  assert.deepEqual(await presses(), ["tabs tab 1", "3 a"], "first back to the root, then the press");
  await next(song);
  await page.getByRole("button", { name: "Row b" }).click();
  await next(music);
  await page.keyboard.press("Backspace");
  await next(song);
  await page.getByRole("button", { name: "Row b" }).click();
  await next(music, { ...music, modal: true, stack: [3, 9], view: view(9, []), beside: undefined });
  await page.keyboard.press("e");
  assert.deepEqual(await presses(), ["3 b", "nav back", "3 b", "tabs tab 1", "nav endTheWeekButton"]);
  assert.equal(await page.locator(".layer:not([inert]), .side-rail:not([inert])").count(), 1, "only the modal screen");
  await page.keyboard.press("2");
  await page.keyboard.press("?");
  await page.getByRole("dialog", { name: "Keys" }).waitFor();
  await page.keyboard.press("3");
  assert.deepEqual(await presses(), ["tabs tab 1"], "the list of keys takes them for itself");
  assert.deepEqual(faults, []);
  await context.close();
});

test("letters stay with who types", async () => {
  const { page, context } = await stage.open(desk);
  const field = { kind: "field", id: "title", label: "Title" };
  await page.evaluate((shown) => window.stage.show(shown), { ...music, view: view(3, [field]) });
  await page.getByRole("textbox").focus();
  await page.keyboard.type("e2?");
  await page.keyboard.press("Backspace");
  assert.equal(await page.getByRole("textbox").inputValue(), "e2");
  assert.deepEqual(await page.evaluate(() => window.stage.player.presses), [["nav", "desk", "1"]]);
  await context.close();
});

for (const theme of ["dark", "light"]) {
  test(`with endless texts and figures all fits and can be read at a desk and beside a rail, ${theme}`, async () => {
    const header = {
      cash: "-$1,234,567,890,123",
      cashTone: "bad",
      energy: "1,000 / 1,998",
      energyShare: 0.5,
      date: "Week 52, 2123",
    };
    const artist = { ...home.view, title: "Wolfeschlegelsteinhausenbergerdorff the Third of Nowhere" };
    const shows = [
      { ...music, header, beside: artist },
      { ...song, header, view: { ...hostile.view, key: 8 }, beside: { ...hostile.view, key: 3 } },
    ];
    for (const [width, height] of [
      [1080, 720],
      [1440, 900],
      [844, 390],
      [768, 1024],
    ]) {
      const { page, context, faults } = await stage.open({ theme, width, height, bypassCSP: true });
      for (const shown of shows) {
        await page.evaluate((shown) => window.stage.show(shown), shown);
        await quiet(page);
        assert.deepEqual(await tooWide(page), [], `${width}`);
        const rail = await page
          .locator(".side-rail")
          .evaluate((rail) =>
            rail.scrollWidth > rail.clientWidth
              ? [...rail.querySelectorAll("*")]
                  .filter((piece) => piece.getBoundingClientRect().right > rail.getBoundingClientRect().right)
                  .map(({ className }) => className)
              : [],
          );
        assert.deepEqual(rail, [], `${width}`);
        if (width < 1440) continue;
        await page.evaluate(axe);
        assert.deepEqual(await barriers(page), [], "both panels");
      }
      await page.evaluate((shown) => window.stage.show(shown), shows[0]);
      await quiet(page);
      assert.deepEqual(await unreachable(page), []);
      await page.evaluate(axe);
      assert.deepEqual(await barriers(page), [], `${width}`);
      assert.deepEqual(faults, []);
      await context.close();
    }
  });
}

test("the keyboard plays a whole year at a desk", async () => {
  const { page, context, faults } = await game.open({ ...desk, address: "about:blank" });
  await openWorld(page, game.home, world("golden_year"));
  const week = () => page.evaluate(() => document.querySelector("backbeat-app").player.answer.header.date);
  const waits = () =>
    page.evaluate(() => {
      const { alert, modal } = document.querySelector("backbeat-app").player.answer;
      return Boolean(alert || modal);
    });
  const seen = new Set([await week()]);
  for (let weeks = 0; weeks < 52; weeks += 1) {
    if (weeks % 13 === 0) {
      await page.keyboard.press("2");
      await page.keyboard.press("ArrowDown");
      await page.keyboard.press("Enter");
      assert.equal(await page.locator(".layer.top").getAttribute("data-screen"), "CreateASongViewController");
    }
    await page.keyboard.press("e");
    for (let i = 0; i < 30 && (await waits()); i += 1) await page.keyboard.press("Enter");
    seen.add(await week());
  }
  assert.equal(seen.size, 53);
  assert.deepEqual(faults, []);
  await context.close();
});
