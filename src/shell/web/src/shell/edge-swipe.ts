/** How far a swipe from the left edge has pulled the shown screen, as a share of its width. */
interface EdgeSwipeHost {
  pulled(share: number): void;
  released(goBack: boolean): void;
}

/** Follows a finger that starts at the left edge; the handlers belong on the strip that lies there. */
export class EdgeSwipe {
  private start: { x: number; time: number } | null = null;
  private share = 0;

  constructor(private readonly host: EdgeSwipeHost) {}

  readonly down = (event: PointerEvent): void => {
    if (event.button !== 0) return;
    (event.currentTarget as HTMLElement).setPointerCapture(event.pointerId);
    this.start = { x: event.clientX, time: event.timeStamp };
    this.share = 0;
  };

  readonly move = (event: PointerEvent): void => {
    if (!this.start) return;
    const width = (event.currentTarget as HTMLElement).parentElement!.clientWidth;
    this.share = Math.min(1, Math.max(0, (event.clientX - this.start.x) / width));
    this.host.pulled(this.share);
  };

  readonly up = (event: PointerEvent): void => {
    if (!this.start) return;
    const quick = this.share > 0.08 && event.timeStamp - this.start.time < 250;
    this.start = null;
    this.host.released(event.type === "pointerup" && (quick || this.share > 0.4));
  };
}
