import { html, nothing, type TemplateResult } from "lit";
import { glyph } from "../pictures/icons";
import type { Fact, MeterData, Price, RowAction, Tone } from "../protocol";
import type { Scene } from "../scene";

type Part = TemplateResult | typeof nothing;

/** The class of a tone; plain has none of its own. */
export function toneClass(tone: Tone | undefined): string {
  return tone && tone !== "plain" ? `tone-${tone}` : "";
}

/** What a press costs, as a pill. */
export function pricePill(price: Price | undefined): Part {
  if (!price || (!price.energy && !price.dollars)) return nothing;
  const spoken = [price.energy ? `${price.energy} energy` : "", price.dollars ?? ""].filter(Boolean).join(" and ");
  return html`<span class="price ${price.affordable ? "" : "dear"}">
    <span class="unseen">costs ${spoken}${price.affordable ? "" : ", more than you have"}</span>
    ${price.energy ? html`<span class="energy-price" aria-hidden="true">${glyph("bolt")}${price.energy}</span>` : nothing}
    ${price.dollars ? html`<span class="dollar-price" aria-hidden="true">${price.dollars}</span>` : nothing}
  </span>`;
}

/** A small label in a capsule. */
export function badge(text: string | undefined): Part {
  return text ? html`<span class="badge" dir="auto">${text}</span>` : nothing;
}

/** A bar filled from the left. */
export function bar(share: number, label?: string): TemplateResult {
  const percent = Math.round(Math.min(1, Math.max(0, share || 0)) * 1000) / 10;
  return html`<span
    class="bar-track"
    role=${label ? "meter" : nothing}
    aria-label=${label || nothing}
    aria-valuemin=${label ? 0 : nothing}
    aria-valuemax=${label ? 100 : nothing}
    aria-valuenow=${label ? percent : nothing}
    ><span class="bar-fill" style="width:${percent}%"></span
  ></span>`;
}

/** The "..." behind which further actions wait. */
export function actionMenu(actions: RowAction[] | undefined, of: string, scene: Scene): Part {
  if (!actions?.length) return nothing;
  const items = actions.map(({ id, label, tone }) => ({ label, tone, press: () => scene.press(id) }));
  return html`<button
    class="more"
    type="button"
    aria-haspopup="dialog"
    aria-label="More for ${of}"
    @click=${() => scene.open({ title: of, items })}
  >
    ${glyph("more")}
  </button>`;
}

/** The tone of a figure out of a hundred: the same four bands wherever something is rated. */
export function bandOf(rating: number): Tone {
  if (rating < 25) return "bad";
  if (rating < 50) return "warning";
  return rating < 80 ? "fair" : "good";
}

/** A figure and the words that belong to it: of "$189 a week" the first is large. */
export function figureAndWords(text: string): TemplateResult {
  const [figure, ...words] = text.split(" ");
  return html`<b dir="auto">${figure}</b
    >${words.length > 0 ? html` <small dir="auto">${words.join(" ")}</small>` : nothing}`;
}

/** As many lamps as a meter has steps; the last one lit may be lit in part. */
export function lamps({ label, share = 0, steps = 0 }: MeterData): TemplateResult {
  const lit = Math.min(1, Math.max(0, share || 0)) * steps;
  const step = (i: number): TemplateResult =>
    html`<i
      style="--fill:${Math.round(Math.min(1, Math.max(0, lit - i)) * 100)}%;--at:${i / Math.max(1, steps - 1)}"
    ></i>`;
  return html`<span
    class="lamps ${steps > 20 ? "many" : ""}"
    role="meter"
    aria-label=${label || "Level"}
    aria-valuemin="0"
    aria-valuemax=${steps}
    aria-valuenow=${Math.round(lit)}
    style="--steps:${steps}"
    >${Array.from({ length: steps }, (_, i) => step(i))}</span
  >`;
}

/** Small facts as pairs of what they are and what they say. */
export function factList(facts: Fact[] | undefined, look: string): Part {
  if (!facts?.length) return nothing;
  return html`<dl class=${look}>
    ${facts.map(
      ({ icon, label, value, tone }) =>
        html`<div class=${toneClass(tone)}>
          <dt dir="auto">${icon ? glyph(icon) : nothing}${label}</dt>
          <dd dir="auto">${value}</dd>
        </div>`,
    )}
  </dl>`;
}

/** Brings what the keys have reached in a strip wholly into sight; what a finger presses stays where it is. */
export function reveal(event: FocusEvent): void {
  const reached = event.target as HTMLElement;
  if (reached.matches(":focus-visible")) reached.scrollIntoView({ block: "nearest", inline: "nearest" });
}
