/** What the page itself lets the player choose. It stays with this browser and is no part of the save. */
const hooksPlace = "backbeat-song-hooks";

let hooks = read();

/** A few seconds of a song can be heard on its screen. */
export function hooksOn(): boolean {
  return hooks;
}

export function setHooks(on: boolean): void {
  hooks = on;
  try {
    localStorage.setItem(hooksPlace, on ? "1" : "0");
  } catch {
    // no such storage here: it holds until the page is closed
  }
}

function read(): boolean {
  try {
    return localStorage.getItem(hooksPlace) === "1";
  } catch {
    return false;
  }
}
