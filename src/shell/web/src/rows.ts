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
const forgetCopy = -11;

/** An order to keep all rows as they stand under a name, instead of a row. */
export function keepsCopy(row: Row): boolean {
  return row.chunk === keepCopy;
}

/** An order to forget the copy of a name. */
export function forgetsCopy(row: Row): boolean {
  return row.chunk === forgetCopy;
}

export function isOrder(row: Row): boolean {
  return keepsCopy(row) || forgetsCopy(row);
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
    rows.push({ key, chunk, value: remove ? null : value });
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
