import { pick } from "./chance";

/** Sky above, sky below, shade, light. */
export type Palette = readonly [string, string, string, string];
export type Draw = () => number;

export const palettes = {
  sunrise: ["#ffd84d", "#e2541c", "#8f2a0c", "#fff6e6"],
  peach: ["#ff8fa8", "#ffa200", "#4a2c00", "#fff0e0"],
  iris: ["#d9a0ff", "#3b56ff", "#0a1a5c", "#f4ecff"],
  lagoon: ["#63dbc9", "#2447e0", "#0b1d6b", "#eafcff"],
  orchid: ["#ff7aa2", "#7a1fd1", "#2c0a55", "#ffe9f2"],
  meadow: ["#a8f0b4", "#0f8a5f", "#053b2c", "#f2fff0"],
  clay: ["#ffe2b8", "#e0795b", "#5f2430", "#fffaf0"],
  ocean: ["#8ee3ff", "#1e6fd0", "#08264d", "#f0fbff"],
  ember: ["#ffb347", "#d81b60", "#4a0a2c", "#fff2dc"],
  mist: ["#c9d6ff", "#6f7bb8", "#242a4d", "#ffffff"],
  lime: ["#f4e04d", "#1fa37a", "#0a3d3a", "#fffde0"],
  rose: ["#ff9a8b", "#b0247c", "#3d0a3f", "#fff0ec"],
  stone: ["#e8e4da", "#8a7f72", "#2b2622", "#ffffff"],
  neon: ["#5ef0ff", "#8a2be2", "#1d0a4a", "#efffff"],
} satisfies Record<string, Palette>;

export type PaletteName = keyof typeof palettes;
const all: readonly Palette[] = Object.values(palettes);

export const anyPalette = (draw: Draw): Palette => pick(all, draw);
