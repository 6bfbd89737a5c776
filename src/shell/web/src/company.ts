import type { Block, Theme } from "./protocol";

interface Company {
  /** The classes of what lies around them. */
  look: string;
  starts: (block: Block, theme: Theme) => boolean;
  joins: (block: Block) => boolean;
  /** Drawn around a block that nothing joins, too. */
  alone?: boolean;
}

/** Blocks that share one card when they follow each other. */
const companies: Company[] = [
  { look: "group lines", starts: isLine, joins: isLine, alone: true },
  // A company's figure over the parts that it is made of.
  {
    look: "sum card",
    starts: (block) => block.kind === "chart" && !block.points?.length,
    joins: (block) => block.kind === "gauges" && block.style === "split",
  },
  // A channel's own head, on a wall of what it shows.
  {
    look: "channel card",
    starts: (block, theme) =>
      block.kind === "cover" && ["person", "photo"].includes(block.picture?.kind ?? "") && theme === "video",
    joins: (block) => block.kind === "text" || block.kind === "button",
  },
  // Somebody, and what they can.
  {
    look: "talent card",
    starts: (block) => block.kind === "cover" && block.picture?.kind === "person",
    joins: (block) =>
      (block.kind === "meter" && Boolean(block.steps)) ||
      (block.kind === "gauges" && !block.title && (block.style ?? "bars") === "bars"),
  },
  {
    look: "newswire card",
    starts: (block) => block.kind === "heading",
    joins: (block) => block.kind === "rows" && block.style === "wire",
  },
  // A winner over those who were nominated.
  {
    look: "award card",
    starts: (block, theme) => block.kind === "card" && theme === "gala",
    joins: (block) => block.kind === "rows" && (block.style ?? "list") === "list",
  },
];

/** How many blocks from one on share a card, and what lies around them. */
export function companyAt(blocks: Block[], from: number, theme: Theme): { length: number; look: string } {
  const company = companies.find(({ starts }) => starts(blocks[from]!, theme));
  if (!company) return { length: 1, look: "" };
  let length = 1;
  while (from + length < blocks.length && company.joins(blocks[from + length]!)) length += 1;
  return { length, look: length > 1 || company.alone ? company.look : "" };
}

function isLine(block: Block): boolean {
  if (block.kind === "choice") return (block.style ?? "list") === "list";
  return ["field", "photo", "toggle", "meter", "slider", "stepper"].includes(block.kind);
}
