import { drawsOf, pick } from "./chance";
import { family } from "./family";
import type { Draw } from "./palettes";
import {
  at,
  box,
  cloud,
  crowd,
  dot,
  framed,
  hills,
  line,
  notes,
  oval,
  palm,
  peaks,
  pine,
  repeat,
  ring,
  shape,
  stars,
  sunAt,
  tree,
  turned,
  windows,
} from "./words";

/*
 * Places behind people and news, 160 by 90. Boxes of every shape show them: what tells the place stands between 45 and
 * 115, and a person stands before it.
 */

type Sky = readonly string[];
type Drawing = (draw: Draw) => string;
type Scene = readonly [Sky, Drawing];

const purple: Sky = ["#2a0f63", "#7a2ce0", "#ff5fa8"];

const palms: Drawing = (draw) =>
  sunAt(84 + draw() * 20, 44, 15, "#fff1d6") +
  hills("62C40 52 110 66 200 56", "#8a4a8a", 0.8) +
  hills("72C40 64 100 74 200 66", "#472a6a") +
  palm(56, 82, 1.3, "#3a1a52", "#3a1a52") +
  palm(120, 86, 1, "#3a1a52", "#3a1a52");

const town: Drawing = (draw) =>
  sunAt(70 + draw() * 30, 34, 13, "#ffe9c4") +
  repeat(12, (i) => {
    const height = 22 + draw() * 40;
    const x = i * 14 - 4;
    return (
      box(x, 90 - height, 12, 60, "#2b2052", 0, 0.9) +
      windows(x + 2, 94 - height, 2, 5, "#ffd98a", { width: 2.4, height: 3, stepX: 5, stepY: 8 })
    );
  });

const park: Drawing = (draw) =>
  cloud(40, 20) +
  cloud(104, 14 + draw() * 8, 0.8) +
  hills("64C40 54 110 66 200 56", "#86c06a") +
  tree(50, 74, 11, "#3f8a4e") +
  tree(112, 72, 13, "#357a46") +
  tree(128, 76, 9, "#4a9a58") +
  hills("76C40 68 110 80 200 70", "#5aa456");

const mountains: Drawing = (draw) =>
  sunAt(56 + draw() * 40, 26, 9, "#fff6dc") +
  peaks(76, "#6f86b4") +
  hills("70C40 62 110 74 200 64", "#3f6b5a") +
  pine(48, 80, 24, "#23483c") +
  pine(58, 82, 18, "#23483c") +
  pine(118, 82, 26, "#23483c") +
  hills("82C40 76 110 86 200 78", "#2f5748");

const cafe: Drawing = () =>
  box(-40, 0, 240, 90, "#3a2238", 0, 0.35) +
  repeat(
    7,
    (i) =>
      line(`M${20 + i * 20} -4V${18 + (i % 3) * 6}`, "#2a1626", 1) + dot(20 + i * 20, 22 + (i % 3) * 6, 3.4, "#ffe1a0"),
  ) +
  box(40, 40, 30, 26, "#ffd9a0", 2, 0.5) +
  box(92, 40, 30, 26, "#ffd9a0", 2, 0.5) +
  box(-40, 72, 240, 40, "#5a2f30");

const places: readonly Scene[] = [
  [["#ffb08a", "#ff7f93"], palms],
  [["#6a4fb0", "#ff9a7a"], town],
  [["#8fd4ff", "#fff0c9"], park],
  [["#9fc4f5", "#ffe3d0"], mountains],
  [["#b0566a", "#5a2a52"], cafe],
];

const tents: Drawing = () =>
  shape("M50 76 80 50 110 76Z", "#e0475a") +
  shape("M66 76 80 50 74 76ZM94 76 80 50 86 76Z", "#fff1d6") +
  shape("M22 78 36 62 50 78ZM112 78 126 62 140 78Z", "#3f1238") +
  line("M80 50V40", "#3f1238", 1.4) +
  shape("M80 40l9 3-9 3Z", "#ffd98a");

const wheelOfLights: Drawing = () =>
  ring(80, 48, 24, "#3f1238", 2.4) +
  repeat(8, (i) =>
    turned(i * 45, 80, 48, line("M80 48V24", "#3f1238", 1) + dot(80, 24, 3.4, i % 2 ? "#ffd98a" : "#ff8fa8")),
  ) +
  line("M80 48 68 80M80 48 92 80", "#3f1238", 2.6);

const stageFront: Drawing = () =>
  shape("M68 62 40 6h14ZM80 60 74 0h12ZM92 62 106 6h14Z", "#ffd9a0", 0.45) +
  box(54, 58, 52, 20, "#1d0720") +
  shape("M50 58H110L106 53H54Z", "#1d0720") +
  box(58, 62, 44, 11, "#ffcf7d") +
  line("M34 78V46M126 78V44", "#1d0720", 1.6) +
  shape("M28 46h12l-2-5H30ZM120 44h12l-2-5h-8Z", "#1d0720");

