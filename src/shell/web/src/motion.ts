import { hapticsOn, lessMovement } from "./preferences";

const stillness = matchMedia("(prefers-reduced-motion: reduce)");

/** The player has asked for less movement, the device or the game. */
export function prefersStillness(): boolean {
  return stillness.matches || lessMovement();
}

/** A short tap in the hand; a pattern is ms of buzz and pause by turns. Browsers refuse it before the first touch. */
export function tap(pattern: number | number[] = 8): void {
  if (hapticsOn() && navigator.userActivation?.hasBeenActive) navigator.vibrate?.(pattern);
}

let onItsWay: Promise<void> = Promise.resolve();

/** Screens begin to move; the answer says that they have come to rest. */
export function takeOff(): () => void {
  let rest = (): void => {};
  onItsWay = new Promise((done) => (rest = done));
  return rest;
}

/** What counts or falls on a screen waits until the screen stands. */
export function landed(): Promise<void> {
  return onItsWay;
}

/** The frame after that one, which has enough to do with putting away what lay beneath. */
export async function cameToRest(): Promise<void> {
  await landed();
  for (let frames = 0; frames < 2; frames += 1) await new Promise(requestAnimationFrame);
}

/** The next frame is made. */
export async function painted(): Promise<void> {
  await new Promise(requestAnimationFrame);
  await new Promise((done) => setTimeout(done));
}
