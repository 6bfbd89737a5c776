/** Where a career file is read and tried, and a life rehearsed: away from the page, on engines of its own. */
import { Engine, type Import } from "./engine";
import type { Heard, Told } from "./reading";
import { samplesOf } from "./samples";
import { rehearse, trialProblem } from "./trial";

let module: WebAssembly.Module;
let engine: Promise<Engine>;

const tell = (heard: Heard, transfer: Transferable[] = []): void => postMessage(heard, { transfer });

addEventListener("message", ({ data }: MessageEvent<Told>) => void obey(data));

async function obey(told: Told): Promise<void> {
  if ("module" in told) {
    module = told.module;
    engine = Engine.create(module).then((fresh) => {
      fresh.holdCopies(told.copies);
      return fresh;
    });
  } else if ("rows" in told) {
    (await engine).hold(told.rows);
  } else if ("rehearsal" in told) {
    tell({ samples: samplesOf(rehearse(await engine, told.rehearsal)) });
  } else {
    const read = await readAndTry(told.file, told.now).catch((fault: unknown) => {
      console.warn("The file stopped the engine.", fault);
      return null;
    });
    const buffers = new Set(read?.batch.flatMap(({ value }) => (value ? [value.buffer as ArrayBuffer] : [])));
    tell({ read }, [...buffers]);
  }
}

async function readAndTry(file: Uint8Array, now: number): Promise<Import> {
  tell({ step: 0 });
  const read = (await engine).import(now, file);
  if (read.problem) return read;
  const onStep = (step: number): void => tell({ step });
  return { ...read, problem: trialProblem(await Engine.create(module), read.batch, now, onStep) };
}
