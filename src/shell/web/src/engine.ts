import type { Answer, PressScreen } from "./protocol";
import { decodeBatch, encodeRow, type Row } from "./rows";

interface Exports {
  memory: WebAssembly.Memory;
  _initialize(): void;
  bb_alloc(size: number): number;
  bb_row(address: number, size: number): void;
  bb_start(address: number, size: number): void;
  bb_act(address: number, size: number): void;
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

  /** Hands in one stored row; only before `start`. */
  row(key: string, chunk: number, value: Uint8Array): void {
    this.guard(() => this.pass(encodeRow(key, chunk, value), this.door.bb_row));
  }

  /** Begins the launch. `seed` is a 64-bit number as decimal text. */
  start(seed: string, now: number): Reply {
    return this.call(`${seed}\0${now}`, this.door.bb_start);
  }

  /** One press. */
  act(now: number, screen: PressScreen, id: string, value: string): Reply {
    return this.call(`${now}\0${screen}\0${id}\0${value}`, this.door.bb_act);
  }

  private call(text: string, entry: (address: number, size: number) => void): Reply {
    return this.guard(() => {
      this.pass(encoder.encode(text), entry);
      const answer = JSON.parse(decoder.decode(this.bytes(this.door.bb_out(), this.door.bb_out_size()))) as Answer;
      return { answer, batch: decodeBatch(this.bytes(this.door.bb_batch(), this.door.bb_batch_size())) };
    });
  }

  private pass(input: Uint8Array, entry: (address: number, size: number) => void): void {
    const address = this.door.bb_alloc(input.length) >>> 0;
    new Uint8Array(this.door.memory.buffer, address, input.length).set(input);
    entry(address, input.length);
  }

  // A copy, because the memory grows and moves under the next call.
  private bytes(address: number, size: number): Uint8Array {
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
