/** A stable 32-bit number for a text (FNV-1a), the same on every device. */
export function hash(text: string): number {
  let h = 0x811c9dc5;
  for (let i = 0; i < text.length; i += 1) h = Math.imul(h ^ text.charCodeAt(i), 0x01000193);
  // Finish well: names that differ in their last letter shall not look alike.
  h = Math.imul(h ^ (h >>> 16), 0x85ebca6b);
  h = Math.imul(h ^ (h >>> 13), 0xc2b2ae35);
  return (h ^ (h >>> 16)) >>> 0;
}

/** Draws from 0 to below 1 that follow from a text alone: for looks, never for rules. */
export function drawsOf(text: string): () => number {
  let state = hash(text);
  return () => {
    state = (state + 0x6d2b79f5) | 0;
    let t = Math.imul(state ^ (state >>> 15), 1 | state);
    t = (t + Math.imul(t ^ (t >>> 7), 61 | t)) ^ t;
    return ((t ^ (t >>> 14)) >>> 0) / 4294967296;
  };
}

/** One of a list. */
export function pick<T>(list: readonly T[], draw: () => number): T {
  return list[Math.floor(draw() * list.length)]!;
}
