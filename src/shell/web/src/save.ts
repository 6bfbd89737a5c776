import { openDB, type IDBPDatabase, type IDBPTransaction } from "idb";
import {
  deviceKey,
  forgetCopy,
  forgetsCopy,
  identity,
  isAside,
  isOrder,
  keepsCopy,
  lastOfEach,
  packRows,
  unpackRows,
  type Row,
  type StoredRow,
} from "./rows";

const rowStore = "rows";
const copyStore = "copies";
const sizeStore = "sizes";
const firstPause = 1000;
const longestPause = 30_000;
const pieceLength = 256;

type Key = [key: string, chunk: number];
type Database = IDBPDatabase;
type Writing = IDBPTransaction<unknown, string[], "readwrite">;

/** A copy is kept as its rows, in the transaction that asks for it, and packed in a quiet moment after that. */
type Copy = StoredRow[] | Uint8Array;

/** A kept copy and the room that it takes, 0 while it is not packed. */
export interface KeptCopy {
  name: string;
  bytes: number;
}

interface Batch {
  rows: Row[];
  confirmed: boolean;
}

/** Why writing fails for the moment; "" while it works. */
export type Trouble = "" | "full" | "failing";

/**
 * The save on this device. Every batch goes into a transaction of its own that is started at once: the database keeps
 * their order, and a reload right after a press loses nothing. When a transaction fails, everything since the last
 * confirmed batch is kept and written again in one transaction, later and at the next press, until it works.
 */
export class Save {
  /** Told when writing starts to fail, when the reason changes, and when everything is stored again. */
  onTrouble: (trouble: Trouble) => void = () => {};
  /** Told when the browser has thrown the whole save away while it was in use; the rows are gone, copies and all. */
  onCleared: () => void = () => {};
  /** Told when the room that a copy takes has become known. */
  onPacked: (copy: KeptCopy) => void = () => {};

  private unconfirmed: Batch[] = [];
  private running = 0;
  private trouble: Trouble = "";
  private pause = firstPause;
  private timer = 0;
  private closed = false;
  private connecting: Promise<void> | null = null;
  private packing: Promise<void> | null = null;
  private waiting: ((stored: boolean) => void)[] = [];
  private db!: Database;

  private constructor(private readonly name: string) {}

  static async open(name = "backbeat"): Promise<Save> {
    const save = new Save(name);
    await save.connect();
    return save;
  }

  /**
   * Hands over what is stored, with what is still waiting to be written laid over it: in pieces, each as soon as it is
   * read, in no order.
   */
  async read(take: (rows: StoredRow[]) => void | Promise<void>): Promise<void> {
    const waiting = lastOfEach(this.waitingRows().filter((row) => !isOrder(row)));
    const outdated = new Set(waiting.map(identity));
    await readRows(this.db.transaction(rowStore).store, (rows) =>
      take(outdated.size > 0 ? rows.filter((row) => !outdated.has(identity(row))) : rows),
    );
    await take(waiting.filter((row): row is StoredRow => row.value !== null));
  }

  /** The kept copies, the oldest first. */
  async copies(): Promise<KeptCopy[]> {
    const waiting = this.waitingRows();
    const [names, measured, sizes] = await Promise.all([
      this.db.getAllKeys(copyStore) as Promise<string[]>,
      this.db.getAllKeys(sizeStore) as Promise<string[]>,
      this.db.getAll(sizeStore) as Promise<number[]>,
    ]);
    const room = new Map(names.map((name) => [name, 0]));
    measured.forEach((name, i) => room.has(name) && room.set(name, sizes[i]!));
    for (const row of waiting) {
      if (keepsCopy(row)) room.set(row.key, 0);
      if (forgetsCopy(row)) room.delete(row.key);
    }
    return [...room].map(([name, bytes]) => ({ name, bytes })).sort((a, b) => (a.name < b.name ? -1 : 1));
  }

