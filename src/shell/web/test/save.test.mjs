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
    window.save.onTrouble = (trouble) => window.told.push(trouble);
    window.rowsOf = async (save) => {
      const all = [];
      await save.read((rows) => all.push(...rows));
      return all;
    };
    window.stored = async () => {
      const fresh = await Save.open();
      const rows = await window.rowsOf(fresh);
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
  const { page, context, faults } = await stage.open();
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
    await settled("full");
    save.write([gone("songs", 0), put("fans", 0, 9)]);
    const during = await window.stored();
    const seen = (await window.rowsOf(save)).map(({ key, value }) => `${key}=${value}`); // a new start of the engine gets what is still waiting, too
    window.breakDisk(false);
    save.write([put("cash", 0, 4)]);
    save.write([put("week", 0, 5)]);
    await settled("");
    return { during, seen, afterwards: await window.stored(), told };
  });
  assert.deepEqual(result.during, ["cash/0=1"]);
  assert.deepEqual(result.seen.sort(), ["cash=3", "fans=9"]);
  assert.deepEqual(result.afterwards, ["cash/0=4", "fans/0=9", "week/0=5"]);
  assert.deepEqual(result.told, ["full", ""]);
  assert.deepEqual(faults, []);
  await context.close();
});

test("an aborted write mends itself without another press", async () => {
  const { page, context, faults } = await stage.open();
  await withSave(page);
  await page.evaluate(() => {
    const { put } = IDBObjectStore.prototype;
    IDBObjectStore.prototype.put = function (...row) {
      put.apply(this, row);
      this.transaction.abort();
    };
    window.save.write([window.put("cash", 0, 7)]);
    setTimeout(() => (IDBObjectStore.prototype.put = put), 200);
  });
  await page.waitForFunction(() => window.told.at(-1) === "", undefined, { timeout: 5000 });
  assert.deepEqual(await page.evaluate(() => window.stored()), ["cash/0=7"]);
  assert.deepEqual(await page.evaluate(() => window.told), ["failing", ""]);
  assert.deepEqual(faults, []);
  await context.close();
});

test("a copy holds the rows as they stood at its place, however late it is written, and comes back whole", async () => {
  const { page, context, faults } = await stage.open();
  await withSave(page);
  const result = await page.evaluate(async () => {
    const { save, put, gone } = window;
    const keep = (name) => ({ key: name, chunk: -10, value: null });
    const forget = (name) => ({ key: name, chunk: -11, value: null });
    save.write([put("cash", 0, 1), put("quarantine/songs", 0, 9), keep("first"), put("cash", 0, 2)]);
    await save.settled();
    window.breakDisk(true);
    save.write([put("cash", 0, 3), put("songs", 0, 3), keep("second"), put("cash", 0, 4), gone("songs", 0)]);
    save.write([keep("third"), forget("third"), put("cash", 0, 5)]);
    const refused = await save.restore("first");
    const names = (await save.copies()).map(({ name }) => name);
    window.breakDisk(false);
    save.write([put("week", 0, 1)]);
    await new Promise((done) => setTimeout(done, 50));
    await save.settled();
    const restored = [await window.stored()];
    for (const name of ["second", "first", "never kept"]) {
      restored.push(await save.restore(name), await window.stored());
    }
    await save.replace([put("fans", 0, 1), keep("last"), put("cash", 0, 7)]);
    restored.push(await window.stored(), await save.restore("last"), await window.stored());
    return { refused, names, restored };
  });
  assert.equal(result.refused, "full", "nothing is exchanged while something waits to be written");
  assert.deepEqual(result.names, ["first", "second"]);
  assert.deepEqual(result.restored, [
    ["cash/0=5", "quarantine/songs/0=9", "week/0=1"],
    "",
    ["cash/0=3", "songs/0=3"],
    "",
    ["cash/0=1"],
    "failing",
    ["cash/0=1"],
    ["cash/0=7", "fans/0=1"],
    "",
    ["cash/0=1"],
  ]);
  assert.deepEqual(faults, []);
  await context.close();
});

