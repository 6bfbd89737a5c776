import { pick } from "./chance";
import { family } from "./family";
import { print } from "./sleeves";
import { artworkOf } from "./titles";
import { drawsOf } from "./chance";
import { box, dot, fade, framed, line, oval, repeat, ring, shape, turned } from "./words";

/** Cloth in the light, in the shade, and inside. */
type Cloth = readonly [string, string, string];

const dyes = {
  black: ["#24242b", "#15151a", "#0c0c10"],
  white: ["#f1ece1", "#d9d1c2", "#b8ae9b"],
  sky: ["#9cc8e8", "#78a9cf", "#4e7ea6"],
  coral: ["#ff8a72", "#e4664f", "#b8432f"],
  olive: ["#93a86a", "#728750", "#52633a"],
  lilac: ["#c3aef0", "#a289d8", "#7b62b4"],
  lime: ["#d8f25a", "#b3cf36", "#86a01a"],
  sand: ["#e3c79a", "#c8a673", "#a07f4c"],
  red: ["#d9363e", "#b3242d", "#7d141c"],
  blue: ["#3f6fd8", "#2b53ad", "#1b3778"],
  navy: ["#2a3768", "#1c274e", "#121a36"],
  green: ["#3f9d63", "#2c7a4a", "#1b5331"],
  yellow: ["#ffd94d", "#e2b622", "#b08a0f"],
  orange: ["#ff9f45", "#e07c1d", "#ab5a0c"],
  purple: ["#7d4fc4", "#5f379f", "#422270"],
  pink: ["#ff9ec4", "#e8749f", "#bb4d77"],
  brown: ["#8a5f41", "#6b462d", "#4a2f1d"],
  grey: ["#9b9ba5", "#7d7d88", "#5c5c66"],
} satisfies Record<string, Cloth>;

/** Of which chance picks where a name tells no colour. */
const { black, white, sky, coral, olive, lilac, lime, sand } = dyes;
const cloths: readonly Cloth[] = [black, white, sky, coral, olive, lilac, lime, sand];

/** Words of a name for a dye of another name. */
const shades = new Map<string, Cloth>([
  ...Object.entries(dyes),
  ["ivory", white],
  ["cream", white],
  ["crimson", dyes.red],
  ["scarlet", dyes.red],
  ["teal", dyes.green],
  ["gold", dyes.yellow],
  ["golden", dyes.yellow],
  ["violet", dyes.purple],
  ["rose", dyes.pink],
  ["tan", sand],
  ["beige", sand],
  ["gray", dyes.grey],
  ["silver", dyes.grey],
]);

/** The colour that a name tells; of several the last, which stands beside the thing. */
const clothTold = (name: string): Cloth | undefined =>
  shades.get((name.toLowerCase().match(/\p{L}+/gu) ?? []).filter((word) => shades.has(word)).at(-1) ?? "");

const walls: readonly [string, string][] = [
  ["#f3d9b5", "#d79a6b"],
  ["#c9dcf2", "#7f9fce"],
  ["#cfeeda", "#7fbfa2"],
  ["#ffd3da", "#e58aa3"],
  ["#e4e6ec", "#aab0be"],
  ["#d9cdf5", "#9a86d6"],
];

/** A product in its cloth, with the sleeve of a name on it. */
type Product = (cloth: Cloth, name: string) => string;

const knit = (lines: string, colour: string): string => line(lines, colour, 1.4);

const sleeves = "M34 24 20 31 11 80 23 83 29 58V84q0 3 3 3H68q3 0 3-3V58L77 83 89 80 80 31 66 24Z";

const bag = ([light, shade, inside]: Cloth, name: string): string =>
  line("M40 22a10 10 0 0 1 20 0", shade, 4.5) +
  line("M20 52q-4 14 1 28M80 52q4 14-1 28", shade, 5) +
  shape("M26 42a24 22 0 0 1 48 0V80a7 7 0 0 1-7 7H33a7 7 0 0 1-7-7Z", light) +
  box(26, 44, 48, 2, inside) +
  box(32, 56, 36, 26, shade, 6) +
  box(32, 62, 36, 1.6, inside) +
  print(name, 43, 28, 14);

