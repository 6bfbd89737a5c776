/** What the page itself lets the player choose. It stays with this browser and is no part of the save. */
const soundPlace = "backbeat-song-hooks";

let sound = read();

/** Songs and soft sounds may be heard. */
export function soundOn(): boolean {
  return sound === "1";
}

/** Nobody has said yes or no: a song may offer it, and nothing sounds by itself. */
export function soundOpen(): boolean {
  return sound === null;
}

export function setSound(on: boolean): void {
  sound = on ? "1" : "0";
  try {
    localStorage.setItem(soundPlace, sound);
  } catch {
    // no such storage here: it holds until the page is closed
  }
}

function read(): string | null {
  try {
    return localStorage.getItem(soundPlace);
  } catch {
    return null;
  }
}
