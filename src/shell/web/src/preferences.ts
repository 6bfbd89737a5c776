import { keepText, keptText } from "./kept";

/** What the page itself lets the player choose. It stays with this browser and is no part of the save. */
const soundPlace = "backbeat-song-hooks";
const hapticsPlace = "backbeat-haptics";
const movementPlace = "backbeat-movement";
const lettersPlace = "backbeat-letters";

/** How large letters can be, beside what the browser says. */
export const letterSizes = [
  { label: "Small", percent: 90 },
  { label: "Normal", percent: 100 },
  { label: "Large", percent: 115 },
  { label: "Larger", percent: 130 },
] as const;
const normalLetters = 1;

let sound = keptText(soundPlace);
let haptics = keptText(hapticsPlace);
let movement = keptText(movementPlace);
let letters = keptText(lettersPlace);

/** Songs and soft sounds may be heard. */
export function soundOn(): boolean {
  return sound === "1";
}

/** Nobody has said yes or no: a song may offer it, and nothing sounds by itself. */
export function soundOpen(): boolean {
  return sound === "";
}

export function setSound(on: boolean): void {
  sound = kept(soundPlace, on ? "1" : "0");
}

/** The hand feels what happens, where the device can. */
export function hapticsOn(): boolean {
  return haptics !== "0";
}

export function setHaptics(on: boolean): void {
  haptics = kept(hapticsPlace, on ? "1" : "0");
}

/** The player wants less movement here, whatever the device says. */
export function lessMovement(): boolean {
  return movement === "less";
}

export function setLessMovement(less: boolean): void {
  movement = kept(movementPlace, less ? "less" : "");
  applyLook();
}

/** Which of the sizes the letters have. */
export function letterSize(): number {
  const chosen = letters === "" ? normalLetters : Number(letters);
  return letterSizes[chosen] ? chosen : normalLetters;
}

export function setLetterSize(size: number): void {
  letters = kept(lettersPlace, String(size));
  applyLook();
}

/** Has the page look as the player chose. */
export function applyLook(): void {
  const root = document.documentElement;
  const { percent } = letterSizes[letterSize()]!;
  root.style.fontSize = percent === 100 ? "" : `${percent}%`;
  root.classList.toggle("still", lessMovement());
}

function kept(place: string, value: string): string {
  keepText(place, value);
  return value;
}
