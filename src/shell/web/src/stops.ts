import { keepText, keptText } from "./kept";

/**
 * How often in a row the engine has stopped without one press in between that worked. It is kept across reloads: a save
 * that stops the engine would stop it again and again.
 */
const place = "backbeat-stops";
const tooMany = 2;

let stops = Number(keptText(place)) || 0;

/** Starting once more would only stop once more. */
export function stopsTooOften(): boolean {
  return stops >= tooMany;
}

export function noteStop(): void {
  write(stops + 1);
}

export function forgetStops(): void {
  if (stops > 0) write(0);
}

function write(count: number): void {
  stops = count;
  keepText(place, count > 0 ? String(count) : "");
}
