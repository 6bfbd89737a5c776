import { pick } from "./chance";
import { family } from "./family";
import { bring, isIcon } from "./icons";
import { box, dot, fade, framed, line, oval, repeat, ring, shape, turned } from "./words";

/* What is won, given and put up: rings, the statuette, medals, booths, a parcel. */

const gold = ["#8a5a12", "#ffe9a6", "#e0a834", "#fff3c9"] as const;

/** A stone seen from above, its facets in two lights. */
const stones = {
  pear:
    shape("M0-20C8-10 14-2 14 6a14 14 0 0 1-28 0C-14-2-8-10 0-20Z", "#d9f2ff") +
    shape("M0-20-6 2 0 20 6 2ZM-14 6-6 2 0 20Z", "#fff", 0.85) +
    shape("M14 6 6 2 0 20Z", "#9fd4f2"),
  step:
    shape("M-10-16H10L16-10V10L10 16H-10L-16 10V-10Z", "#c4ecff") +
    shape("M-6-11H6L11-6V6L6 11H-6L-11 6V-6Z", "#fff", 0.9) +
    shape("M-6-11H6L2-3H-2ZM16-10V10L11 6V-6Z", "#9fd4f2"),
  heart:
    shape("M0 18C-20 6-20-12-10-15-4-16 0-12 0-8 0-12 4-16 10-15 20-12 20 6 0 18Z", "#ffd0e0") +
    shape("M0-8 8-2 0 18-8-2Z", "#fff", 0.9) +
    shape("M0 18 8-2 17-6C17 2 10 12 0 18Z", "#f59bbd"),
  round:
    dot(0, 0, 16, "#d9f2ff") +
    shape("M-10-6H10L0 15Z", "#fff", 0.9) +
    shape("M-10-6-15 0 0 15ZM10-6 0 15 15 0Z", "#a9dcf7") +
    shape("M-10-6-4-14H4L10-6Z", "#fff", 0.6),
  trilliant:
    shape("M-17-12Q0-20 17-12 14 8 0 18-14 8-17-12Z", "#d6e4ff") +
    shape("M-9-8Q0-11 9-8 6 3 0 10-6 3-9-8Z", "#fff", 0.9) +
    shape("M17-12 9-8 0 10V18Q14 8 17-12Z", "#9db8f5"),
};

const spark = (x: number, y: number, size: number): string =>
  shape(
    `M${x} ${y - size}q1 ${size - 1} ${size} ${size}-${size - 1} 1-${size} ${size}-1-${size - 1}-${size}-${size} ${size - 1}-1 ${size}-${size}Z`,
    "#fff",
  );

const band = (more = ""): string =>
  ring(50, 64, 23, gold[0], 6.5) + ring(50, 63.3, 23, gold[2], 5) + line("M30 54a22 22 0 0 0 1 22", gold[3], 2) + more;

const solitaire = (stone: keyof typeof stones, scale = 1, more = ""): string =>
  band() +
  more +
  shape("M42 40 50 48 58 40Z", gold[2]) +
  `<g transform="translate(50 ${32 - scale * 3}) scale(${scale})">${stones[stone]}</g>` +
  spark(78, 16, 6) +
  spark(20, 30, 4);

const fork =
  box(46, 50, 8, 24, gold[2]) +
  box(46.5, 52, 2.6, 22, gold[1], 0, 0.85) +
  line("M40 13V40q0 12 10 12t10-12V13", gold[2], 9) +
  line("M38 13V40q0 7 4 10.5M57.5 13V38", gold[1], 2.6, 0.9) +
  line("M63 14V41q0 7-5 10.5", gold[0], 1.6, 0.6) +
  shape("M42 72H58L61 78H39Z", gold[2]) +
  box(33, 78, 34, 7, "#3a2413", 1.5) +
  box(28, 85, 44, 9, "#22140a", 2) +
  box(40, 87, 20, 4.5, gold[2], 1);

const coin = (inner: string): string =>
  shape("M36 4H50L42 36 24 30ZM64 4H50L58 36 76 30Z", "#c2304a") +
  dot(50, 58, 34, gold[0]) +
  dot(50, 57, 33, gold[2]) +
  dot(50, 57, 27, gold[0], 0.35) +
  dot(50, 57.8, 26, "#f0c65a") +
  shape("M27 50a24 24 0 0 1 30-16Q40 40 30 60a24 24 0 0 1-3-10Z", "#fff", 0.35) +
  inner;

