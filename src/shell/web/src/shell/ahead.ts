import { leisure } from "../leisure";
import type { BlocksElement } from "./blocks";

/** What whoever draws ahead has to know of the phone. */
interface House {
  /** A tab could be pressed now. */
  inReach(): boolean;
  /** Nothing moves. */
  resting(): boolean;
  /** The screen that is being drawn out of sight, if one is. */
  begun(): BlocksElement | null;
  /** Takes the next one; false when there is none left. */
  next(): boolean;
}

/** How long nobody may have touched anything, in ms. */
const pause = 300;

/** After so many ms whoever has pressed meanwhile is let in. */
const enough = 2;

/**
 * Draws the roots of the tabs before they are first pressed: in idle time, a little at a time, and not while a finger is
 * at work or something moves.
 */
export class Ahead {
  private drawing = false;
  private touched = -Infinity;

  constructor(private readonly house: House) {
    const touch = (): void => void (this.touched = performance.now());
    for (const type of ["pointerdown", "pointermove", "keydown"]) addEventListener(type, touch, { passive: true });
  }

  /** Goes on where it was left, until all are drawn or nobody can press a tab. */
  async goOn(): Promise<void> {
    if (this.drawing) return;
    this.drawing = true;
    try {
      while (this.house.inReach() && (await this.drawPiece()));
    } finally {
      this.drawing = false;
    }
  }

  private async drawPiece(): Promise<boolean> {
    await leisure();
    const start = performance.now();
    if (performance.now() - this.touched < pause || !this.house.resting()) {
      await new Promise((done) => setTimeout(done, pause));
      return true;
    }
    let begun = this.house.begun();
    if (!begun) return this.house.next();
    for (; begun && performance.now() - start < enough; begun = this.house.begun()) await begun.growUnseen();
    return true;
  }
}
