import "@fontsource-variable/inter";
import "uplot/dist/uPlot.min.css";
import "../../src/theme.css";
import { setAppearance } from "../../src/appearance";
import type { Player } from "../../src/game";
import { hookLength, tuneOf } from "../../src/hooks/tune";
import { Messages } from "../../src/messages";
import { drawing, forms } from "../../src/pictures/drawings";
import { iconNames, installGlyphs, installLateGlyphs } from "../../src/pictures/icons";
import { portrait, portraitForms } from "../../src/pictures/portraits";
import { presentationOf } from "../../src/pictures/people";
import { sleeve } from "../../src/pictures/sleeves";
import type { Answer } from "../../src/protocol";
import { Save } from "../../src/save";
import type { AppElement } from "../../src/shell/app";
import "../../src/shell/app";

/** A player whose answers a test hands in, and which notes what is pressed. */
class StagePlayer implements Player {
  answer!: Answer;
  readonly launches = 1;
  unsaved = "";
  readonly messages = new Messages();
  onChange: () => void = () => {};
  readonly presses: string[][] = [];
  /** What the next presses answer; without any, the screen describes itself again. */
  readonly answers: Answer[] = [];

  ahead(): null {
    return null;
  }

  act(screen: number | string, id: string, value = ""): void {
    this.presses.push([String(screen), id, value]);
    this.answer = this.answers.shift() ?? structuredClone(this.answer);
    this.onChange();
  }
}

const player = new StagePlayer();

function show(answer: Answer): void {
  player.answer = answer;
  if (document.querySelector("backbeat-app")) return player.onChange();
  const app = document.createElement("backbeat-app") as AppElement;
  app.player = player;
  document.querySelector(".full-notice")!.replaceWith(app);
}

setAppearance("system");
installGlyphs();

const stage = {
  show,
  player,
  Save,
  iconNames,
  installLateGlyphs,
  forms,
  drawing,
  portrait,
  portraitForms,
  presentationOf,
  sleeve,
  tuneOf,
  hookLength,
};
declare global {
  interface Window {
    stage: typeof stage;
  }
}
window.stage = stage;
