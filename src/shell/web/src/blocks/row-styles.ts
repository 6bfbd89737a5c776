import { html, nothing, type TemplateResult } from "lit";
import { glyph, isIcon, tintOf } from "../pictures/icons";
import { picture } from "../pictures/picture";
import type { Row } from "../protocol";
import type { Scene } from "../scene";
import { actionMenu, badge, bar, pricePill, toneClass } from "./parts";

/** What the row holds, pressable when it leads somewhere. */
function wrapped(row: Row, look: string, body: TemplateResult, scene: Scene): TemplateResult {
  const { id } = row;
  return id
    ? html`<button class=${look} type="button" @click=${() => scene.press(id)}>${body}</button>`
    : html`<div class=${look}>${body}</div>`;
}

const text = (look: string, said: string | undefined): TemplateResult | typeof nothing =>
  said ? html`<span class=${look} dir="auto">${said}</span>` : nothing;

function foot({ value, note, price }: Row): TemplateResult | typeof nothing {
  if (!value && !note && !price) return nothing;
  return html`<span class="goods-foot"
    ><b dir="auto">${value}</b>${note ? html`<small dir="auto">${note}</small>` : nothing}${pricePill(price)}</span
  >`;
}

/** One of two side by side, its picture on top. A warning says by a round mark that there is something to do. */
export function shelfItem(row: Row, scene: Scene): TemplateResult {
  const body = html`
    ${picture(row.picture)} ${badge(row.badge)}
    ${row.tone === "warning" ? html`<span class="goods-mark">${glyph("restart")}</span>` : nothing}
    <span class="goods-texts">
      ${text("goods-name", row.title)} ${text("goods-about", row.subtitle)}
      ${row.share === undefined ? nothing : bar(row.share)} ${foot(row)}
    </span>
  `;
  return html`<li class="goods card ${toneClass(row.tone)}">
    ${wrapped(row, "goods-body", body, scene)} ${actionMenu(row.actions, row.title || "this", scene)}
  </li>`;
}

/** One of a strip: somebody with a rating in the corner, a thing with a glyph, or a picture over its texts. */
export function stripItem(row: Row, scene: Scene): TemplateResult {
  const kind = row.picture?.kind ?? "none";
  const person = kind === "person" || kind === "photo";
  const body = html`
    ${picture(row.picture)}
    ${person && row.value ? html`<span class="corner-rating ${toneClass(row.tone)}" dir="auto">${row.value}</span>` : nothing}
    <span class="goods-texts">
      ${kind === "icon" ? text("goods-kicker", row.subtitle) : nothing} ${text("goods-name", row.title)}
      ${kind === "icon" ? text("goods-about", row.note) : text("goods-about", row.subtitle)}
      ${person || kind === "icon" ? nothing : foot(row)}
    </span>
  `;
  return html`<li class="goods card">${wrapped(row, "goods-body", body, scene)}</li>`;
}

/** A stop of a route: the first line of its subtitle, when it has two, is the day and stands over the name. */
export function stop(row: Row, scene: Scene): TemplateResult {
  const [day, ...place] = (row.subtitle ?? "").split("\n");
  const dated = place.length > 0;
  const state = row.selected ? "now" : row.tone === "good" ? "done" : "ahead";
  const body = html`
    <span class="stop-dot" aria-hidden="true">${state === "done" ? glyph("check") : nothing}</span>
    <span class="row-texts">
      ${dated ? text("stop-day", day) : nothing} ${text("row-title", row.title)}
      ${text("row-subtitle", dated ? place.join("\n") : day)}
    </span>
    <span class="row-ends">
      ${text("row-value", row.value)} ${row.badge ? text("stamp", row.badge) : text("row-note", row.note)}
    </span>
  `;
  return html`<li class="stop ${state}" aria-current=${state === "now" ? "step" : nothing}>
    ${wrapped(row, "row-main", body, scene)}
  </li>`;
}

/** A film: its length on the still. One with a badge is the one to show, over the whole width. */
export function film(row: Row, scene: Scene): TemplateResult {
  const body = html`
    <span class="film-still">
      ${picture(row.picture)} ${text("film-length", row.value)}
      ${row.badge ? html`<span class="film-badge" dir="auto">${glyph("flame")}${row.badge}</span>` : nothing}
    </span>
    <span class="film-texts">
      ${text("film-title", row.title)} ${text("film-about", row.subtitle)} ${text("film-about", row.note)}
    </span>
  `;
  return html`<li class="film ${row.badge ? "featured" : ""}">
    ${wrapped(row, "film-body", body, scene)} ${actionMenu(row.actions, row.title || "this film", scene)}
  </li>`;
}

/** A line of news: a free glyph, who it is about, and what there is to say. */
export function wireLine(row: Row, scene: Scene): TemplateResult {
  const name = row.picture?.name ?? "";
  const body = html`
    <span class="wire-glyph ${toneClass(row.tone) || `tint-${tintOf(name)}`}"
      >${isIcon(name) ? glyph(name) : nothing}</span
    >
    <span dir="auto"><b>${row.title}</b> ${row.subtitle}</span>
  `;
  return html`<li class="wire-line">${wrapped(row, "wire-body", body, scene)}</li>`;
}
