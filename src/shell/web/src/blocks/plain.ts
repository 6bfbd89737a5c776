import { html, nothing, type TemplateResult } from "lit";
import "../hooks/button";
import { glyph, tintOf } from "../pictures/icons";
import { picture } from "../pictures/picture";
import type { Card, Cover, EmptyHint, Heading, Meter, Post, Table, Text, Tile, Tiles } from "../protocol";
import type { Scene } from "../scene";
import { hooksOn } from "../preferences";
import { actionMenu, badge, bar, toneClass } from "./parts";
import { buttonBlock } from "./controls";

/** A section title, with a link behind it when there is more to see. */
export function headingBlock({ text, link }: Heading, scene: Scene): TemplateResult {
  return html`<div class="heading">
    <h2 dir="auto">${text}</h2>
    ${
      link
        ? html`<button class="link" type="button" @click=${() => scene.press(link.id)}>${link.label}</button>`
        : nothing
    }
  </div>`;
}

/** A paragraph. */
export function textBlock({ text, tone, style }: Text): TemplateResult {
  return html`<p class="text ${style ?? "body"} ${toneClass(tone)}" dir="auto">${text}</p>`;
}

/** Figures on small cards, side by side. */
export function tilesBlock({ items = [] }: Tiles, scene: Scene): TemplateResult {
  const columns = items.length % 3 === 0 ? 3 : Math.min(items.length, 2);
  return html`<div class="tiles" style="--columns:${columns}">${items.map((item) => tile(item, scene))}</div>`;
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

/** One bar from empty to full. */
export function meterBlock({ label, value, share, tone }: Meter): TemplateResult {
  return html`<div class="meter ${toneClass(tone)}">
    <span class="meter-texts"
      ><span dir="auto">${label}</span><span class="meter-value" dir="auto">${value}</span></span
    >
    ${bar(share ?? 0, label || "Level")}
  </div>`;
}

/** A table with column heads; a wide one scrolls sideways by itself. */
export function tableBlock({ columns = [], rows = [] }: Table): TemplateResult {
  return html`<div class="table card" role="region" aria-label=${columns.join(", ") || "Table"} tabindex="0">
    <table>
      <thead>
        <tr>
          ${columns.map((column) => html`<th scope="col" dir="auto">${column}</th>`)}
        </tr>
      </thead>
      <tbody>
        ${rows.map(
          (cells) =>
            html`<tr>
              ${cells.map((cell) => html`<td dir="auto">${cell}</td>`)}
            </tr>`,
        )}
      </tbody>
    </table>
  </div>`;
}

/** One message of the social feed. */
export function postBlock(post: Post, scene: Scene): TemplateResult {
  const counts = [
    ["comment", "comments", post.comments],
    ["reChirp", "reChirps", post.reChirps],
    ["like", "likes", post.likes],
  ] as const;
  return html`<article class="post card">
    <header>
      ${picture(post.picture)}
      <span class="post-names">
        <span class="post-name" dir="auto">${post.name}</span>
        <span class="post-handle" dir="auto">${[post.handle, post.age].filter(Boolean).join(" · ")}</span>
      </span>
      ${post.pinned ? html`<span class="pinned">${glyph("pin")}${post.pinned.trim()}</span>` : nothing}
      ${actionMenu(post.actions, `the post of ${post.name ?? ""}`, scene)}
    </header>
    <p dir="auto">${post.message}</p>
    ${
      counts.some(([, , count]) => count)
        ? html`<footer>
            ${counts.map(([icon, what, count]) =>
              count ? html`<span>${glyph(icon)}${count}<span class="unseen">${what}</span></span>` : nothing,
            )}
          </footer>`
        : nothing
    }
  </article>`;
}

/** A card that asks for attention. */
export function cardBlock(card: Card, scene: Scene): TemplateResult {
  return html`<section class="event card ${toneClass(card.tone)}">
    <div class="event-head">
      ${picture(card.picture)}
      <div class="event-texts">
        ${card.title || card.badge ? html`<h3 dir="auto">${card.title} ${badge(card.badge)}</h3>` : nothing}
        ${card.text ? html`<p dir="auto">${card.text}</p>` : nothing}
      </div>
    </div>
    ${
      card.buttons?.length
        ? html`<div class="event-buttons">${card.buttons.map((button) => buttonBlock(button, scene))}</div>`
        : nothing
    }
  </section>`;
}

/** The head of a detail screen. */
export function coverBlock(head: Cover): TemplateResult {
  return html`<section class="head card">
    <div class="head-picture">
      ${picture(head.picture)} ${head.hook && hooksOn() ? html`<bb-hook .hook=${head.hook}></bb-hook>` : nothing}
    </div>
    <div class="head-texts">
      <h2 dir="auto">${head.title}</h2>
      ${head.text ? html`<p dir="auto">${head.text}</p>` : nothing} ${badge(head.badge)}
    </div>
  </section>`;
}

/** What stands where a list would. */
export function emptyBlock({ icon, text }: EmptyHint): TemplateResult {
  return html`<div class="empty">
    ${icon ? html`<span class="empty-icon">${glyph(icon)}</span>` : nothing}
    <p dir="auto">${text}</p>
  </div>`;
}
