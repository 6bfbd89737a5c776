import assert from "node:assert/strict";
import { existsSync } from "node:fs";
import { readFile } from "node:fs/promises";
import { createRequire } from "node:module";
import { resolve } from "node:path";
import { after, before, describe, test } from "node:test";
import {
  answerAlerts,
  downloaded,
  endTheWeek,
  launched,
  offerCareer,
  playedCareer,
  press,
  rewritten,
  setting,
  start,
  takeCareer,
} from "./life.mjs";
import { barriers } from "./look.mjs";
import { openGame } from "./open.mjs";

const axe = await readFile(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");
const engine = resolve(import.meta.dirname, "../public/engine.wasm");

describe("a career", { skip: !existsSync(engine) && "the engine is not built for the browser" }, () => {
  let house;
  let played;
  before(async () => {
    played = playedCareer();
    house = await openGame();
  });
  after(() => house?.close());

  async function open(options = {}) {
    const { page, context, faults } = await house.open({ address: `${house.home}?seed=7`, ...options });
    return {
      page,
      context,
      devtools: () => context.newCDPSession(page),
      async close() {
        assert.deepEqual(faults, []);
        await context.close();
      },
    };
  }

  const status = (page) => page.locator(".layer.top .status").innerText();
  const alert = (page) => page.locator(".alert[open]");
  const takeOut = (page) => downloaded(page, () => setting(page, /^Export/));
  const seen = (page, text) => page.getByText(text).first().waitFor();

  test("leaves as a file that other programs read and write, and comes back unchanged", async () => {
    const { page, close } = await open();
    await start(page);
    await takeCareer(page, "mara.plist", played);
    const there = await status(page);
    const { name, bytes } = await takeOut(page);
    assert.match(name, /^backbeat-[\w-]+\.plist$/);
    assert.deepEqual(rewritten(bytes), rewritten(played));

    await endTheWeek(page);
    assert.notEqual(await status(page), there);
    await takeCareer(page, "again.plist", rewritten(bytes));
    assert.equal(await status(page), there);
    await page.reload();
    assert.equal(await status(page), there);
    assert.deepEqual(rewritten((await takeOut(page)).bytes), rewritten(played));

    await offerCareer(page, "lacking.plist", rewritten(played, "del career['rhythm'], career['saveAllAlbumList']"));
    assert.match(await alert(page).innerText(), /lacks .*rhythm.*saveAllAlbumList/);
    await close();
  });

  test("is not touched by a damaged or foreign file, nor by one that cannot be stored", async () => {
    const { page, close } = await open();
    await start(page);
    await endTheWeek(page);
    const there = await status(page);
    const refused = {
      "cut.plist": [played.slice(0, played.length - 40), /property list/],
      "photo.jpg": [Buffer.from("\xff\xd8\xff\xe0 a photo", "latin1"), /property list/],
      "empty.plist": [Buffer.alloc(0), /\w+/],
      "odd.plist": [rewritten(played, "career['weekNumber'] = 'soon'"), /weekNumber/],
    };
    for (const [name, [bytes, reason]] of Object.entries(refused)) {
      await offerCareer(page, name, bytes);
      const told = await alert(page).innerText();
      assert.match(told, /Nothing Changed/);
      assert.ok(told.includes(name));
      assert.match(told, reason, name);
      await answerAlerts(page);
    }

    await offerCareer(page, "mara.plist", played);
    await page.evaluate(() => {
      IDBObjectStore.prototype.clear = () => {
        throw new DOMException("The disk is broken.", "UnknownError");
      };
    });
    await alert(page).getByRole("button", { name: "Import" }).click();
    await seen(page, /could not be stored/);
    await answerAlerts(page);
    await press(page, "Back");
    assert.equal(await status(page), there);
    await endTheWeek(page);
    const later = await status(page);
    await page.reload();
    assert.equal(await status(page), later, "the old career went on, and was stored");
    await close();
  });

  test("comes back after a restart, and again after the way back", async () => {
    const { page, close } = await open();
    await start(page, "First Life");
    await endTheWeek(page);
    const there = await status(page);
    await setting(page, /^Restart/);
    await alert(page).getByRole("button", { name: "Restart" }).click();
    await start(page, "Second Life");
    assert.notEqual(await status(page), there);

    for (const copy of [/^Before the restart/, /^Before going back/, /^Before the restart/]) {
      await setting(page, /^Restore/);
      await press(page, copy);
      await launched(page, () => alert(page).getByRole("button", { name: "Restore" }).click());
      await seen(page, "You are back.");
    }
    assert.equal(await status(page), there);
    await page.reload();
    assert.equal(await status(page), there);
    await close();
  });

  test("is worth a copy elsewhere once a year", async () => {
    const { page, close } = await open();
    const eve = "career['weekNumber'] = career['weekNumberForTracking'] = 52; career['yearNumber'] = 2023";
    await start(page);
    await takeCareer(page, "eve.plist", rewritten(played, eve));
    await endTheWeek(page);
    const { bytes } = await downloaded(page, () => press(page, /^Another year/));
    assert.ok(bytes.length > 1000);
    await endTheWeek(page);
    assert.equal(await page.getByRole("button", { name: /^Another year/ }).count(), 0);
    await close();
  });

  test("is read from a file with a bar, a way to stop, and an end to what has none", async () => {
    // The worker's answer never comes: as good as a week that has no end.
    const init = () => {
      const { Worker, setTimeout } = window;
      window.Worker = class extends Worker {
        set onmessage(take) {
          super.onmessage = (event) => "read" in event.data || take(event);
        }
      };
      window.setTimeout = (work, wait) => setTimeout(work, wait === 60_000 && window.impatient ? 1000 : wait);
    };
    const { page, close } = await open({ init });
    await start(page);
    const there = await status(page);
    const offer = async () => {
      const [picker] = await Promise.all([page.waitForEvent("filechooser"), setting(page, /^Import/)]);
      await picker.setFiles({ name: "mara.plist", mimeType: "application/octet-stream", buffer: played });
    };
    await offer();
    await seen(page, /Ending a week/);
    const bar = page.getByRole("progressbar", { name: "mara.plist" });
    assert.ok((await bar.getAttribute("value")) !== "0" && (await bar.evaluate(({ value }) => value)) < 1);
    await page.evaluate(axe);
    assert.deepEqual(await barriers(page), []);
    await page.keyboard.press("Enter");
    await seen(page, "Stopped. Nothing has changed.");
    assert.equal(await alert(page).count(), 0);

    await page.evaluate(() => (window.impatient = true));
    await press(page, "Back");
    await offer();
    await seen(page, /does not come to an end/);
    await answerAlerts(page);
    await press(page, "Back");
    assert.equal(await status(page), there);
    await close();
  });

  test("finds room on a full device only for a copy that the player gives up", async () => {
    const init = () => {
      window.copiesLeft = Infinity;
      const { put, delete: forget } = IDBObjectStore.prototype;
      IDBObjectStore.prototype.put = function (value, key) {
        const isNewCopy = this.name === "copies" && Array.isArray(value);
        if (isNewCopy && window.copiesLeft < 1) throw new DOMException("The device is full.", "QuotaExceededError");
        if (isNewCopy) window.copiesLeft -= 1;
        return put.call(this, value, key);
      };
      IDBObjectStore.prototype.delete = function (key) {
        if (this.name === "copies") window.copiesLeft += 1;
        return forget.call(this, key);
      };
    };
    const { page, close } = await open({ init });
    const restart = async () => {
      await setting(page, /^Restart/);
      await alert(page).getByRole("button", { name: "Restart" }).click();
    };
    const answer = (name) => alert(page).getByRole("button", { name }).click();
    const copies = async () => {
      await setting(page, /^Restore/);
      const kept = await page
        .locator(".layer.top")
        .getByText(/\s· Week /)
        .allInnerTexts();
      await press(page, "Back");
      await press(page, "Back");
      return kept.map((text) => text.split(/\s· /)[0]);
    };
    await start(page, "First Life");
    await endTheWeek(page);
    await restart();
    await start(page, "Second Life");
    assert.deepEqual(await copies(), ["First Life"]);

    await page.evaluate(() => (window.copiesLeft = 0));
    await restart();
    await seen(page, /no room left.*"Before the restart" \(Second Life/);
    await answer("Give Up");
    await start(page, "Third Life");
    await page.getByText(/this device is full/).waitFor({ state: "detached" });
    assert.deepEqual(await copies(), ["Second Life"]);

    await offerCareer(page, "mara.plist", played);
    await answer("Import");
    await seen(page, /keep today's career aside/);
    await answer("Close");
    await seen(page, /could not be stored/);
    await answerAlerts(page);
    await press(page, "Back");
    assert.deepEqual(await copies(), ["Second Life"]);
    await offerCareer(page, "mara.plist", played);
    await answer("Import");
    await seen(page, /Second Life/);
    await launched(page, () => answer("Give Up"));
    assert.deepEqual(await copies(), ["Third Life"]);
    await close();
  });

  test("is offered for import when its file is dropped on the page, unless something else is asked", async () => {
    const { page, close } = await open();
    await start(page);
    const home = page.url();
    const drop = (name, bytes) =>
      page.evaluate(
        ([name, bytes]) => {
          const dataTransfer = new DataTransfer();
          dataTransfer.items.add(new File([new Uint8Array(bytes)], name));
          const event = { dataTransfer, bubbles: true, cancelable: true };
          const left = ["dragover", "drop"].map((kind) => document.body.dispatchEvent(new DragEvent(kind, event)));
          return left.some(Boolean);
        },
        [name, [...bytes]],
      );
    assert.equal(await drop("photo.jpg", Buffer.from("a photo")), false, "the browser would open it");
    await seen(page, /photo\.jpg\s+\S/);
    assert.equal(await drop("mara.plist", played), false);
    await answerAlerts(page);
    assert.equal(await alert(page).count(), 0, "what was dropped on a question is left alone");
    assert.equal(await drop("mara.plist", played), false);
    await launched(page, () => alert(page).getByRole("button", { name: "Import" }).click());
    assert.equal(page.url(), home);
    await close();
  });

  test("is stored again when a full device has room again", async () => {
    // Before the first write: browsers look up the room that is left only now and then.
    const hurry = () => {
      const { setTimeout } = window;
      window.setTimeout = (work, wait) => setTimeout(work, wait / 50);
    };
    const { page, devtools, close } = await open({ address: "about:blank", init: hurry });
    const session = await devtools();
    const { origin } = new URL(house.home);
    await session.send("Storage.overrideQuotaForOrigin", { origin, quotaSize: 1 });
    await page.goto(house.home);
    await start(page);
    await seen(page, /this device is full/);
    await endTheWeek(page);
    const there = await status(page);
    await session.send("Storage.overrideQuotaForOrigin", { origin });
    await page
      .locator(".layer.top")
      .getByText(/this device is full/)
      .waitFor({ state: "detached" });
    await page.reload();
    assert.equal(await status(page), there);
    await close();
  });

  test("is stored anew when the browser throws the storage away", async () => {
    const { page, devtools, close } = await open();
    await start(page);
    await takeCareer(page, "mara.plist", played);
    await endTheWeek(page);
    const there = await status(page);
    const session = await devtools();
    const origin = new URL(house.home).origin;
    await session.send("Storage.clearDataForOrigin", { origin, storageTypes: "indexeddb" });
    await seen(page, "Stored anew");
    await answerAlerts(page);
    await page.reload();
    assert.equal(await status(page), there);
    await endTheWeek(page);
    await close();
  });

  test("survives an engine that stops; after two stops in a row the page offers what is kept", async () => {
    const init = () => {
      const instantiate = WebAssembly.instantiate;
      WebAssembly.instantiate = async (...all) => {
        const { exports } = await instantiate(...all);
        const guarded =
          (name) =>
          (...values) => {
            if (sessionStorage.getItem("stops")?.includes(name)) throw new WebAssembly.RuntimeError("unreachable");
            return exports[name](...values);
          };
        return { exports: { ...exports, bb_act: guarded("bb_act"), bb_start: guarded("bb_start") } };
      };
    };
    const { page, close } = await open({ init });
    const stopIn = (names) => page.evaluate((names) => sessionStorage.setItem("stops", names), names);
    await start(page, "First Life");
    await endTheWeek(page);
    const there = await status(page);
    await setting(page, /^Restart/);
    await alert(page).getByRole("button", { name: "Restart" }).click();
    await start(page, "Second Life");

    await stopIn("bb_act");
    await press(page, /^Music/);
    await seen(page, "The game stopped and is back");
    await stopIn("");
    await alert(page).getByRole("button", { name: "Play on" }).click();
    await press(page, /^Music/);
    await stopIn("bb_act");
    await press(page, /^Life/);
    await seen(page, "The game stopped and is back");
    await alert(page).getByRole("button", { name: "Play on" }).click();
    await press(page, /^Life/);
    await page.getByRole("heading", { name: "Backbeat keeps stopping" }).waitFor();

    await page.reload();
    await page.getByRole("heading", { name: "Backbeat keeps stopping" }).waitFor();
    const { bytes } = await downloaded(page, () => page.getByRole("button", { name: /^Export/ }).click());
    assert.ok(rewritten(bytes, "assert career['myArtistsName'] == 'Second Life'"));

    await stopIn("");
    await page.getByRole("button", { name: /^Restore: Before the restart/ }).click();
    await page.locator(".layer.top").waitFor();
    await page.locator(".layer.top .status").waitFor();
    assert.equal(await status(page), there);
    await setting(page, /^Restore/);
    await page.getByText("Kept when the game stopped").waitFor();
    await close();
  });
});
