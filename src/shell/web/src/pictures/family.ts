import { drawsOf } from "./chance";
import type { Draw } from "./palettes";

/** The pictures of one kind: for each form, the markup for a name. `portrait` is the address of who is seen, or "". */
export type Family = Record<string, (name: string, portrait: string) => string>;

/** A family whose forms differ in one drawing; `finish` puts it into its frame. */
export function family<T>(
  drawings: Record<string, T>,
  finish: (drawing: T, name: string, draw: Draw, portrait: string) => string,
): Family {
  return Object.fromEntries(
    Object.entries(drawings).map(([form, drawing]) => [
      form,
      (name: string, portrait: string) => finish(drawing, name, drawsOf(`${form}:${name}`), portrait),
    ]),
  );
}
