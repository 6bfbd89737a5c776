import { soundOn } from "../preferences";
import type { Answer } from "../protocol";
import { audio } from "./audio";

/** What a press came to, as far as it can be heard. */
export type SoftSound = "press" | "level" | "coin" | "week" | "moment";

/** When each tone begins, in seconds, and its pitch in hertz. */
const tones: Record<SoftSound, [at: number, pitch: number][]> = {
  press: [[0, 520]],
  level: [
    [0, 523],
    [0.07, 784],
  ],
  coin: [
    [0, 1319],
    [0.06, 1760],
  ],
  week: [
    [0, 330],
    [0.09, 440],
    [0.18, 554],
  ],
  moment: [
    [0, 523],
    [0.1, 659],
    [0.2, 784],
    [0.3, 1047],
  ],
};

/** Quieter than any song, and never before the player wanted to hear something. */
export function playSoft(name: SoftSound): void {
  if (!soundOn() || !navigator.userActivation?.hasBeenActive) return;
  const to = audio();
  const length = name === "press" ? 0.06 : 0.32;
  for (const [after, pitch] of tones[name]) {
    const at = to.currentTime + 0.01 + after;
    const shape = to.createGain();
    shape.gain.setValueAtTime(0, at);
    shape.gain.linearRampToValueAtTime(0.05, at + 0.008);
    shape.gain.exponentialRampToValueAtTime(0.0005, at + length);
    shape.connect(to.destination);
    const tone = to.createOscillator();
    tone.type = "sine";
    tone.frequency.value = pitch;
    tone.connect(shape);
    tone.start(at);
    tone.stop(at + length);
    tone.onended = () => shape.disconnect();
  }
}

/** The sound of a step from one answer to the next: the rarest thing that happened in it. */
export function soundOf(before: Answer, now: Answer): SoftSound {
  const fresh = before.view.key !== now.view.key;
  if (fresh && now.view.blocks?.some((block) => block.kind === "poster" && block.mood === "celebrate")) return "moment";
  if (before.header?.date !== now.header?.date) return "week";
  if (dollars(now) > dollars(before)) return "coin";
  return now.feedback === "success" ? "level" : "press";
}

const dollars = ({ header }: Answer): number => Number((header?.cash ?? "").replace(/[^\d.-]/g, ""));
