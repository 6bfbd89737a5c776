import assert from "node:assert/strict";
import { existsSync } from "node:fs";
import { readdir, readFile } from "node:fs/promises";
import { join, resolve } from "node:path";
import { after, before, describe, test } from "node:test";
import { gzipSync } from "node:zlib";
import { answerAlerts, endTheWeek, press, start } from "./life.mjs";
import { openGame } from "./open.mjs";

const engine = resolve(import.meta.dirname, "../public/engine.wasm");

describe("the whole game", { skip: !existsSync(engine) && "the engine is not built for the browser" }, () => {
  let house;
  before(async () => (house = await openGame()));
  after(() => house?.close());

  const open = (options = {}) => house.open({ address: `${house.home}?seed=7`, ...options });
  const title = (page, name) => page.locator(".layer.top").getByRole("heading", { name, level: 1 }).waitFor();

  test("an artist writes a song, releases it and plays on after a reload", async () => {
    const { page, context, faults } = await open();
    await start(page);
    await press(page, /^Music/);
    await press(page, /^Create a Song/);
    await page.getByRole("textbox", { name: "Title" }).fill("Paper Lanterns 🏮");
    await press(page, /^Create song/);
    await answerAlerts(page);
    await press(page, /Paper Lanterns/);
    await press(page, /^RELEASE/);
    await answerAlerts(page);
    await press(page, "Back");
    for (let week = 0; week < 3; week += 1) await endTheWeek(page);
    const header = await page.locator(".layer.top .status").innerText();
    assert.match(header, /Week 4, 2023/);

    await page.reload();
    await press(page, /^Music/);
    await title(page, "Music");
    await page.getByRole("button", { name: /Paper Lanterns 🏮/ }).waitFor();
    assert.equal(await page.locator(".layer.top .status").innerText(), header);
    assert.deepEqual(faults, []);
    await context.close();
  });

  test("a report that is open at a reload is told again", async () => {
    const { page, context, faults } = await open();
    await start(page);
    await press(page, /^Home/);
    await press(page, "END THE WEEK");
    await title(page, "Week 1");
    // The week's chances go with the launch.
    const told = async () => (await page.locator(".layer.modal").innerText()).split(/^Chances/m)[0];
    const before = await told();
    await page.reload();
    await title(page, "Week 1");
    assert.equal(await told(), before);
    await press(page, "Continue");
    await title(page, "Nova Reyes");
    await page.reload();
    await title(page, "Nova Reyes");
    assert.deepEqual(faults, []);
    await context.close();
  });

  test("a week and what the tabs lead to are rehearsed in a worker, so that the engine is ready for them", async () => {
    const init = () => {
      window.Worker = class extends Worker {
        constructor(...from) {
          super(...from);
          this.addEventListener("message", ({ data }) => (window.rehearsed = data.samples));
        }
      };
    };
    const { page, context, faults } = await open({ init });
    const rehearsed = await page.waitForFunction(() => window.rehearsed);
    const kinds = new Set((await rehearsed.jsonValue()).flatMap(({ blocks }) => blocks.map(({ kind }) => kind)));
    for (const kind of ["field", "choice", "toggle", "photo", "cover", "tiles", "figures", "chart", "gauges", "meter"])
      assert.ok(kinds.has(kind), `no ${kind} came by`);
    assert.equal(await page.getByRole("textbox", { name: "Artist name" }).inputValue(), "");
    assert.deepEqual(faults, []);
    await context.close();
  });

  test("a second tab is told, and takes over only when asked to", async () => {
    const { page, context, faults } = await open();
    await start(page);
    const second = await context.newPage();
    await second.goto(house.home);
    await second.getByRole("button", { name: "Use here" }).click();
    await second.locator(".tab-bar").waitFor();
    await page.getByRole("heading", { name: "Backbeat is open in another tab" }).waitFor();
    assert.equal(await second.getByText("Who are you?").count(), 0);
    assert.deepEqual(faults, []);
    await context.close();
  });

  test("the page stays small", async () => {
    const scripts = (await readdir(join(house.folder, "assets"))).filter((name) => name.endsWith(".js"));
    const sizes = await Promise.all(
      scripts.map(async (name) => gzipSync(await readFile(join(house.folder, "assets", name))).length),
    );
    const total = sizes.reduce((sum, size) => sum + size, 0);
    assert.ok(total < 250_000, `${total} bytes of compressed script`);
  });
});
