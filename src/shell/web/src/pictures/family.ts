import { drawsOf } from "./chance";
import type { Draw } from "./palettes";

/**
 * The pictures of one kind: for each form, the markup for a name. `portrait` is the address of who is seen, or "";
 * `hand` is whose work it is, or "": chance falls otherwise for another.
 */
export type Family = Record<string, (name: string, portrait: string, hand?: string) => string>;

/** A family whose forms differ in one drawing; `finish` puts it into its frame. */
export function family<T>(
  drawings: Record<string, T>,
  finish: (drawing: T, name: string, draw: Draw, portrait: string) => string,
): Family {
  return Object.fromEntries(
    Object.entries(drawings).map(([form, drawing]) => [
      form,
      (name: string, portrait: string, hand = "") => finish(drawing, name, drawsOf(`${form}:${name}${hand}`), portrait),
    ]),
  );
}
