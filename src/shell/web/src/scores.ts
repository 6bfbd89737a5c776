/** What the lives played on this device came to. It stays with this browser, whatever career is played. */
const place = "backbeat-scores";

export function keptScores(): string {
  try {
    return localStorage.getItem(place) ?? "";
  } catch {
    return ""; // no such storage here: then lives are compared until the next reload
  }
}

export function keepScores(table: string): void {
  if (!table) return;
  try {
    localStorage.setItem(place, table);
  } catch {
    // the next score tries again
  }
}
