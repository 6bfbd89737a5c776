import { html, nothing, type TemplateResult } from "lit";
import { glyph, tintOf } from "../pictures/icons";
import { picture } from "../pictures/picture";
import type { Tile, Tiles } from "../protocol";
import type { Scene } from "../scene";
import { toneClass } from "./parts";

/** Figures side by side: on small cards, bare in a line, or as actions once one of them has a price. */
export function tilesBlock({ items = [] }: Tiles, scene: Scene): TemplateResult {
  if (items.some(({ price }) => price)) return actions(items, scene);
  if (items.every(({ icon, note, id }) => !icon && !note && !id)) return bare(items);
  const columns = items.length % 3 === 0 ? 3 : Math.min(items.length, 2);
  return html`<div class="tiles" style="--columns:${columns};--need:${needOf(items)}">
    ${items.map((item) => tile(item, scene))}
  </div>`;
}

const longestWord = (text: string): number => Math.max(...text.split(/[\s-]/).map((word) => word.length));

/** How wide each tile has to be for the longest figure and the longest word to stay whole, in rem. */
function needOf(items: Tile[]): number {
  const needs = items.map(({ label = "", value = "", note = "" }) =>
    Math.max(value.length * 0.47, longestWord(label) * 0.43, longestWord(note) * 0.47),
  );
  return Math.max(...needs);
}

function tile({ icon, label, value, note, tone, id }: Tile, scene: Scene): TemplateResult {
  const body = html`
    ${icon ? html`<span class="tile-icon tint-${tintOf(icon)}">${glyph(icon)}</span>` : nothing}
    <span class="tile-label" dir="auto">${label}</span>
    <span class="tile-value" dir="auto" style="--letters:${value?.length ?? 1}">${value}</span>
    ${note ? html`<span class="tile-note" dir="auto">${note}</span>` : nothing}
  `;
  const look = `tile card ${toneClass(tone)}`;
  return id
    ? html`<button class=${look} type="button" @click=${() => scene.press(id)}>${body}</button>`
    : html`<div class=${look}>${body}</div>`;
}

/** Here the figure comes first, so that a colon after the words would lead to nothing. */
function bare(items: Tile[]): TemplateResult {
  return html`<div class="bare-tiles">
    ${items.map(
      ({ label, value, tone }) =>
        html`<span class=${toneClass(tone)}
          ><b dir="auto">${value}</b><small dir="auto">${label?.replace(/:\s*$/, "")}</small></span
        >`,
    )}
  </div>`;
}

function actions(items: Tile[], scene: Scene): TemplateResult {
  const columns = items.length === 4 ? 4 : 3;
  return html`<div class="tiles actions" style="--columns:${columns}">
    ${items.map((item) => actionTile(item, scene))}
  </div>`;
}

/** What it costs stands under its name; one that cannot be pressed now says in its note why. */
function actionTile({ icon = "", label, note, price, tone, id }: Tile, scene: Scene): TemplateResult {
  const { energy, dollars, affordable } = price ?? {};
  const dear = (energy || dollars) && !affordable;
  const spoken = [energy ? `${energy} energy` : "", dollars ?? ""].filter(Boolean).join(" and ");
  const body = html`
    ${picture({ kind: "icon", name: icon })}
    <span class="action-label" dir="auto">${label}</span>
    <span class="action-cost ${dear ? "dear" : ""}">
      ${spoken ? html`<span class="unseen">costs ${spoken}${dear ? ", more than you have" : ""}</span>` : nothing}
      ${energy ? html`<span class="energy-price" aria-hidden="true">${glyph("bolt")}${energy}</span>` : nothing}
      ${dollars ? html`<span class="dollar-price" aria-hidden="true">${dollars}</span>` : nothing}
      ${note ? html`<span class="action-note" dir="auto">${note}</span>` : nothing}
    </span>
  `;
  const look = `action-tile card ${toneClass(tone)}`;
  return id
    ? html`<button class=${look} type="button" @click=${() => scene.press(id)}>${body}</button>`
    : html`<div class="${look} off">${body}</div>`;
}
