import { drawsOf, pick } from "./chance";
import { type Drawing, type Scene, wide } from "./wide";
import { box, cloud, dot, hills, line, palm, peaks, pine, repeat, sunAt, tree, windows } from "./words";

/* Where somebody is met. */

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

/** A place that follows from the name alone. */
export const anywhere = (name: string): string => {
  const draw = drawsOf(`place:${name}`);
  return wide(pick(places, draw), draw);
};

export const placeForms = { place: anywhere };
