import type { Block, Figures, Rows } from "./protocol";

/** The status row and what else lies over the blocks of every screen. */
export const headHeight = 90;

const gap = 12;
const rowHeight = 50;

/** The least height of a block in pixels, with the gap after it. Rather too little: then more is drawn than is seen. */
export function leastHeight(block: Block): number {
  switch (block.kind) {
    case "rows":
      return gap + rowsHeight(block);
    case "figures":
      return gap + figuresHeight(block);
    case "cover":
    case "tiles":
    case "card":
      return gap + 80;
    case "chart":
    case "poster":
    case "post":
      return gap + 120;
    case "button":
      return gap + 44;
    default:
      return gap + 20;
  }
}

function rowsHeight({ style = "list", items = [] }: Rows): number {
  if (style === "strip" || style === "floor") return 80;
  return (style === "shelf" ? Math.ceil(items.length / 3) : items.length) * rowHeight;
}

function figuresHeight({ style = "ledger", items = [] }: Figures): number {
  return style === "ledger" ? items.length * 40 : 80;
}

/** The beginning of a list that is much longer than the room for it; else the block itself. */
export function beginning(block: Block, room: number): Block {
  if (block.kind !== "rows" || block.from) return block;
  const { style = "list", items = [] } = block;
  const seen = Math.ceil(room / rowHeight) + 1;
  if (style !== "list" || items.length < seen + 8) return block;
  return { ...block, items: items.slice(0, seen), total: 0 };
}
