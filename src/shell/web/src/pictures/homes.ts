import {
  dusk,
  gold,
  day,
  clear,
  haze,
  noon,
  evening,
  snowy,
  lit,
  cream,
  pool,
  storey,
  lawn,
  openSea,
  homeViews,
} from "./building";
import {
  box,
  cloud,
  dot,
  gable,
  glints,
  hills,
  line,
  palm,
  peaks,
  pine,
  repeat,
  shape,
  sunAt,
  tree,
  windows,
} from "./words";

/* Homes inland, and land. */

const vines = repeat(3, (i) =>
  line(`M-10 ${76 + i * 10}C50 ${64 + i * 8} 110 ${66 + i * 8} 170 ${74 + i * 9}`, "#5d7d36", 3.4),
);

const fence = line("M-10 84H170M-10 90H170", "#8d5f34", 1.6) + repeat(7, (i) => box(6 + i * 26, 79, 2, 15, "#8d5f34"));

export const homeForms = homeViews({
  townhouse: {
    skies: [haze, clear],
    drawing:
      ["#b9574c", "#e9d8b8", "#54677e", "#c98b52"]
        .map((wall, i) => {
          const [x, y] = [10 + i * 36, 34 - (i % 2) * 7];
          return (
            gable(x, 92, 33, 92 - y, wall, "#3c3346") +
            windows(x + 6, y + 8, 2, 2, i === 1 ? "#7d95b0" : "#ffe6ad", {
              width: 8,
              height: 11,
              stepX: 13,
              stepY: 18,
            }) +
            box(x + 12, 76, 9, 16, "#2c2330")
          );
        })
        .join("") + box(-40, 90, 240, 40, "#6f6a78"),
  },
  cabin: {
    skies: [clear, snowy],
    drawing:
      peaks(78, "#7f98b4") +
      box(-40, 66, 240, 40, "#3f6b4f") +
      pine(22, 72, 30, "#2d5440") +
      pine(36, 74, 22, "#2d5440") +
      pine(134, 73, 32, "#2d5440") +
      pine(148, 74, 24, "#2d5440") +
      box(58, 50, 48, 26, "#a8663c") +
      shape("M52 54 82 30 112 54 106 54 82 36 58 54Z", "#5a2f22") +
      shape("M58 51 82 35 106 51Z", "#a8663c") +
      box(66, 56, 12, 10, "#ffe3a1") +
      box(87, 56, 12, 20, "#5a2f22") +
      box(98, 30, 6, 14, "#5a2f22") +
      lawn("#4c7d56", 80),
  },
  farmhouse: {
    skies: [day, gold],
    drawing:
      hills("62C40 50 90 64 200 54", "#9cc77c") +
      gable(100, 76, 30, 24, "#b8402f", "#6e2318") +
      box(110, 60, 10, 16, cream) +
      line("M110 60 120 76M120 60 110 76", "#b8402f", 1.2) +
      gable(44, 76, 50, 24, cream, "#5b6673") +
      windows(50, 57, 4, 1, "#6f8aa5", { width: 6, height: 9, stepX: 12 }) +
      box(40, 68, 58, 2, "#5b6673") +
      box(66, 66, 7, 10, "#b8402f") +
      tree(26, 78, 12, "#3f7d46") +
      lawn("#7db060", 76) +
      fence,
  },
  modern: {
    skies: [dusk, gold, evening],
    drawing:
      sunAt(122, 30) +
      shape("M-10 62 30 44 62 60 96 42 170 64V80H-10Z", "#3b2b6b", 0.45) +
      box(-40, 70, 240, 60, "#23402f") +
      palm(20, 76) +
      storey(50, 43, 64, 14) +
      storey(40, 61, 86, 13, "#ffc46b") +
      box(112, 43, 12, 31, "#c9bba6") +
      shape("M22 78H146L158 96H8Z", "#e8dcc8") +
      pool(44, 81, 74),
  },
  ranch: {
    skies: [gold, dusk],
    drawing:
      shape("M-10 58 28 50 40 40 62 40 70 52 104 48 112 36 138 36 170 54V70H-10Z", "#b3523c") +
      box(-40, 66, 240, 60, "#d9a55e") +
      shape("M32 62 70 45 110 62Z", "#5a2c22") +
      box(40, 61, 62, 16, "#f3e4cb") +
      windows(48, 65, 3, 1, "#6b4630", { width: 9, height: 8, stepX: 17 }) +
      gable(102, 77, 26, 25, "#c2513a", "#7d2f22") +
      box(110, 63, 10, 14, "#6b4630") +
      fence,
  },
  lakeHouse: {
    skies: [clear, evening],
    drawing:
      peaks(72, "#8aa2c4") +
      hills("66C40 58 90 66 200 58", "#3f6b4f") +
      pine(20, 72, 34, "#27503c") +
      pine(140, 72, 36, "#27503c") +
      pine(128, 72, 24, "#2f5c46") +
      shape("M44 58 66 38 88 50 104 42 122 58Z", "#4a3a33") +
      box(50, 54, 66, 18, "#b07a4c") +
      windows(56, 57, 5, 1, lit, { width: 8, height: 11, stepX: 12 }) +
      openSea(72, "#4f93b8") +
      shape("M76 72H86L92 96H70Z", "#a9835c") +
      glints([
        [8, 82, 40],
        [104, 86, 46],
      ]),
  },
  vineyard: {
    skies: [["#ffe7b8", "#b7cf8a"], gold],
    drawing:
      hills("56C40 40 70 54 100 46S146 44 200 52", "#86a858") +
      box(54, 38, 54, 27, "#f7ecd6") +
      shape("M50 39 58 26H104L112 39Z", "#4f5f78") +
      box(44, 34, 14, 31, "#efe0c4") +
      shape("M42 35 51 16 60 35Z", "#4f5f78") +
      windows(64, 44, 3, 1, "#6b7c94", { width: 6, height: 9, stepX: 14 }) +
      box(48.5, 44, 5, 8, "#6b7c94") +
      hills("66C50 60 120 62 200 66", "#7a9c4c") +
      vines,
  },
  chalet: {
    skies: [snowy, evening],
    drawing:
      peaks(74, "#6f86a8") +
      hills("70C40 60 110 66 200 60", "#f4f8ff") +
      pine(24, 76, 30, "#2d5440") +
      pine(142, 74, 34, "#2d5440") +
      box(46, 44, 30, 34, "#2d3038") +
      box(76, 54, 46, 24, "#9a8a78") +
      windows(50, 50, 2, 2, lit, { width: 9, height: 10, stepX: 12, stepY: 14 }) +
      box(80, 59, 38, 12, lit) +
      box(42, 40, 40, 5, "#fff") +
      box(72, 50, 56, 5, "#fff") +
      hills("80C50 74 110 82 200 76", "#fff"),
  },
  prairie: {
    skies: [gold, noon],
    drawing:
      cloud(30, 24) +
      cloud(104, 18, 0.8) +
      peaks(60, "#8c9cc0") +
      hills("60C40 52 110 60 200 54", "#c2b45c") +
      hills("74C40 62 90 78 200 66", "#9fae52") +
      line("M84 58C70 70 104 76 78 100", "#7fc4e8", 5) +
      tree(120, 74, 6, "#4f7a3c") +
      tree(132, 78, 7, "#4f7a3c") +
      shape("M30 78q6-7 12-3l6-1-1 6-3 6-1-5h-8l-2 5-2-6Z", "#5a3a28") +
      shape("M52 84q5-6 10-3l5-1-1 5-2 5-1-4h-7l-1 4-2-5Z", "#5a3a28"),
  },
  lodge: {
    skies: [clear, evening],
    drawing:
      peaks(74, "#5f7a9c") +
      hills("68C40 60 110 70 200 62", "#5c8a54") +
      shape("M30 60 56 40 82 60ZM74 60 102 34 132 60Z", "#4a2c20") +
      box(38, 58, 86, 18, "#8a5a38") +
      box(90, 46, 24, 30, "#9c8f80") +
      shape("M94 76V56L102 46 110 56V76Z", lit) +
      windows(44, 62, 4, 1, lit, { width: 7, height: 8, stepX: 11 }) +
      pine(20, 80, 34, "#24452f") +
      pine(146, 80, 30, "#24452f") +
      lawn("#6a9a58", 78),
  },
  shingle: {
    skies: [clear, day],
    drawing:
      openSea(62, "#6fa8c9") +
      hills("72C40 64 110 68 200 66", "#a9b86a") +
      gable(46, 78, 44, 28, "#a89c8a", "#5f5a58") +
      gable(84, 78, 34, 24, "#b8ac98", "#6a6462") +
      windows(51, 55, 3, 1, "#fff", { width: 6, height: 7, stepX: 12 }) +
      windows(51, 66, 1, 1, "#fff", { width: 12, height: 7 }) +
      windows(91, 62, 2, 1, "#fff", { width: 7, height: 8, stepX: 13 }) +
      box(70, 66, 8, 12, "#fff") +
      box(98, 38, 6, 16, "#8a4a3c") +
      lawn("#8aa85c", 80) +
      repeat(9, (i) => dot(34 + i * 12, 83, 4, i % 3 ? "#7a9ad0" : "#b3a0e0")) +
      repeat(12, (i) => box(-4 + i * 15, 84, 3, 12, "#fff")) +
      box(-40, 87, 240, 2, "#fff"),
  },
  villa: {
    skies: [noon, gold],
    drawing:
      hills("60C40 48 100 62 200 50", "#a3b06a") +
      box(40, 46, 44, 32, "#fff6e8") +
      box(84, 54, 40, 24, "#f6e6cc") +
      shape("M36 46 44 38H80L88 46ZM82 54 90 47H118L128 54Z", "#d0704a") +
      repeat(3, (i) => shape(`M${46 + i * 13} 78V66a4.5 5 0 0 1 9 0V78Z`, "#8a6a4c")) +
      windows(47, 51, 3, 1, "#7da3b8", { width: 6, height: 8, stepX: 13 }) +
      windows(91, 60, 3, 1, "#7da3b8", { width: 6, height: 9, stepX: 11 }) +
      repeat(3, (i) => shape(`M${26 - i * 9} 80q-4-22 0-34 4 12 0 34Z`, "#2f5c3c")) +
      lawn("#b8b870", 78) +
      pool(70, 82, 60),
  },
  estate: {
    skies: [clear, haze],
    drawing:
      hills("64C40 58 110 62 200 58", "#5f8a4e") +
      box(28, 46, 104, 30, "#e6d9c0") +
      shape("M24 46 34 32H126L136 46Z", "#5a5666") +
      box(64, 40, 32, 36, "#f4ead6") +
      shape("M60 42 80 26 100 42Z", "#5a5666") +
      windows(34, 51, 3, 2, "#6f86a0", { width: 5, height: 8, stepX: 10, stepY: 12 }) +
      windows(102, 51, 3, 2, "#6f86a0", { width: 5, height: 8, stepX: 10, stepY: 12 }) +
      repeat(4, (i) => box(66 + i * 8, 46, 3, 30, "#fff")) +
      box(76, 62, 8, 14, "#7d5236") +
      box(42, 24, 6, 14, "#8a5a48") +
      box(112, 24, 6, 14, "#8a5a48") +
      lawn("#79a85c", 76) +
      shape("M74 76H86L104 100H56Z", "#e3d6bd") +
      repeat(3, (i) => dot(30 + i * 11, 82, 4, "#3f6b3a") + dot(108 + i * 11, 82, 4, "#3f6b3a")),
  },
  parisian: {
    skies: [haze, gold],
    drawing:
      box(6, 34, 40, 60, "#cdbfae") +
      box(114, 30, 42, 64, "#c4b49f") +
      shape("M6 34 10 22H42L46 34ZM114 30 118 18H152L156 30Z", "#7c8296") +
      windows(12, 42, 3, 3, "#8b97ab", { width: 6, height: 9, stepX: 11, stepY: 15 }) +
      windows(120, 38, 3, 4, "#8b97ab", { width: 6, height: 9, stepX: 12, stepY: 14 }) +
      box(48, 26, 64, 68, "#f0e4cf") +
      shape("M46 26 54 8H106L114 26Z", "#5a6480") +
      windows(56, 13, 4, 1, "#ffe6ad", { width: 6, height: 9, stepX: 14 }) +
      windows(54, 32, 5, 4, "#7a8aa3", { width: 6, height: 10, stepX: 12, stepY: 14 }) +
      repeat(4, (i) => box(50, 43 + i * 14, 60, 1.2, "#3a3440")) +
      box(74, 82, 12, 12, "#2f4a5c") +
      box(-40, 92, 240, 40, "#6f6a78"),
  },
  manor: {
    skies: [clear, gold],
    drawing:
      hills("64C40 54 110 62 200 56", "#6f9a58") +
      shape("M36 42 80 24 124 42Z", "#4f4a52") +
      box(40, 42, 80, 34, "#fffaf2") +
      box(40, 57, 80, 2, "#d8cfc0") +
      windows(47, 47, 6, 1, "#5f7a68", { width: 5, height: 8, stepX: 12.4 }) +
      windows(47, 62, 6, 1, "#5f7a68", { width: 5, height: 12, stepX: 12.4 }) +
      repeat(6, (i) => box(41 + i * 15, 42, 3.4, 34, "#fff")) +
      box(76, 62, 8, 14, "#7d3f30") +
      box(32, 76, 96, 3, "#d8cfc0") +
      tree(22, 82, 14, "#4a7a44") +
      tree(140, 82, 14, "#4a7a44") +
      lawn("#84b064", 79),
  },
});
