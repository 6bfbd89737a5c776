import type { Import } from "./engine";
import type { View } from "./protocol";
import type { KeptCopy } from "./save";
import type { StoredRow } from "./rows";

/** What the worker that reads a file is told, in this order; rows come in pieces. */
export type Told =
  | { module: WebAssembly.Module; copies: KeptCopy[] }
  | { rows: StoredRow[] }
  | { file: Uint8Array; now: number }
  | { rehearsal: number };

/**
 * What it tells: the step that it begins, and at the end what is in the file, or null when that stopped an engine; of a
 * rehearsal samples of all that was seen.
 */
export type Heard = { step: number } | { read: Import | null } | { samples: View[] };

/** The steps, as the player sees them. */
export const steps = ["Reading the file", "Launching its career", "Ending a week of it"];

const patience = 60_000;

/** Why a file is refused whose step has no end. */
function endless(step: number): Import {
  const problem =
    step === 0 ? "Reading this file takes too long." : "The game does not come to an end with a week of this career.";
  return { problem, missing: [], mended: [], givesUp: "", batch: [] };
}

/**
 * Reads a career file and plays a week of it, in a worker: neither a file that takes long nor a career that never ends
 * its week keeps the page from being pressed, and both end after a minute. `feed` tells the worker everything. Null when
 * the file stopped an engine, or when `signal` stopped the reading.
 */
export function readInWorker(
  feed: (tell: (told: Told) => void) => Promise<void>,
  onStep: (step: number) => void,
  signal: AbortSignal,
): Promise<Import | null> {
  const worker = new Worker(new URL("./reading-worker.ts", import.meta.url), { type: "module" });
  let timer = 0;
  const reading = new Promise<Import | null>((resolve) => {
    let step = 0;
    const failed = (fault: unknown): void => {
      console.warn("The file could not be read.", fault);
      resolve(null);
    };
    timer = window.setTimeout(() => resolve(endless(step)), patience);
    signal.addEventListener("abort", () => resolve(null));
    worker.onerror = failed;
    worker.onmessage = ({ data }: MessageEvent<Heard>) => {
      if ("read" in data) resolve(data.read);
      if (!("step" in data)) return;
      step = data.step;
      onStep(step);
    };
    feed((told) => worker.postMessage(told)).catch(failed);
  });
  return reading.finally(() => {
    clearTimeout(timer);
    worker.terminate();
  });
}

/**
 * Plays a first week in a worker and forgets it. A browser compiles each part of the engine when it is first needed, once
 * for all that run on that module: the player's first report need not wait for that. Gives samples of the screens that
 * were seen.
 */
export function rehearseInWorker(module: WebAssembly.Module): Promise<View[]> {
  const worker = new Worker(new URL("./reading-worker.ts", import.meta.url), { type: "module" });
  const rehearsal = new Promise<View[]>((resolve) => {
    worker.onerror = () => resolve([]);
    worker.onmessage = ({ data }: MessageEvent<Heard>) => resolve("samples" in data ? data.samples : []);
    worker.postMessage({ module, copies: [] } satisfies Told);
    worker.postMessage({ rehearsal: Date.now() } satisfies Told);
  });
  return rehearsal.finally(() => worker.terminate());
}