  /** Packs the copies that are not yet, one after the other. Whatever fails leaves a copy as it was. */
  packCopies(): Promise<void> {
    this.packing ??= this.packEach()
      .catch((failed: unknown) => console.warn("A copy could not be packed.", failed))
      .finally(() => (this.packing = null));
    return this.packing;
  }

  /** Stores one batch, all or nothing. Returns at once. */
  write(rows: Row[]): void {
    if (this.closed) return;
    const batch = { rows, confirmed: false };
    if (rows.length > 0) this.unconfirmed.push(batch);
    if (this.trouble) void this.retry();
    else if (rows.length > 0) void this.store([batch]);
  }

  /** Puts `batch` in the place of every row but the device's, its orders first; all or nothing, and not tried again. Why not, or "". */
  replace(batch: Row[]): Promise<Trouble> {
    return this.exchange(async (tx) => {
      await put(tx, batch.filter(isOrder));
      await putInPlace(
        tx,
        batch.filter((row) => !isOrder(row)),
      );
    });
  }

  /** Puts the copy of that name in the place of every row, `orders` first, in the same way. */
  restore(name: string, orders: Row[] = []): Promise<Trouble> {
    return this.exchange(
      async (tx, rows) => {
        await put(tx, orders);
        await putInPlace(tx, rows);
      },
      () => this.rowsOfCopy(name),
    );
  }

  /** The name of a copy that waits to be written, or "". */
  waitingCopy(): string {
    return this.waitingRows().find(keepsCopy)?.key ?? "";
  }

  /**
   * Forgets a copy, stored or waiting, and tries to write what waits. In a transaction of its own: only what is gone
   * makes room. False when it could not be forgotten.
   */
  async giveUp(name: string): Promise<boolean> {
    for (const batch of this.unconfirmed) {
      batch.rows = batch.rows.filter((row) => !(keepsCopy(row) && row.key === name));
    }
    const failed = await this.transact((tx) => put(tx, [{ key: name, chunk: forgetCopy, value: null }]));
    await this.retry();
    return failed === null;
  }

  /** Resolves with true once every batch is stored, and with false while writing fails. */
  settled(): Promise<boolean> {
    return new Promise((resolve) => {
      this.waiting.push(resolve);
      this.tellWaiting();
    });
  }

  /** Writes nothing any more: another tab has the save now. */
  close(): void {
    this.closed = true;
    clearTimeout(this.timer);
    this.db.close();
  }

  private waitingRows(): Row[] {
    return this.unconfirmed.flatMap((batch) => batch.rows);
  }

  private async store(batches: Batch[]): Promise<void> {
    this.running += 1;
    const rows = batches.flatMap((batch) => batch.rows);
    const failed = await this.transact((tx) => put(tx, rows));
    this.running -= 1;
    if (this.closed) return;
    if (failed) this.fail(failed);
    else this.confirm(batches);
  }

  private async exchange(
    work: (tx: Writing, rows: StoredRow[]) => Promise<void>,
    prepare: () => Promise<StoredRow[] | null> = async () => [],
  ): Promise<Trouble> {
    // A batch that is written later than this would mix two careers.
    if (!(await this.settled()) || this.closed) return this.trouble || "failing";
    const rows = await prepare().catch(() => null);
    if (rows === null || this.closed) return "failing";
    const failed = await this.transact((tx) => work(tx, rows));
    return failed === null ? "" : troubleOf(failed);
  }

  private async rowsOfCopy(name: string): Promise<StoredRow[] | null> {
    const copy = (await this.db.get(copyStore, name)) as Copy | undefined;
    if (!copy) return null;
    return Array.isArray(copy) ? copy : unpackRows(copy);
  }

