import { drawsOf, pick } from "./chance";
import { artworkOf } from "./titles";
import { box, fade, framed, inset } from "./words";

/**
 * A record sleeve as markup: it follows from the name alone. Drawn in the page itself, since every image of its own
 * costs the browser a document; the colours lie behind the drawing, so that no two drawings share an id.
 */
export function sleeve(name: string): string {
  const draw = drawsOf(name);
  const { palette, motif } = artworkOf(name, draw);
  const tilt = pick([135, 180, 225, 158], draw);
  const sky = `radial-gradient(70% 70% at 50% 0,#ffffff4d,#fff0),${fade(palette[0], palette[1], tilt)}`;
  return framed({ kind: "cover", sky }, motif(palette, draw));
}

/** The sky of the sleeve of a name, above and below. */
export function sleeveColours(name: string): [string, string] {
  const { palette } = artworkOf(name, drawsOf(name));
  return [palette[0], palette[1]];
}

/** The sleeve of a name, printed on a thing: the same motif on flat colours. */
export function print(name: string, x: number, y: number, size: number): string {
  const draw = drawsOf(name);
  const { palette, motif } = artworkOf(name, draw);
  draw(); // the tilt of the sleeve
  const flat =
    box(0, 0, 100, 100, palette[1]) + box(0, 0, 100, 62, palette[0], 0, 0.55) + box(0, 0, 100, 30, palette[0], 0, 0.5);
  return inset(x, y, size, size, "0 0 100 100", flat + motif(palette, draw));
}
