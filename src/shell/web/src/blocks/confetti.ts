import { html, LitElement, type TemplateResult } from "lit";
import { drawsOf, pick } from "../pictures/chance";
import { cameToRest, prefersStillness, tap } from "../motion";

const pieces = 46;
const fallMs = 1400;
const colours = ["#fff", "#ffe27a", "#ffd1dc", "#7a0f4a", "#64d2ff"];

/** One burst from the top, once; then the pieces lie where they fell. */
class ConfettiElement extends LitElement {
  static override properties = { seed: { attribute: false } };
  declare seed: string;

  protected override createRenderRoot(): this {
    return this;
  }

  protected override render(): TemplateResult {
    const draw = drawsOf(this.seed);
    return html`${Array.from({ length: pieces }, () => {
      const [x, y, turn, width] = [draw() * 100, draw() * 100, draw() * 180, 4 + draw() * 5];
      const height = width * (1.4 + draw());
      return html`<i
        style="left:${x.toFixed(1)}%;top:${y.toFixed(1)}%;width:${width.toFixed(1)}px;height:${height.toFixed(1)}px;rotate:${turn.toFixed(0)}deg;opacity:${(0.55 + draw() * 0.45).toFixed(2)};background:${pick(colours, draw)}"
      ></i>`;
    })}`;
  }

  private falling: Animation[] = [];

  override disconnectedCallback(): void {
    super.disconnectedCallback();
    this.end();
  }

  protected override firstUpdated(): void {
    if (prefersStillness()) return tap(20);
    this.style.visibility = "hidden";
    void cameToRest().then(() => this.isConnected && this.begin());
  }

  private begin(): void {
    tap(20);
    this.style.visibility = "";
    addEventListener("pointerdown", this.end, { capture: true });
    addEventListener("keydown", this.end, { capture: true });
    const draw = drawsOf(`${this.seed} falls`);
    for (const piece of this.querySelectorAll<HTMLElement>("i")) {
      const from = `translate(${(draw() - 0.5) * 120}px, ${-180 - draw() * 160}px) rotate(${(draw() - 0.5) * 900}deg)`;
      const duration = fallMs * (0.6 + draw() * 0.4);
      const fall = piece.animate(
        { transform: [from, "none"], opacity: ["0", "1", piece.style.opacity] },
        { duration, easing: "ease-out" },
      );
      this.falling.push(fall);
    }
    // A sleeve that is the news turns once, a little: the chart has a record on it.
    const sleeve = this.parentElement?.querySelector(".poster-front > .picture.cover");
    const turn = { transform: ["none", "scale(1.08) rotate(180deg)", "rotate(1turn)"] };
    if (sleeve) this.falling.push(sleeve.animate(turn, { duration: 900, easing: "ease-out" }));
  }

  /** Whoever goes on need not wait: any tap or key lets all of it lie. */
  private readonly end = (): void => {
    removeEventListener("pointerdown", this.end, { capture: true });
    removeEventListener("keydown", this.end, { capture: true });
    for (const fall of this.falling.splice(0)) fall.finish();
  };
}

customElements.define("bb-confetti", ConfettiElement);
