import { drawsOf } from "./chance";
import { family } from "./family";
import type { Draw, Palette } from "./palettes";
import { artworkOf } from "./titles";
import { at, box, crowd, dot, fade, framed, line, mirrored, repeat, shape, windows } from "./words";

/* Frames of music videos, 160 by 90, in the colours of the song's sleeve. */

/** Whoever is seen, with the feet of the bust at x and y: a portrait, or a shadow in this colour. */
type Star = (x: number, y: number, scale: number, shadow: string, dark?: boolean) => string;

const shadow = (fill: string): string =>
  shape(
    "M-19 0C-18-16-12-20-5-22V-27C-11-30-13-36-12-43-11-52-5-56 1-56 9-56 13-50 12-42 12-36 9-30 5-27V-22C13-20 19-16 20 0Z",
    fill,
  ) + shape("M-13-40C-17-58-4-63 4-61 14-60 17-50 13-40 12-47 8-50 2-50-4-50-10-48-13-40Z", fill);

/** A star whose portrait is at this address; without one, a shadow. */
const starOf =
  (portrait: string): Star =>
  (x, y, scale, fill, dark) => {
    if (!portrait) return at(x, y, shadow(fill), scale);
    const size = 66 * scale;
    const style = dark ? ' style="filter:brightness(.3)"' : "";
    return `<image href="${portrait}" x="${x - size / 2}" y="${y - size}" width="${size}" height="${size}"${style}/>`;
  };

type Still = (palette: Palette, draw: Draw, star: Star, motif: string) => string;

const stills: Record<string, Still> = {
  animated: ({ 2: shade, 3: light }, draw, star, motif) =>
    repeat(8, () => dot(draw() * 160, draw() * 90, 4 + draw() * 13, light, 0.2)) +
    at(70, 4, motif, 0.82) +
    star(42, 91, 1.25, shade),
  cinematic: ({ 3: light }, draw, star) =>
    dot(100 + draw() * 20, 40, 17, light) +
    shape("M-10 66 30 40 52 60 78 32 108 62 128 48 170 70V90H-10Z", "#000", 0.3) +
    shape("M-10 80 36 60 70 76 104 62 170 82V90H-10Z", "#000", 0.5) +
    star(46, 84, 1.05, "#0b0a12", true) +
    box(0, 0, 160, 8, "#000") +
    box(0, 82, 160, 8, "#000"),
  concept: ({ 2: shade, 3: light }, draw, star) => {
    const turn = 45 + Math.round(draw() * 4) * 15;
    const frame = `<rect x="-30" y="-30" width="60" height="60" fill="none" stroke="${light}" stroke-width="2.5"/>`;
    return (
      `<g transform="translate(80 45) rotate(${turn})">${frame}${box(-21, -21, 42, 42, light, 0, 0.85)}</g>` +
      star(80, 91, 1.05, shade)
    );
  },
  lyric: ({ 2: shade, 3: light }, draw) =>
    box(0, 0, 160, 90, shade, 0, 0.35) +
    repeat(3, (i) => box(32, 24 + i * 16, 44 + draw() * 48, 9, light, 4.5, i === 1 ? 1 : 0.45)) +
    repeat(16, (i) => {
      const height = 3 + draw() * 11;
      return box(32 + i * 6, 84 - height, 3, height, light, 1.5, 0.7);
    }),
  narrative: ({ 2: shade, 3: light }, draw, star) =>
    repeat(13, (i) => box(i * 14 - 8, 34 + draw() * 28, 12, 100, shade, 0, 0.75)) +
    repeat(5, (i) => windows(4 + i * 30, 58 + draw() * 10, 3, 3, light, { width: 2, height: 3, stepX: 5, stepY: 8 })) +
    at(126, 91, mirrored(0, shadow("#0b0a12")), 0.95) +
    star(90, 91, 1.1, "#0b0a12"),
  performance: ([sky, below, shade, light], draw, star) =>
    box(0, 0, 160, 90, shade, 0, 0.6) +
    [26, 54, 80, 106, 134]
      .map((x, i) => shape(`M${x}-4 ${x - 24 + i * 4} 92h34Z`, i % 2 ? sky : light, i % 2 ? 0.5 : 0.26))
      .join("") +
    star(80, 91, 1.2, below) +
    line("M108 58 98 68", light, 3.4) +
    dot(110, 56, 4.6, light) +
    crowd(160, 82 + draw() * 2, 5.5, "#07040f") +
    line("M34 90 30 66M116 90 121 64M140 90 136 70", "#07040f", 3.6),
};

export const stillForms = family(stills, (still, title, draw, portrait) => {
  const cover = drawsOf(title);
  const { palette, motif } = artworkOf(title, cover);
  cover(); // the tilt of the sleeve
  const inner = still(palette, draw, starOf(portrait), motif(palette, cover));
  return framed({ kind: "still", sky: fade(palette[0], palette[1], 135), width: 160, height: 90 }, inner);
});
