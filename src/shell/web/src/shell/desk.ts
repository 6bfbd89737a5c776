/** In em, so that whoever reads large letters gets the layout that has room for them. */
const railed = matchMedia("(min-width: 40em)");
const wide = matchMedia("(min-width: 67.5em)");

/** How much room there is: for the phone alone, for a rail beside one screen, or for two screens beside each other. */
export type Room = "phone" | "rail" | "desk";

export function room(): Room {
  if (wide.matches) return "desk";
  return railed.matches ? "rail" : "phone";
}

export function onRoomChange(changed: () => void): void {
  for (const query of [railed, wide]) query.addEventListener("change", changed);
}
