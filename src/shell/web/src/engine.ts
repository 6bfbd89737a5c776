import type { Answer, PressScreen, View } from "./protocol";
import { decodeBatch, encodedSize, encodeRow, type Row, type StoredRow } from "./rows";
import type { KeptCopy } from "./save";
import type { PurchaseAnswer } from "./shop";

interface Exports {
  memory: WebAssembly.Memory;
  _initialize(): void;
  bb_alloc(size: number): number;
  bb_row(address: number, size: number): number;
  bb_snapshot(address: number, size: number): void;
  bb_spare(address: number, size: number): void;
  bb_give_up(address: number, size: number): void;
  bb_hold_scores(address: number, size: number): void;
  bb_scores(): void;
  bb_export(): void;
  bb_export_name(): void;
  bb_import(address: number, size: number): void;
  bb_start(address: number, size: number): void;
  bb_act(address: number, size: number): void;
  bb_ahead(address: number, size: number): void;
  bb_purchase(address: number, size: number): void;
  bb_trace(): void;
  bb_out(): number;
  bb_out_size(): number;
  bb_batch(): number;
  bb_batch_size(): number;
}

/** The engine stopped in the middle of a call. The instance is poisoned and must be dropped. */
export class EngineFault extends Error {
  constructor(cause: unknown) {
    super("The engine stopped.", { cause });
    this.name = "EngineFault";
  }
}

/** What a call of the engine gives back: the screen now, and the rows it wants stored together. */
export interface Reply {
  answer: Answer;
  batch: Row[];
}

/** What the engine makes of a career file. */
export interface Import {
  /** What is wrong with it, as a sentence for the player; "" when it can be taken. */
  problem: string;
  /** Keys that the file lacks; they have their defaults. */
  missing: string[];
  /** What contradicted itself in it and was put right, as sentences. */
  mended: string[];
  /** Which kept copy goes for the one of today's career, as a sentence; "" when none. */
  givesUp: string;
  /** With no problem: orders, and all rows of the career in it. */
  batch: Row[];
}

const encoder = new TextEncoder();
const decoder = new TextDecoder();

/** Fetches and compiles the engine. Any server's content type will do. */
export async function loadEngineModule(url: string | URL): Promise<WebAssembly.Module> {
  const response = await fetch(url);
  if (!response.ok) throw new Error(`The engine could not be loaded (${response.status}).`);
  return WebAssembly.compile(await response.arrayBuffer());
}

/** One running instance of the engine. */
export class Engine {
  private constructor(private readonly door: Exports) {}

  /** A fresh instance that knows nothing yet: hand in the stored rows, then start it. */
  static async create(module: WebAssembly.Module): Promise<Engine> {
    const instance = await WebAssembly.instantiate(module, {});
    const engine = new Engine(instance.exports as unknown as Exports);
    engine.guard(() => engine.door._initialize());
    return engine;
  }

  /** Before `start`: takes rows that are stored. Answers with those that are none. */
  hold(rows: StoredRow[]): StoredRow[] {
    return this.guard(() =>
      rows.filter(({ key, chunk, value }) => {
        const name = encoder.encode(key);
        const room = this.room(encodedSize(name, value));
        encodeRow(room, name, chunk, value);
        return this.door.bb_row(room.byteOffset, room.length) === 0;
      }),
    );
  }

  /** Before `start`: takes the kept copies. Later: what one of them takes, which is known only after a while. */
  holdCopies(copies: KeptCopy[]): void {
    this.guard(() => {
      for (const { name, bytes } of copies) this.pass(encoder.encode(`${bytes}\0${name}`), this.door.bb_snapshot);
    });
  }

  /** The copy that is missed least, but for the one named; its name is "" when there is none. */
  spareCopy(spared: string): { name: string; told: string } {
    return this.guard(() => {
      this.pass(encoder.encode(spared), this.door.bb_spare);
      return JSON.parse(decoder.decode(this.out())) as { name: string; told: string };
    });
  }

