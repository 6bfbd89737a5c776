import { tellBroken } from "./broken";
import { takeDroppedFiles } from "./dropped-files";
import { Game, launchSeed } from "./game";
import { takeSave } from "./lock";
import { painted } from "./motion";
import { installGlyphs } from "./pictures/icons";
import { showNotice } from "./notice";
import { applyLook } from "./preferences";
import { showRescue } from "./rescue";
import type { AppElement } from "./shell/app";
import "./shell/app";
import { offerUpdates } from "./updates";

installGlyphs();
applyLook();
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
    game.onBroken = tellBroken;
    game.onStuck = () => void showRescue(game!).catch(tellBroken);
    if (!(await game.launch())) return await showRescue(game);
    const app = document.createElement("backbeat-app") as AppElement;
    app.player = game;
    document.querySelector("backbeat-app, .full-notice")!.replaceWith(app);
    if (import.meta.env.PROD) void offerUpdates(game);
    await painted();
    app.lookAhead(game.rehearse()).catch(() => {}); // then first visits take a little longer
  } catch (fault) {
    tellBroken(fault);
  }
}
