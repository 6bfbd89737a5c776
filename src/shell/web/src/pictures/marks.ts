import { drawsOf, pick } from "./chance";
import { box, dot, fade, framed, line, oval, repeat, ring, shape, turned } from "./words";

/* Logos: two or three plain shapes in one colour on a ground of two. */

/** Ground above, ground below, ink. */
type Colours = readonly [string, string, string];

const night: Colours = ["#17151f", "#3b2f66", "#fff"];
const forest: Colours = ["#0e7a53", "#0a4f3b", "#fff"];
const bone: Colours = ["#f4efe4", "#d9cfba", "#1d1a12"];
const flame: Colours = ["#ff6a3d", "#d9401a", "#fff"];
const sky: Colours = ["#1b5fd0", "#0a3a8c", "#fff"];
const acid: Colours = ["#e8f25a", "#bcd02a", "#1d1a12"];
const coal: Colours = ["#26262c", "#111114", "#fff"];
const lilac: Colours = ["#c9a3ff", "#8655d6", "#fff"];
const tide: Colours = ["#12343a", "#0a1c20", "#8ef0e6"];
const wine: Colours = ["#7a1f3c", "#3a0a1c", "#ffd7c4"];
const brass: Colours = ["#2a2014", "#120d08", "#e6b95a"];

interface Mark {
  /** The colours of the mark; without them they follow from the name. */
  colours?: Colours;
  draw: (ink: string) => string;
}

