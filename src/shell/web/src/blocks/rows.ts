import { html, nothing, type TemplateResult } from "lit";
import { hasPicture, picture } from "../pictures/picture";
import { glyph } from "../pictures/icons";
import type { PictureGrid, Row, Rows } from "../protocol";
import type { Scene } from "../scene";
import "./floor";
import { actionMenu, badge, bar, pricePill, reveal, toneClass } from "./parts";
import { film, shelfItem, stop, stripItem, wireLine } from "./row-styles";
import { spark } from "./spark";

/** A list in any style; a windowed one has ways to the rows before and after. */
export function rowsBlock(list: Rows, scene: Scene): TemplateResult {
  const { items = [], total = 0, from = 0, columns = [] } = list;
  if (items.length === 0 && total === 0) return html``;
  const end = from + items.length;
  return html`<div class="list ${columns.length > 0 ? "columned" : ""}">
    ${columns.length > 0 ? html`<p class="list-heads">${columns.map((head) => html`<span>${head}</span>`)}</p>` : nothing}
    ${from > 0 ? turnPage(list, "Earlier", Math.max(0, from - items.length), scene) : nothing} ${styled(list, scene)}
    ${end < total ? turnPage(list, "More", end, scene) : nothing}
    ${
      total > items.length
        ? html`<p class="text caption">${count(from + 1)} to ${count(end)} of ${count(total)}</p>`
        : nothing
    }
  </div>`;
}

function styled({ style = "list", items = [], columns = [] }: Rows, scene: Scene): TemplateResult {
  switch (style) {
    case "shelf":
      return html`<ul class="shelf">
        ${items.map((row) => shelfItem(row, scene))}
      </ul>`;
    case "strip": {
      // With nothing in it to press, the keys need the strip itself to scroll it.
      const tab = items.some(({ id }) => id) ? nothing : "0";
      return html`<ul class="strip ${stripLook(items)}" tabindex=${tab} @focusin=${reveal}>
        ${items.map((row) => stripItem(row, scene))}
      </ul>`;
    }
    case "route":
      return html`<ol class="route card">
        ${items.map((row) => stop(row, scene))}
      </ol>`;
    case "films":
      return html`<ul class="films">
        ${items.map((row) => film(row, scene))}
      </ul>`;
    case "wire":
      return html`<ul class="wire">
        ${items.map((row) => wireLine(row, scene))}
      </ul>`;
    case "floor":
      return html`<bb-floor .items=${items} .scene=${scene}></bb-floor>`;
    case "list":
      return grouped(items, columns.length > 0, scene);
  }
}

function grouped(items: Row[], underHeads: boolean, scene: Scene): TemplateResult {
  const pictured = items.some((row) => hasPicture(row.picture));
  return html`<ul class="group ${pictured ? "pictured" : ""}">
    ${items.map((row) => html`<li class="row ${toneClass(row.tone)} ${rowLook(row)}">${rowLine(row, underHeads, scene)}</li>`)}
  </ul>`;
}

const stripLook = (items: Row[]): string => `of-${items[0]?.picture?.kind ?? "none"}`;

/** A row with a bar and a price is one that is taken and given back: its check mark sits on its picture. */
const isTaken = ({ share, price }: Row): boolean => share !== undefined && price !== undefined;

/** A word that large letters would break beside a picture. */
const wideWord = /\p{Lu}{13}|[^\s-]{17}/u;

function rowLook(row: Row): string {
  const { value = "", title = "" } = row;
  const room = `${/[\d,.]{10}/.test(value) ? "large-sum" : ""} ${wideWord.test(title) ? "wordy" : ""}`;
  if (row.share === undefined) return room;
  if (!isTaken(row)) return `measured ${room}`;
  return row.selected ? "taking taken" : "taking";
}

const count = (n: number): string => n.toLocaleString("en-US");

