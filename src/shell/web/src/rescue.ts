import { handOver } from "./files";
import type { Game } from "./game";
import { showNotice, type NoticeButton } from "./notice";
import { forgetStops } from "./stops";

const advice =
  "The game stopped twice in a row on this save, so it is not started again by itself. Nothing is lost: keep the career as a file, or go back to a copy.";

/** What is left when the engine stops on a save again and again: the file, the kept copies, and one more try. */
export async function showRescue(game: Game, text = advice): Promise<void> {
  const again = (told: string): void => void showRescue(game, told);
  const copies = await game.copies();
  const back = copies.map((copy): NoticeButton => {
    const [, , title = "", about = ""] = copy.split("|");
    return { label: `Restore: ${title}`, note: about, press: () => void restore(game, copies[0]!, copy, again) };
  });
  showNotice({
    title: "Backbeat keeps stopping",
    text,
    buttons: [
      {
        label: "Export",
        note: "Keep the career as a file",
        primary: true,
        press: () => void exportCareer(game, again),
      },
      ...back,
      { label: "Try once more", press: startOver },
    ],
  });
}

async function exportCareer(game: Game, tell: (text: string) => void): Promise<void> {
  try {
    const file = await game.storedHandedFile();
    if ((await handOver(file)) === "downloaded") tell(`Saved as ${file.name}.`);
  } catch (fault) {
    console.warn("The career could not be exported.", fault);
    tell("This save cannot be read well enough to make a file of it. It stays on this device.");
  }
}

/** The save that stops the game is kept aside like any other before a way back: the next version may well play it. */
async function restore(game: Game, newest: string, copy: string, tell: (text: string) => void): Promise<void> {
  const number = String(Number(newest.split("|")[0]) + 1).padStart(6, "0");
  const seconds = Math.floor(Date.now() / 1000);
  const aside = `${number}|restore::${seconds}|Before going back|Kept when the game stopped`; // without a fingerprint
  if (!(await game.goBackTo(copy, [{ key: aside, chunk: -10, value: null }]))) startOver();
  else tell("The copy could not be put back, perhaps for want of room. Nothing has changed.");
}

function startOver(): void {
  forgetStops();
  location.reload();
}
