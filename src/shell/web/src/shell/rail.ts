import { html, nothing, type TemplateResult } from "lit";
import { bar, toneClass } from "../blocks/parts";
import { glyph } from "../pictures/icons";
import { picture } from "../pictures/picture";
import type { Header, Tab, View } from "../protocol";
import { endWeekButton } from "./end-week";

interface Rail {
  header: Header;
  tabs: Tab[];
  tab: number;
  /** What home says of the artist; null before it was seen. */
  home: View | null;
  /** A screen lies over everything. */
  covered: boolean;
  press: (tab: number) => void;
  endWeek: () => void;
  help: () => void;
}

/** Beside the screens: who plays, the tabs with their keys, the week, and its end. */
export function rail({ header, tabs, tab, home, covered, press, endWeek, help }: Rail): TemplateResult {
  return html`<div class="side-rail" ?inert=${covered}>
    <p class="rail-name">Backbeat</p>
    ${
      home
        ? html`<div class="rail-artist">
            ${picture(home.picture)}
            <span class="rail-texts">
              <b dir="auto">${home.title}</b><span dir="auto">${listeners(home) ?? home.subtitle}</span>
            </span>
          </div>`
        : nothing
    }
    <nav class="rail-tabs" aria-label="Tabs">
      ${tabs.map(
        ({ label, icon, badge }, i) =>
          html`<button
            class="rail-tab"
            type="button"
            aria-current=${i === tab ? "page" : nothing}
            @click=${() => press(i)}
          >
            ${glyph(icon ?? "")}<span class="rail-label">${label}</span>${
              badge
                ? html`<span class="tab-badge"><span class="unseen">new: </span>${badge}</span>`
                : html`<kbd aria-hidden="true">${i + 1}</kbd>`
            }
          </button>`,
      )}
    </nav>
    <button class="rail-keys" type="button" aria-haspopup="dialog" @click=${help}>
      <kbd aria-hidden="true">?</kbd>Keys
    </button>
    <div class="rail-foot">${week(header)} ${endWeekButton(header, endWeek)}</div>
  </div>`;
}

function week({ date, cash = "", cashTone, energy, energyShare = 0 }: Header): TemplateResult {
  return html`<div class="rail-week">
    <span class="rail-date">${date}</span>
    <span class="rail-cash ${toneClass(cashTone)}" style="--letters:${cash.length}"
      ><span class="unseen">Cash</span>${cash}</span
    >
    <span class="energy rail-energy">${glyph("bolt")}<span>Energy</span><b>${energy}</b></span>
    <span class="rail-meter" aria-hidden="true">${bar(energyShare)}</span>
  </div>`;
}

/** Home's own head figure. */
function listeners({ blocks = [] }: View): string | undefined {
  const chart = blocks.find((block) => block.kind === "chart");
  return chart?.value ? `${chart.value} listeners` : undefined;
}
