import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { createRequire } from "node:module";
import { resolve } from "node:path";
import { after, before, test } from "node:test";
import hostile from "./fixtures/hostile.mjs";
import { screens as coming } from "./fixtures/screens.mjs";
import { barriers, quiet, tooWide, unreachable } from "./look.mjs";
import { openStage } from "./open.mjs";

const here = import.meta.dirname;
const fixture = async (name) => JSON.parse(await readFile(resolve(here, "fixtures", `${name}.json`), "utf8"));
// Written by the engine's tests: every block with all that it can say, and with nothing.
const engineMade = ["engine/every-block", "engine/barest-blocks"];
const screens = { hostile, ...coming };
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
    for (const name of ["home", "blocks", "report", "engine/every-block", ...Object.keys(coming)]) {
      await show(page, screens[name]);
      await page.evaluate(axe);
      assert.deepEqual(await barriers(page), [], name);
    }
    assert.deepEqual(faults, []);
    await context.close();
  });
}

test("the first frame fills a tall screen, and what follows moves nothing of it", async () => {
  const { page, context } = await stage.open({ height: 932 });
  const faults = [];
  let stepwise = 0;
  for (const [i, [name, answer]] of Object.entries(screens).entries()) {
    const key = 1000 + i;
    const seen = { ...answer, stack: [key], modal: false, alert: null, view: { ...answer.view, key } };
    const { filled, all, moved } = await page.evaluate(async (answer) => {
      window.stage.show(answer);
      await new Promise(requestAnimationFrame);
      const blocks = document.querySelector(".layer.top bb-blocks");
      const tops = () => [...blocks.children].map((block) => block.getBoundingClientRect().top);
      const [first, foot] = [tops(), blocks.lastElementChild?.getBoundingClientRect().bottom ?? 0];
      const all = blocks.whole;
      while (!blocks.whole) await new Promise(requestAnimationFrame);
      const seen = first.filter((top) => top < innerHeight);
      const moved = seen.some((top, i) => Math.abs(top - tops()[i]) > 1);
      return { filled: foot >= innerHeight, all, moved };
    }, seen);
    if (!filled && !all) faults.push(`${name} is not filled`);
    if (moved) faults.push(`${name} moves`);
    stepwise += all ? 0 : 1;
  }
  assert.deepEqual(faults, []);
  assert.ok(stepwise > 3, "long screens are drawn in steps");
  await context.close();
});

test("with letters twice as large on a small phone nothing is cut off and everything can be pressed", async () => {
  const { page, context, faults } = await stage.open({ width: 320, height: 568 });
  await page.evaluate(() => (document.documentElement.style.fontSize = "200%"));
  for (const [name, answer] of Object.entries(coming)) {
    await show(page, answer);
    assert.deepEqual([...(await tooWide(page)), ...(await unreachable(page))], [], name);
  }
  assert.deepEqual(faults, []);
  await context.close();
});

/** The names that a list of the engine's header holds. */
async function listed(header, list) {
  const text = await readFile(resolve(here, "../../../core", header), "utf8");
  const start = text.indexOf(` ${list} = `);
  assert.ok(start > 0, list);
  const names = [...text.slice(start, text.indexOf("});", start)).matchAll(/^ *"(\w+)",$/gm)].map(([, name]) => name);
  return names.sort();
}

test("the engine names the glyphs and pictures that there are, and each has a drawing", async () => {
  const { page, context, faults } = await stage.open();
  const [icons, forms, empty] = await page.evaluate(async () => {
    const { iconNames, installLateGlyphs, forms, portraitForms, drawing } = window.stage;
    await installLateGlyphs();
    const names = Object.entries(forms).map(([kind, family]) => [kind, Object.keys(family).sort()]);
    const glyphs = iconNames.filter((name) => !document.querySelector(`#glyph-${name}`)?.childElementCount);
    const holder = document.createElement("div");
    const bare = names.flatMap(([kind, forms]) =>
      forms.filter((form) => {
        holder.innerHTML = drawing(kind, `${form}:Harbour`);
        const art = holder.querySelector(`span.picture.${kind} > svg`);
        return !art?.childElementCount || /NaN|undefined/.test(holder.innerHTML) || holder.querySelector("[id], text");
      }),
    );
    return [
      [...iconNames].sort(),
      { ...Object.fromEntries(names), portrait: [...portraitForms].sort() },
      [...glyphs, ...bare],
    ];
  });
  assert.deepEqual(icons, await listed("icons.h", "icons"));
  for (const [kind, names] of Object.entries(forms)) {
    assert.deepEqual(names, await listed("pictures.h", `${kind}Forms`), kind);
  }
  assert.deepEqual(empty, []);
  assert.deepEqual(faults, []);
  await context.close();
});

