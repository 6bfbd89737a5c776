import { html, LitElement, nothing, type PropertyValues, type TemplateResult } from "lit";
import { landed, prefersStillness } from "../motion";
import type { Figure, Figures } from "../protocol";
import { between, runShare } from "./counting";
import { toneClass } from "./parts";

const duration = 600;

/** Figures that count up together; any tap or key shows them finished. */
class FiguresElement extends LitElement {
  static override properties = { figures: { attribute: false }, share: { state: true } };
  declare figures: Figures;
  declare share: number;

  private told = "";
  private run = 0;
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
    this.finish();
  }

  protected override willUpdate(changed: PropertyValues<this>): void {
    if (!changed.has("figures")) return;
    const { items = [], total } = this.figures;
    const told = JSON.stringify([...items, total].map((figure) => figure?.value));
    // What is drawn ahead counts when it is seen.
    if (told === this.told || this.closest(".layer.ahead")) return;
    this.told = told;
    // Under sad news nothing counts.
    if (!prefersStillness() && !this.closest(".mourning")) this.begin();
  }

  protected override render(): TemplateResult {
    const { title, items = [], total, style } = this.figures;
    if (style === "pair") return html`<div class="pair">${items.map((figure) => this.card(figure))}</div>`;
    return html`<section class="figures card ${style ?? "ledger"}">
      ${title ? html`<h3 dir="auto">${title}</h3>` : nothing}
      ${
        style === "large"
          ? items.map((figure) => this.large(figure))
          : html`<dl>
              ${items.map((figure) => this.line(figure, ""))} ${total ? this.line(total, "total") : nothing}
            </dl>`
      }
    </section>`;
  }

  private large(figure: Figure): TemplateResult {
    return html`<div class="large-figure ${toneClass(figure.tone)}">
      ${figure.label ? html`<span class="figure-label" dir="auto">${figure.label}</span>` : nothing}
      <span class="figure-value" style="--letters:${figure.value?.length ?? 1}">${this.counted(figure)}</span>
      ${figure.note ? html`<span class="figure-note" dir="auto">${figure.note}</span>` : nothing}
    </div>`;
  }

  private card(figure: Figure): TemplateResult {
    return html`<section class="pair-figure card ${toneClass(figure.tone)}">
      <span class="figure-label" dir="auto">${figure.label}</span>
      <span class="figure-value" style="--letters:${figure.value?.length ?? 1}">${this.counted(figure)}</span>
      ${figure.note ? html`<span class="figure-note" dir="auto">${figure.note}</span>` : nothing}
    </section>`;
  }

  private line(figure: Figure, role: string): TemplateResult {
    return html`<div class="ledger-line ${role} ${toneClass(figure.tone)}">
      <dt dir="auto">
        ${figure.label}${figure.note ? html`<span class="figure-note" dir="auto">${figure.note}</span>` : nothing}
      </dt>
      <dd class="figure-value">${this.counted(figure)}</dd>
    </div>`;
  }

  private counted({ value = "" }: Figure): string {
    return this.share < 1 ? between("", value, this.share) : value;
  }

  private begin(): void {
    this.finish();
    this.share = 0;
    addEventListener("pointerdown", this.finish, { capture: true });
    addEventListener("keydown", this.finish, { capture: true });
    const run = (this.run += 1);
    void landed().then(() => {
      if (run === this.run)
        this.stop = runShare(duration, (share) => (share < 1 ? (this.share = share) : this.finish()));
    });
  }

  private readonly finish = (): void => {
    this.stop();
    this.run += 1;
    removeEventListener("pointerdown", this.finish, { capture: true });
    removeEventListener("keydown", this.finish, { capture: true });
    this.share = 1;
  };
}

customElements.define("bb-figures", FiguresElement);
