import { html, nothing, type TemplateResult } from "lit";
import { hasPicture, picture } from "../pictures/picture";
import { glyph } from "../pictures/icons";
import type { PictureGrid, Row, Rows } from "../protocol";
import type { Scene } from "../scene";
import { actionMenu, badge, bar, pricePill, toneClass } from "./parts";

const longList = 100;

/** A grouped list; a windowed one has ways to the rows before and after. */
export function rowsBlock(list: Rows, scene: Scene): TemplateResult {
  const { items = [], total = 0, from = 0, columns = [] } = list;
  if (items.length === 0 && total === 0) return html``;
  const pictured = items.some((row) => hasPicture(row.picture));
  const end = from + items.length;
  return html`<div class="list ${columns.length > 0 ? "columned" : ""}">
    ${columns.length > 0 ? html`<p class="list-heads">${columns.map((head) => html`<span>${head}</span>`)}</p>` : nothing}
    ${from > 0 ? turnPage(list, "Earlier", Math.max(0, from - items.length), scene) : nothing}
    <ul class="group ${pictured ? "pictured" : ""} ${items.length > longList ? "long" : ""}">
      ${items.map((row) => html`<li class="row ${toneClass(row.tone)}">${rowLine(row, scene)}</li>`)}
    </ul>
    ${end < total ? turnPage(list, "More", end, scene) : nothing}
    ${
      total > items.length
        ? html`<p class="text caption">${count(from + 1)} to ${count(end)} of ${count(total)}</p>`
        : nothing
    }
  </div>`;
}

const count = (n: number): string => n.toLocaleString("en-US");

function turnPage(list: Rows, label: string, to: number, scene: Scene): TemplateResult {
  const turn = (event: Event): void => {
    const block = (event.currentTarget as HTMLElement).closest(".list");
    scene.press(list.id ?? "", String(to));
    // What comes next is read from its beginning, what came before from its end.
    requestAnimationFrame(() => block?.scrollIntoView({ block: label === "More" ? "start" : "end" }));
  };
  return html`<button class="button secondary page-turn" type="button" @click=${turn}>${label}</button>`;
}

function rowLine(row: Row, scene: Scene): TemplateResult {
  const { id, title } = row;
  return html`
    ${
      id
        ? html`<button class="row-main" type="button" @click=${() => scene.press(id)}>${rowBody(row)}</button>`
        : html`<div class="row-main">${rowBody(row)}</div>`
    }
    ${actionMenu(row.actions, title || "this row", scene)}
  `;
}

function rowBody(row: Row): TemplateResult {
  return html`
    ${picture(row.picture)}
    <span class="row-texts">
      <span class="row-title"><span class="clip" dir="auto">${row.title}</span>${badge(row.badge)}</span>
      ${row.subtitle ? html`<span class="row-subtitle" dir="auto">${row.subtitle}</span>` : nothing}
      ${row.share === undefined ? nothing : bar(row.share)}
    </span>
    ${
      row.value || row.note
        ? html`<span class="row-ends">
            ${row.value ? html`<span class="row-value" dir="auto">${row.value}</span>` : nothing}
            ${row.note ? html`<span class="row-note" dir="auto">${row.note}</span>` : nothing}
          </span>`
        : nothing
    }
    ${pricePill(row.price)}
    ${row.tone === "locked" ? html`<span class="row-mark">${glyph("lock")}<span class="unseen">locked</span></span>` : nothing}
    ${row.selected ? html`<span class="row-mark chosen">${glyph("check")}<span class="unseen">selected</span></span>` : nothing}
    ${row.opens ? html`<span class="chevron" aria-hidden="true"></span>` : nothing}
  `;
}

/** Pictures to choose one from. */
export function picturesBlock({ items = [] }: PictureGrid, scene: Scene): TemplateResult {
  return html`<div class="pictures">
    ${items.map(
      ({ picture: shown, label, selected, id }) =>
        html`<button
          class="picture-choice"
          type="button"
          aria-pressed=${selected ? "true" : "false"}
          aria-label=${label || "Picture"}
          @click=${() => id && scene.press(id)}
        >
          ${picture(shown)} ${label ? html`<span class="picture-label" dir="auto">${label}</span>` : nothing}
          ${selected ? html`<span class="picture-mark">${glyph("check")}</span>` : nothing}
        </button>`,
    )}
  </div>`;
}
