import assert from "node:assert/strict";
import { existsSync } from "node:fs";
import { appendFile, cp, mkdir, mkdtemp, readFile, rm, writeFile } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join, resolve } from "node:path";
import { after, before, describe, test } from "node:test";
import { writeWorker } from "../plugins/offline.mjs";
import { endTheWeek, press, start } from "./life.mjs";
import { openGame, openHouse } from "./open.mjs";

const engine = resolve(import.meta.dirname, "../public/engine.wasm");

describe("the installed page", { skip: !existsSync(engine) && "the engine is not built for the browser" }, () => {
  let built;
  let folder;
  before(async () => {
    built = await openGame();
    folder = await mkdtemp(join(tmpdir(), "backbeat-hosted-"));
  });
  after(async () => {
    await built?.close();
    await rm(folder, { recursive: true });
  });

  /** A host that has the page in a folder of its own, beside other things. */
  async function host(name) {
    const root = join(folder, name);
    await mkdir(join(root, "games"), { recursive: true });
    await writeFile(join(root, "index.html"), "<title>Somebody's site</title>");
    const page = join(root, "games", "backbeat");
    await cp(built.folder, page, { recursive: true });
    return { page, ...(await openHouse(root)) };
  }

  async function visit(house) {
    const address = `${house.home}games/backbeat/?seed=7`;
    const { page, context, faults } = await house.open({ address, serviceWorkers: "allow" });
    await start(page);
    await page.waitForFunction(() => navigator.serviceWorker.controller !== null);
    const close = async () => {
      assert.deepEqual(faults, []);
      await context.close();
      await house.close();
    };
    return { page, context, close };
  }

  test("plays on without a network, from a folder of any host, with every drawing and letter", async () => {
    const house = await host("offline");
    const { page, close } = await visit(house);
    await endTheWeek(page);
    const there = await page.locator(".layer.top .status").innerText();
    house.unplug();
    await page.reload();
    assert.equal(await page.locator(".layer.top .status").innerText(), there);
    await endTheWeek(page);
    await page.locator(".layer.top .person img").first().waitFor();
    await page.evaluate(() => document.fonts.load("600 17px 'Inter Variable'", "ŁЖΩ"));
    await close();
  });

  test("is offered a new version on the root of a tab, takes it when asked, and keeps the career", async () => {
    const house = await host("update");
    const { page, close } = await visit(house);
    await endTheWeek(page);
    const there = await page.locator(".layer.top .status").innerText();
    await press(page, /^Settings/);
    const index = join(house.page, "index.html");
    await writeFile(index, (await readFile(index, "utf8")).replace("</head>", '<meta name="newer" /></head>'));
    writeWorker(house.page);
    await page.evaluate(async () => {
      const registration = await navigator.serviceWorker.ready;
      await registration.update();
      await new Promise((done) => setInterval(() => registration.waiting && done(), 20));
    });
    const toast = page.locator(".toast", { hasText: "new version" });
    assert.equal(await toast.count(), 0, "not where something is open");
    assert.equal(await page.locator('meta[name="newer"]').count(), 0);
    await press(page, "Back");
    await Promise.all([page.waitForEvent("load"), toast.getByRole("button", { name: "Update" }).click()]);
    await page.locator('meta[name="newer"]').waitFor({ state: "attached" });
    assert.equal(await page.locator(".layer.top .status").innerText(), there);
    assert.equal(await page.evaluate(async () => (await caches.keys()).length), 1);
    await close();
  });

  test("is never made of files of two versions", async () => {
    const house = await host("halfway");
    const { page, close } = await visit(house);
    await appendFile(join(house.page, "licenses.txt"), "newer\n");
    writeWorker(house.page);
    await appendFile(join(house.page, "licenses.txt"), "newer still\n");
    const state = await page.evaluate(async () => {
      const registration = await navigator.serviceWorker.ready;
      const found = new Promise((done) =>
        registration.addEventListener("updatefound", () => done(registration.installing)),
      );
      await registration.update();
      const worker = await found;
      await new Promise((done) => setInterval(() => worker.state !== "installing" && done(), 20));
      return worker.state;
    });
    assert.equal(state, "redundant");
    await close();
  });

  test("names every licence of what is in it, and can be put on a home screen", async () => {
    const { page, context, faults } = await built.open();
    const session = await context.newCDPSession(page);
    const { errors } = await session.send("Page.getAppManifest");
    assert.deepEqual(errors, []);
    const icons = await page.evaluate(async () => {
      const { icons } = await (await fetch(document.querySelector("link[rel=manifest]").href)).json();
      const sizes = icons.map(async ({ src, sizes }) => {
        const image = Object.assign(new Image(), { src });
        await image.decode();
        return sizes === "any" ? "any" : `${image.naturalWidth}x${image.naturalHeight}` === sizes;
      });
      return Promise.all(sizes);
    });
    assert.deepEqual(icons, ["any", true, true, true]);
    const texts = await readFile(join(built.folder, "licenses.txt"), "utf8");
    const { dependencies } = JSON.parse(await readFile(resolve(import.meta.dirname, "../package.json"), "utf8"));
    for (const name of Object.keys(dependencies)) assert.ok(texts.includes(`${name} `), name);
    assert.deepEqual(faults, []);
    await context.close();
  });
});
