import { html, nothing, type TemplateResult } from "lit";

const width = 56;
const height = 24;
const edge = 3;

/** A small line without numbers: the figure beside it tells them. */
export function spark(points: number[] | undefined): TemplateResult | typeof nothing {
  const known = (points ?? []).filter(Number.isFinite);
  if (known.length < 2) return nothing;
  const low = Math.min(...known);
  const span = Math.max(...known) - low;
  const x = (i: number): number => edge + (i / (known.length - 1)) * (width - 2 * edge);
  const y = (value: number): number =>
    span > 0 ? height - edge - ((value - low) / span) * (height - 2 * edge) : height / 2;
  const path = known.map((value, i) => `${i ? "L" : "M"}${x(i).toFixed(1)} ${y(value).toFixed(1)}`).join("");
  return html`<svg class="spark" viewBox="0 0 ${width} ${height}" aria-hidden="true"><path d=${path} /></svg>`;
}
