import { html, LitElement, nothing, svg, type PropertyValues, type TemplateResult } from "lit";
import { between, runShare } from "../blocks/counting";
import { bandOf, toneClass } from "../blocks/parts";
import { prefersStillness } from "../motion";
import { glyph } from "../pictures/icons";
import type { Total } from "../protocol";

const runMs = 250;
const lamps = 31;

/** What the main button would come to: each figure runs to its new value, the lamps of a chance follow one by one. */
class TotalsElement extends LitElement {
  static override properties = { totals: { attribute: false }, share: { state: true } };
  declare totals: Total[];
  declare share: number;

  private earlier: Total[] = [];
  private stop = (): void => {};

  constructor() {
    super();
    this.share = 1;
  }

  protected override createRenderRoot(): this {
    return this;
  }

  override disconnectedCallback(): void {
    super.disconnectedCallback();
    this.stop();
    this.share = 1;
  }

  protected override willUpdate(changed: PropertyValues<this>): void {
    const before = changed.get("totals") as Total[] | undefined;
    if (!before || prefersStillness()) return;
    if (JSON.stringify(before) !== JSON.stringify(this.totals)) this.run(before);
  }

  protected override render(): TemplateResult {
    return html`<div class="totals" style="--columns:${this.totals.length}">
      ${this.totals.map((total, i) => this.total(total, i))}
    </div>`;
  }

  private total({ label, value = "", tone, energy, share }: Total, i: number): TemplateResult {
    const shown = this.share < 1 ? between(this.earlier[i]?.value ?? value, value, this.share) : value;
    return html`<span
      class="total-item ${toneClass(tone)} ${energy ? "of-energy" : ""} ${share === undefined ? "" : "chance"}"
    >
      ${share === undefined ? nothing : dial(share, label || value)}
      <span class="total-value" dir="auto">${energy ? glyph("bolt") : nothing}${shown}</span>
      <span class="total-label" dir="auto">${label}</span>
    </span>`;
  }

  private run(before: Total[]): void {
    this.stop();
    this.earlier = before;
    this.share = 0;
    this.stop = runShare(runMs, (share) => (this.share = share));
  }
}

/** A half circle of lamps, lit as far as the chance reaches. */
function dial(share: number, name: string): TemplateResult {
  const chance = Math.min(1, Math.max(0, share));
  const paths = Array.from({ length: lamps }, (_, i) => {
    const angle = Math.PI * (1 - i / (lamps - 1));
    const [x, y] = [Math.cos(angle), Math.sin(angle)];
    const at = (r: number): string => `${(60 + x * r).toFixed(1)} ${(62 - y * r).toFixed(1)}`;
    return `M${at(42)}L${at(56)}`;
  });
  return html`<svg
    class="dial ${toneClass(bandOf(chance * 100))}"
    viewBox="0 0 120 66"
    role="meter"
    aria-label=${name}
    aria-valuemin="0"
    aria-valuemax="100"
    aria-valuenow=${Math.round(chance * 100)}
  >
    ${paths.map(
      (path, i) =>
        svg`<path class=${chance > 0 && i / (lamps - 1) <= chance ? "lit" : ""} style="--i:${i}" d=${path} />`,
    )}
  </svg>`;
}

customElements.define("bb-totals", TotalsElement);
