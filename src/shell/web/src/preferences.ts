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

let sound = read(soundPlace);
let haptics = read(hapticsPlace);
let movement = read(movementPlace);
let letters = read(lettersPlace);

/** Songs and soft sounds may be heard. */
export function soundOn(): boolean {
  return sound === "1";
}

/** Nobody has said yes or no: a song may offer it, and nothing sounds by itself. */
export function soundOpen(): boolean {
  return sound === null;
}

export function setSound(on: boolean): void {
  sound = write(soundPlace, on ? "1" : "0");
}

/** The hand feels what happens, where the device can. */
export function hapticsOn(): boolean {
  return haptics !== "0";
}

export function setHaptics(on: boolean): void {
  haptics = write(hapticsPlace, on ? "1" : "0");
}

/** The player wants less movement here, whatever the device says. */
export function lessMovement(): boolean {
  return movement === "less";
}

export function setLessMovement(less: boolean): void {
  movement = write(movementPlace, less ? "less" : "");
  applyLook();
}

/** Which of the sizes the letters have. */
export function letterSize(): number {
  const chosen = letters === null ? normalLetters : Number(letters);
  return letterSizes[chosen] ? chosen : normalLetters;
}

export function setLetterSize(size: number): void {
  letters = write(lettersPlace, String(size));
  applyLook();
}

/** Has the page look as the player chose. */
export function applyLook(): void {
  const root = document.documentElement;
  const { percent } = letterSizes[letterSize()]!;
  root.style.fontSize = percent === 100 ? "" : `${percent}%`;
  root.classList.toggle("still", lessMovement());
}

function read(place: string): string | null {
  try {
    return localStorage.getItem(place);
  } catch {
    return null;
  }
}

function write(place: string, value: string): string {
  try {
    localStorage.setItem(place, value);
  } catch {
    // no such storage here: it holds until the page is closed
  }
  return value;
}
