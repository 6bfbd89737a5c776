import { leisure } from "../leisure";
import type { View } from "../protocol";
import type { BlocksElement } from "./blocks";

/** What whoever draws ahead has to know of the phone. */
interface House {
  /** A tab could be pressed now. */
  inReach(): boolean;
  /** Nothing moves. */
  resting(): boolean;
  /** What is drawn out of sight. */
  unseen(): BlocksElement[];
  /** Takes the root of a tab; false when it was opened already. */
  foresee(tab: number): boolean;
  /** Takes a sample in the place of the one before; null takes the last one down. */
  hang(sample: View | null): void;
}

const tabs = 5;

/** How long nobody may have touched anything, in ms. */
const pause = 300;

/** After so many ms whoever has pressed meanwhile is let in. */
const enough = 2;

/**
 * Draws out of sight what has not been seen yet: the roots of the tabs, then samples of what other screens are made of.
 * It does so in idle time, a little at a time, and not while a finger is at work or something moves.
 */
export class Ahead {
  private drawing = false;
  private touched = -Infinity;
  private asked = 0;
  private samples: (View | null)[] = [];

  constructor(private readonly house: House) {
    const touch = (): void => void (this.touched = performance.now());
    for (const type of ["pointerdown", "pointermove", "keydown"]) addEventListener(type, touch, { passive: true });
  }

  /** The tabs are those of another launch. */
  beginAnew(): void {
    this.asked = 0;
  }

  rehearse(samples: View[]): void {
    this.samples = [...samples, null];
    void this.goOn();
  }

  /** Goes on where it was left, until all is drawn or nobody can press a tab. */
  async goOn(): Promise<void> {
    if (this.drawing) return;
    this.drawing = true;
    try {
      while (this.house.inReach() && (await this.drawPiece()));
    } finally {
      this.drawing = false;
    }
  }

  /** False when all is drawn. */
  private async drawPiece(): Promise<boolean> {
    await leisure();
    const start = performance.now();
    if (start - this.touched < pause || !this.house.resting()) {
      await new Promise((done) => setTimeout(done, pause));
      return true;
    }
    do {
      const begun = this.house.unseen().find(({ foreseen }) => !foreseen);
      if (begun) await begun.growUnseen();
      else return this.takeNext();
    } while (performance.now() - start < enough);
    return true;
  }

  private takeNext(): boolean {
    while (this.asked < tabs) if (this.house.foresee(this.asked++)) return true;
    const sample = this.samples.shift();
    if (sample !== undefined) this.house.hang(sample);
    return sample !== undefined;
  }
}
