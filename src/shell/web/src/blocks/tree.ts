import { html, svg, nothing, type TemplateResult } from "lit";
import { picture } from "../pictures/picture";
import type { Tree, TreePerson } from "../protocol";
import type { Scene } from "../scene";
import { generationsOf, placed, type Placed } from "./tree-layout";

/** Generations, top to bottom, with lines from those before to those after. */
export function treeBlock({ people = [] }: Tree, scene: Scene): TemplateResult {
  const generations = generationsOf(people);
  const widest = Math.max(1, ...generations.map(({ length }) => length));
  const places = placed(people, generations, Math.min(1 / 3, 1 / widest));
  return html`<div class="tree" style="--widest:${widest}" tabindex=${widest > 4 ? "0" : nothing}>
    ${generations.map((generation, depth) => {
      const shown = generation.map((i) => places[i]!).sort((a, b) => a.at - b.at);
      return html`${depth > 0 ? links(shown, places) : nothing}
        <ul class="generation" aria-label="Generation ${depth + 1}">
          ${couples(shown, places)} ${shown.map((one, i) => kin(one, shown[i - 1], scene))}
        </ul>`;
    })}
  </div>`;
}

const percent = (share: number): string => `${Math.round(share * 10000) / 100}%`;

function kin({ person, at, width }: Placed, before: Placed | undefined, scene: Scene): TemplateResult {
  const { id } = person;
  const gap = at - width / 2 - (before ? before.at + width / 2 : 0);
  const body = kinBody(person);
  return html`<li
    class="kin ${person.standing ?? "kin"}"
    style="width:${percent(width)};margin-inline-start:${percent(gap)}"
  >
    ${
      id
        ? html`<button class="kin-body" type="button" @click=${() => scene.press(id)}>${body}</button>`
        : html`<div class="kin-body">${body}</div>`
    }
  </li>`;
}

function kinBody({ picture: shown, title, subtitle }: TreePerson): TemplateResult {
  return html`${picture(shown)}<b dir="auto">${title}</b
    >${subtitle ? html`<small dir="auto">${subtitle}</small>` : nothing}`;
}

/** A bar between two who belong together, and the line down from its middle when somebody comes after them. */
function couples(shown: Placed[], places: Placed[]): TemplateResult[] {
  return shown
    .filter(({ partner, at }) => partner !== null && places[partner]!.at > at)
    .map(({ at, width, partner, parentOfSome }) => {
      const other = places[partner!]!.at;
      const middle = (at + other) / 2;
      const half = Math.max(0, (other - at) / 2 - width * 0.33);
      return html`<i
          class="bond"
          aria-hidden="true"
          style="left:${percent(middle - half)};width:${percent(2 * half)}"
        ></i>
        ${parentOfSome ? html`<i class="stem" aria-hidden="true" style="left:${percent(middle)}"></i>` : nothing}`;
    });
}

function links(shown: Placed[], places: Placed[]): TemplateResult {
  const paths = shown
    .filter(({ parent }) => parent !== null)
    .map(({ at, parent }) => {
      const from = places[parent!]!.stem * 100;
      return `M${from.toFixed(2)} 0V14H${(at * 100).toFixed(2)}V30`;
    });
  return html`<svg class="links" viewBox="0 0 100 30" preserveAspectRatio="none" aria-hidden="true">
    ${svg`<path d=${paths.join("")} vector-effect="non-scaling-stroke" />`}
  </svg>`;
}
