import "@fontsource-variable/inter";
import "uplot/dist/uPlot.min.css";
import "./theme.css";
import { setAppearance } from "./appearance";
import { takeDroppedFiles } from "./dropped-files";
import { Game, launchSeed } from "./game";
import { takeSave } from "./lock";
import { installGlyphs } from "./pictures/icons";
import { showNotice } from "./notice";
import { showRescue } from "./rescue";
import type { AppElement } from "./shell/app";
import "./shell/app";
import { offerUpdates } from "./updates";

setAppearance("system");
installGlyphs();
// With this the browser is asked to keep the save even when the device runs short of room.
void navigator.storage?.persist?.();
let game: Game | null = null;
takeDroppedFiles(() => game);
void begin(false);

async function begin(steal: boolean): Promise<void> {
  const elsewhere = (): void => {
    game?.close();
    showNotice({
      title: "Backbeat is open in another tab",
      text: "Only one tab can write your save.",
      buttons: [{ label: "Use here", primary: true, press: () => void begin(true) }],
    });
  };
  try {
    if (!(await takeSave(steal, elsewhere))) return elsewhere();
    game = await Game.open(() => launchSeed(location.href));
    game.onBroken = broken;
    game.onStuck = () => void showRescue(game!).catch(broken);
    if (!(await game.launch())) return await showRescue(game);
    const app = document.createElement("backbeat-app") as AppElement;
    app.player = game;
    document.querySelector("backbeat-app, .full-notice")!.replaceWith(app);
    if (import.meta.env.PROD) void offerUpdates(game);
  } catch (fault) {
    broken(fault);
  }
}

function broken(fault: unknown): void {
  console.warn("Backbeat could not start.", fault);
  showNotice({
    title: "Backbeat could not start",
    text: "Your save is untouched. Try again, and if that does not help, close other tabs or restart the browser.",
    buttons: [{ label: "Try again", primary: true, press: () => location.reload() }],
  });
}
