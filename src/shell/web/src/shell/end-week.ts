import { html, nothing, type TemplateResult } from "lit";
import type { Header } from "../protocol";

/** Half of the energy or more waits to be used: the week can be ended, but nothing urges to. */
const isEarly = ({ energyShare = 0 }: Header): boolean => energyShare >= 0.5;

/** The one way to end the week; in the same colours on every tab, whatever face the tab has. */
export function endWeekButton(header: Header, press: () => void): TemplateResult {
  const early = isEarly(header);
  const left = header.energy?.split("/")[0]?.trim();
  return html`<button class="button end-week ${early ? "early" : ""}" type="button" @click=${press}>
    <span class="button-label">END THE WEEK</span>
    ${early ? html`<span class="end-week-note">${left} energy left</span>` : nothing}
  </button>`;
}
