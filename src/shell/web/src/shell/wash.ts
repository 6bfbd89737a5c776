import { sleeveColours } from "../pictures/sleeves";
import type { View } from "../protocol";

/** At a desk a song or an album lends its screen the colours of its sleeve: they, as custom properties, or "". */
export function washOf(view: View | null): string {
  const head = view?.blocks?.[0];
  if (head?.kind !== "cover" || head.picture?.kind !== "cover") return "";
  const [top, foot] = sleeveColours(head.picture.name ?? "");
  return `--sleeve-top: ${top}; --sleeve-foot: ${foot}`;
}
