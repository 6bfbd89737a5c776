import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { openStage } from "./open.mjs";

let stage;
before(async () => (stage = await openStage()));
after(() => stage.close());

/** Runs in the page: helpers around a save of its own. */
async function withSave(page) {
  await page.evaluate(async () => {
    const { Save } = window.stage;
    const bytes = (...values) => Uint8Array.from(values);
    window.put = (key, chunk, ...values) => ({ key, chunk, value: bytes(...values) });
    window.gone = (key, chunk) => ({ key, chunk, value: null });
    window.save = await Save.open();
    window.told = [];
    window.save.onFailing = (failing) => window.told.push(failing);
    window.stored = async () => {
      const fresh = await Save.open();
      const rows = await fresh.load();
      fresh.close();
      return rows.map(({ key, chunk, value }) => `${key}/${chunk}=${[...value]}`).sort();
    };
    const { put } = IDBObjectStore.prototype;
    window.breakDisk = (broken) => {
      IDBObjectStore.prototype.put = broken
        ? () => {
            throw new DOMException("The disk is full.", "QuotaExceededError");
          }
        : put;
    };
  });
}

test("batches are stored in their order, removals included, and survive a reload in the same task", async () => {
  const { page, context, faults } = await stage.open();
  await withSave(page);
  await page.evaluate(() => {
    window.save.write([window.put("songs", 0, 1), window.put("songs", 1, 2), window.put("cash", -1, 3)]);
    window.save.write([window.gone("songs", 1), window.put("cash", -1, 4)]);
    for (let i = 0; i < 40; i += 1) window.save.write([window.put("week", 0, i)]);
    location.reload();
  });
  await page.waitForFunction(() => window.stage !== undefined && window.save === undefined);
  await withSave(page);
  assert.deepEqual(await page.evaluate(() => window.stored()), ["cash/-1=4", "songs/0=1", "week/0=39"]);
  assert.deepEqual(faults, []);
  await context.close();
});

test("what could not be written is told, kept, and written in order as soon as it works", async () => {
  const { page, context } = await stage.open();
  await withSave(page);
  const result = await page.evaluate(async () => {
    const { save, put, gone, told } = window;
    const settled = (wanted) =>
      new Promise((done) => {
        const look = () => (told.at(-1) === wanted ? done() : setTimeout(look, 5));
        look();
      });
    save.write([put("cash", 0, 1)]);
    window.breakDisk(true);
    save.write([put("cash", 0, 2), put("songs", 0, 2)]);
    save.write([put("cash", 0, 3)]);
    await settled(true);
    save.write([gone("songs", 0), put("fans", 0, 9)]);
    const during = await window.stored();
    const seen = (await save.load()).length; // a new start of the engine gets what is still waiting, too
    window.breakDisk(false);
    save.write([put("cash", 0, 4)]);
    save.write([put("week", 0, 5)]);
    await settled(false);
    return { during, seen, afterwards: await window.stored(), told };
  });
  assert.deepEqual(result.during, ["cash/0=1"]);
  assert.equal(result.seen, 2);
  assert.deepEqual(result.afterwards, ["cash/0=4", "fans/0=9", "week/0=5"]);
  assert.deepEqual(result.told, [true, false]);
  await context.close();
});

test("a failure mends itself without another press", async () => {
  const { page, context } = await stage.open();
  await withSave(page);
  await page.evaluate(() => {
    window.breakDisk(true);
    window.save.write([window.put("cash", 0, 7)]);
    setTimeout(() => window.breakDisk(false), 200);
  });
  await page.waitForFunction(() => window.told.at(-1) === false, undefined, { timeout: 5000 });
  assert.deepEqual(await page.evaluate(() => window.stored()), ["cash/0=7"]);
  await context.close();
});
