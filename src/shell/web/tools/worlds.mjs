// Careers to look at: what the engine's tests begin from and the golden careers, as rows of a save with the hour at which
// they go on. `ninja -C build/check careers` writes them.
import { careers, careerRows } from "../../../../tests/wasm/careers.mjs";

/** The names of all that are worth a look screen by screen. */
export const worldNames = Object.keys(careers).filter((name) => !careers[name].large && !careers[name].film);

/** The names of the lives that are worth a look week by week. */
export const filmNames = Object.keys(careers).filter((name) => careers[name].film);

/** A world by its name: its rows and the hour, in unix milliseconds, at which somebody plays on there. */
export const world = (name) => ({ rows: careerRows(name), now: careers[name].now });

/** A row as versions wrote it that kept no check with it: the check is of its place, and no copy's. */
const unchecked = (row) => ({
  ...row,
  value: Buffer.concat([Buffer.from("ido"[row.value[0] - 0x31]), row.value.slice(9)]),
});

/** The same career with a history of weekly streams of `chunks` chunks: each of them is a list of its own. */
function lengthened({ rows: checked, now }, chunks) {
  const list = "saveAllWeeklySongListens";
  const rows = new Map([...checked].filter(([, { key }]) => key !== "#rows").map(([at, row]) => [at, unchecked(row)]));
  const long = new Map(rows);
  const own = [...rows.values()].filter(({ key }) => key === list).sort((a, b) => a.chunk - b.chunk);
  const last = own.pop(); // the only one that is not full
  const put = (chunk, { value }) => long.set(`${list}\0${chunk}`, { key: list, chunk, remove: 0, value });
  for (let chunk = 0; chunk < chunks - 1; chunk += 1) put(chunk, own[chunk % own.length]);
  put(chunks - 1, last);
  return { rows: long, now };
}

/** As many records as a hundred busy years leave: 460,000. Too long a life to be looked at screen by screen. */
export const century = () => lengthened(world("golden_decade"), 3600);

/** Opens the game on a save of that world, at its hour: the rows are stored from an empty page of the same address. */
export async function openWorld(page, home, { rows, now }, query = "?seed=7") {
  await page.addInitScript((ahead) => {
    const here = Date.now;
    Date.now = () => here() + ahead;
  }, now - Date.now());
  const empty = { contentType: "text/html", body: '<link rel="icon" href="data:,">' };
  await page.route(`${home}empty`, (route) => route.fulfill(empty));
  await page.goto(`${home}empty`);
  await store(page, rows);
  await page.goto(`${home}${query}`);
  await page.locator(".layer.top").first().waitFor();
}

/** Resolves once all that the page had to write is written. */
export function settled(page) {
  return page.evaluate(async () => {
    const opened = await new Promise((done) => {
      const opening = indexedDB.open("backbeat");
      opening.onsuccess = () => done(opening.result);
    });
    const transaction = opened.transaction("rows", "readwrite");
    transaction.objectStore("rows").count();
    await new Promise((done) => (transaction.oncomplete = done));
    opened.close();
  });
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
