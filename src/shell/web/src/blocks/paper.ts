import { html, nothing, type TemplateResult } from "lit";
import { picture } from "../pictures/picture";
import type { Bill, BillAct, Obituary } from "../protocol";
import { factList } from "./parts";

/** A festival's bill: the greatest first and largest, the own act on a plate before the others of its size. */
export function billBlock({ kicker, title = "", text, acts = [], facts }: Bill): TemplateResult {
  return html`<section class="bill">
      <div class="bill-view">${picture({ kind: "scene", name: `festival:${title}` })}</div>
      ${kicker ? html`<p class="bill-kicker" dir="auto">${kicker}</p>` : nothing}
      <h2 style="--letters:${Math.max(4, ...title.split(" ").map((word) => word.length))}" dir="auto">${title}</h2>
      ${text ? html`<p class="bill-text" dir="auto">${text}</p>` : nothing}
      <div class="acts">${[1, 2, 3, 4].map((rank) => size(rank, acts))}</div>
    </section>
    ${factList(facts, "bill-facts card")}`;
}

function size(rank: number, acts: BillAct[]): TemplateResult {
  const here = acts.filter((act) => Math.min(4, Math.max(1, act.rank ?? 4)) === rank);
  const others = here.filter(({ own }) => !own).map(({ name }) => name);
  return html`
    ${here.filter(({ own }) => own).map(({ name }) => html`<p class="own-act"><span dir="auto">${name}</span></p>`)}
    ${others.length > 0 ? html`<p class="acts-${rank}" dir="auto">${others.join(" · ")}</p>` : nothing}
  `;
}

/** Who it was, on paper. */
export function obituaryBlock({ picture: shown, kicker, title, text, facts }: Obituary): TemplateResult {
  return html`<section class="obituary">
    ${picture(shown)} ${kicker ? html`<p class="obituary-kicker" dir="auto">${kicker}</p>` : nothing}
    <h3 dir="auto">${title}</h3>
    ${text ? html`<p class="obituary-text" dir="auto">${text}</p>` : nothing} ${factList(facts, "obituary-facts")}
  </section>`;
}
