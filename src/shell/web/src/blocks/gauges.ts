import { html, nothing, type TemplateResult } from "lit";
import { glyph, tintOf } from "../pictures/icons";
import type { Gauge, Gauges } from "../protocol";
import type { Scene } from "../scene";
import { bar, figureAndWords, toneClass } from "./parts";

const clamped = (share = 0): number => Math.min(1, Math.max(0, share || 0));

/** Several levels told together. */
export function gaugesBlock({ title, note, items = [], style = "bars" }: Gauges, scene: Scene): TemplateResult {
  // Bars with a title over them are lines of a list; bare ones stand in columns.
  const look = style === "bars" && !title ? "bars columns" : style;
  const draw = { faders: fader, bars: barLine, stacks: stack, split: part }[style];
  return html`<section class="gauges card ${look}">
    ${
      title || note
        ? html`<div class="gauges-head">
            <h3 dir="auto">${style === "stacks" ? figureAndWords(title ?? "") : title}</h3>
            ${note ? html`<span class="gauges-note" dir="auto">${note}</span>` : nothing}
          </div>`
        : nothing
    }
    ${style === "split" ? splitBar(items) : nothing}
    <div class="gauges-items" style="--count:${items.length}">${items.map((item, i) => draw(item, i, scene))}</div>
  </section>`;
}

/** One level, pressable when it leads somewhere. */
function gauge({ id }: Gauge, look: string, style: string, body: TemplateResult, scene: Scene): TemplateResult {
  return id
    ? html`<button class=${look} type="button" style=${style} @click=${() => scene.press(id)}>${body}</button>`
    : html`<div class=${look} style=${style}>${body}</div>`;
}

/** The drawn part of a level, for ears a meter with its name. */
function level(look: string, label: string | undefined, now: number, most: number, inner: unknown): TemplateResult {
  return html`<span
    class=${look}
    role="meter"
    aria-label=${label || "Level"}
    aria-valuemin="0"
    aria-valuemax=${most}
    aria-valuenow=${now}
    >${inner}</span
  >`;
}

function fader(item: Gauge, i: number, scene: Scene): TemplateResult {
  const { label, value, note, tone } = item;
  const share = clamped(item.share);
  const body = html`
    <b class="gauge-value" dir="auto">${value}</b>
    ${level("fader-slot", label, Math.round(share * 100), 100, html`<span class="fader-cap"></span>`)}
    <span class="gauge-label" dir="auto">${label}</span>
    ${note ? headCount(note) : nothing}
  `;
  return gauge(item, `fader ${toneClass(tone)}`, `--share:${share};--i:${i}`, body, scene);
}

/** "3 EMPLOYEE(S)" below a narrow column: the number beside a glyph, the word for ears alone. */
function headCount(note: string): TemplateResult {
  const [count = "", ...words] = note.split(" ");
  if (!/^\d+$/.test(count)) return html`<small class="gauge-note" dir="auto">${note}</small>`;
  return html`<small class="gauge-note" dir="auto"
    >${glyph("people")}${count}<span class="unseen"> ${words.join(" ")}</span></small
  >`;
}

function barLine(item: Gauge, i: number, scene: Scene): TemplateResult {
  const { label, value, share, tone, note } = item;
  const body = html`
    <span class="gauge-label" dir="auto">${label}</span>
    <b class="gauge-value" dir="auto">${value}</b>
    ${bar(clamped(share), label || "Level")}
    ${note ? html`<small class="gauge-note" dir="auto">${note}</small>` : nothing}
  `;
  return gauge(item, `gauge ${toneClass(tone)}`, `--i:${i}`, body, scene);
}

/** A column of lamps over its glyph, lit from below. */
function stack(item: Gauge, i: number, scene: Scene): TemplateResult {
  const { label, steps = 0, icon = "" } = item;
  const lit = Math.round(clamped(item.share) * steps);
  const lamps = Array.from({ length: steps }, (_, k) => steps - 1 - k).map(
    (fromBelow) => html`<i class=${fromBelow < lit ? "lit" : ""} style="--k:${fromBelow}"></i>`,
  );
  const body = html`${level("stack-lamps", label, lit, steps, lamps)}<span class="stack-foot">${glyph(icon)}</span>`;
  return gauge(item, `stack tint-${tintOf(icon)}`, `--i:${i}`, body, scene);
}

const colours = 6;

function splitBar(items: Gauge[]): TemplateResult {
  return html`<span class="split-bar" aria-hidden="true">
    ${items.map(({ share }, i) =>
      clamped(share) > 0 ? html`<i class="part-${i % colours}" style="flex-grow:${clamped(share)}"></i>` : nothing,
    )}
  </span>`;
}

function part({ label, value }: Gauge, i: number): TemplateResult {
  return html`<span class="split-part">
    <i class="part-${i % colours}" aria-hidden="true"></i><span dir="auto">${label}</span>
    ${value ? html`<b dir="auto">${value}</b>` : nothing}
  </span>`;
}
