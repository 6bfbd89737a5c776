/**
 * Texts that are typed but not yet told to the engine. They are told when the field is left, and before anything else is
 * pressed, so that no press ever acts on an older text than the one on the screen.
 */
const drafts = new Map<() => void, number>();
let typed = 0;
let pointerDown = false;

// Leaving a field because a button is being pressed must not redraw the screen under the finger: the press tells first.
addEventListener("pointerdown", () => (pointerDown = true), { capture: true });
for (const end of ["pointerup", "pointercancel"]) {
  addEventListener(end, () => setTimeout(() => (pointerDown = false)), { capture: true });
}

/** Remembers a field that has something to tell. */
export function draft(tell: () => void): void {
  drafts.set(tell, (typed += 1));
}

/** Forgets it again: it has been told, or its field is gone. */
export function dropDraft(tell: () => void): void {
  drafts.delete(tell);
}

/** Tells everything that is typed, or was by the time of a certain keystroke. */
export function tellDrafts(upTo = typed): void {
  for (const [tell, at] of [...drafts]) if (at <= upTo) tell();
}

/** Tells everything that is typed, once the finger is up. */
export function tellDraftsSoon(): void {
  if (!pointerDown) return tellDrafts();
  const now = typed;
  addEventListener("pointerup", () => setTimeout(() => tellDrafts(now)), { capture: true, once: true });
}