/** A medal bears the glyph of what it was won for. */
const medal = (name: string): string => {
  bring(name);
  return coin(
    isIcon(name)
      ? `<g color="#4a2f08" fill="#4a2f08"><use href="#glyph-${name}" x="33" y="40" width="34" height="34"/></g>`
      : shape("M50 39 55 51 68 52 58 60 61 73 50 66 39 73 42 60 32 52 45 51Z", "#4a2f08"),
  );
};

const booth = (frame: string, light: string): string =>
  box(18, 14, 64, 74, frame, 5) +
  box(24, 20, 52, 62, "#20202a", 3) +
  repeat(5, (i) => shape(`M${24 + i * 10.4} 20l5.2 8 5.2-8Z`, "#fff", 0.08)) +
  box(24, 20, 52, 62, light, 3, 0.28) +
  box(44, 30, 12, 20, "#e8e8ee", 6) +
  line("M40 42v2a10 10 0 0 0 20 0v-2M50 54v14M42 70h16", "#e8e8ee", 2.6) +
  shape("M30 20 24 60V20Z", "#fff", 0.18) +
  box(78, 46, 3, 14, light, 1.5);

const record = (metal: string, shine: string): string =>
  box(12, 10, 76, 80, "#1c1510", 3) +
  box(17, 15, 66, 70, "#efe7d8") +
  dot(50, 45, 25, metal) +
  ring(50, 45, 20, shine, 0.8, 0.7) +
  ring(50, 45, 15, shine, 0.8, 0.7) +
  shape("M50 45 68 28A25 25 0 0 1 75 45Z", "#fff", 0.45) +
  dot(50, 45, 8, "#8f2a3c") +
  dot(50, 45, 1.6, "#fff") +
  box(36, 75, 28, 6, metal, 1);

const parcel = (name: string): string => {
  const [light, shade] = name.length % 2 ? ["#e9b872", "#c98f45"] : ["#f0a3b4", "#cf6f88"];
  return (
    shape("M18 40 50 28 82 40 50 52Z", light) +
    shape("M18 40 50 52V90L18 76Z", shade) +
    shape("M82 40 50 52V90L82 76Z", light, 0.85) +
    line("M34 34 66 46V64", "#fff", 4, 0.8)
  );
};

const things: Record<string, (name: string) => string> = {
  pearRing: () => solitaire("pear"),
  stepRing: () => solitaire("step"),
  heartRing: () => solitaire("heart"),
  roundRing: () => solitaire("round"),
  trilliantRing: () => solitaire("trilliant"),
  grandRing: () =>
    solitaire("round", 1.25, [34, 66].map((x) => dot(x, 44, 4, "#d9f2ff") + dot(x, 43, 2, "#fff")).join("")),
  royalRing: () =>
    solitaire(
      "round",
      1.5,
      repeat(5, (i) => turned(-60 + i * 30, 50, 64, dot(50, 40, 3.4, "#d9f2ff") + dot(50, 39.4, 1.6, "#fff"))),
    ),
  fork: () => fork,
  medal,
  goldRecord: () => record("#e3b341", "#8a5a12"),
  platinumRecord: () => record("#c9ced8", "#7d8593"),
  diamondRecord: () => record("#bfe6f7", "#5aa3c4"),
  goldBooth: () => booth("#d9a326", "#ffd76a"),
  platinumBooth: () => booth("#b9c0cc", "#e6f0ff"),
  diamondBooth: () => booth("#7fc8ea", "#8be9ff"),
  parcel,
};

const velvets: readonly [string, string][] = [
  ["#7a1f3c", "#2f0a1c"],
  ["#2b3f7a", "#0e1633"],
  ["#1f5a50", "#08231f"],
  ["#51307a", "#1c0c33"],
];

export const honourForms = family(things, (thing, name, draw) => {
  const [light, shade] = pick(velvets, draw);
  const sky = `radial-gradient(75% 75% at 50% 30%,#ffffff33,#fff0),${fade(light, shade, 160)}`;
  return framed({ kind: "object", sky, whole: true }, oval(50, 92, 28, 3, "#000", 0.25) + thing(name));
});