const scenes: Record<string, Scene> = {
  stage: [
    purple,
    () =>
      shape("M104-6 54 90h38ZM114-6 98 90h42ZM128-6 132 90h46Z", "#fff", 0.16) +
      dot(116, 50, 40, "#ffd0ea", 0.3) +
      crowd(160, 86, 5.6, "#0d0520"),
  ],
  festival: [
    ["#1c1247", "#6a2a8f", "#ef5d6f", "#ffb35c"],
    (draw) =>
      box(0, 0, 160, 90, pick(["#1c1247", "#0b5a7b", "#a01f5c", "#2a6b4a"], draw), 0, 0.3) +
      stars(22, 160, 30, draw) +
      dot(80, 70, 20, "#ffe7b0") +
      hills("66C30 58 60 64 84 60S140 58 200 62", "#7a2450") +
      pick([stageFront, tents, wheelOfLights], draw)(draw) +
      hills("77C40 72 110 78 200 74", "#3f1238") +
      crowd(160, 84, 3, "#120414"),
  ],
  sunset: [
    ["#5a2f6a", "#ff6f5a", "#ffb36b"],
    () =>
      sunAt(80, 48, 17, "#ffe9b8") +
      hills("62C20 58 34 44 60 56S110 46 200 64", "#8a3a5a", 0.7) +
      box(-40, 70, 240, 60, "#6a2a4c"),
  ],
  meadow: [
    ["#8fd0ff", "#ffeec4"],
    () =>
      cloud(40, 22) +
      cloud(108, 16, 0.85) +
      hills("58C30 46 70 50 96 60S150 62 200 46", "#86c56a") +
      hills("70C40 58 80 62 110 72S160 74 200 62", "#5aa456") +
      repeat(9, (i) => dot(16 + i * 17, 80 + (i % 3) * 3, 1.4, ["#fff", "#ffd84d", "#ff9ab8"][i % 3]!)),
  ],
  nursery: [
    ["#ffe3cf", "#f7c6b4"],
    () =>
      repeat(9, (i) => box(-4 + i * 20, 0, 8, 66, "#fff", 0, 0.22)) +
      box(54, 14, 34, 28, "#fff", 2) +
      box(57, 17, 28, 22, "#9fd8f5") +
      box(70, 17, 2, 22, "#fff") +
      line("M112 0V18", "#b0705c", 1) +
      line("M100 20H124M100 20V26M112 18V30M124 20V25", "#b0705c", 1) +
      dot(100, 29, 3, "#ffd84d") +
      dot(112, 33, 3, "#7fb8f0") +
      dot(124, 28, 3, "#ff8fa8") +
      box(-40, 66, 240, 40, "#d99a78") +
      at(
        24,
        52,
        dot(0, 0, 6, "#b9804f") +
          dot(-5, -6, 2.6, "#b9804f") +
          dot(5, -6, 2.6, "#b9804f") +
          oval(0, 12, 8, 9, "#b9804f") +
          oval(0, 2, 2.6, 2, "#f0d2ae"),
      ) +
      box(96, 46, 46, 24, "#fff7ec", 3) +
      repeat(6, (i) => box(100 + i * 7, 48, 2, 20, "#e3b79a")),
  ],
  studio: [
    ["#3a2a6a", "#151028"],
    () =>
      repeat(6, (i) => repeat(3, (k) => shape(`M${24 + i * 20} ${8 + k * 14}h16l-8 11Z`, "#fff", 0.06))) +
      box(46, 12, 68, 34, "#7d5ce0", 3, 0.45) +
      box(50, 16, 60, 26, "#b79cff", 2, 0.4) +
      at(74, 14, box(0, 8, 10, 16, "#1d1533", 5) + line("M-3 16a8 8 0 0 0 16 0M5 26v6", "#1d1533", 2)) +
      box(18, 30, 18, 34, "#0d0a1a", 2) +
      dot(27, 40, 4, "#5a4a8a") +
      dot(27, 53, 6.5, "#5a4a8a") +
      box(124, 30, 18, 34, "#0d0a1a", 2) +
      dot(133, 40, 4, "#5a4a8a") +
      dot(133, 53, 6.5, "#5a4a8a") +
      shape("M30 64H130L144 90H16Z", "#241a44") +
      repeat(
        11,
        (i) =>
          line(`M${38 + i * 8.4} 70v12`, "#4a3a80", 1.4) +
          box(36.4 + i * 8.4, 71 + ((i * 5) % 9), 3.4, 2.6, i % 4 ? "#d9ccff" : "#ff5fa8", 0.6),
      ),
  ],
  school: [
    ["#8fd0ff", "#e9f6ff"],
    () =>
      cloud(28, 18) +
      hills("66C40 60 110 64 200 60", "#86c06a") +
      box(40, 40, 80, 32, "#c2604a") +
      shape("M66 40 80 26 94 40Z", "#7d3428") +
      windows(46, 46, 7, 2, "#ffe6ad", { width: 6, height: 7, stepX: 10.6, stepY: 12 }) +
      box(75, 58, 10, 14, "#4a2a20") +
      dot(80, 34, 3, "#fff") +
      box(-40, 72, 240, 40, "#b8b2a6"),
  ],
  wedding: [
    ["#ffd9e4", "#fff3d9"],
    () =>
      hills("70C40 62 110 68 200 64", "#a8d08a") +
      line("M52 82V40a28 28 0 0 1 56 0V82", "#fff", 4) +
      repeat(15, (i) => {
        const angle = (i / 14) * Math.PI;
        return dot(
          80 - Math.cos(angle) * 28,
          40 - Math.sin(angle) * 28,
          3.6 + (i % 3),
          ["#ff8fb0", "#fff", "#ffc2d4"][i % 3]!,
        );
      }) +
      shape("M74 66H86L100 90H60Z", "#fff", 0.8) +
      repeat(
        4,
        (i) => box(34 - i * 2, 70 + i * 6, 16, 2.4, "#e8d0b0") + box(110 + i * 2, 70 + i * 6, 16, 2.4, "#e8d0b0"),
      ),
  ],
  hospital: [
    ["#d4ecf5", "#f4fbff"],
    () =>
      box(34, 26, 92, 52, "#fff") +
      windows(42, 34, 8, 3, "#a8d4ea", { width: 6, height: 8, stepX: 10.4, stepY: 13 }) +
      box(68, 58, 24, 20, "#5aa8cf") +
      box(77, 10, 6, 18, "#f0556a", 1) +
      box(71, 16, 18, 6, "#f0556a", 1) +
      box(-40, 78, 240, 40, "#c4d6c0"),
  ],
  rain: [
    ["#39435c", "#151a26"],
    (draw) =>
      repeat(6, (i) => box(8 + i * 26, 40 + ((i * 13) % 22), 20, 60, "#0d111b", 0, 0.7)) +
      windows(14, 56, 12, 3, "#ffd98a", { width: 2, height: 3, stepX: 12, stepY: 11 }) +
      line(
        repeat(36, () => `M${Math.round(draw() * 170)} ${Math.round(draw() * 86)}l-2 7`),
        "#a9bfe6",
        0.8,
        0.6,
      ),
  ],
  memorial: [
    ["#b9c4d6", "#e9e2d6"],
    () =>
      hills("66C40 58 110 66 200 60", "#8fa088") +
      tree(46, 72, 16, "#6f8a68") +
      shape("M88 80V54a12 12 0 0 1 24 0V80Z", "#7d828c") +
      box(84, 78, 32, 5, "#6a6f78", 1) +
      notes(95, 58, "#d9dde4", 0.8) +
      repeat(5, (i) => dot(78 + i * 11, 84, 2.2, ["#fff", "#f0a3b4"][i % 2]!)) +
      hills("84C40 80 110 86 200 82", "#74886c"),
  ],
  gala: [
    ["#6a1430", "#2a0614"],
    () =>
      repeat(9, (i) => shape(`M${i * 20 - 8} -2h9q-3 46 1 94h-12q6-50 2-94Z`, "#a3213f", 0.5)) +
      shape("M80-10 40 90H120Z", "#ffe9a6", 0.22) +
      oval(80, 84, 42, 6, "#ffe9a6", 0.35),
  ],
  office: [
    ["#243044", "#0d131d"],
    () =>
      box(30, 8, 100, 46, "#5a86b8", 2, 0.5) +
      repeat(9, (i) => box(34 + i * 11, 54 - (14 + ((i * 17) % 26)), 8, 14 + ((i * 17) % 26), "#0d1a2c", 0, 0.7)) +
      repeat(3, (i) => box(54 + i * 25, 8, 1.6, 46, "#1a2434")) +
      box(-40, 66, 240, 40, "#2a1f1a") +
      box(34, 60, 92, 8, "#6a4a34", 2) +
      repeat(3, (i) => dot(136, 22 + i * 15, 5, "#d9a326") + dot(136, 22 + i * 15, 1.4, "#5a3a08")),
  ],
  garageOffice: [
    ["#8fb4d0", "#d9c4a8"],
    () =>
      box(30, 26, 100, 56, "#a89a88") +
      shape("M24 28 80 6 136 28Z", "#5a4a44") +
      box(42, 36, 76, 46, "#e9e2d4") +
      repeat(4, (i) => box(42, 46 + i * 9, 76, 1.4, "#b8ac98")) +
      box(42, 58, 76, 24, "#2a2530") +
      box(52, 66, 20, 16, "#5a4a8a", 1) +
      dot(62, 74, 5, "#0d0a1a") +
      line("M94 82V62l6-2", "#d9ccff", 1.6) +
      box(-40, 82, 240, 40, "#8a8478"),
  ],
  coworking: [
    ["#ffe7c4", "#f2c49a"],
    () =>
      windows(36, 10, 4, 1, "#a8d8f0", { width: 18, height: 32, stepX: 23 }) +
      repeat(
        3,
        (i) => line(`M${50 + i * 30} 0V16`, "#3a2a24", 1) + shape(`M${44 + i * 30} 22a6 6 0 0 1 12 0Z`, "#e0475a"),
      ) +
      box(30, 60, 100, 5, "#8a5a38", 1) +
      line("M40 65V84M120 65V84M80 65V84", "#5a3a24", 2.4) +
      repeat(3, (i) => box(44 + i * 28, 49, 14, 10, "#3a4a5c", 1) + box(50 + i * 28, 59, 2, 2, "#3a4a5c")) +
      at(
        138,
        82,
        box(-5, -8, 10, 8, "#d0704a") +
          shape("M0-8C-14-16-12-30-4-34-2-24 0-20 0-8ZM0-8C14-14 14-26 8-32 2-24 2-16 0-8Z", "#3f8a4e"),
      ) +
      box(-40, 82, 240, 40, "#d9a878"),
  ],
  warehouse: [
    ["#7a8aa3", "#d9cdbd"],
    () =>
      shape("M24 40 46 22V40L68 22V40L90 22V40L112 22V40L136 40V82H24Z", "#9c5a48") +
      shape("M46 22V40H26ZM68 22V40H48ZM90 22V40H70ZM112 22V40H92Z", "#cfe3f0", 0.8) +
      windows(32, 46, 9, 1, "#ffe6ad", { width: 7, height: 10, stepX: 11.4 }) +
      box(66, 60, 28, 22, "#3a2a2a") +
      repeat(4, (i) => box(66, 63 + i * 5, 28, 1, "#7a5a4c")) +
      box(100, 70, 14, 12, "#c8a060") +
      box(112, 74, 10, 8, "#d9b070") +
      box(-40, 82, 240, 40, "#807a78"),
  ],
  loft: [
    ["#ffb37a", "#7a5ad0"],
    () =>
      box(-40, 0, 240, 100, "#4a2230", 0, 0.35) +
      repeat(
        3,
        (i) =>
          box(34 + i * 32, 10, 28, 46, "#ffd9a8", 1) +
          line(`M${48 + i * 32} 10v46M${34 + i * 32} 26h28M${34 + i * 32} 41h28`, "#3a1a28", 1.4),
      ) +
      box(-40, 64, 240, 40, "#5a3430") +
      box(46, 58, 48, 10, "#2f6f78", 4) +
      box(44, 66, 52, 8, "#26585f", 3) +
      box(104, 50, 18, 24, "#2a1a20", 2) +
      dot(113, 57, 3.4, "#8a6a70") +
      dot(113, 66, 5, "#8a6a70") +
      line("M0 4H160", "#2a1218", 2.6),
  ],
  campus: [
    ["#8fd0f5", "#eaf7e0"],
    () =>
      cloud(30, 18) +
      hills("62C40 56 110 60 200 54", "#86c06a") +
      shape("M34 66V46Q80 30 126 46V66Z", "#eef4f8") +
      repeat(11, (i) => box(38 + i * 8, 48 - Math.sin(((i + 1) / 12) * Math.PI) * 5, 5.4, 18, "#6fb0d6")) +
      box(70, 52, 20, 14, "#2f5c78") +
      box(30, 66, 100, 4, "#cdd8d0") +
      hills("70C40 66 110 74 200 68", "#6fae58") +
      tree(24, 76, 8, "#3f8a4e") +
      tree(138, 76, 9, "#3f8a4e") +
      shape("M74 70H86L98 90H62Z", "#f2ead6"),
  ],
};

const wide = ([sky, drawing]: Scene, draw: Draw): string =>
  framed({ kind: "scene", sky: `linear-gradient(${sky.join()})`, width: 160, height: 90 }, drawing(draw));

/** A place that follows from the name alone: where somebody is met. */
export const anywhere = (name: string): string => {
  const draw = drawsOf(`place:${name}`);
  return wide(pick(places, draw), draw);
};

export const sceneForms = { ...family(scenes, (scene, _, draw) => wide(scene, draw)), place: anywhere };