test("a copy is packed in a quiet moment, told its room, and refused whole when a byte of it is another", async () => {
  const { page, context, faults } = await stage.open();
  await withSave(page);
  const result = await page.evaluate(async () => {
    const { save, put } = window;
    const packed = new Promise((told) => (save.onPacked = told));
    const rows = Array.from({ length: 50 }, (_, i) => put("songs", i, ...new Array(400).fill(i)));
    save.write([...rows, put("cash", -1, 7), { key: "first", chunk: -10, value: null }]);
    const { name, bytes } = await packed;
    const listed = await save.copies();
    save.write([put("cash", -1, 8)]);
    const before = await window.stored();
    const restored = [await save.restore("first"), await window.stored()];
    const db = await new Promise((done) => {
      const opening = indexedDB.open("backbeat");
      opening.onsuccess = () => done(opening.result);
    });
    const store = () => db.transaction("copies", "readwrite").objectStore("copies");
    const copy = await new Promise((done) => {
      store().get("first").onsuccess = (event) => done(event.target.result);
    });
    copy[copy.length >> 1] ^= 4;
    await new Promise((done) => (store().put(copy, "first").onsuccess = done));
    db.close();
    const damaged = [await save.restore("first"), await window.stored()];
    save.write([{ key: "first", chunk: -11, value: null }]);
    await save.settled();
    return { name, bytes, listed, before, restored, damaged, left: await save.copies() };
  });
  assert.equal(result.name, "first");
  assert.ok(result.bytes > 0 && result.bytes < 5000, `${result.bytes} of 20,000 bytes`);
  assert.deepEqual(result.listed, [{ name: "first", bytes: result.bytes }]);
  assert.equal(result.restored[0], "");
  assert.deepEqual(
    result.restored[1],
    result.before.map((row) => row.replace("cash/-1=8", "cash/-1=7")),
  );
  assert.deepEqual(result.damaged, ["failing", result.restored[1]]);
  assert.deepEqual(result.left, []);
  assert.deepEqual(faults, []);
  await context.close();
});

test("a save of the first form loses nothing when it learns to keep copies", async () => {
  const { page, context, faults } = await stage.open();
  await page.evaluate(
    () =>
      new Promise((done) => {
        const opening = indexedDB.open("backbeat", 1);
        opening.onupgradeneeded = () => opening.result.createObjectStore("rows");
        opening.onsuccess = () => {
          const tx = opening.result.transaction("rows", "readwrite");
          for (let i = 0; i < 300; i += 1) tx.objectStore("rows").put(Uint8Array.of(i % 256), [`key ${i}`, i]);
          tx.oncomplete = () => done(opening.result.close());
        };
      }),
  );
  await withSave(page);
  const stored = await page.evaluate(() => window.stored());
  assert.deepEqual(stored, Array.from({ length: 300 }, (_, i) => `key ${i}/${i}=${i % 256}`).sort());
  assert.deepEqual(await page.evaluate(() => window.save.copies()), []);
  assert.deepEqual(faults, []);
  await context.close();
});

test("a tab that is killed while it writes leaves the save as after some whole batch", async () => {
  for (const wait of [0, 5, 20]) {
    const { page, context, faults } = await stage.open();
    await withSave(page);
    await page.evaluate(() => {
      const { save, put } = window;
      const batch = (i) => Array.from({ length: 200 }, (_, row) => put(`row ${row}`, 0, i));
      save.write(batch(1));
      for (let i = 2; i < 60; i += 1) setTimeout(() => save.write(batch(i)));
    });
    await page.waitForTimeout(wait);
    const session = await context.newCDPSession(page);
    void session.send("Page.crash").catch(() => {});
    await page.waitForEvent("crash");
    const next = await context.newPage();
    await next.goto(stage.home);
    await withSave(next);
    const values = (await next.evaluate(() => window.stored())).map((row) => row.split("=")[1]);
    assert.ok(values.length === 200 || values.length === 0);
    assert.equal(new Set(values).size, Math.sign(values.length), "the rows of one batch");
    assert.deepEqual(faults, []);
    await context.close();
  }
});
