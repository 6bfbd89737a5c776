import { prefersStillness } from "../motion";
import type { Motion } from "../stack";

const glide = "cubic-bezier(0.32, 0.72, 0, 1)";

type Moved = HTMLElement | null;

/** The screens that take part in a step. */
export interface Stage {
  top: Moved;
  beneath: Moved;
  leaving: Moved;
}

/** Moves the screens of one step; `from` is how far a swipe has already pulled the leaving one, 0 to 1. */
export function play(motion: Motion, { top, beneath, leaving }: Stage, from = 0): Animation[] {
  if (motion === "none") return [];
  if (motion === "fade" || prefersStillness()) {
    return [top?.animate({ opacity: [0, 1] }, { duration: 140, easing: "ease-out" })].filter((a) => a !== undefined);
  }
  const x = (percent: number): string => `translateX(${percent}%)`;
  const y = (percent: number): string => `translateY(${percent}%)`;
  const move = (element: Moved, ...path: string[]): Animation | undefined =>
    element?.animate({ transform: path }, { duration: 380 * (1 - from / 2), easing: glide, fill: "backwards" });
  const moves = {
    push: () => [move(top, x(100), x(0)), move(beneath, x(0), x(-28))],
    pop: () => [move(leaving, x(from * 100), x(100)), move(top, x(-28 * (1 - from)), x(0))],
    rise: () => [move(top, y(100), y(0))],
    fall: () => [move(leaving, y(0), y(100))],
  };
  return moves[motion]().filter((animation) => animation !== undefined);
}
