/** Short texts that stay with this browser, whatever career is played. Without such a storage they hold until a reload. */

/** The text at a place, "" when nothing is kept there. */
export function keptText(place: string): string {
  try {
    return localStorage.getItem(place) ?? "";
  } catch {
    return "";
  }
}

/** Keeps a text; an empty one clears its place. */
export function keepText(place: string, text: string): void {
  try {
    if (text) localStorage.setItem(place, text);
    else localStorage.removeItem(place);
  } catch {
    // no such storage here, or it is full
  }
}
