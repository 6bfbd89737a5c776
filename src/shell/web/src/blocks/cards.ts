import { html, nothing, type TemplateResult } from "lit";
import "../hooks/button";
import { hasPicture, picture } from "../pictures/picture";
import { soundOn, soundOpen } from "../preferences";
import type { Card, Cover } from "../protocol";
import type { Scene } from "../scene";
import { buttonBlock } from "./controls";
import { badge, bandOf, figureAndWords, toneClass } from "./parts";
import { meterBlock } from "./plain";

/** A card that asks for attention. */
export function cardBlock(card: Card, scene: Scene): TemplateResult {
  const { title, text, value, meters = [], buttons = [], note } = card;
  // At a gala the badge says what the award is for.
  const atGala = scene.theme === "gala";
  return html`<section
    class="event card ${toneClass(card.tone)} ${value ? "rated" : ""} ${card.picture ? "pictured" : ""}"
  >
    ${atGala && card.badge ? html`<p class="award-field" dir="auto">${card.badge}</p>` : nothing}
    <div class="event-head">
      ${picture(card.picture)}
      <div class="event-texts">
        ${title || (card.badge && !atGala) ? html`<h3 dir="auto">${title} ${atGala ? nothing : badge(card.badge)}</h3>` : nothing}
        ${text ? html`<p dir="auto">${text}</p>` : nothing}
      </div>
      ${value ? html`<span class="event-value">${figureAndWords(value)}</span>` : nothing}
    </div>
    ${meters.length > 0 ? html`<div class="event-meters">${meters.map(meterBlock)}</div>` : nothing}
    ${
      buttons.length > 0 || note
        ? html`<div class="event-buttons ${note ? "noted" : ""}">
            ${note ? html`<p class="event-note" dir="auto">${change(note)}</p>` : nothing}
            ${buttons.map((button) => buttonBlock(button, scene))}
          </div>`
        : nothing
    }
  </section>`;
}

/** A note with a change in it, as in "Sales 63 → 54": the figures say by their colour which way it goes. */
function change(note: string): string | TemplateResult {
  const found = /(-?[\d.,]+) → (-?[\d.,]+)/.exec(note);
  if (!found) return note;
  const [figures, from, to] = found;
  const [less, more] = [from, to].map((figure) => Number(figure!.replaceAll(",", ""))) as [number, number];
  const tone = toneClass(more > less + 1 ? "good" : more < less ? "bad" : "plain");
  const end = found.index + figures.length;
  return html`${note.slice(0, found.index)}<b class=${tone}>${figures}</b>${note.slice(end)}`;
}

/** The head of a detail screen. A badge that is a rating out of a hundred stands in a ring. */
export function coverBlock(head: Cover): TemplateResult {
  const rating = /^\d{1,2}(\.\d)?$|^100$/.test(head.badge ?? "") ? Number(head.badge) : null;
  return html`<section class="head card kind-${head.picture?.kind ?? "none"} ${hasPicture(head.back) ? "backed" : ""}">
    ${hasPicture(head.back) ? html`<div class="head-back">${picture(head.back)}</div>` : nothing}
    <div class="head-picture">
      ${picture(head.picture)}
      ${head.hook && (soundOn() || soundOpen()) ? html`<bb-hook .hook=${head.hook}></bb-hook>` : nothing}
    </div>
    <div class="head-texts">
      <h2 dir="auto">${head.title}</h2>
      ${head.text ? html`<p dir="auto">${head.text}</p>` : nothing} ${rating === null ? badge(head.badge) : nothing}
    </div>
    ${rating === null ? nothing : ring(rating)}
  </section>`;
}

function ring(rating: number): TemplateResult {
  return html`<span
    class="ring ${toneClass(bandOf(rating))}"
    role="meter"
    aria-label="Rating"
    aria-valuemin="0"
    aria-valuemax="100"
    aria-valuenow=${rating}
  >
    <svg viewBox="0 0 100 100" aria-hidden="true">
      <circle class="ring-track" cx="50" cy="50" r="42" />
      <circle class="ring-fill" cx="50" cy="50" r="42" pathLength="100" stroke-dasharray="${rating} 100" />
    </svg>
    <b>${rating}</b>
  </span>`;
}