  private async packEach(): Promise<void> {
    const measured = new Set(await this.db.getAllKeys(sizeStore));
    for (const name of (await this.db.getAllKeys(copyStore)) as string[]) {
      if (measured.has(name) || this.closed) continue;
      const copy = (await this.db.get(copyStore, name)) as Copy | undefined;
      if (!Array.isArray(copy)) continue;
      const packed = await packRows(copy);
      const failed = await this.transact(async (tx) => {
        const copies = tx.objectStore(copyStore);
        if ((await copies.getKey(name)) === undefined) return; // forgotten meanwhile
        await copies.put(packed, name);
        await tx.objectStore(sizeStore).put(packed.length, name);
      });
      if (!failed) this.onPacked({ name, bytes: packed.length });
    }
  }

  /** Runs `work` in one transaction; answers with what went wrong, or null. */
  private async transact(work: (tx: Writing) => Promise<void>): Promise<unknown> {
    let tx: Writing;
    try {
      tx = this.db.transaction([rowStore, copyStore, sizeStore], "readwrite");
    } catch (lost) {
      await this.reconnect(); // the browser may drop the connection; the next attempt has a new one
      return lost;
    }
    let problem: unknown = null;
    const done = tx.done.then(
      () => null,
      (failed: unknown) => problem ?? tx.error ?? failed ?? new Error("The transaction was aborted."),
    );
    try {
      await work(tx);
      tx.commit();
    } catch (failed) {
      problem = failed;
      abort(tx);
    }
    return done;
  }

  private confirm(batches: Batch[]): void {
    for (const batch of batches) batch.confirmed = true;
    if (batches.some(({ rows }) => rows.some(keepsCopy))) void this.packCopies();
    while (this.unconfirmed[0]?.confirmed) this.unconfirmed.shift();
    this.tellWaiting();
    if (!this.trouble) return;
    if (this.unconfirmed.length > 0) return void this.retry();
    this.pause = firstPause;
    this.tell("");
  }

  private fail(problem: unknown): void {
    // Only the last write of each row is kept, so that a long failure does not fill the memory.
    this.unconfirmed = [{ rows: folded(this.waitingRows()), confirmed: false }];
    clearTimeout(this.timer);
    this.timer = window.setTimeout(() => void this.retry(), this.pause);
    this.pause = Math.min(this.pause * 2, longestPause);
    this.tell(troubleOf(problem));
  }

  private async retry(): Promise<void> {
    if (this.closed || this.running > 0) return;
    clearTimeout(this.timer);
    await this.store([...this.unconfirmed]);
  }

  private tell(trouble: Trouble): void {
    if (trouble === this.trouble) return;
    this.trouble = trouble;
    this.onTrouble(trouble);
    this.tellWaiting();
  }

  private tellWaiting(): void {
    if (this.unconfirmed.length > 0 && !this.trouble) return;
    for (const tell of this.waiting.splice(0)) tell(this.unconfirmed.length === 0);
  }

  private async connect(): Promise<boolean> {
    let fresh = false;
    this.db = await openDB(this.name, 3, {
      upgrade: (db, oldVersion) => {
        fresh = oldVersion === 0;
        if (oldVersion < 1) db.createObjectStore(rowStore);
        if (oldVersion < 2) db.createObjectStore(copyStore);
        if (oldVersion < 3) db.createObjectStore(sizeStore);
      },
      // Whoever throws the save away does not wait for this tab, and what comes after that is seen to at once.
      blocking: () => {
        this.db.close();
        void this.reconnect();
      },
      terminated: () => void this.reconnect(),
    });
    return fresh;
  }

  private reconnect(): Promise<void> {
    this.connecting ??= this.reopen().finally(() => (this.connecting = null));
    return this.connecting;
  }

  // A database that has to be made anew has lost all it held: what is waiting would be half of a save.
  private async reopen(): Promise<void> {
    if (this.closed) return;
    // While the browser is still at it, it refuses. After that it is asked again at the next write.
    let fresh: boolean | null = null;
    for (let tries = 0; tries < 5 && fresh === null; tries += 1) {
      if (tries > 0) await new Promise((resolve) => setTimeout(resolve, 200));
      fresh = await this.connect().catch(() => null);
    }
    if (!fresh) return;
    clearTimeout(this.timer);
    this.unconfirmed = [];
    this.tell("");
    this.onCleared();
  }
}

