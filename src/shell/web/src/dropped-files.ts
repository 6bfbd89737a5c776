import type { Game } from "./game";
import { offerCareer } from "./requests";

/**
 * A file that is dropped anywhere on the page is offered for import; left to itself the browser would open it in the
 * place of the game. While a question waits, while the page says that it cannot go on, and for more than one file,
 * nothing happens.
 */
export function takeDroppedFiles(gameNow: () => Game | null): void {
  addEventListener("dragover", (event) => {
    if (holdsFiles(event)) event.preventDefault();
  });
  addEventListener("drop", (event) => {
    if (!holdsFiles(event)) return;
    event.preventDefault();
    const files = event.dataTransfer!.files;
    const game = gameNow();
    const isAsking = game?.messages.alert ?? game?.answer?.alert;
    if (game?.isPlaying && !isAsking && files.length === 1) void offerCareer(game, files[0]!);
  });
}

function holdsFiles({ dataTransfer }: DragEvent): boolean {
  return dataTransfer?.types.includes("Files") ?? false;
}
