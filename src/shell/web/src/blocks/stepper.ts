import { html, LitElement, nothing, type TemplateResult } from "lit";
import { tap } from "../motion";
import { glyph } from "../pictures/icons";
import type { Stepper } from "../protocol";
import type { Scene } from "../scene";

const holdMs = 400;
const repeatMs = 90;

type Way = "1" | "-1";

/** A value that goes up or down a step; a button that is held goes on by itself. */
class StepperElement extends LitElement {
  static override properties = { stepper: { attribute: false }, scene: { attribute: false } };
  declare stepper: Stepper;
  declare scene: Scene;

  private timer = 0;
  private repeated = false;

  protected override createRenderRoot(): this {
    return this;
  }

  override disconnectedCallback(): void {
    super.disconnectedCallback();
    this.letGo();
  }

  protected override render(): TemplateResult {
    const { label = "", value, note, canLess = true, canMore = true } = this.stepper;
    return html`<div class="line stepper" role="group" aria-label=${label || "Value"}>
      <span class="line-texts">
        <span class="line-label" dir="auto">${label}</span>
        ${note ? html`<span class="line-note" dir="auto">${note}</span>` : nothing}
      </span>
      <output class="step-value" dir="auto">${value}</output>
      <span class="step-buttons">
        ${this.button("-1", "remove", `Less ${label}`, canLess)} ${this.button("1", "add", `More ${label}`, canMore)}
      </span>
    </div>`;
  }

  private button(way: Way, drawing: string, name: string, can: boolean): TemplateResult {
    return html`<button
      class="step"
      type="button"
      aria-label=${name.trim()}
      aria-disabled=${can ? nothing : "true"}
      @pointerdown=${() => this.hold(way)}
      @pointerup=${this.letGo}
      @pointerleave=${this.letGo}
      @pointercancel=${this.letGo}
      @contextmenu=${(event: Event) => event.preventDefault()}
      @click=${() => this.clicked(way)}
    >
      ${glyph(drawing)}
    </button>`;
  }

  private can(way: Way): boolean {
    return (way === "1" ? this.stepper.canMore : this.stepper.canLess) ?? true;
  }

  private step(way: Way): void {
    tap();
    this.scene.press(this.stepper.id, way);
  }

  private clicked(way: Way): void {
    if (!this.repeated && this.can(way)) this.step(way);
    this.repeated = false;
  }

  private hold(way: Way): void {
    this.letGo();
    this.repeated = false;
    const again = (): void => {
      // At an end it stops, and under an alert or another screen that a press has brought.
      if (this.closest("[inert]") || !this.can(way) || document.querySelector("dialog[open]")) return;
      this.repeated = true;
      this.step(way);
      this.timer = setTimeout(again, repeatMs);
    };
    this.timer = setTimeout(again, holdMs);
  }

  private readonly letGo = (): void => clearTimeout(this.timer);
}

customElements.define("bb-stepper", StepperElement);
