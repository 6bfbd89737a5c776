import { html, LitElement, nothing, type TemplateResult } from "lit";
import { live } from "lit/directives/live.js";
import { tap } from "../motion";
import type { Slider } from "../protocol";
import type { Scene } from "../scene";

/** A value among positions: it follows the finger, and is pressed once when let go. */
class SliderElement extends LitElement {
  static override properties = { slider: { attribute: false }, scene: { attribute: false }, held: { state: true } };
  declare slider: Slider;
  declare scene: Scene;
  /** Where the knob is while it is dragged; only the engine knows what that position says. */
  declare held: number | null;

  constructor() {
    super();
    this.held = null;
  }

  protected override createRenderRoot(): this {
    return this;
  }

  protected override render(): TemplateResult {
    const { label, value, low, high, note, at = 0, count = 0 } = this.slider;
    const last = Math.max(0, count - 1);
    const shown = this.held ?? at;
    const dragged = this.held !== null && this.held !== at;
    return html`<label class="slider ${dragged ? "held" : ""}">
      <span class="meter-texts">
        <span class="line-label" dir="auto">${label}</span><span class="slider-value" dir="auto">${value}</span>
      </span>
      <input
        type="range"
        min="0"
        max=${last}
        step="1"
        style="--share:${last > 0 ? shown / last : 0}"
        aria-label=${label || "Value"}
        aria-valuetext=${dragged ? `${shown + 1} of ${count}` : (value ?? "")}
        .value=${live(String(shown))}
        @input=${this.drag}
        @change=${this.release}
      />
      ${
        low || high
          ? html`<span class="slider-ends"><span dir="auto">${low}</span><span dir="auto">${high}</span></span>`
          : nothing
      }
      ${note ? html`<span class="line-note" dir="auto">${note}</span>` : nothing}
    </label>`;
  }

  private drag(event: Event): void {
    this.held = (event.target as HTMLInputElement).valueAsNumber;
  }

  private release(event: Event): void {
    const at = (event.target as HTMLInputElement).valueAsNumber;
    this.held = null;
    if (at === (this.slider.at ?? 0)) return;
    tap();
    this.scene.press(this.slider.id, String(at));
  }
}

customElements.define("bb-slider", SliderElement);
