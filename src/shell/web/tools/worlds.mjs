// Careers to look at: rows of a save, made by playing a golden career in the engine, with a few values put in their
// place afterwards.
import { playGolden } from "../../../../tests/wasm/door.mjs";

function whole(value) {
  const bytes = new Uint8Array(9);
  bytes[0] = "i".charCodeAt(0);
  new DataView(bytes.buffer).setBigInt64(1, BigInt(value), true);
  return bytes;
}

function double(value) {
  const bytes = new Uint8Array(9);
  bytes[0] = "d".charCodeAt(0);
  new DataView(bytes.buffer).setFloat64(1, value, true);
  return bytes;
}

/** A property list of one text. */
function text(value) {
  const utf16 = Buffer.from(value, "utf16le").swap16();
  const body = Buffer.concat([Buffer.from([0x6f, 0x11, utf16.length >> 9, (utf16.length >> 1) & 255]), utf16]);
  const end = 8 + body.length;
  const trailer = Buffer.alloc(32);
  trailer[6] = 2; // bytes of an offset
  trailer[7] = 1; // bytes of a reference
  trailer[15] = 1; // objects
  trailer[30] = end >> 8;
  trailer[31] = end & 255;
  return new Uint8Array(Buffer.concat([Buffer.from("obplist00"), body, Buffer.from([0, 8]), trailer]));
}

function patched(rows, values) {
  const patch = new Map(rows);
  for (const [key, value] of Object.entries(values)) patch.set(`${key}\0-1`, { key, chunk: -1, remove: 0, value });
  return patch;
}

/** The same career with a history of weekly streams of `chunks` chunks: each of them is a list of its own. */
function lengthened(rows, chunks) {
  const list = "saveAllWeeklySongListens";
  const long = new Map(rows);
  const own = [...rows.values()].filter(({ key }) => key === list).sort((a, b) => a.chunk - b.chunk);
  const last = own.pop(); // the only one that is not full
  const put = (chunk, { value }) => long.set(`${list}\0${chunk}`, { key: list, chunk, remove: 0, value });
  for (let chunk = 0; chunk < chunks - 1; chunk += 1) put(chunk, own[chunk % own.length]);
  put(chunks - 1, last);
  return long;
}

/** Each world by its name; made when asked for. */
export const worlds = {
  new: () => new Map(),
  "first weeks": () => playGolden("golden_year", 8).rows,
  year: () => playGolden("golden_year").rows,
  decade: () => playGolden("golden_decade").rows,
  edges: () =>
    patched(playGolden("golden_decade").rows, {
      myArtistsName: text("Maximiliana Rosalind Featherstonehaugh-Oyelaran 🎤 المغنية"),
      totalCashAvailable: double(-98_765_432_109.87),
      totalFans: whole(9_876_543_210),
      totalEnergyAvailable: whole(-35),
    }),
};

/** As many records as a hundred busy years leave: 460,000. Too long a life to be looked at screen by screen. */
export const century = () => lengthened(playGolden("golden_decade").rows, 3600);

/** Opens the game on a save of these rows: they are stored from an empty page of the same address. */
export async function openWorld(page, home, rows, query = "?seed=7") {
  const empty = { contentType: "text/html", body: '<link rel="icon" href="data:,">' };
  await page.route(`${home}empty`, (route) => route.fulfill(empty));
  await page.goto(`${home}empty`);
  await store(page, rows);
  await page.goto(`${home}${query}`);
  await page.locator(".layer.top").first().waitFor();
}

function store(page, rows) {
  const plain = [...rows.values()].map(({ key, chunk, value }) => [key, chunk, Buffer.from(value).toString("base64")]);
  return page.evaluate(async (rows) => {
    const database = await new Promise((done, failed) => {
      const opening = indexedDB.open("backbeat", 1);
      opening.onupgradeneeded = () => opening.result.createObjectStore("rows");
      opening.onsuccess = () => done(opening.result);
      opening.onerror = () => failed(opening.error);
    });
    const transaction = database.transaction("rows", "readwrite");
    for (const [key, chunk, value] of rows) {
      const bytes = Uint8Array.from(atob(value), (letter) => letter.charCodeAt(0));
      transaction.objectStore("rows").put(bytes, [key, chunk]);
    }
    await new Promise((done, failed) => {
      transaction.oncomplete = done;
      transaction.onabort = () => failed(transaction.error);
    });
    database.close();
  }, plain);
}