function troubleOf(problem: unknown): Trouble {
  return problem instanceof DOMException && problem.name === "QuotaExceededError" ? "full" : "failing";
}

type Stores = [Kept, Kept, Kept];
type Kept = ReturnType<Writing["objectStore"]>;

async function put(tx: Writing, rows: Row[]): Promise<void> {
  const [kept, copies, sizes] = [rowStore, copyStore, sizeStore].map((name) => tx.objectStore(name)) as Stores;
  for (const row of rows) {
    const at: Key = [row.key, row.chunk];
    // A copy is what the rows hold right here, so only an order of that kind is waited for; what else fails fails the
    // transaction, which tells.
    if (keepsCopy(row)) await copies.put(await rowsToCopy(tx), row.key);
    else if (forgetsCopy(row)) for (const store of [copies, sizes]) store.delete(row.key).catch(() => {});
    else (row.value ? kept.put(row.value, at) : kept.delete(at)).catch(() => {});
  }
}

/** These rows and no others, but for those that belong to the device: they stay, and others of their kind stay out. */
async function putInPlace(tx: Writing, rows: Row[]): Promise<void> {
  const kept = tx.objectStore(rowStore);
  const own = IDBKeyRange.bound([deviceKey], [deviceKey, []]);
  const [places, values] = await Promise.all([kept.getAllKeys(own) as Promise<Key[]>, kept.getAll(own)]);
  await kept.clear();
  if (places.length === 0) return put(tx, rows);
  const stays = places.map(([key, chunk], i) => storedRow(key, chunk, values[i]));
  await put(tx, [...stays, ...rows.filter(({ key }) => key !== deviceKey)]);
}

async function rowsToCopy(tx: Writing): Promise<StoredRow[]> {
  const all: StoredRow[] = [];
  await readRows(tx.objectStore(rowStore), (rows) => all.push(...rows));
  return all.filter((row) => !isAside(row));
}

interface Readable {
  getAllKeys(): Promise<IDBValidKey[]>;
  getAll(range: IDBKeyRange): Promise<unknown[]>;
}

/** Reads all rows in pieces: the first are worked on while the last are still on their way. */
async function readRows(store: Readable, take: (rows: StoredRow[]) => unknown): Promise<void> {
  const keys = (await store.getAllKeys()) as Key[];
  const pieces: Promise<unknown>[] = [];
  for (let from = 0; from < keys.length; from += pieceLength) {
    const own = keys.slice(from, from + pieceLength);
    const values = store.getAll(IDBKeyRange.bound(own[0], own.at(-1)));
    pieces.push(values.then((values) => take(own.map(([key, chunk], i) => storedRow(key, chunk, values[i])))));
  }
  await Promise.all(pieces);
}

function storedRow(key: string, chunk: number, value: unknown): StoredRow {
  return { key, chunk, value: value as Uint8Array };
}

function abort(tx: Writing): void {
  try {
    tx.abort();
  } catch {
    // It has ended by itself already.
  }
}

/**
 * The last write of each row between one order to keep a copy and the next, so that each copy stays what it was. What
 * is forgotten goes first: that makes room on a device that is full.
 */
function folded(rows: Row[]): Row[] {
  const forgotten = new Set(rows.filter(forgetsCopy).map(({ key }) => key));
  const done: Row[] = lastOfEach(rows.filter(forgetsCopy));
  let since: Row[] = [];
  rows = rows.filter((row) => !isOrder(row) || (keepsCopy(row) && !forgotten.has(row.key)));
  for (const row of rows) {
    if (keepsCopy(row)) done.push(...lastOfEach(since.splice(0)), row);
    else since.push(row);
  }
  return [...done, ...lastOfEach(since)];
}
