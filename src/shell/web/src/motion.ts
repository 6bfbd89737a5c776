const stillness = matchMedia("(prefers-reduced-motion: reduce)");

/** The player has asked the device for less movement. */
export function prefersStillness(): boolean {
  return stillness.matches;
}