const marks = {
  // What a label may choose for itself.
  kite: {
    colours: tide,
    draw: (ink) =>
      ring(50, 50, 31, ink, 3) +
      shape("M50 19 66 50 50 81 34 50Z", ink) +
      shape("M50 19V81L34 50Z", "#0a1c20", 0.35) +
      box(19, 48.5, 62, 3, "#0a1c20"),
  },
  sunrise: {
    colours: wine,
    draw: (ink) =>
      shape("M22 56a28 28 0 0 1 56 0Z", ink) +
      repeat(3, (i) => box(22 + i * 6, 62 + i * 7, 56 - i * 12, 3.6, ink, 1.8)),
  },
  crown: {
    colours: brass,
    draw: (ink) =>
      shape("M22 66 18 34 36 50 50 26 64 50 82 34 78 66Z", ink) +
      box(22, 70, 56, 6, ink, 2) +
      dot(18, 31, 4, ink) +
      dot(50, 22, 4, ink) +
      dot(82, 31, 4, ink),
  },
  needle: {
    colours: coal,
    draw: (ink) =>
      dot(46, 52, 28, ink) +
      dot(46, 52, 9, "#19191e") +
      ring(46, 52, 18, "#19191e", 2) +
      line("M80 20V50L62 66", ink, 9) +
      line("M80 20V50L62 66", "#ff375f", 5),
  },
  // Companies and houses that have one of their own.
  tones: {
    colours: night,
    draw: (ink) =>
      [14, 38, 54, 30, 12].map((height, i) => box(23 + i * 12, 50 - height / 2, 7, height, ink, 3.5)).join(""),
  },
  allegro: {
    colours: flame,
    draw: (ink) =>
      turned(
        -16,
        50,
        50,
        [26, 42, 58].map((y, i) => box(24 + i * 7, y, 46 - i * 7, 8, ink, 4)).join("") + dot(76, 46, 7, ink),
      ),
  },
  space: {
    colours: coal,
    draw: (ink) =>
      dot(50, 50, 19, ink) +
      `<g transform="rotate(-24 50 50)">${oval(50, 50, 36, 10, "none")}${line("M15 50a35 10 0 0 0 70 0", ink, 5)}</g>` +
      dot(74, 26, 4, ink),
  },
  flow: {
    colours: sky,
    draw: (ink) =>
      [34, 50, 66].map((y, i) => line(`M22 ${y}c10-12 18-12 28 0s18 12 28 0`, ink, 7, 1 - i * 0.25)).join(""),
  },
  klown: {
    colours: acid,
    draw: (ink) =>
      dot(37, 40, 6, ink) + dot(63, 40, 6, ink) + shape("M26 54H74a24 24 0 0 1-48 0Z", ink) + dot(50, 48, 5, "#ff375f"),
  },
  ampere: { colours: forest, draw: (ink) => shape("M56 16 26 56H46L40 84 74 42H53Z", ink) },
  timeless: { colours: bone, draw: (ink) => ring(50, 50, 29, ink, 7) + line("M50 32V50L62 60", ink, 6) },
  kendall: {
    colours: lilac,
    draw: (ink) =>
      shape("M50 18C62 34 72 44 72 58a22 22 0 0 1-44 0C28 44 38 34 50 18Z", ink) +
      shape("M38 58a12 12 0 0 0 12 13v-6a7 7 0 0 1-6-7Z", "#8655d6"),
  },
  linked: {
    colours: ["#0f5f8a", "#07324f", "#fff"],
    draw: (ink) =>
      turned(
        -40,
        50,
        50,
        box(16, 38, 40, 24, "none") +
          line("M44 38H30a12 12 0 0 0 0 24H44M56 38H70a12 12 0 0 1 0 24H56M38 50H62", ink, 7),
      ),
  },
  fxy: {
    colours: ["#ff7a5a", "#e0285f", "#fff"],
    draw: (ink) =>
      shape("M50 80C24 62 18 42 30 32 40 25 48 32 50 40 52 32 60 25 70 32 82 42 76 62 50 80Z", ink) +
      shape("M50 68C38 58 42 48 50 42 58 48 62 58 50 68Z", "#f0506a"),
  },
  star: {
    colours: ["#26262c", "#111114", "#ffd84d"],
    draw: (ink) => shape("M50 18 59 40 83 42 64 57 71 81 50 68 29 81 36 57 17 42 41 40Z", ink),
  },
  atlas: {
    colours: sky,
    draw: (ink) => dot(50, 40, 20, ink) + line("M26 78C32 62 68 62 74 78", ink, 8),
  },
  infinity: {
    colours: lilac,
    draw: (ink) => line("M50 50C42 38 22 36 22 50S42 62 50 50 78 36 78 50 58 62 50 50Z", ink, 9),
  },
  shield: {
    colours: brass,
    draw: (ink) => shape("M22 24H50V82C36 76 22 66 22 50Z", ink) + shape("M50 24H78V50C78 66 64 76 50 82Z", ink, 0.65),
  },
  globe: {
    colours: ["#0e7a7a", "#07414a", "#fff"],
    draw: (ink) => ring(50, 50, 29, ink, 5) + line("M50 21C32 36 32 64 50 79 68 64 68 36 50 21M22 50H78", ink, 4.4),
  },
  // Plain shapes, for any other name.
  flag: { draw: (ink) => box(28, 20, 6, 60, ink, 3) + shape("M36 24 78 38 36 54Z", ink) + dot(31, 20, 6, ink) },
  quarter: { draw: (ink) => ring(50, 50, 26, ink, 10) + shape("M50 24a26 26 0 0 1 26 26H50Z", ink) },
  peaks: { draw: (ink) => line("M22 66 38 34 50 56 62 34 78 66", ink, 10) },
  blocks: {
    draw: (ink) =>
      box(26, 26, 22, 22, ink, 5) + box(52, 52, 22, 22, ink, 5) + dot(63, 37, 11, ink, 0.6) + dot(37, 63, 11, ink, 0.6),
  },
  leaf: {
    draw: (ink) => shape("M30 70C30 40 40 28 70 28 70 58 58 70 30 70Z", ink) + line("M28 74 54 46", ink, 5, 0.55),
  },
} satisfies Record<string, Mark>;

const plain: readonly Mark[] = [marks.flag, marks.quarter, marks.peaks, marks.blocks, marks.leaf];
const grounds = [night, forest, bone, flame, sky, acid, coal, lilac];

function marked(mark: Mark, name: string): string {
  const [above, below, ink] = mark.colours ?? pick(grounds, drawsOf(`ground:${name}`));
  return framed({ kind: "mark", sky: fade(above, below, 150), whole: true }, mark.draw(ink));
}

/** A mark that follows from the name alone. */
export const anyMark = (name: string): string => marked(pick(plain, drawsOf(`mark:${name}`)), name);

export const markForms = Object.fromEntries(
  Object.entries(marks).map(([form, mark]) => [form, (name: string) => marked(mark, name)]),
);
