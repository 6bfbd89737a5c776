import { html, nothing, type TemplateResult } from "lit";
import { glyph } from "../pictures/icons";
import { picture } from "../pictures/picture";
import type { EmptyHint, Heading, MeterData, Post, Table, Text } from "../protocol";
import type { Scene } from "../scene";
import { actionMenu, bar, lamps, toneClass } from "./parts";

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

/** One bar from empty to full, or lamps. */
export function meterBlock(meter: MeterData): TemplateResult {
  const { label, value, share, tone, steps } = meter;
  return html`<div class="meter ${toneClass(tone)}">
    <span class="meter-texts"
      ><span dir="auto">${label}</span><span class="meter-value" dir="auto">${value}</span></span
    >
    ${steps ? lamps(meter) : bar(share ?? 0, label || "Level")}
  </div>`;
}

/**
 * A table with column heads; a wide one scrolls sideways by itself. The roles say what it is where large letters make
 * its lines anything but a table's.
 */
export function tableBlock({ columns = [], rows = [] }: Table): TemplateResult {
  return html`<div class="table card" role="region" aria-label=${columns.join(", ") || "Table"} tabindex="0">
    <table role="table">
      <thead role="rowgroup">
        <tr role="row">
          ${columns.map((column) => html`<th role="columnheader" scope="col" dir="auto">${column}</th>`)}
        </tr>
      </thead>
      <tbody role="rowgroup">
        ${rows.map(
          (cells) =>
            html`<tr role="row">
              ${cells.map((cell) => html`<td role="cell" dir="auto">${cell}</td>`)}
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

/** What stands where a list would. */
export function emptyBlock({ icon, text }: EmptyHint): TemplateResult {
  return html`<div class="empty">
    ${icon ? html`<span class="empty-icon">${glyph(icon)}</span>` : nothing}
    <p dir="auto">${text}</p>
  </div>`;
}
