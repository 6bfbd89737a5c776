/**
 * The device's own back (a gesture or a key outside the page) as a way back inside the game. While there is something to
 * go back to, one extra entry lies in the browser's history; taking it away is the signal.
 */
export class BackGesture {
  private armed = false;

  constructor(goBack: () => boolean) {
    addEventListener("popstate", () => {
      this.armed = false;
      if (goBack()) this.arm();
    });
  }

  /** Call whenever there is something to go back to. */
  arm(): void {
    if (this.armed) return;
    this.armed = true;
    history.pushState(null, "");
  }
}
