import type { Answer } from "./protocol";

let asked = false;

/**
 * Asks the browser, once a launch, to keep the save even when the device runs short of room. Some browsers ask the
 * player in turn: so not before a week has been played or the settings are open.
 */
export function askToKeep(before: Answer, now: Answer): void {
  const played = before.header?.date && now.header?.date && before.header.date !== now.header.date;
  if (asked || !(played || now.view.screen === "SettingsViewController")) return;
  asked = true;
  void ask().catch(() => {}); // it is a favour, and the game goes on without it
}

async function ask(): Promise<void> {
  if (!(await navigator.storage?.persisted?.())) await navigator.storage?.persist?.();
}
