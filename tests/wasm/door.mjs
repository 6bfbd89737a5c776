// The engine as the page drives it: rows in, presses in, answers and batches out. Keeps the rows as a browser would.
import { readFileSync } from 'node:fs';

export const module = new WebAssembly.Module(
  readFileSync(new URL('../../src/shell/web/public/engine.wasm', import.meta.url)),
);

const encoder = new TextEncoder();
const decoder = new TextDecoder('utf-8', { fatal: true });

/** Reads a batch to its last byte; a length that points past the end throws. */
export function decodeBatch(bytes) {
  const view = new DataView(bytes.buffer, bytes.byteOffset, bytes.byteLength);
  const rows = [];
  let at = 0;
  const take = () => {
    const size = view.getUint32(at, true);
    at += 4 + size;
    if (at > bytes.length) throw new RangeError('a batch ends in the middle of a row');
    return bytes.slice(at - size, at);
  };
  while (at < bytes.length) {
    const key = decoder.decode(take());
    const chunk = view.getInt32(at, true);
    const remove = view.getUint8(at + 4);
    at += 5;
    rows.push({ key, chunk, remove, value: take() });
  }
  return rows;
}

function encodeRow({ key, chunk, value }) {
  const name = encoder.encode(key);
  const bytes = new Uint8Array(13 + name.length + value.length);
  const view = new DataView(bytes.buffer);
  view.setUint32(0, name.length, true);
  bytes.set(name, 4);
  view.setInt32(4 + name.length, chunk, true);
  view.setUint32(9 + name.length, value.length, true);
  bytes.set(value, 13 + name.length);
  return bytes;
}

/** One launch of the engine on a set of rows, which it keeps up to date. */
export class Launch {
  now = Date.UTC(2023, 0, 2, 12);
  batches = [];
  /** Milliseconds that the engine's own work took so far. */
  engineMs = 0;

  constructor({ seed = '20230102', rows = new Map(), now, scores = '' } = {}) {
    this.rows = rows;
    this.now = now ?? this.now;
    this.door = new WebAssembly.Instance(module, {}).exports;
    this.door._initialize();
    for (const row of rows.values()) this.#pass(encodeRow(row), this.door.bb_row);
    if (scores) this.#pass(encoder.encode(scores), this.door.bb_hold_scores);
    this.#call(this.door.bb_start, `${seed}\0${this.now}`);
  }

  /** One press; answers with the new state of the glass. */
  press(screenKey, id, value = '') {
    return this.pressAt(this.now + 1000, screenKey, id, value);
  }

  pressAt(now, screenKey, id, value) {
    this.now = now;
    return this.#call(this.door.bb_act, `${now}\0${screenKey}\0${id}\0${value}`);
  }

  /** The scores of all lives, where one changed since the last call. */
  changedScores() {
    this.door.bb_scores();
    return decoder.decode(this.#bytes(this.door.bb_out(), this.door.bb_out_size()));
  }

  /** What the shop answers; answers with the new state of the glass. */
  purchase(result, product, transaction, free) {
    this.now += 1000;
    return this.#call(this.door.bb_purchase, [this.now, result, product, transaction, free].join('\0'));
  }

  /** What happened in this launch, a line each. */
  trace() {
    this.door.bb_trace();
    return decoder.decode(this.#bytes(this.door.bb_out(), this.door.bb_out_size()));
  }

  /** The root of a tab that was not opened yet; null once it is open. */
  ahead(tab) {
    this.#pass(encoder.encode(String(tab)), this.door.bb_ahead);
    return JSON.parse(decoder.decode(this.#bytes(this.door.bb_out(), this.door.bb_out_size())) || 'null');
  }

  /** The fingerprint of the whole state. */
  stateHash() {
    this.door.bb_state_hash();
    return decoder.decode(this.#bytes(this.door.bb_out(), this.door.bb_out_size()));
  }

  /** The career as a file. */
  careerFile() {
    this.door.bb_export();
    return this.#bytes(this.door.bb_out(), this.door.bb_out_size());
  }

  /** A press on the screen that is shown. */
  pressShown(id, value) {
    return this.press(this.answer.view.key, id, value);
  }

  /** This moment, to come back to. */
  mark() {
    return { memory: new Uint8Array(this.door.memory.buffer).slice(), now: this.now, answer: this.answer };
  }

  /** Everything is as it was at the mark, but for the rows. */
  backTo({ memory, now, answer }) {
    const all = new Uint8Array(this.door.memory.buffer);
    all.set(memory);
    all.fill(0, memory.length);
    Object.assign(this, { now, answer });
  }

  #pass(bytes, call) {
    const address = this.door.bb_alloc(bytes.length) >>> 0;
    new Uint8Array(this.door.memory.buffer, address, bytes.length).set(bytes);
    const start = performance.now();
    call(address, bytes.length);
    this.engineMs += performance.now() - start;
  }

  #bytes(address, size) {
    return new Uint8Array(this.door.memory.buffer, address >>> 0, size >>> 0).slice();
  }

  #call(call, text) {
    this.#pass(encoder.encode(text), call);
    this.text = decoder.decode(this.#bytes(this.door.bb_out(), this.door.bb_out_size()));
    this.answer = JSON.parse(this.text);
    const batch = decodeBatch(this.#bytes(this.door.bb_batch(), this.door.bb_batch_size()));
    this.batches.push(batch);
    for (const row of batch) {
      if (row.remove) this.rows.delete(`${row.key}\0${row.chunk}`);
      else this.rows.set(`${row.key}\0${row.chunk}`, row);
    }
    return this.answer;
  }
}

/** The rows of a save that holds the career of such a file. */
export function importedRows(file) {
  const door = new WebAssembly.Instance(module, {}).exports;
  const bytes = (address, size) => new Uint8Array(door.memory.buffer, address >>> 0, size >>> 0);
  door._initialize();
  const input = new Uint8Array([...encoder.encode('0\0'), ...file]);
  const address = door.bb_alloc(input.length);
  bytes(address, input.length).set(input);
  door.bb_import(address, input.length);
  const { problem } = JSON.parse(decoder.decode(bytes(door.bb_out(), door.bb_out_size())));
  if (problem) throw new Error(problem);
  const batch = decodeBatch(bytes(door.bb_batch(), door.bb_batch_size()).slice());
  return new Map(batch.filter(({ remove }) => !remove).map((row) => [`${row.key}\0${row.chunk}`, row]));
}

/** Types a name on the first screen and begins the career, as a new player does. */
export function beginCareer(launch, name) {
  const field = launch.answer.view.blocks.find(({ kind }) => kind === 'field');
  launch.pressShown(field.id, name);
  launch.pressShown(launch.answer.view.mainAction.id);
  return settle(launch);
}

/** Answers every alert with its first button and leaves every screen that covers the tabs. */
export function settle(launch) {
  for (let presses = 0; launch.answer.alert || launch.answer.modal; ++presses) {
    if (presses > 200) throw new Error(`stuck on ${launch.answer.view.screen}`);
    if (launch.answer.alert) launch.press('alert', launch.answer.alert.key, 0);
    else launch.pressShown(launch.answer.view.mainAction.id);
  }
  return launch.answer;
}

/** Ends the week from the home screen and reads the report to its end. */
export function endTheWeek(launch) {
  launch.press('tabs', 'tab', 0);
  settle(launch);
  launch.press('nav', 'endTheWeekButton');
  return settle(launch);
}
