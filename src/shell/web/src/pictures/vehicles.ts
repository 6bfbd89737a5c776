import { pick } from "./chance";
import { family } from "./family";
import { at, box, dot, framed, line, oval, repeat, shape, turned, windows } from "./words";

/* What drives, sails and flies, seen from the side on a stage of 200 by 100; the road lies at 82. */

/** Paint in the light and in the shade. */
type Paint = readonly [string, string];

const paints: readonly Paint[] = [
  ["#f0553c", "#a31322"],
  ["#3f7d5c", "#1e4433"],
  ["#4f8ff0", "#1f449c"],
  ["#f2c230", "#b67d0c"],
  ["#f4f1ea", "#b9b3a6"],
  ["#8a6be0", "#452a91"],
  ["#53545e", "#25262d"],
  ["#f2946b", "#ad4527"],
  ["#58c2c0", "#1d6f78"],
];

const glass = "#35506b";
const pale = "#9fc3df";

const wheel = (x: number, y: number, r = 13): string =>
  dot(x, y, r, "#0c0c10") +
  dot(x, y, r * 0.66, "#b9bcc6") +
  repeat(5, (i) => turned(i * 36, x, y, box(x - r * 0.6, y - 0.8, r * 1.2, 1.6, "#4b4f5a"))) +
  dot(x, y, r * 0.2, "#22242c");

interface Car {
  body: string;
  /** The lower part of the body, in the shade. */
  sill: string;
  panes: string;
  /** Where the wheels stand, and how large they are. */
  wheels: [back: number, front: number, r?: number];
  /** Nose and tail: where the lamps are. */
  lamps: [number, number, number, number];
  more?: string;
}

const car =
  ({ body, sill, panes, wheels: [back, front, r = 13], lamps: [nose, noseY, tail, tailY], more = "" }: Car) =>
  ([light, shade]: Paint): string =>
    shape(body, light) +
    shape(sill, shade) +
    shape(panes, glass) +
    more +
    shape(`M${nose} ${noseY}q7-4 14-2l-4 5q-7 1-11 1Z`, "#fff7d6") +
    shape(`M${tail} ${tailY}q7 2 8 6l-9-1Z`, "#ff5147") +
    wheel(back, 82 - r, r) +
    wheel(front, 82 - r, r);

const water = shape("M0 78q12-5 24 0t24 0 24 0 24 0 24 0 24 0 24 0 24 0 24 0V100H0Z", "#1c86c4", 0.8);