test("a picture follows from its name, and an unknown form still gives one", async () => {
  const { page, context, faults } = await stage.open();
  const [same, shirts, unknown, plain, inks] = await page.evaluate(() => {
    const { drawing, forms } = window.stage;
    const cloth = (name) => drawing("object", `hoody:${name}`).match(/#[0-9a-f]{6}/g)[3];
    const shirts = Array.from({ length: 100 }, (_, i) => drawing("object", `shirt:Tour ${i}`));
    const unknown = Object.keys(forms).map((kind) => drawing(kind, "toString:Heron").includes(`picture ${kind}`));
    return [
      drawing("scene", "modern:12 Cliff Road") === drawing("scene", "modern:12 Cliff Road"),
      new Set(shirts).size,
      unknown,
      drawing("object", "no form at all").includes("<svg"),
      ["Black Hoodie", "Blue Moon Black Hoodie", "Red Hoodie"].map(cloth),
    ];
  });
  assert.ok(same && plain);
  assert.equal(inks[0], inks[1], "of several colours the last is that of the thing");
  assert.notEqual(inks[0], inks[2]);
  assert.ok(shirts > 90, `only ${shirts} of 100 shirts differ`);
  assert.deepEqual(unknown, [true, true, true, true]);
  assert.deepEqual(faults, []);
  await context.close();
});

test("a portrait suits its name, and a name keeps its skin through life", async () => {
  const { page, context, faults } = await stage.open();
  const [told, skins] = await page.evaluate(() => {
    const { presentationOf, portrait } = window.stage;
    const names = [
      "Mina Sol",
      "Freya Nightly",
      "Luz Carmina",
      "Nova Reyes",
      "Zoë",
      "Low Tide Larry",
      "King Solace",
      "Luca",
    ];
    const skinOf = (named) => /fill="(#\w+)"/.exec(portrait(named))[1];
    return [
      names.map(presentationOf),
      ["baby", "girl", "teenGirl", "woman", "oldWoman"].map((age) => skinOf(`${age}:Ada`)),
    ];
  });
  assert.deepEqual(told, ["woman", "woman", "woman", "woman", "woman", "man", "man", "man"]);
  assert.equal(new Set(skins).size, 1);
  assert.deepEqual(faults, []);
  await context.close();
});

test("brothers and sisters take after the same kin, and each stays who it is", async () => {
  const { page, context, faults } = await stage.open();
  const drawn = await page.evaluate(() => {
    const { portrait } = window.stage;
    const skins = ["ffdbb4", "edb98a", "d08b5b", "ae5d29", "694d3d"];
    const skinOf = (named) => skins.filter((skin) => portrait(named).includes(skin)).join();
    const colours = (kin, family) =>
      ["baby:1 0 80", "girl:2 1 71", "teenBoy:3 0 66", "woman:4 1 90", "oldMan:5 0 88"].map((own) =>
        skinOf(`${own}\n${kin}\n${family}`),
      );
    const kins = ["Nova Theo", "Mara Voss Ines", "Juno", "Otis Wren"];
    return {
      light: kins.map((kin) => colours(kin, "light")),
      dark: kins.map((kin) => colours(kin, "dark")),
      hair: ["girl", "teenGirl", "woman"].map((age) => portrait(`${age}:2 1 71\nNova Theo\nlight`).length),
      faces: new Set(["1 0 80", "2 0 71", "3 0 66"].map((own) => portrait(`boy:${own}\nNova Theo\nlight`))).size,
    };
  });
  for (const family of [...drawn.light, ...drawn.dark]) assert.equal(new Set(family).size, 1, String(family));
  const shared = drawn.light.flat().filter((skin) => drawn.dark.flat().includes(skin));
  assert.deepEqual(shared, []);
  assert.ok(drawn.light.flat().every((skin) => skin.length === 6));
  assert.equal(drawn.faces, 3);
  assert.ok(Math.max(...drawn.hair) - Math.min(...drawn.hair) < 400, `another head: ${drawn.hair}`);
  assert.deepEqual(faults, []);
  await context.close();
});

test("pictures come after the screen, with who is seen in them", async () => {
  const { page, context, faults } = await stage.open();
  const item = (kind, name) => ({ picture: { kind, name }, title: name.split("\n")[0] });
  await show(page, {
    ...screens.home,
    view: {
      ...screens.home.view,
      blocks: [
        {
          kind: "rows",
          items: [
            item("object", "shirt:Tour Shirt 2031"),
            item("scene", "modern:12 Cliff Road"),
            item("still", "cinematic:Paper Lanterns\nNova Reyes"),
            item("mark", "kite:Kite House"),
            item("icon", "yacht"),
            item("person", "girl:Ada"),
          ],
        },
      ],
    },
  });
  for (const kind of ["object", "scene", "still", "mark"]) await page.locator(`.row .picture.${kind} > svg`).waitFor();
  await page.locator('.row .still image[href^="data:image/svg+xml"]').waitFor();
  await page.locator(".row .person img").waitFor();
  await page.locator("#glyph-yacht > *").first().waitFor({ state: "attached" });
  assert.deepEqual(faults, []);
  await context.close();
});

test("a sleeve follows from its name, and names make many sleeves", async () => {
  const { page, context, faults } = await stage.open();
  const [same, different, rivers] = await page.evaluate(() => {
    const { sleeve } = window.stage;
    const many = Array.from({ length: 300 }, (_, i) => sleeve(`Song ${i}`));
    const wavy = (title) => sleeve(title).match(/<path d="M0 \d+C25/g)?.length;
    return [
      sleeve("Paper Lanterns") === sleeve("Paper Lanterns"),
      new Set(many).size,
      ["Glass Rivers", "Low Tide"].map(wavy),
    ];
  });
  assert.ok(same);
  assert.deepEqual(rivers, [4, 4], "a title that tells of water shows waves");
  assert.ok(different > 200, `only ${different} of 300 sleeves differ`);
  assert.deepEqual(faults, []);
  await context.close();
});
