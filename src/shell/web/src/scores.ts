import { keepText, keptText } from "./kept";

/** What the lives played on this device came to. */
const place = "backbeat-scores";

export function keptScores(): string {
  return keptText(place);
}

export function keepScores(table: string): void {
  if (table) keepText(place, table);
}
