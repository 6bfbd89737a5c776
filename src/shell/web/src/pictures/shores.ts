import {
  dusk,
  gold,
  day,
  clear,
  haze,
  noon,
  evening,
  sea,
  sand,
  pool,
  storey,
  lawn,
  beach,
  openSea,
  homeViews,
} from "./building";
import { box, cloud, gable, glints, hills, line, oval, palm, repeat, shape, sunAt, windows } from "./words";

/* Homes by the sea, and land there. */

export const shoreForms = homeViews({
  beachHouse: {
    skies: [day, gold, noon],
    drawing:
      sunAt(128, 26, 11) +
      openSea(58) +
      glints([
        [12, 64, 30],
        [108, 68, 36],
      ]) +
      beach(74) +
      repeat(5, (i) => box(50 + i * 14, 68, 3, 14, "#8a6a4c")) +
      box(44, 66, 72, 4, "#c9a578") +
      gable(52, 66, 54, 20, "#fff7ec", "#e0795b") +
      windows(58, 51, 4, 1, "#6bb4cf", { width: 7, height: 10, stepX: 12 }) +
      palm(26, 82, 1.1) +
      palm(138, 80, 0.9),
  },
  bungalow: {
    skies: [noon, dusk],
    drawing:
      sunAt(34, 26, 11) +
      openSea(60) +
      beach(72) +
      shape("M40 56Q80 22 120 56Q80 50 40 56Z", "#c9974f") +
      box(50, 54, 60, 20, "#fff4dc") +
      box(56, 58, 48, 12, "#5a8f93") +
      windows(56, 58, 5, 1, "#fff4dc", { width: 2, height: 12, stepX: 12 }) +
      box(44, 73, 72, 4, "#a9835c") +
      palm(128, 84, 1.2) +
      palm(30, 82, 1) +
      pool(58, 83, 44),
  },
  reef: {
    skies: [noon, day],
    drawing:
      cloud(100, 22) +
      openSea(46, "#38bfd0") +
      shape("M-10 46C30 30 60 34 88 46Z", "#3d8a55") +
      shape("M-10 58C30 46 70 50 108 60 140 68 170 64 170 64V100H-10Z", "#5fd6d0") +
      shape("M-10 76C30 62 60 76 96 84S160 86 170 92V100H-10Z", sand) +
      palm(34, 82, 1.1, "#1f6b3f") +
      palm(50, 86, 0.8, "#1f6b3f") +
      [
        [96, 66],
        [116, 72],
        [132, 66],
      ]
        .map(([x, y]) => oval(x!, y!, 7, 2.4, "#1f8f9c", 0.7))
        .join(""),
  },
  island: {
    skies: [day, dusk],
    drawing:
      sunAt(34, 26, 11, "#fff6cf") +
      openSea(54, sea) +
      shape("M20 70C46 52 112 50 144 70 120 78 44 78 20 70Z", sand) +
      shape("M40 66C58 46 104 44 124 66 100 71 62 71 40 66Z", "#3d9b5f") +
      gable(66, 62, 34, 12, "#fff", "#d8674a") +
      windows(71, 53, 3, 1, "#5a8fb0", { width: 5, height: 6, stepX: 10 }) +
      palm(50, 68, 0.8, "#2a7d4b", "#7a5234") +
      palm(114, 68, 0.85, "#2a7d4b", "#7a5234") +
      box(78, 74, 4, 14, "#a9835c") +
      glints([
        [12, 84, 34],
        [96, 90, 48],
      ]),
  },
  fortress: {
    skies: [gold, clear],
    drawing:
      openSea(62, "#2b6fa8") +
      shape("M24 78 34 64 60 58 104 58 128 66 138 78Z", "#8a7560") +
      box(44, 40, 74, 24, "#d9c7a3") +
      repeat(8, (i) => box(44 + i * 9.7, 36, 5.5, 5, "#d9c7a3")) +
      box(36, 28, 16, 38, "#c7b38c") +
      box(108, 24, 18, 42, "#c7b38c") +
      repeat(3, (i) => box(36 + i * 5.6, 24, 4, 5, "#c7b38c") + box(108 + i * 6.6, 20, 4.6, 5, "#c7b38c")) +
      windows(58, 48, 4, 1, "#4a3c2c", { width: 4, height: 8, stepX: 13 }) +
      shape("M76 64V56a5 5 0 0 1 10 0V64Z", "#4a3c2c") +
      line("M117 20V10", "#4a3c2c", 1.4) +
      shape("M117 10l10 3-10 3Z", "#d8674a") +
      glints([
        [10, 86, 40],
        [96, 90, 50],
      ]),
  },
  heartIsland: {
    skies: [noon, haze],
    drawing:
      openSea(30, "#28b5cf") +
      shape("M80 96C20 74 16 46 44 42 62 40 76 48 80 56 84 48 98 40 116 42 144 46 140 74 80 96Z", "#7ee6df") +
      shape("M80 88C32 70 28 51 47 48 63 46 76 53 80 61 84 53 97 46 113 48 132 51 128 70 80 88Z", sand) +
      shape("M80 82C44 68 38 57 51 54 64 52 76 60 80 67 84 60 96 52 109 54 122 57 116 68 80 82Z", "#3d9b5f") +
      glints([
        [4, 44, 26],
        [128, 40, 28],
        [16, 90, 30],
      ]),
  },
  palmBeach: {
    skies: [day, dusk, gold],
    drawing:
      sunAt(96, 40, 15) +
      openSea(54, "#2f9fc4") +
      shape("M-10 60C10 48 30 44 46 56Z", "#2f5c4c") +
      glints([
        [70, 60, 44],
        [60, 66, 30],
      ]) +
      beach(78) +
      palm(30, 88, 1.5, "#1c5236") +
      palm(46, 90, 1.1, "#1c5236") +
      palm(136, 88, 1.3, "#1c5236"),
  },
  mansion: {
    skies: [noon, dusk],
    drawing:
      openSea(50, "#4fa8d0") +
      hills("62C40 58 110 60 200 58", "#4f8a4c") +
      box(22, 42, 116, 30, "#fff3df") +
      shape("M18 42 26 34H134L142 42Z", "#c46a48") +
      box(62, 34, 36, 38, "#fff9ee") +
      shape("M58 34 66 26H94L102 34Z", "#c46a48") +
      repeat(3, (i) => shape(`M${66 + i * 10} 72V54a4 5 0 0 1 8 0V72Z`, "#6b8ea8")) +
      windows(28, 47, 3, 2, "#6b8ea8", { width: 6, height: 8, stepX: 11, stepY: 12 }) +
      windows(103, 47, 3, 2, "#6b8ea8", { width: 6, height: 8, stepX: 11, stepY: 12 }) +
      palm(14, 80, 1.2) +
      palm(146, 80, 1.2) +
      lawn("#6fae58", 73) +
      shape("M34 78H126L140 96H20Z", "#efe2cb") +
      pool(50, 82, 60),
  },
  cliffHouse: {
    skies: [dusk, evening],
    drawing:
      sunAt(36, 46, 15) +
      openSea(56, "#35508f") +
      glints([
        [8, 62, 44],
        [20, 68, 30],
      ]) +
      shape("M66 100 74 84 70 70 84 60 170 54V100Z", "#6b4a44") +
      shape("M84 100 92 80 88 66 170 58V100Z", "#523431") +
      storey(84, 46, 60, 14) +
      storey(70, 34, 46, 10, "#ffc46b") +
      box(78, 60, 4, 14, "#c9bba6") +
      box(120, 34, 10, 26, "#c9bba6") +
      openSea(92, "#2a4280"),
  },
  lagoon: {
    skies: [noon, haze],
    drawing:
      cloud(24, 24, 0.9) +
      openSea(52, "#25b3c9") +
      shape("M-10 58C6 44 34 42 58 54 40 60 10 62-10 62Z", "#3d9b5f") +
      shape("M-10 66C40 58 110 60 170 68V76H-10Z", "#7ee6df", 0.7) +
      [38, 70, 102]
        .map(
          (x, i) =>
            repeat(2, (k) => box(x + 4 + k * 16, 70, 2, 12 + (i % 2) * 3, "#7a5234")) +
            box(x, 58, 26, 13, "#fff0d6") +
            box(x + 9, 61, 8, 10, "#4a7a86") +
            shape(`M${x - 4} 59Q${x + 13} 34 ${x + 30} 59Z`, "#b88748"),
        )
        .join("") +
      box(30, 70, 112, 3, "#a9835c") +
      glints([
        [10, 88, 40],
        [92, 92, 44],
      ]),
  },
});
