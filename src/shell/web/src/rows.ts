/** The stored rows as they cross the engine's door: bytes in, bytes out. */

/** One write: a value under (key, chunk), or its removal when `value` is null. */
export interface Row {
  key: string;
  chunk: number;
  value: Uint8Array | null;
}

/** A row as it is kept: it has a value. */
export interface StoredRow extends Row {
  value: Uint8Array;
}

const keepCopy = -10;
/** The chunk of an order to forget the copy of a name. */
export const forgetCopy = -11;

/** An order to keep all rows as they stand under a name, instead of a row. */
export function keepsCopy(row: Row): boolean {
  return row.chunk === keepCopy;
}

export function forgetsCopy(row: Row): boolean {
  return row.chunk === forgetCopy;
}

export function isOrder(row: Row): boolean {
  return keepsCopy(row) || forgetsCopy(row);
}

/** The key of what belongs to the device: another career does not take its place. */
export const deviceKey = "creditedPurchases";

const quarantinePrefix = "quarantine/";

/** Whether it was put aside: out of the engine's way, but not out of the world. */
export function isAside(row: Row): boolean {
  return row.key.startsWith(quarantinePrefix);
}

/** The writes that put rows aside. */
export function asidesOf(rows: StoredRow[]): Row[] {
  return rows.flatMap((row) => [
    { ...row, value: null },
    { ...row, key: quarantinePrefix + row.key },
  ]);
}

export function identity({ key, chunk }: Row): string {
  return `${chunk} ${key}`;
}

/** The last write of each row, in the order in which the rows first appear. */
export function lastOfEach(rows: Row[]): Row[] {
  const last = new Map<string, Row>();
  for (const row of rows) last.set(identity(row), row);
  return [...last.values()];
}

const decoder = new TextDecoder();
const encoder = new TextEncoder();

/** Reads a batch that the engine hands out; the values are views into `bytes`. */
export function decodeBatch(bytes: Uint8Array): Row[] {
  const view = new DataView(bytes.buffer, bytes.byteOffset, bytes.byteLength);
  const rows: Row[] = [];
  let at = 0;
  const length = (): number => {
    const n = view.getUint32(at, true);
    at += 4;
    return n;
  };
  const take = (n: number): Uint8Array => {
    if (at + n > bytes.length) throw new RangeError("A batch of rows ends in the middle of a row.");
    at += n;
    return bytes.subarray(at - n, at);
  };
  while (at < bytes.length) {
    const key = decoder.decode(take(length()));
    const chunk = view.getInt32(at, true);
    const remove = view.getUint8(at + 4) !== 0;
    at += 5;
    const value = take(length());
    // A copy: a store that is handed a part of the batch would keep all of it with each row.
    rows.push({ key, chunk, value: remove ? null : value.slice() });
  }
  return rows;
}

/** How many bytes one stored row takes in the form of a batch of one; `name` is its key in UTF-8. */
export function encodedSize(name: Uint8Array, value: Uint8Array): number {
  return 13 + name.length + value.length;
}

/** Writes one stored row in the form of a batch of one. */
export function encodeRow(bytes: Uint8Array, name: Uint8Array, chunk: number, value: Uint8Array): void {
  const view = new DataView(bytes.buffer, bytes.byteOffset, bytes.byteLength);
  view.setUint32(0, name.length, true);
  bytes.set(name, 4);
  view.setInt32(4 + name.length, chunk, true);
  view.setUint8(8 + name.length, 0);
  view.setUint32(9 + name.length, value.length, true);
  bytes.set(value, 13 + name.length);
}

/** A copy as it is kept: its rows, in the form of a batch, compressed with a checksum. */
export async function packRows(rows: StoredRow[]): Promise<Uint8Array> {
  const named = rows.map((row) => ({ ...row, name: encoder.encode(row.key) }));
  const plain = new Uint8Array(named.reduce((size, { name, value }) => size + encodedSize(name, value), 0));
  let at = 0;
  for (const { name, chunk, value } of named) {
    const size = encodedSize(name, value);
    encodeRow(plain.subarray(at, at + size), name, chunk, value);
    at += size;
  }
  return through(plain, new CompressionStream("gzip"));
}

/** The rows of a packed copy; fails when a single byte is not what was packed. */
export async function unpackRows(packed: Uint8Array): Promise<StoredRow[]> {
  const rows = decodeBatch(await through(packed, new DecompressionStream("gzip")));
  return rows.map((row) => ({ ...row, value: row.value!.slice() }));
}

async function through(bytes: Uint8Array, stream: CompressionStream | DecompressionStream): Promise<Uint8Array> {
  const body = new Blob([bytes as Uint8Array<ArrayBuffer>]).stream().pipeThrough(stream);
  return new Uint8Array(await new Response(body).arrayBuffer());
}
