/** What is asked when this device has no room left for a copy: which other one goes for it. */
import type { Game } from "./game";
import type { Trouble } from "./save";

const noRoom = "There is no room left on this device";

/**
 * Does `work`, which puts another career in the place of this one, and asks for room as long as it lacks that and a
 * copy can be given up. `spared` is the one that is needed. Answers like `work`.
 */
export async function withRoom(game: Game, spared: string, work: () => Promise<Trouble>): Promise<Trouble> {
  let trouble = await work();
  while (trouble === "full" && (await giveUpOne(game, spared, `${noRoom} to keep today's career aside.`))) {
    trouble = await work();
  }
  return trouble;
}

/**
 * Asks the same for the copies that wait to be written. A New Year's copy is forgone rather than that the week waits
 * with it; what was kept aside before a restart waits on, and the life before it stays what is stored.
 */
export async function makeRoomForCopies(game: Game): Promise<void> {
  for (let name = game.waitingCopy(); name; name = game.waitingCopy()) {
    const [, details = "", title = "", about = ""] = name.split("|");
    const passes = details.startsWith("newYear");
    const waits = passes ? "" : "\n\nUntil there is, nothing new is saved: a reload goes back to before that.";
    if (await giveUpOne(game, name, `${noRoom} for the copy "${title}" (${about}).${waits}`)) continue;
    if (passes) await game.giveUp(name);
    return;
  }
}

async function giveUpOne(game: Game, spared: string, problem: string): Promise<boolean> {
  const copy = game.spareCopy(spared);
  if (!copy) return false;
  const agreed = await game.messages.ask({
    title: "No Room",
    message: `${problem}\n\nGive up the copy ${copy.told} for it?`,
    buttons: [
      { label: "Close", style: "cancel" },
      { label: "Give Up", style: "destructive" },
    ],
  });
  return agreed === 1 && (await game.giveUp(copy.name));
}
