import { html, nothing, type TemplateResult } from "lit";
import { live } from "lit/directives/live.js";
import { glyph } from "../pictures/icons";
import type { ButtonData, Choice, PhotoField, TextField, Toggle } from "../protocol";
import type { Scene } from "../scene";
import { pictureStrip, planCards } from "./choices";
import { pricePill, toneClass } from "./parts";
import "./photo-field";
import "./text-field";

/** A button with its price. One that is too dear or locked looks so and still answers. */
export function buttonBlock(button: ButtonData, scene: Scene): TemplateResult {
  const { id, label, price, style = "secondary", tone, pulse } = button;
  const dear = price !== undefined && !price.affordable && (price.energy || price.dollars);
  return html`<button
    class="button ${style} ${toneClass(tone)} ${dear ? "dear" : ""} ${pulse ? "pulse" : ""}"
    type="button"
    @click=${() => scene.press(id)}
  >
    ${tone === "locked" ? glyph("lock") : nothing}<span class="button-label" dir="auto">${label}</span
    >${tone === "locked" ? html`<span class="unseen"> locked</span>` : nothing}${pricePill(price)}
  </button>`;
}

/** A text to type. */
export function fieldBlock(field: TextField, scene: Scene): TemplateResult {
  return html`<bb-text-field .field=${field} .scene=${scene}></bb-text-field>`;
}

/** A picture to give. */
export function photoBlock(field: PhotoField, scene: Scene): TemplateResult {
  return html`<bb-photo-field .field=${field} .scene=${scene}></bb-photo-field>`;
}

/** On or off. */
export function toggleBlock({ id, label, on, note }: Toggle, scene: Scene): TemplateResult {
  const flip = (event: Event): void => scene.press(id, (event.target as HTMLInputElement).checked ? "1" : "0");
  return html`<label class="line toggle">
    <span class="line-texts">
      <span class="line-label" dir="auto">${label}</span>
      ${note ? html`<span class="line-note" dir="auto">${note}</span>` : nothing}
    </span>
    <input type="checkbox" role="switch" .checked=${live(on ?? false)} @change=${flip} />
  </label>`;
}

/** One of several: segments side by side, plans, a strip of pictures, or a line that opens the list of options. */
export function choiceBlock(choice: Choice, scene: Scene): TemplateResult {
  switch (choice.style) {
    case "segments":
      return segments(choice, scene);
    case "cards":
      return planCards(choice, scene);
    case "pictures":
      return pictureStrip(choice, scene);
    default:
      return optionLine(choice, scene);
  }
}

function segments({ id, label, options = [], selected = 0 }: Choice, scene: Scene): TemplateResult {
  const note = options[selected]?.note;
  return html`<fieldset class="segments">
    ${label ? html`<legend dir="auto">${label}</legend>` : html`<legend class="unseen">Choose one</legend>`}
    <div class="segment-track">
      ${options.map(
        (option, i) =>
          html`<label class="segment ${toneClass(option.tone)}">
            <input
              type="radio"
              name="${scene.key} ${id}"
              .checked=${live(i === selected)}
              @change=${() => scene.press(id, String(i))}
            />
            <span dir="auto">${option.label}</span>
          </label>`,
      )}
    </div>
    ${note ? html`<p class="text caption" dir="auto">${note}</p>` : nothing}
  </fieldset>`;
}

function optionLine({ id, label, options = [], selected = 0 }: Choice, scene: Scene): TemplateResult {
  const open = (): void =>
    scene.open({
      title: label || "Choose one",
      items: options.map((option, i) => ({
        ...option,
        selected: i === selected,
        press: () => scene.press(id, String(i)),
      })),
    });
  const chosen = options[selected];
  const about = [chosen?.note, chosen?.price?.dollars].filter(Boolean).join(" · ");
  return html`<button class="line" type="button" aria-haspopup="dialog" @click=${open}>
    ${label ? html`<span class="line-label" dir="auto">${label}</span>` : nothing}
    <span class="line-value ${toneClass(chosen?.tone)}">
      <span dir="auto">${chosen?.label ?? "Choose"}</span>
      ${about ? html`<span class="line-note" dir="auto">${about}</span>` : nothing}
    </span>
    <span class="updown" aria-hidden="true"></span>
  </button>`;
}
