import { html, nothing, type TemplateResult } from "lit";
import { glyph } from "../pictures/icons";
import { picture } from "../pictures/picture";
import type { Choice, Option } from "../protocol";
import type { Scene } from "../scene";
import { factList, figureAndWords, pricePill, reveal, toneClass } from "./parts";

/** Plans, one below the other; the chosen one is framed and has nothing to press. */
export function planCards({ id, label, options = [], selected = 0 }: Choice, scene: Scene): TemplateResult {
  return html`<div class="plans" role="group" aria-label=${label || "Plans"}>
    ${options.map((option, i) => plan(option, i === selected, () => scene.press(id, String(i))))}
  </div>`;
}

function plan(
  { label, note, tone, price, value, facts, action = "" }: Option,
  chosen: boolean,
  press: () => void,
): TemplateResult {
  return html`<section class="plan card ${chosen ? "chosen" : ""} ${toneClass(tone)}">
    <h3 dir="auto">${label}</h3>
    ${value ? html`<p class="plan-value">${figureAndWords(value)}</p>` : nothing}
    ${note ? html`<p class="plan-note" dir="auto">${note}</p>` : nothing} ${factList(facts, "plan-facts")}
    ${
      chosen
        ? html`<p class="plan-current">${glyph("check")}${action}</p>`
        : html`<button class="button secondary" type="button" @click=${press}>
            <span class="button-label">${action}<span class="unseen">: ${label}</span></span
            >${pricePill(price)}
          </button>`
    }
  </section>`;
}

/** A strip of pictures to choose one from. */
export function pictureStrip({ id, label, options = [], selected = 0 }: Choice, scene: Scene): TemplateResult {
  const wide = options.some((option) => option.picture?.kind === "still" || option.picture?.kind === "scene");
  return html`<div
    class="strip choices ${wide ? "wide" : ""}"
    role="group"
    aria-label=${label || "Choose one"}
    @focusin=${reveal}
  >
    ${options.map(
      (option, i) =>
        html`<button
          class="strip-choice ${toneClass(option.tone)}"
          type="button"
          aria-pressed=${i === selected ? "true" : "false"}
          @click=${() => scene.press(id, String(i))}
        >
          ${picture(option.picture)}
          <span class="strip-label" dir="auto">${option.label}</span>
          ${option.note ? html`<span class="strip-note" dir="auto">${option.note}</span>` : nothing}
          ${pricePill(option.price)}
          ${i === selected && !wide ? html`<span class="picture-mark">${glyph("check")}</span>` : nothing}
        </button>`,
    )}
  </div>`;
}
