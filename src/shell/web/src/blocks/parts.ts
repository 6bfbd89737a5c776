import { html, nothing, type TemplateResult } from "lit";
import { glyph } from "../pictures/icons";
import type { Price, RowAction, Tone } from "../protocol";
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
