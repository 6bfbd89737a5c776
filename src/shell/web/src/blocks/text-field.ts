import { html, LitElement, nothing, type TemplateResult } from "lit";
import { live } from "lit/directives/live.js";
import { draft, dropDraft, tellDrafts, tellDraftsSoon } from "../drafts";
import { glyph } from "../pictures/icons";
import type { TextField } from "../protocol";
import type { Scene } from "../scene";

const growsByItself = CSS.supports("field-sizing", "content");

/** A text to type: it keeps what is being typed until it is told to the engine. */
class TextFieldElement extends LitElement {
  static override properties = { field: { attribute: false }, scene: { attribute: false } };
  declare field: TextField;
  declare scene: Scene;

  private typed = "";

  protected override createRenderRoot(): this {
    return this;
  }

  override disconnectedCallback(): void {
    super.disconnectedCallback();
    dropDraft(this.tell);
  }

  protected override render(): TemplateResult {
    const { label, value = "", placeholder, multiline, suggest } = this.field;
    const name = label || placeholder || "Text";
    return html`<div class="line field ${multiline ? "multiline" : ""}">
      <label class="field-label">
        ${label ? html`<span class="line-label" dir="auto">${label}</span>` : nothing}
        ${
          multiline
            ? html`<textarea
                rows="3"
                dir="auto"
                aria-label=${name}
                placeholder=${placeholder ?? ""}
                .value=${live(value)}
                @input=${this.type}
                @compositionend=${this.type}
                @blur=${tellDraftsSoon}
              ></textarea>`
            : html`<input
                type="text"
                dir="auto"
                aria-label=${name}
                placeholder=${placeholder ?? ""}
                autocomplete="off"
                enterkeyhint="done"
                .value=${live(value)}
                @input=${this.type}
                @compositionend=${this.type}
                @blur=${tellDraftsSoon}
                @keydown=${this.finish}
              />`
        }
      </label>
      ${
        suggest
          ? html`<button
              class="suggest"
              type="button"
              aria-label="Suggest: ${name}"
              @click=${() => this.scene.press(suggest)}
            >
              ${glyph("dice")}
            </button>`
          : nothing
      }
    </div>`;
  }

  protected override updated(): void {
    const area = this.querySelector("textarea");
    if (area) grow(area);
  }

  private readonly tell = (): void => {
    dropDraft(this.tell);
    if (this.typed !== (this.field.value ?? "")) this.scene.press(this.field.id, this.typed);
  };

  private type(event: Event): void {
    const input = event.target as HTMLInputElement | HTMLTextAreaElement;
    const limit = this.field.maxLength ?? 0;
    // Counted in characters, not in halves of them, and never in the middle of composing one.
    if (limit > 0 && !(event as InputEvent).isComposing && input.value.length > limit) {
      const characters = [...input.value];
      if (characters.length > limit) input.value = characters.slice(0, limit).join("");
    }
    this.typed = input.value;
    if (input instanceof HTMLTextAreaElement) grow(input);
    draft(this.tell);
  }

  private finish(event: KeyboardEvent): void {
    if (event.key !== "Enter" || event.isComposing) return;
    tellDrafts();
    (event.target as HTMLElement).blur();
    this.scene.confirm();
  }
}

/** As high as its text; how high at most, the style says. */
function grow(area: HTMLTextAreaElement): void {
  if (growsByItself) return;
  area.style.height = "auto";
  area.style.height = `${area.scrollHeight + area.offsetHeight - area.clientHeight}px`;
}

customElements.define("bb-text-field", TextFieldElement);
