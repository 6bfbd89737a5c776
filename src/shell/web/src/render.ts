import { html, type TemplateResult } from "lit";
import { keyed } from "lit/directives/keyed.js";
import { ref } from "lit/directives/ref.js";
import { cardBlock, coverBlock } from "./blocks/cards";
import "./blocks/chart";
import { buttonBlock, choiceBlock, fieldBlock, photoBlock, toggleBlock } from "./blocks/controls";
import "./blocks/deck";
import "./blocks/figures";
import { gaugesBlock } from "./blocks/gauges";
import { billBlock, obituaryBlock } from "./blocks/paper";
import { emptyBlock, headingBlock, meterBlock, postBlock, tableBlock, textBlock } from "./blocks/plain";
import { posterBlock } from "./blocks/poster";
import { picturesBlock, rowsBlock } from "./blocks/rows";
import "./blocks/slider";
import "./blocks/stepper";
import { storyBlock } from "./blocks/story";
import { tilesBlock } from "./blocks/tiles";
import { treeBlock } from "./blocks/tree";
import { companyAt } from "./company";
import { beginning, leastHeight } from "./extent";
import { picture } from "./pictures/picture";
import type { Block } from "./protocol";
import type { Scene } from "./scene";

/** The drawing of one block. */
export function renderBlock(block: Block, scene: Scene): TemplateResult {
  switch (block.kind) {
    case "heading":
      return headingBlock(block, scene);
    case "text":
      return textBlock(block);
    case "tiles":
      return tilesBlock(block, scene);
    case "meter":
      return meterBlock(block);
    case "rows":
      return rowsBlock(block, scene);
    case "table":
      return tableBlock(block);
    case "pictures":
      return picturesBlock(block, scene);
    case "button":
      return buttonBlock(block, scene);
    case "field":
      return fieldBlock(block, scene);
    case "choice":
      return choiceBlock(block, scene);
    case "toggle":
      return toggleBlock(block, scene);
    case "chart":
      return html`<bb-chart .chart=${block} .scene=${scene}></bb-chart>`;
    case "post":
      return postBlock(block, scene);
    case "card":
      return cardBlock(block, scene);
    case "cover":
      return coverBlock(block);
    case "figures":
      return html`<bb-figures .figures=${block}></bb-figures>`;
    case "empty":
      return emptyBlock(block);
    case "photo":
      return photoBlock(block, scene);
    case "slider":
      return html`<bb-slider .slider=${block} .scene=${scene}></bb-slider>`;
    case "stepper":
      return html`<bb-stepper .stepper=${block} .scene=${scene}></bb-stepper>`;
    case "poster":
      return posterBlock(block);
    case "bill":
      return billBlock(block);
    case "obituary":
      return obituaryBlock(block);
    case "story":
      return storyBlock(block);
    case "gauges":
      return gaugesBlock(block, scene);
    case "deck":
      return html`<bb-deck class="deck-block" .deck=${block} .scene=${scene}></bb-deck>`;
    case "tree":
      return treeBlock(block, scene);
  }
}

/** As many blocks in reading order as fill `room` pixels, and whether those are all. Some that follow each other share one card. */
export function renderBlocks(blocks: Block[], scene: Scene, room: number): { drawn: TemplateResult[]; whole: boolean } {
  const drawn: TemplateResult[] = [];
  let whole = true;
  for (let i = 0; i < blocks.length;) {
    if (room <= 0) return { drawn, whole: false };
    const company = companyAt(blocks, i, scene.theme);
    const together = blocks.slice(i, i + company.length).map((block) => {
      const begun = beginning(block, room);
      if (begun !== block) whole = false;
      room -= leastHeight(block);
      return renderBlock(begun, scene);
    });
    if (company.look.startsWith("channel")) together.unshift(wall(blocks));
    const isLatest = company.look.startsWith("award") && blocks.findIndex(({ kind }) => kind === "card") === i;
    if (isLatest) drawn.push(envelope(blocks[i]!, company.look, together));
    else drawn.push(company.look ? html`<div class=${company.look}>${together}</div>` : together[0]!);
    i += company.length;
  }
  return { drawn, whole };
}

/** The envelope opened last, on top of the others: it unfolds anew when another takes its place. */
function envelope(block: Block, look: string, together: TemplateResult[]): TemplateResult {
  const field = block.kind === "card" ? block.badge : "";
  return html`${keyed(field, html`<div class=${look} ${ref(bringIntoView)}>${together}</div>`)}`;
}

function bringIntoView(element?: Element): void {
  if (element) requestAnimationFrame(() => element.closest(".scroll")?.scrollTo({ top: 0 }));
}

/** The sleeves of the songs whose films are shown here. */
function wall(blocks: Block[]): TemplateResult {
  const films = blocks.flatMap((block) => (block.kind === "rows" ? (block.items ?? []) : []));
  const songs = films.flatMap(({ picture }) =>
    picture?.kind === "still" ? [/:(.*)/.exec(picture.name ?? "")?.[1] ?? ""] : [],
  );
  const filled = songs.length > 0 ? Array.from({ length: 8 }, (_, i) => songs[i % songs.length]!) : [];
  return html`<div class="wall"><div>${filled.map((name) => picture({ kind: "cover", name }))}</div></div>`;
}
