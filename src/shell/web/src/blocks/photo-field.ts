import { html, LitElement, nothing, type TemplateResult } from "lit";
import { pictureIn } from "../pictures/shrink";
import type { PhotoField } from "../protocol";
import type { Scene } from "../scene";

/** Takes the player's own picture: a part of it is chosen and scaled down here, and its address told to the engine. */
class PhotoFieldElement extends LitElement {
  static override properties = {
    field: { attribute: false },
    scene: { attribute: false },
    problem: { state: true },
    picked: { state: true },
  };
  declare field: PhotoField;
  declare scene: Scene;
  declare problem: string;
  /** The picture of which a part is being chosen. */
  declare picked: ImageBitmap | null;

  protected override createRenderRoot(): this {
    return this;
  }

  protected override render(): TemplateResult {
    const { label, note, taken, shape = "square" } = this.field;
    return html`<div class="line field">
      <label class="field-label">
        <span class="line-texts">
          <span class="line-label" dir="auto">${label}</span>
          ${note ? html`<span class="line-note" dir="auto">${note}</span>` : nothing}
        </span>
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
      ${
        this.picked
          ? html`<bb-crop
              .picture=${this.picked}
              .shape=${shape}
              .taken=${(address: string | null) => this.take(address)}
            ></bb-crop>`
          : nothing
      }
    </div>`;
  }

  private async choose(event: Event): Promise<void> {
    const input = event.target as HTMLInputElement;
    const file = input.files?.[0];
    if (!file) return;
    const [picture] = await Promise.all([pictureIn(file), import("./crop")]).catch(() => [null]);
    input.value = "";
    this.problem = picture ? "" : "That file is no picture";
    this.picked = picture;
  }

  private take(address: string | null): void {
    this.picked?.close();
    this.picked = null;
    this.problem = address === null ? "That picture is too large" : "";
    if (address) this.scene.press(this.field.id, address);
    else this.querySelector("input")?.focus();
  }
}

customElements.define("bb-photo-field", PhotoFieldElement);
