import { html, LitElement, type TemplateResult } from "lit";
import { shrunkPicture } from "../pictures/shrink";
import type { PhotoField } from "../protocol";
import type { Scene } from "../scene";

/** Takes the player's own picture: it is scaled down here, and its address told to the engine. */
class PhotoFieldElement extends LitElement {
  static override properties = { field: { attribute: false }, scene: { attribute: false }, problem: { state: true } };
  declare field: PhotoField;
  declare scene: Scene;
  declare problem: string;

  protected override createRenderRoot(): this {
    return this;
  }

  protected override render(): TemplateResult {
    const { label, taken } = this.field;
    return html`<div class="line field">
      <label class="field-label">
        <span class="line-label" dir="auto">${label}</span>
        <span class="photo-choice" role="status"
          >${this.problem || (taken ? "Choose another picture" : "Choose a picture")}</span
        >
        <input
          class="photo-input"
          type="file"
          accept="image/*"
          aria-label=${label || "Picture"}
          @change=${this.choose}
        />
      </label>
    </div>`;
  }

  private async choose(event: Event): Promise<void> {
    const input = event.target as HTMLInputElement;
    const file = input.files?.[0];
    if (!file) return;
    const address = await shrunkPicture(file);
    input.value = "";
    this.problem = address ? "" : "That file is no picture";
    if (address) this.scene.press(this.field.id, address);
  }
}

customElements.define("bb-photo-field", PhotoFieldElement);
