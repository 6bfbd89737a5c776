import { html, type TemplateResult } from "lit";
import "./blocks/chart";
import "./blocks/figures";
import { buttonBlock, choiceBlock, fieldBlock, photoBlock, toggleBlock } from "./blocks/controls";
import {
  cardBlock,
  coverBlock,
  emptyBlock,
  headingBlock,
  meterBlock,
  postBlock,
  tableBlock,
  textBlock,
  tilesBlock,
} from "./blocks/plain";
import { picturesBlock, rowsBlock } from "./blocks/rows";
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
    default:
      return html``;
  }
}

/** All blocks in reading order; controls that follow each other share one card. */
export function renderBlocks(blocks: Block[], scene: Scene): TemplateResult[] {
  const drawn: TemplateResult[] = [];
  for (let i = 0; i < blocks.length;) {
    let end = i + 1;
    if (isLine(blocks[i]!)) {
      while (end < blocks.length && isLine(blocks[end]!)) end += 1;
      const lines = blocks.slice(i, end).map((block) => renderBlock(block, scene));
      drawn.push(html`<div class="group lines">${lines}</div>`);
    } else {
      drawn.push(renderBlock(blocks[i]!, scene));
    }
    i = end;
  }
  return drawn;
}

function isLine(block: Block): boolean {
  if (block.kind === "choice") return block.style !== "segments";
  return block.kind === "field" || block.kind === "photo" || block.kind === "toggle" || block.kind === "meter";
}