  /** Forgets a kept copy; whoever keeps it has to be told as well. */
  giveUpCopy(name: string): void {
    this.guard(() => this.pass(encoder.encode(name), this.door.bb_give_up));
  }

  /** Before `start`: takes the scores of all lives played on this device. */
  holdScores(table: string): void {
    this.guard(() => this.pass(encoder.encode(table), this.door.bb_hold_scores));
  }

  /** All of them as they are to be kept, where one changed since the last call; else "". */
  changedScores(): string {
    return this.guard(() => {
      this.door.bb_scores();
      return decoder.decode(this.out());
    });
  }

  /** Begins the launch. `seed` is a 64-bit number as decimal text. */
  start(seed: string, now: number): Reply {
    return this.call(`${seed}\0${now}`, this.door.bb_start);
  }

  /** One press. */
  act(now: number, screen: PressScreen, id: string, value: string): Reply {
    return this.call(`${now}\0${screen}\0${id}\0${value}`, this.door.bb_act);
  }

  /** The root of a tab that was not opened yet, as it would describe itself now; null once it is open. Nothing happens. */
  ahead(tab: number): View | null {
    return this.guard(() => {
      this.pass(encoder.encode(String(tab)), this.door.bb_ahead);
      const told = decoder.decode(this.out());
      return told ? (JSON.parse(told) as View) : null;
    });
  }

  /** What the shop answers. */
  purchase(now: number, { result, product, transaction, free }: PurchaseAnswer): Reply {
    return this.call([now, result, product, transaction, free ? "free" : "paid"].join("\0"), this.door.bb_purchase);
  }

  /** What happened in this launch, a line each. */
  trace(): Uint8Array<ArrayBuffer> {
    return this.guard(() => {
      this.door.bb_trace();
      return this.out();
    });
  }

  /** The whole career as a file; before `start` the one that was handed in, without running a rule. */
  careerFile(): { name: string; bytes: Uint8Array<ArrayBuffer> } {
    return this.guard(() => {
      this.door.bb_export_name();
      const name = decoder.decode(this.out());
      this.door.bb_export();
      return { name, bytes: this.out() };
    });
  }

  /** Reads a career file; what the engine itself plays stays as it is. */
  import(now: number, file: Uint8Array): Import {
    return this.guard(() => {
      const time = encoder.encode(`${now}\0`);
      const room = this.room(time.length + file.length);
      room.set(time);
      room.set(file, time.length);
      this.door.bb_import(room.byteOffset, room.length);
      const read = JSON.parse(decoder.decode(this.out())) as Omit<Import, "batch">;
      return { ...read, batch: read.problem ? [] : this.batch() };
    });
  }

  private call(text: string, entry: (address: number, size: number) => void): Reply {
    return this.guard(() => {
      this.pass(encoder.encode(text), entry);
      return { answer: JSON.parse(decoder.decode(this.out())) as Answer, batch: this.batch() };
    });
  }

  private out(): Uint8Array<ArrayBuffer> {
    return this.bytes(this.door.bb_out(), this.door.bb_out_size());
  }

  private batch(): Row[] {
    return decodeBatch(this.bytes(this.door.bb_batch(), this.door.bb_batch_size()));
  }

  private pass(input: Uint8Array, entry: (address: number, size: number) => void): void {
    const room = this.room(input.length);
    room.set(input);
    entry(room.byteOffset, room.length);
  }

  /** Room in the engine's memory for the next call's input. */
  private room(size: number): Uint8Array {
    const address = this.door.bb_alloc(size) >>> 0;
    return new Uint8Array(this.door.memory.buffer, address, size);
  }

  // A copy, because the memory grows and moves under the next call.
  private bytes(address: number, size: number): Uint8Array<ArrayBuffer> {
    return new Uint8Array(this.door.memory.buffer, address >>> 0, size >>> 0).slice();
  }

  private guard<T>(work: () => T): T {
    try {
      return work();
    } catch (fault) {
      throw new EngineFault(fault);
    }
  }
}