function turnPage(list: Rows, label: string, to: number, scene: Scene): TemplateResult {
  const turn = (event: Event): void => {
    const block = (event.currentTarget as HTMLElement).closest(".list");
    scene.press(list.id ?? "", String(to));
    // What comes next is read from its beginning, what came before from its end.
    requestAnimationFrame(() => block?.scrollIntoView({ block: label === "More" ? "start" : "end" }));
  };
  return html`<button class="button secondary page-turn" type="button" @click=${turn}>${label}</button>`;
}

function rowLine(row: Row, underHeads: boolean, scene: Scene): TemplateResult {
  const { id, title } = row;
  const body = rowBody(row, underHeads, scene);
  const lit = id && id === scene.lit ? "true" : nothing;
  return html`
    ${
      id
        ? html`<button class="row-main" type="button" aria-current=${lit} @click=${() => scene.press(id)}>
            ${body}
          </button>`
        : html`<div class="row-main">${body}</div>`
    }
    ${actionMenu(row.actions, title || "this row", scene)}
  `;
}

function rowBody(row: Row, underHeads: boolean, scene: Scene): TemplateResult {
  const value = row.value ? html`<span class="row-value" dir="auto">${row.value}</span>` : nothing;
  const note = row.note ? html`<span class="row-note" dir="auto">${row.note}</span>` : nothing;
  const taken = isTaken(row) && row.selected && hasPicture(row.picture);
  const barred = row.tone === "locked" && row.price && hasPicture(row.picture);
  return html`
    ${
      taken || barred
        ? html`<span class="row-picture"
            >${picture(row.picture)}<span class="taken-mark">${glyph(taken ? "check" : "lock")}</span></span
          >`
        : fanned(row)
    }
    <span class="row-texts">
      <span class="row-title"><span class="clip" dir="auto">${row.title}</span>${badge(row.badge)}</span>
      ${row.subtitle ? html`<span class="row-subtitle" dir="auto">${facts(row.subtitle)}</span>` : nothing}
      ${row.share === undefined ? nothing : bar(row.share)}
    </span>
    ${spark(row.points)}
    ${
      row.value || row.note
        ? html`<span class="row-ends">${underHeads ? [note, value] : [value, note]}</span>`
        : nothing
    }
    ${pricePill(row.price)} ${row.tone === "locked" ? endMark("lock", "locked", barred) : nothing}
    ${row.selected ? (scene.theme === "gala" ? endMark("trophy", "winner", taken) : endMark("check", "selected", taken)) : nothing}
    ${row.opens ? html`<span class="chevron" aria-hidden="true"></span>` : nothing}
  `;
}

/** Facts in a line: none of its lines begins with the dot between two of them. */
const facts = (text: string): string => text.replaceAll(" · ", "\u00a0· ");

/** The picture of a row, with those that look out behind it. */
function fanned({ picture: first, fan = [] }: Row): TemplateResult | typeof nothing {
  if (fan.length === 0) return picture(first);
  // The last of them lies at the bottom.
  return html`<span class="fan">${[...fan].reverse().map((each) => picture(each))}${picture(first)}</span>`;
}

/** The mark at a row's end, told to ears alone where the picture wears it. At a gala the one that is marked has won. */
function endMark(drawing: string, said: string, isOnPicture: unknown): TemplateResult {
  const word = html`<span class="unseen">${said}</span>`;
  if (isOnPicture) return word;
  return html`<span class="row-mark ${drawing === "lock" ? "" : "chosen"}">${glyph(drawing)}${word}</span>`;
}

/** Pictures to choose one from. */
export function picturesBlock({ items = [] }: PictureGrid, scene: Scene): TemplateResult {
  return html`<div class="pictures">
    ${items.map(
      ({ picture: shown, label, selected, id }) =>
        html`<button
          class="picture-choice"
          type="button"
          aria-pressed=${selected ? "true" : "false"}
          aria-label=${label || "Picture"}
          @click=${() => id && scene.press(id)}
        >
          ${picture(shown)} ${label ? html`<span class="picture-label" dir="auto">${label}</span>` : nothing}
          ${selected ? html`<span class="picture-mark">${glyph("check")}</span>` : nothing}
        </button>`,
    )}
  </div>`;
}
