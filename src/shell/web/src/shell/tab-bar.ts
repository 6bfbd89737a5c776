import { html, nothing, type TemplateResult } from "lit";
import { glyph } from "../pictures/icons";
import type { Tab } from "../protocol";

/** What fits over a glyph: a word is told to ears alone. */
const mark = (badge: string): TemplateResult => html`<span aria-hidden="true">${badge.length > 3 ? "!" : badge}</span>`;

/** The floating bar with the tabs. */
export function tabBar(tabs: Tab[], shown: number, covered: boolean, press: (tab: number) => void): TemplateResult {
  return html`<nav class="tab-bar" aria-label="Tabs" ?inert=${covered} style="--tabs:${tabs.length}">
    <span class="tab-highlight" style="--tab:${shown}"></span>
    ${tabs.map(
      ({ label, icon, badge }, i) =>
        html`<button class="tab" type="button" aria-current=${i === shown ? "page" : nothing} @click=${() => press(i)}>
          <span class="tab-icon"
            >${glyph(icon ?? "")}${
              badge
                ? html`<span class="tab-badge"><span class="unseen">new: ${badge}</span>${mark(badge)}</span>`
                : nothing
            }</span
          >
          <span class="tab-label">${label}</span>
        </button>`,
    )}
  </nav>`;
}
