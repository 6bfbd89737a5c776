/** How far a finger has pulled, in pixels. */
export interface Pull {
  x: number;
  y: number;
}

export type Side = "left" | "up" | "right";

interface SwipeHost {
  pulled(pull: Pull): void;
  /** `side` is where it was let go beyond the mark or flung to, or null. */
  released(pull: Pull, side: Side | null): void;
}

/** From this share of the width on a pull means something. */
const reach = 0.25;
/** Pixels a millisecond from which on letting go is a fling. */
const flung = 0.6;

/** Follows a finger on a card; what began as scrolling the browser takes back by itself. */
export class Swipe {
  private start: { x: number; y: number; time: number; width: number } | null = null;
  private pull: Pull = { x: 0, y: 0 };

  constructor(private readonly host: SwipeHost) {}

  readonly down = (event: PointerEvent): void => {
    if (event.button !== 0) return;
    const card = event.currentTarget as HTMLElement;
    card.setPointerCapture(event.pointerId);
    this.pull = { x: 0, y: 0 };
    this.start = { x: event.clientX, y: event.clientY, time: event.timeStamp, width: card.clientWidth };
  };

  readonly move = (event: PointerEvent): void => {
    if (!this.start) return;
    this.pull = { x: event.clientX - this.start.x, y: Math.min(0, event.clientY - this.start.y) };
    this.host.pulled(this.pull);
  };

  readonly up = (event: PointerEvent): void => {
    if (!this.start) return;
    const { pull, start } = this;
    const time = Math.max(1, event.timeStamp - start.time);
    const fast = Math.hypot(pull.x, pull.y) / time > flung && Math.hypot(pull.x, pull.y) > 24;
    const side = fast ? directionOf(pull) : this.sideOf(pull);
    this.start = null;
    this.host.released(pull, side);
  };

  readonly cancel = (): void => {
    if (!this.start) return;
    this.start = null;
    this.host.released(this.pull, null);
  };

  /** Where a pull of this length leads. */
  sideOf(pull: Pull): Side | null {
    const enough = (this.start?.width ?? 0) * reach;
    return enough > 0 && Math.max(Math.abs(pull.x), -pull.y) >= enough ? directionOf(pull) : null;
  }
}

function directionOf({ x, y }: Pull): Side {
  if (-y > Math.abs(x)) return "up";
  return x < 0 ? "left" : "right";
}
