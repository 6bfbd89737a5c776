import { html, nothing, type TemplateResult } from "lit";
import { hasPicture, picture } from "../pictures/picture";
import type { Picture, Poster } from "../protocol";
import "./confetti";
import "./stamp";
import { bar, factList, lamps, toneClass } from "./parts";

/** A head led by its picture. */
export function posterBlock(poster: Poster): TemplateResult {
  if (poster.style === "ticket") return ticket(poster);
  return poster.style === "torn" ? torn(poster) : scene(poster);
}

type Layout = "couple" | "staged" | "alone" | "place" | "thing" | "words";

const isPlace = ({ kind }: Picture): boolean => kind === "scene" || kind === "still";

function layoutOf(back: Picture | undefined, front: Picture[], { mood }: Poster): Layout {
  const people = front.filter(({ kind }) => kind === "person").length;
  if (people === 2) return "couple";
  if (people === 1) return back ? "staged" : "alone";
  if (back) return front.length > 0 ? "staged" : "place";
  return mood === "celebrate" ? "thing" : "words";
}

function scene(poster: Poster): TemplateResult {
  const { pictures = [], mood = "plain", title = "", figure, facts, meter } = poster;
  const shown = pictures.filter(hasPicture);
  const place = shown.find(isPlace);
  const front = shown.filter((one) => one !== place);
  const layout = layoutOf(place, front, poster);
  const beside = layout === "place";
  // Two people of whom no place is told stand where their names lead them.
  const back =
    layout === "couple" ? { kind: "scene" as const, name: `sunset:${front.map(({ name }) => name)}` } : place;
  return html`<section class="poster ${layout} ${mood === "plain" ? "" : mood}">
    <div class="poster-view">
      ${picture(back)} ${mood === "celebrate" ? html`<bb-confetti .seed=${title}></bb-confetti>` : nothing}
      ${beside ? nothing : bigFigure(figure)}
      ${front.map((one) => html`<span class="poster-front">${picture(one)}</span>`)}
    </div>
    ${texts(poster, beside ? bigFigure(figure) : nothing)}
    ${
      meter
        ? html`<div class="poster-meter ${toneClass(meter.tone)}">
            ${
              meter.label || meter.value
                ? html`<span class="meter-texts"
                    ><span dir="auto">${meter.label}</span><b dir="auto">${meter.value}</b></span
                  >`
                : nothing
            }
            ${meter.steps ? lamps({ ...meter, label: meter.label || poster.kicker || title }) : bar(meter.share ?? 0, meter.label || title || "Level")}
          </div>`
        : nothing
    }
    ${factList(facts, facts?.some(({ icon }) => icon) ? "particulars card" : "poster-facts")}
  </section>`;
}

function texts({ kicker, title, text, stamp }: Poster, beside: unknown): TemplateResult | typeof nothing {
  if (!kicker && !title && !text && !stamp && beside === nothing) return nothing;
  return html`<div class="poster-texts">
    ${kicker ? html`<p class="kicker" dir="auto">${kicker}</p>` : nothing}
    ${title ? html`<h2 dir="auto">${title}</h2>` : nothing}
    ${text ? html`<p class="poster-text" dir="auto">${text}</p>` : nothing} ${beside}
    ${stamp ? html`<bb-stamp .text=${stamp}></bb-stamp>` : nothing}
  </div>`;
}

function bigFigure(figure: string | undefined): TemplateResult | typeof nothing {
  return figure ? html`<p class="poster-figure" style="--letters:${figure.length}" dir="auto">${figure}</p>` : nothing;
}

/** For what was sold: a ticket whose end has a bar code. */
function ticket({ kicker, title, text, figure, stamp }: Poster): TemplateResult {
  return html`<section class="poster ticket">
    <div class="ticket-main">
      ${kicker ? html`<p class="ticket-kicker" dir="auto">${kicker}</p>` : nothing}
      <h2 dir="auto">${title}</h2>
      ${text ? html`<p class="ticket-text" dir="auto">${text}</p>` : nothing} ${bigFigure(figure)}
      ${stamp ? html`<bb-stamp .text=${stamp}></bb-stamp>` : nothing}
    </div>
    <div class="ticket-end" aria-hidden="true"></div>
  </section>`;
}

/** What is over: the picture parts in two, each half with one of those who were on it. */
function torn({ pictures = [], kicker, title, text, mood = "plain" }: Poster): TemplateResult {
  const [left, right = left] = pictures;
  return html`<section class="poster torn ${mood === "plain" ? "" : mood}">
    <div class="torn-picture">
      ${[left, right].map((half, i) => html`<span class="torn-half ${i ? "right" : "left"}">${picture(half)}</span>`)}
    </div>
    ${kicker ? html`<p class="kicker" dir="auto">${kicker}</p>` : nothing}
    <h2 dir="auto">${title}</h2>
    ${text ? html`<p class="torn-text" dir="auto">${text}</p>` : nothing}
  </section>`;
}
