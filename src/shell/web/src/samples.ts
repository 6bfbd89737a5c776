import type { Block, View } from "./protocol";

/** What celebrates or mourns as soon as it is drawn, and what is a screen of its own. */
const apart = new Set<Block["kind"]>(["poster", "deck", "story"]);

/** Screens of one small block each, one for each make of block in all of these; the first has all that stands around. */
export function samplesOf(views: View[]): View[] {
  const samples = new Map<string, Block>();
  for (const block of views.flatMap(({ blocks = [] }) => blocks)) {
    if (apart.has(block.kind)) continue;
    const sample = "items" in block ? ({ ...block, items: block.items?.slice(0, 1) } as Block) : block;
    samples.set(makeOf(sample), sample);
  }
  const around = Object.assign({}, ...views) as View;
  return [...samples.values()].map((block, i) => ({ ...(i === 0 ? around : {}), key: -1, blocks: [block] }));
}

/** Which members it has, and theirs: what is made alike is drawn alike. */
function makeOf(part: object): string {
  return Object.entries(part)
    .map(([name, value]) => {
      if (name === "kind" || name === "style") return String(value);
      const inside = Array.isArray(value) ? (value[0] as unknown) : (value as unknown);
      return typeof inside === "object" && inside ? `${name}(${makeOf(inside)})` : name;
    })
    .sort()
    .join();
}
