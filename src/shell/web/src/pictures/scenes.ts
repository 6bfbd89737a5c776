import { pick } from "./chance";
import { type Drawing, wideViews } from "./wide";
import {
  at,
  box,
  cloud,
  dot,
  hills,
  line,
  oval,
  repeat,
  shape,
  sunAt,
  tree,
  windows,
  crowd,
  notes,
  ring,
  stars,
  turned,
} from "./words";

/* Behind people and news. */

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

export const sceneForms = wideViews({
  stage: [
    ["#2a0f63", "#7a2ce0", "#ff5fa8"],
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
});