const vehicles: Record<string, (paint: Paint) => string> = {
  scooter: ([light, shade]) =>
    shape("M58 68C60 52 68 46 82 48L92 62H124C126 48 138 40 154 42L158 68C146 62 136 66 132 74H84Z", light) +
    shape("M92 62H124L122 74H84L78 60Z", shade) +
    box(118, 34, 42, 9, "#8a5a3c", 4.5) +
    line("M66 50 74 22M66 20l14 3", "#5b5f6b", 4) +
    dot(64, 36, 5, "#fff3c4") +
    wheel(56, 70, 12) +
    wheel(148, 70, 12),
  hatchback: car({
    body: "M34 72V58q0-5 6-7l20-4 16-17q3-3 8-3h54q6 0 9 5l10 18q3 3 3 7v15Z",
    sill: "M34 72V62H160V72Z",
    panes: "M67 47 80 33H106V47ZM111 33H136L145 47H111Z",
    wheels: [60, 136, 12],
    lamps: [34, 54, 152, 52],
    more: shape("M118 62h18v4h-18Z", "#8a5a3c") + line("M108 32v32", "#000", 1, 0.3),
  }),
  offroader: car({
    body: "M22 70V46q0-3 4-3l40-3 14-17q2-2 6-2h72q5 0 6 4l6 18q6 1 6 6V70Z",
    sill: "M22 70V58H176V70Z",
    panes: "M72 40 84 26h24V40ZM114 26h20V40H114ZM140 26h16l6 14H140Z",
    wheels: [54, 146, 16],
    lamps: [22, 49, 168, 46],
    more: box(176, 40, 8, 20, "#15151a", 3),
  }),
  sedan: car({
    body: "M16 72V58q0-5 8-6l34-5 20-15q5-4 12-4h34q8 0 13 4l18 15 26 4q6 1 6 6v15Z",
    sill: "M16 72V63H187V72Z",
    panes: "M68 47 83 34q3-2 7-2H104V47ZM109 32H124q6 0 9 3l15 12H109Z",
    wheels: [50, 150],
    lamps: [17, 55, 178, 52],
  }),
  buggy: car({
    body: "M24 70V50q0-4 5-4h36l4-6h36v6h54q8 0 8 5v19Z",
    sill: "M24 70V62H167V70Z",
    panes: "M70 40 78 22h3L75 40Z",
    wheels: [54, 142, 16],
    lamps: [24, 50, 160, 49],
    more:
      line("M79 22H138L152 46M108 22V46", "#b9bcc6", 3.4) +
      box(114, 36, 18, 12, "#8a5a3c", 3) +
      box(166, 40, 7, 20, "#15151a", 3),
  }),
  sports: car({
    body: "M14 72V60q1-5 12-7 16-3 30-5 10-9 24-15 12-4 26-4h12q14 0 24 7l16 12q20 2 28 6 4 2 4 8v10Z",
    sill: "M14 72V64H190V72Z",
    panes: "M70 47q10-9 22-12 8-2 14-2V47ZM112 33q14 0 22 5l13 9H112Z",
    wheels: [48, 152, 14],
    lamps: [16, 57, 180, 54],
    more: shape("M158 44h26l4-4h4l-4 10Z", "#22222a"),
  }),
  electric: car({
    body: "M14 72V61q0-6 10-8 18-3 34-8 16-13 34-17 24-4 44 4 16 7 26 17 18 1 24 6 4 3 4 9v8Z",
    sill: "M14 72V65H190V72Z",
    panes: "M66 45q13-10 28-13 24-4 40 3 12 5 22 13-50 2-90-3Z",
    wheels: [48, 150, 14],
    lamps: [17, 56, 180, 52],
    more: line("M104 31v16", "#fff", 1.4, 0.7),
  }),
  crossover: car({
    body: "M20 72V54q1-5 9-6l31-5 22-17q5-3 11-3h40q9 0 15 5l16 17 16 4q5 2 5 7v16Z",
    sill: "M20 72V60H185V72Z",
    panes: "M70 43 87 29q3-2 8-2H108V44ZM114 27H132q6 0 10 4l14 14-42-1Z",
    wheels: [54, 148, 15],
    lamps: [22, 51, 176, 49],
  }),
  boxy: car({
    body: "M16 70V44q0-4 5-4l36-2 14-20q2-2 6-2h86q5 0 6 4l5 20q3 1 3 4V70Z",
    sill: "M16 70V56H177V70Z",
    panes: "M63 38 75 22h25V38ZM106 22h26V38H106ZM138 22h22l5 16H138Z",
    wheels: [50, 148, 15],
    lamps: [16, 47, 168, 44],
    more: box(176, 34, 10, 20, "#15151a", 3) + box(16, 66, 162, 4, "#15151a"),
  }),
  supercar: car({
    body: "M8 72V64q2-4 14-7L70 45 104 32q8-2 16 0l34 10 34 8q6 2 5 9l-1 13Z",
    sill: "M8 72 12 66H120L140 54 192 60V72Z",
    panes: "M76 46 106 35q6-1 10 0L120 48Z",
    wheels: [46, 156, 14],
    lamps: [14, 60, 182, 50],
    more: shape("M126 50 148 45 144 56H124Z", "#15151a", 0.8) + shape("M160 38h30v4l-26 4Z", "#22222a"),
  }),
  coupe: car({
    body: "M12 68C10 60 16 55 30 53 44 51 54 49 62 44 76 34 94 29 114 30 134 31 148 38 162 48 176 50 188 54 190 62L189 72H12Z",
    sill: "M12 72V66C70 69 130 68 190 66V72Z",
    panes: "M70 47C82 37 98 34 110 34L112 48C98 49.5 84 49 70 47ZM116 34C131 35 143 40 152 48L118 48Z",
    wheels: [49, 151],
    lamps: [14, 58, 181, 55],
    more: line("M66 52C96 56 136 55 184 60", "#fff", 1.2, 0.55),
  }),
  convertible: car({
    body: "M10 70C9 60 16 56 34 54L74 49H146C168 49 186 52 191 60L191 72H10Z",
    sill: "M10 72V66H191V72Z",
    panes: "M74 49 90 31h5L86 49Z",
    wheels: [46, 154, 14],
    lamps: [12, 60, 182, 56],
    more: shape("M98 49q2-12 10-12t8 12ZM124 49q2-12 10-12t8 12Z", "#7a4a30") + shape("M140 49q8-7 26 2Z", "#22222a"),
  }),
  limousine: car({
    body: "M8 70V52q0-4 6-5l46-4 18-15q4-3 10-3h54q10 0 15 5l14 14 17 5q4 2 4 7V70Z",
    sill: "M8 70V60H192V70Z",
    panes: "M68 43 84 29H104V43ZM110 29h16V43H110ZM132 29h10q6 0 10 4l9 10H132Z",
    wheels: [42, 156, 15],
    lamps: [9, 52, 184, 49],
    more: box(8, 46, 7, 15, "#d9dde4", 1) + line("M16 57H186", "#fff", 1.2, 0.5) + shape("M12 46l4-6 1 6Z", "#d9dde4"),
  }),
  van: car({
    body: "M20 72V52q0-4 6-6l14-4 16-18q3-3 8-3H172q6 0 6 6V72Z",
    sill: "M20 72V62H178V72Z",
    panes: "M48 42 61 27H82V42Z",
    wheels: [54, 146],
    lamps: [20, 54, 172, 56],
    more: line("M88 24V68M130 24V68", "#000", 1, 0.25),
  }),
  bus: car({
    body: "M10 72V26q0-8 8-8H184q6 0 6 7V72Z",
    sill: "M10 72V56H190V72Z",
    panes: "M10 28H30V50H10ZM36 26H184V42H36Z",
    wheels: [46, 152],
    lamps: [10, 62, 184, 60],
    more: repeat(4, (i) => box(62 + i * 30, 26, 3, 16, "#0d1420")),
  }),
  propeller: ([light, shade]) =>
    shape("M30 58C30 48 44 45 62 44L82 32H116L128 44 176 40 184 22H194L190 50 130 62C90 70 32 72 30 58Z", "#f3f5f8") +
    shape("M30 60C70 62 140 58 190 46L190 50 130 62C90 70 32 72 30 60Z", light) +
    shape("M70 44 84 35H97V44ZM101 35H114L121 44H101Z", glass) +
    box(58, 27, 84, 6, shade, 3) +
    line("M74 33 84 58", "#8e99ab", 2) +
    oval(28, 56, 2.6, 20, "#5b5f6b", 0.8) +
    line("M58 68 50 78M100 66 106 78", "#5b5f6b", 3) +
    dot(50, 79, 4, "#22222a") +
    dot(106, 79, 4, "#22222a"),
  helicopter: ([light, shade]) =>
    shape(
      "M50 50C50 36 66 28 90 28 114 28 126 38 128 48L184 43 186 50 128 62C120 72 104 72 84 72 62 72 50 64 50 50Z",
      light,
    ) +
    shape("M50 56C80 62 120 62 186 48L186 50 128 62C120 72 104 72 84 72 64 72 52 66 50 56Z", shade) +
    shape("M55 49C56 39 68 33 86 33V52H55ZM94 36H112V50H94Z", pale) +
    line("M178 34 190 58", shade, 5) +
    line("M20 21H160M90 21V29", "#8c93a0", 3.4) +
    line("M54 82H126M68 72V82M108 72V82", "#5b5f6b", 3),
  jet: ([light, shade]) =>
    shape("M8 52C22 42 44 39 70 39H150L172 18h14l-8 26q6 3 6 6 0 5-10 6L60 60C36 61 18 58 8 52Z", "#f3f5f8") +
    shape("M8 52C60 56 130 56 184 50q0 5-10 6L60 60C36 61 18 58 8 52Z", light) +
    shape("M92 56 62 82h14L128 56Z", "#8e99ab") +
    box(126, 36, 32, 11, shade, 5.5) +
    shape("M22 46q8-4 14-4v5Z", "#26384c") +
    windows(48, 43, 6, 1, "#26384c", { width: 6, height: 5, stepX: 12 }),
  transport: ([light, shade]) =>
    at(
      0,
      9,
      shape("M8 52C10 38 24 32 44 30H150L176 10H190L184 42C178 52 160 58 136 60L60 66C30 68 8 64 8 52Z", "#7d8b78") +
        shape("M8 54C60 62 130 60 185 40L184 42C178 52 160 58 136 60L60 66C30 68 10 64 8 54Z", "#55624f") +
        shape("M14 44q6-8 18-9l2 8Z", "#1d2a1d") +
        box(52, 24, 92, 7, "#55624f", 3) +
        box(62, 30, 22, 8, "#3a4436", 4) +
        box(108, 30, 22, 8, "#3a4436", 4) +
        oval(62, 34, 2, 12, light, 0.9) +
        oval(108, 34, 2, 12, light, 0.9) +
        repeat(4, (i) => dot(64 + i * 11, 67, 5, "#17171c")) +
        box(168, 22, 12, 5, shade),
    ),
  stealth: () =>
    shape("M4 50 100 26 196 50 164 56 146 50 128 60 100 50 72 60 54 50 36 56Z", "#7b8090") +
    shape("M4 50 100 42 196 50 164 56 146 50 128 60 100 50 72 60 54 50 36 56Z", "#555a68") +
    shape("M86 40q14-10 28 0-14 4-28 0Z", "#2a2d36") +
    shape("M90 38q10-6 20 0Z", "#7f92b5", 0.8),
  boat: ([light, shade]) =>
    line("M98 10V66", "#8a5a34", 3) +
    shape("M94 14V60H44C66 48 84 34 94 14Z", "#fffaf0") +
    shape("M102 20C124 30 134 46 136 60H102Z", light) +
    shape("M36 64H164C158 76 148 82 134 82H66C50 82 42 76 36 64Z", shade) +
    box(38, 66, 124, 3, "#fff", 0, 0.7) +
    water,
  yacht: ([light]) =>
    shape("M14 56H190C184 72 172 82 156 82H44C30 82 20 72 14 56Z", "#fdfdfd") +
    shape("M17 62H187L183 68H21Z", light) +
    shape("M52 56 62 42H146L160 56Z", "#f1f4f8") +
    shape("M66 42 72 31H128L140 42Z", "#e3e9f0") +
    shape("M58 52 64 45H146L152 52ZM74 39 78 34H126L131 39Z", "#20405c") +
    line("M96 31V18M92 21h12", "#8e99ab", 2) +
    water,
  superyacht: ([light, shade]) =>
    shape("M4 58H196C192 72 180 82 164 82H36C20 82 8 72 4 58Z", "#fdfdfd") +
    shape("M6 64H194L191 69H9Z", light) +
    shape("M34 58 42 46H160L176 58Z", "#f1f4f8") +
    shape("M50 46 56 35H142L154 46Z", "#e7ecf2") +
    shape("M66 35 72 25H122L134 35Z", "#dbe3eb") +
    shape("M40 54 44 49H158L164 54ZM56 43 60 38H140L146 43ZM74 32 77 28H120L125 32Z", "#20405c") +
    line("M92 25V10M86 14h14", "#8e99ab", 2) +
    shape("M150 46h26l-4-5h-8v-6h-3v6h-7Z", shade) +
    water,
};

const ground = "radial-gradient(60% 90% at 50% 100%,#5c5a66,#2a2a31 70%)";

export const vehicleForms = family(vehicles, (vehicle, _, draw) =>
  framed(
    { kind: "object ride", sky: ground, width: 200, whole: true },
    oval(100, 84, 88, 5, "#000", 0.4) + vehicle(pick(paints, draw)),
  ),
);
