import { pick } from "./chance";
import { family } from "./family";
import { box, fade, framed, glints, hills, mirrored, repeat, shape } from "./words";

/* What homes have in common, 160 by 100: a house stands between 30 and 130, the ground begins near 72. */

export type Sky = readonly [string, string];
export const dusk: Sky = ["#ffb37a", "#7a5ad0"];
export const gold: Sky = ["#ffd98f", "#f08a5d"];
export const day: Sky = ["#8fe0ff", "#e6fbff"];
export const clear: Sky = ["#9fd3f2", "#f6e2c8"];
export const haze: Sky = ["#c9b6e8", "#ffd9c0"];
export const noon: Sky = ["#6fc3f7", "#d9f4ff"];
export const evening: Sky = ["#3b2b7a", "#ff8a7a"];
export const snowy: Sky = ["#8fb4e0", "#f2e6f5"];

export interface Home {
  skies: readonly Sky[];
  drawing: string;
}

export const lit = "#ffd48a";
export const cream = "#f7f2ea";
export const sea = "#1f9fc9";
export const sand = "#f5dfae";

export const pool = (x: number, y: number, width: number): string =>
  shape(`M${x} ${y}H${x + width}l8 10H${x - 8}Z`, "#2aa5cf") +
  glints([
    [x + 12, y + 3, width * 0.35],
    [x + width * 0.4, y + 7, width * 0.4],
  ]);

/** A storey of glass between two slabs. */
export const storey = (x: number, y: number, width: number, height: number, glass: string = lit): string =>
  box(x, y, width, height, glass) +
  repeat(Math.floor(width / 13), (i) => box(x + 12 + i * 13, y, 1, height, "#8a5a24")) +
  box(x - 6, y - 5, width + 12, 5, cream);

export const lawn = (fill = "#5c9a4e", y = 70): string => hills(`${y}C40 ${y - 5} 120 ${y - 5} 200 ${y}`, fill);
export const beach = (y = 76): string => hills(`${y}C40 ${y - 6} 110 ${y + 4} 200 ${y - 2}`, sand);
export const openSea = (y: number, fill = sea): string => box(-40, y, 240, 100 - y + 40, fill);

/** The views of one table of homes: at an hour that suits the place, and from one side or the other. */
export const homeViews = (homes: Record<string, Home>) =>
  family(homes, ({ skies, drawing }, _, draw) => {
    const [above, below] = pick(skies, draw);
    return framed(
      { kind: "scene", sky: fade(above, below), width: 160 },
      draw() < 0.5 ? drawing : mirrored(160, drawing),
    );
  });
