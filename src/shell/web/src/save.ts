import { openDB, type IDBPDatabase } from "idb";
import type { Row } from "./rows";

const storeName = "rows";
const firstPause = 1000;
const longestPause = 30_000;

interface Batch {
  rows: Row[];
  confirmed: boolean;
}

/**
 * The save on this device. Every batch goes into a transaction of its own that is started at once: the database keeps
 * their order, and a reload right after a press loses nothing. When a transaction fails, everything since the last
 * confirmed batch is kept and written again in one transaction, later and at the next press, until it works.
 */
export class Save {
  /** Told when writing starts to fail and when everything is stored again. */
  onFailing: (failing: boolean) => void = () => {};

  private unconfirmed: Batch[] = [];
  private running = 0;
  private failing = false;
  private pause = firstPause;
  private timer = 0;
  private closed = false;

  private constructor(
    private readonly name: string,
    private db: IDBPDatabase,
  ) {}

  static async open(name = "backbeat"): Promise<Save> {
    return new Save(name, await connect(name));
  }

  /** Every stored row, with what is still waiting to be written laid over it. */
  async load(): Promise<Row[]> {
    const tx = this.db.transaction(storeName, "readonly");
    const [keys, values] = await Promise.all([tx.store.getAllKeys(), tx.store.getAll() as Promise<Uint8Array[]>]);
    const rows = keys.map((at, i) => {
      const [key, chunk] = at as [string, number];
      return { key, chunk, value: values[i] ?? null };
    });
    return lastOfEach([...rows, ...this.unconfirmed.flatMap((batch) => batch.rows)]).filter((row) => row.value);
  }

  /** Stores one batch, all or nothing. Returns at once. */
  write(rows: Row[]): void {
    if (this.closed) return;
    const batch = { rows, confirmed: false };
    if (rows.length > 0) this.unconfirmed.push(batch);
    if (this.failing) this.retry();
    else if (rows.length > 0) void this.store([batch]);
  }

  /** Writes nothing any more: another tab has the save now. */
  close(): void {
    this.closed = true;
    clearTimeout(this.timer);
    this.db.close();
  }

  private async store(batches: Batch[]): Promise<void> {
    this.running += 1;
    const stored = await this.transact(batches.flatMap((batch) => batch.rows));
    this.running -= 1;
    if (this.closed) return;
    if (stored) this.confirm(batches);
    else this.fail();
  }

  private async transact(rows: Row[]): Promise<boolean> {
    try {
      const tx = this.db.transaction(storeName, "readwrite");
      const done = tx.done.then(
        () => true,
        () => false,
      );
      try {
        for (const { key, chunk, value } of rows) {
          const request = value ? tx.store.put(value, [key, chunk]) : tx.store.delete([key, chunk]);
          request.catch(() => {}); // the transaction fails with it and tells
        }
        tx.commit();
      } catch {
        tx.abort();
      }
      return await done;
    } catch {
      // The browser may drop the connection; the next attempt gets a new one.
      if (!this.closed) this.db = await connect(this.name).catch(() => this.db);
      return false;
    }
  }

  private confirm(batches: Batch[]): void {
    for (const batch of batches) batch.confirmed = true;
    while (this.unconfirmed[0]?.confirmed) this.unconfirmed.shift();
    if (!this.failing) return;
    if (this.unconfirmed.length > 0) return this.retry();
    this.pause = firstPause;
    this.tell(false);
  }

  private fail(): void {
    // Only the last write of each row is kept, so that a long failure does not fill the memory.
    this.unconfirmed = [{ rows: lastOfEach(this.unconfirmed.flatMap((batch) => batch.rows)), confirmed: false }];
    clearTimeout(this.timer);
    this.timer = window.setTimeout(() => this.retry(), this.pause);
    this.pause = Math.min(this.pause * 2, longestPause);
    this.tell(true);
  }

  private retry(): void {
    if (this.closed || this.running > 0) return;
    clearTimeout(this.timer);
    void this.store([...this.unconfirmed]);
  }

  private tell(failing: boolean): void {
    if (failing === this.failing) return;
    this.failing = failing;
    this.onFailing(failing);
  }
}

function connect(name: string): Promise<IDBPDatabase> {
  return openDB(name, 1, { upgrade: (fresh) => void fresh.createObjectStore(storeName) });
}

/** The last write of each row, in the order in which the rows first appear. */
function lastOfEach(rows: Row[]): Row[] {
  const last = new Map<string, Row>();
  for (const row of rows) last.set(`${row.chunk} ${row.key}`, row);
  return [...last.values()];
}
