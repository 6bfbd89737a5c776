import { pick } from "./chance";
import { family } from "./family";
import { box, crowd, dot, fade, framed, line, oval, repeat, shape, windows } from "./words";

/* Venues at night, lit from within: dark as the building, light as what is lit. */

const dark = "#0c0c22";

const venues: Record<string, (light: string) => string> = {
  stadium: (light) =>
    shape("M6 66C6 46 26 40 50 40S94 46 94 66L88 82H12Z", dark) +
    oval(50, 58, 36, 12, light) +
    oval(50, 60, 26, 7.5, dark, 0.6) +
    line("M22 71v9M36 75v6M50 76v5M64 75v6M78 71v9", light, 1.6, 0.5),
  nest: (light) =>
    shape("M8 70C6 50 24 44 50 44S94 50 92 70L86 82H14Z", light, 0.95) +
    line("M10 70 34 46 26 81 58 45 48 82 80 50 66 82 92 64M14 56 40 82 32 45 74 82 60 44 90 74", dark, 3) +
    oval(50, 48, 30, 5.5, dark),
  arena: (light) =>
    shape("M8 64Q50 22 92 64V82H8Z", dark) + box(14, 66, 72, 8, light) + line("M26 53Q50 33 74 53", light, 2, 0.75),
  drum: (light) =>
    shape("M14 46C14 38 86 38 86 46V82H14Z", dark) +
    oval(50, 45, 36, 6.5, light, 0.35) +
    windows(18, 56, 11, 1, light, { width: 3, height: 12, stepX: 6 }) +
    box(14, 72, 72, 3, light),
  dome: (light) =>
    shape("M16 72C16 40 34 30 50 30S84 40 84 72Z", dark) +
    line("M50 30V72M34 35C28 46 27 60 27 72M66 35C72 46 73 60 73 72M19 56Q50 47 81 56", light, 1.8, 0.9) +
    box(10, 72, 80, 10, light),
  crystal: (light) =>
    shape("M8 82 20 50 40 34 62 40 80 52 94 82Z", dark) +
    shape(
      "M20 50 40 34 34 62ZM40 34 62 40 52 66ZM62 40 80 52 70 68ZM34 62 52 66 44 82H28ZM52 66 70 68 74 82H54Z",
      light,
      0.85,
    ),
  steps: (light) =>
    shape("M0 84C22 76 30 60 50 60S78 76 100 84Z", dark) +
    shape("M28 62a22 22 0 0 1 44 0Z", light) +
    shape("M35 62a15 15 0 0 1 30 0Z", dark, 0.4) +
    line("M22 72q28-9 56 0M14 78q36-11 72 0", light, 1.6, 0.65),
  rocks: (light) =>
    shape("M0 84V58L8 34 24 24 34 60 40 84ZM100 84V54L90 26 74 32 66 62 60 84Z", "#5a2030") +
    shape("M0 84V62L10 46 22 44 32 84ZM100 84V60L88 44 76 50 68 84Z", "#3a1226") +
    box(36, 60, 28, 18, dark) +
    box(39, 63, 22, 10, light) +
    crowd(100, 84, 2.4, dark),
  shell: (light) =>
    shape("M16 78a34 34 0 0 1 68 0Z", light) +
    repeat(4, (i) => line(`M${22 + i * 7} 78a${28 - i * 7} ${28 - i * 7} 0 0 1 ${56 - i * 14} 0`, dark, 2.2)) +
    box(8, 76, 84, 6, dark),
  pavilion: (light) =>
    shape("M6 60 30 34 50 24 70 34 94 60Z", dark) +
    shape("M30 34 38 60H24ZM50 24 57 60H43ZM70 34 76 60H62Z", light, 0.75) +
    line("M10 60V82M90 60V82", dark, 3) +
    box(24, 66, 52, 12, light) +
    crowd(100, 80, 2.6, dark),
  theatre: (light) =>
    box(22, 30, 56, 54, dark) +
    shape("M44 12H56V30H44Z", dark) +
    box(47, 16, 6, 44, light) +
    shape("M14 60H86L82 72H18Z", light) +
    repeat(9, (i) => dot(19 + i * 7.8, 66, 1.4, dark)) +
    windows(27, 38, 2, 1, light, { width: 8, height: 13, stepX: 38 }) +
    box(40, 74, 20, 8, light),
  hall: (light) =>
    shape("M14 46 50 26 86 46V52H14Z", dark) +
    box(18, 52, 64, 30, dark) +
    [24, 37, 56, 69].map((x) => box(x, 56, 7, 26, light)).join("") +
    dot(50, 41, 4.5, light),
  auditorium: (light) =>
    shape("M16 82V46L50 18 84 46V82Z", dark) +
    [28, 44, 60].map((x, i) => shape(`M${x} 82V${58 - (i % 2) * 8}a6 8 0 0 1 12 0V82Z`, light)).join("") +
    dot(50, 36, 5, light),
  club: (light) =>
    box(16, 36, 68, 46, dark) +
    box(24, 60, 22, 22, light, 0, 0.35) +
    box(56, 52, 14, 30, light) +
    line("M24 48C30 40 34 54 40 46S50 44 50 50", light, 2.6) +
    shape("M52 50 74 50 78 56H48Z", light, 0.6),
};

const skies: readonly [above: string, below: string, light: string][] = [
  ["#5b2a8c", "#ff8f6b", "#ffe0a3"],
  ["#1c1f6b", "#5aa2ff", "#ffd98a"],
  ["#3b1a6e", "#ff6fa0", "#ffd3e4"],
  ["#123a6b", "#3fd0c9", "#eaffc9"],
  ["#8c1f4f", "#ffb347", "#fff0c4"],
  ["#2a1466", "#9d7bff", "#ffd7f6"],
  ["#0d4a4f", "#8be0a4", "#fff3c0"],
  ["#31204f", "#e0795b", "#ffe7c4"],
];

const beams = (light: string): string => shape("M36 62 10-4h14ZM50 58 46-4h12ZM64 62 78-4h14Z", light, 0.28);

export const venueForms = family(venues, (venue, _, draw) => {
  const [above, below, light] = pick(skies, draw);
  return framed(
    { kind: "object", sky: fade(above, below) },
    beams(light) + venue(light) + box(0, 81, 100, 19, "#0a0a1c"),
  );
});
