/**
 * How often in a row the engine has stopped without one press in between that worked. It is kept across reloads: a save
 * that stops the engine would stop it again and again.
 */
const place = "backbeat-stops";
const tooMany = 2;

let stops = read();

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

function read(): number {
  try {
    return Number(localStorage.getItem(place)) || 0;
  } catch {
    return 0; // no such storage here: then it is counted until the next reload
  }
}

function write(count: number): void {
  stops = count;
  try {
    if (count > 0) localStorage.setItem(place, String(count));
    else localStorage.removeItem(place);
  } catch {
    // counted in memory alone
  }
}