const products: Record<string, Product> = {
  cassette: ([light, shade, inside], name) => {
    const { palette } = artworkOf(name, drawsOf(name));
    return turned(
      -7,
      50,
      50,
      box(10, 25, 80, 51, light, 5) +
        box(16, 30, 68, 33, palette[1], 2.5) +
        box(16, 30, 68, 14, palette[0], 2.5) +
        box(16, 34, 68, 6, "#fff", 0, 0.85) +
        box(28, 45, 44, 15, inside, 7.5) +
        dot(37, 52.5, 4.6, "#fff") +
        dot(63, 52.5, 4.6, "#fff") +
        dot(37, 52.5, 2, inside) +
        dot(63, 52.5, 2, inside) +
        shape("M30 76 34 66H66L70 76Z", shade) +
        [14, 86].map((x) => dot(x, 29, 1.3, shade) + dot(x, 72, 1.3, shade)).join(""),
    );
  },
  vinyl: (_, name) =>
    dot(62, 50, 33, clothTold(name)?.[0] ?? "#0d0d10") +
    [29, 25, 21, 17].map((r) => ring(62, 50, r, clothTold(name)?.[1] ?? "#2d2d33", 0.8)).join("") +
    shape("M62 50 92 34A33 33 0 0 1 95 50Z", "#fff", 0.12) +
    dot(62, 50, 11, artworkOf(name, drawsOf(name)).palette[1]) +
    box(10.5, 21, 62, 62, "#000", 2, 0.25) +
    print(name, 9, 19, 62),
  shirt: ([light, shade], name) =>
    shape("M34 21 18 29 9 47 22 54 27 48V84q0 3 3 3H70q3 0 3-3V48L78 54 91 47 82 29 66 21q-3 8-16 8t-16-8Z", light) +
    shape("M34 21q3 8 16 8t16-8l3 1.5q-4 10-19 10T31 22.5Z", shade) +
    knit("M27 48V60M73 48V60M30 80q4-4 3-12", shade) +
    print(name, 38, 40, 24),
  hoody: ([light, shade, inside], name) =>
    shape(sleeves, light) +
    shape("M34 29C33 14 41 9 50 9s17 5 16 20c-4 9-9 11-16 11s-12-2-16-11Z", shade) +
    shape("M40 29c0-8 4-12 10-12s10 4 10 12c-3 5-6 6-10 6s-7-1-10-6Z", inside) +
    line("M46 38v10M54 38v8", "#fff", 1.6) +
    shape("M37 70h26l5 13H32Z", shade) +
    print(name, 42, 50, 16),
  sweater: ([light, shade, inside], name) =>
    shape(sleeves, light) +
    shape("M36 24q14 12 28 0l3 2q-17 15-34 0Z", inside) +
    box(29, 82, 42, 6, shade, 2) +
    shape("M12 75l12 3-1 5-12-3ZM88 75l-12 3 1 5 12-3Z", shade) +
    print(name, 37, 42, 26),
  jumper: ([light, shade, inside]) =>
    shape(sleeves, light) +
    shape("M36 24q14 12 28 0l3 2q-17 15-34 0Z", inside) +
    shape(
      "M29 50 50 44 71 50V58L50 52 29 58ZM29 66 50 60 71 66V74L50 68 29 74ZM17 47l12 3-1 8-13-3ZM83 47l-12 3 1 8 13-3Z",
      shade,
    ) +
    knit("M30 83h40", inside),
  beanie: ([light, shade], name) =>
    shape("M22 66C20 36 33 22 50 22S80 36 78 66Z", light) +
    knit("M36 28C31 40 30 52 30 62M50 23V62M64 28C69 40 70 52 70 62", shade) +
    box(18, 60, 64, 20, shade, 7) +
    print(name, 44, 63, 13),
  bobbleHat: ([light, shade, inside]) =>
    dot(50, 19, 10, inside) +
    dot(46, 16, 3, light, 0.5) +
    shape("M22 66C20 38 33 25 50 25S80 38 78 66Z", light) +
    shape("M23 52 32 44 41 52 50 44 59 52 68 44 77 52V59L68 51 59 59 50 51 41 59 32 51 23 59Z", inside) +
    [34, 50, 66].map((x) => dot(x, 38, 2.2, shade)).join("") +
    box(18, 62, 64, 19, shade, 8) +
    knit("M28 66v11M39 66v11M50 66v11M61 66v11M72 66v11", inside),
  cap: ([light, shade], name) =>
    shape("M20 60C18 36 33 24 50 24S81 35 80 58C66 53 40 53 20 60Z", light) +
    knit("M50 24C40 30 37 43 37 55M50 24C61 30 65 43 64 54", shade) +
    dot(50, 23.5, 2.4, shade) +
    shape("M20 60C40 52 68 52 80 58 92 62 95 70 90 74 74 62 44 60 14 72 12 67 15 62 20 60Z", shade) +
    print(name, 43, 34, 15),
  cowboyHat: ([light, shade, inside]) =>
    shape("M5 52C22 66 78 66 95 52 99 60 88 78 50 78S1 60 5 52Z", shade) +
    shape("M26 62C28 40 32 26 40 25 46 24 46 30 50 30S54 24 60 25C68 26 72 40 74 62 60 68 40 68 26 62Z", light) +
    shape("M27 54C42 60 58 60 73 54L74 62C60 68 40 68 26 62Z", inside) +
    knit("M50 30C49 36 47 40 45 44", shade),
  swimsuit: ([light, shade], name) =>
    line("M40 12 37 28M60 12 63 28", shade, 3.6) +
    shape(
      "M33 26C40 38 60 38 67 26 72 34 69 44 67 51 66 60 71 66 73 73 64 74 57 80 54 90H46C43 80 36 74 27 73 29 66 34 60 33 51 31 44 28 34 33 26Z",
      light,
    ) +
    line("M28 71C37 73 44 79 47 88M72 71C63 73 56 79 53 88M34 27C41 38 59 38 66 27", shade, 2.2) +
    print(name, 42, 48, 16),
  bikini: ([light, shade]) =>
    line("M30 22 33 34M70 22 67 34M32 46h36", shade, 2.6) +
    shape(
      "M22 47C24 34 34 30 36 32 42 36 48 42 48 48 40 51 30 51 22 47ZM78 47C76 34 66 30 64 32 58 36 52 42 52 48 60 51 70 51 78 47Z",
      light,
    ) +
    shape("M22 66q28 6 56 0C76 76 62 78 54 88H46C38 78 24 76 22 66Z", light) +
    line("M24 69q26 5 52 0", shade, 2.4),
  trunks: ([light, shade, inside], name) =>
    shape("M24 26H76L86 78 56 82 50 52 44 82 14 78Z", light) +
    box(24, 24, 52, 9, shade, 3) +
    line("M47 30 45 44M53 30 55 42", inside, 2) +
    shape("M15 72 14 78 44 82 45 76ZM85 72l1 6-30 4-1-6Z", shade) +
    print(name, 62, 56, 14),
  mug: ([light, shade, inside], name) =>
    line("M67 38h5a13 13 0 0 1 0 26h-5", shade, 6.5) +
    shape("M22 26H68V74a8 8 0 0 1-8 8H30a8 8 0 0 1-8-8Z", light) +
    shape("M60 26h8V74a8 8 0 0 1-8 8Z", shade, 0.5) +
    oval(45, 26, 23, 5, inside) +
    print(name, 32, 42, 25),
  makeup: ([light, shade, inside], name) =>
    dot(40, 40, 26, shade) +
    dot(40, 40, 21, "#eaf6ff") +
    shape("M27 52 52 27 57 33 34 57Z", "#fff", 0.7) +
    shape("M14 62H66a26 22 0 0 1-52 0Z", light) +
    print(name, 33, 66, 14) +
    box(74, 56, 14, 30, inside, 2) +
    box(75.5, 44, 11, 14, "#e9c46a") +
    shape("M77 44V32l8-6V44Z", "#e0315a"),
  phoneCase: ([light], name) =>
    turned(
      9,
      50,
      50,
      box(30, 12, 40, 77, light, 9) +
        print(name, 34, 44, 32) +
        box(36, 18, 14, 17, "#15151a", 5) +
        dot(43, 23, 2.8, "#4a4a55") +
        dot(43, 30, 2.8, "#4a4a55"),
    ),
  backpack: bag,
  rucksack: ([light, shade, inside], name) =>
    line("M21 50q-5 16 1 30M79 50q5 16-1 30", shade, 5) +
    shape("M28 34H72L76 80a7 7 0 0 1-7 7H31a7 7 0 0 1-7-7Z", light) +
    box(27, 18, 46, 18, shade, 9) +
    dot(31, 27, 5, inside) +
    box(36, 20, 5, 50, inside) +
    box(59, 20, 5, 50, inside) +
    box(34.5, 46, 8, 6, "#e9c46a", 1) +
    box(57.5, 46, 8, 6, "#e9c46a", 1) +
    print(name, 43, 58, 14),
  handbag: ([light, shade, inside], name) =>
    line("M34 46C34 14 66 14 66 46", inside, 4.5) +
    shape("M20 44H80L88 82a5 5 0 0 1-5 5H17a5 5 0 0 1-5-5Z", light) +
    shape("M20 44H80L83 58C66 66 34 66 17 58Z", shade) +
    box(45, 56, 10, 9, "#e9c46a", 2) +
    repeat(2, (i) => dot(34 + i * 32, 47, 2.4, "#e9c46a")) +
    print(name, 43, 70, 13),
};

export const productForms = family(products, (product, name, draw) => {
  const drawn = pick(cloths, draw);
  const cloth = clothTold(name) ?? drawn;
  const [light, shade] = pick(walls, draw);
  const sky = `radial-gradient(90% 80% at 50% 12%,#ffffff5e,#fff0),${fade(light, shade, 160)}`;
  return framed({ kind: "object", sky }, oval(50, 90, 30, 3.6, "#000", 0.16) + product(cloth, name));
});
