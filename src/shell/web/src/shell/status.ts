import { html, type TemplateResult } from "lit";
import { bar, toneClass } from "../blocks/parts";
import { glyph } from "../pictures/icons";
import type { Header } from "../protocol";

/** Cash, energy of its ceiling, and the date: on top of every screen that is not modal. */
export function statusRow(header: Header): TemplateResult {
  const { cash = "", cashTone, energy = "", energyShare, date = "" } = header;
  // The letters shrink a little before the row breaks in two.
  const letters = cash.length + energy.length + date.length;
  return html`<div class="status" style="--letters:${letters}">
    <span class="cash ${toneClass(cashTone)}"><span class="unseen">Cash</span>${cash}</span>
    <span class="energy">
      ${glyph("bolt")}<span class="unseen">Energy</span>
      <span class="energy-meter" aria-hidden="true">${bar(energyShare ?? 0)}</span>
      <span class="energy-text">${energy}</span>
    </span>
    <span class="date">${date}</span>
  </div>`;
}

/** The energy pill says no: the week's energy does not reach. */
export function shakeEnergy(screen: Element | null, still: boolean): void {
  const pill = screen?.querySelector(".energy");
  if (!pill) return;
  const shift = [0, -7, 7, -6, 6, -3, 3, 0].map((x) => ({ transform: `translateX(${x}px)` }));
  const flash = [{ filter: "brightness(1.8)" }, { filter: "none" }];
  pill.animate(still ? flash : shift, { duration: 420, easing: "ease-out" });
}
