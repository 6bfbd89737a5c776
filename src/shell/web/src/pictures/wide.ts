import { family } from "./family";
import type { Draw } from "./palettes";
import { framed } from "./words";

/*
 * Places behind people and news, 160 by 90. Boxes of every shape show them: what tells the place stands between 45 and
 * 115, and a person stands before it.
 */

export type Sky = readonly string[];
export type Drawing = (draw: Draw) => string;
export type Scene = readonly [Sky, Drawing];

export const wide = ([sky, drawing]: Scene, draw: Draw): string =>
  framed({ kind: "scene", sky: `linear-gradient(${sky.join()})`, width: 160, height: 90 }, drawing(draw));

/** The views of one table of scenes. */
export const wideViews = (scenes: Record<string, Scene>) => family(scenes, (scene, _, draw) => wide(scene, draw));
