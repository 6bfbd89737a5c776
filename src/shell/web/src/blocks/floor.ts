import { html, LitElement, nothing, type TemplateResult } from "lit";
import { prefersStillness } from "../motion";
import { picture } from "../pictures/picture";
import type { Row } from "../protocol";
import type { Scene } from "../scene";

const settledMs = 120;

/** One thing at a time on a lit floor; the others come by a swipe, a dot or a key. */
class FloorElement extends LitElement {
  static override properties = { items: { attribute: false }, scene: { attribute: false } };
  declare items: Row[];
  declare scene: Scene;

  private settling = 0;

  protected override createRenderRoot(): this {
    return this;
  }

  private get shown(): number {
    return Math.max(
      0,
      this.items.findIndex(({ selected }) => selected),
    );
  }

  private get stage(): HTMLElement | null {
    return this.querySelector(".floor-stage");
  }

  protected override render(): TemplateResult {
    const { shown } = this;
    const row = this.items[shown];
    const dot = ({ id }: Row, i: number): TemplateResult =>
      html`<button
        class="floor-dot ${i === shown ? "on" : ""}"
        type="button"
        tabindex="-1"
        @click=${() => this.choose(id)}
      >
        <i></i>
      </button>`;
    return html`
      <div class="floor-light">
        <ul class="floor-stage" @scroll=${this.scrolled}>
          ${this.items.map(
            ({ id, title, picture: thing }, i) =>
              html`<li>
                <button
                  class="floor-thing"
                  type="button"
                  aria-label=${title || "This one"}
                  aria-current=${i === shown ? "true" : nothing}
                  @click=${() => this.choose(id)}
                >
                  ${picture(thing)}
                </button>
              </li>`,
          )}
        </ul>
      </div>
      ${this.items.length > 1 ? html`<div class="floor-dots" aria-hidden="true">${this.items.map(dot)}</div>` : nothing}
      ${
        row
          ? html`<div class="floor-texts" aria-live="polite">
              <h2 dir="auto">${row.title}</h2>
              ${row.subtitle ? html`<p class="floor-about" dir="auto">${row.subtitle}</p>` : nothing}
              ${row.value ? html`<p class="floor-value" dir="auto">${row.value}</p>` : nothing}
            </div>`
          : nothing
      }
    `;
  }

  protected override firstUpdated(): void {
    this.bring("instant");
  }

  protected override updated(): void {
    if (this.inFront() !== this.shown) this.bring(prefersStillness() ? "instant" : "smooth");
  }

  override disconnectedCallback(): void {
    super.disconnectedCallback();
    window.clearTimeout(this.settling);
  }

  /** Which one the swipe has left in the middle. */
  private inFront(): number {
    const { stage } = this;
    return stage?.clientWidth ? Math.round(Math.abs(stage.scrollLeft) / stage.clientWidth) : this.shown;
  }

  private bring(behavior: ScrollBehavior): void {
    const { stage } = this;
    stage?.scrollTo({ left: this.shown * stage.clientWidth, behavior });
  }

  private scrolled = (): void => {
    window.clearTimeout(this.settling);
    this.settling = window.setTimeout(() => this.choose(this.items[this.inFront()]?.id), settledMs);
  };

  private choose(id: string | undefined): void {
    if (id && id !== this.items[this.shown]?.id) this.scene.press(id);
  }
}

customElements.define("bb-floor", FloorElement);
