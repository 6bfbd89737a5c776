import { render } from "lit";
import { Engine, type Reply } from "./engine";
import { renderBlocks } from "./render";
import type { Answer, PressScreen } from "./protocol";
import type { Scene } from "./scene";

const nobody: Scene = { key: 0, theme: "plain", press: () => {}, confirm: () => {}, open: () => {} };
const presses = 16;
const weeksFrom = 8;

/**
 * Browsers compile what the game is made of when it is first called, and the first press would wait for that. So in
 * idle moments a second engine plays the first weeks of a life of its own: every screen of it is drawn where nobody sees
 * it, nothing of it is kept, and what it has called is compiled for the real one too.
 */
export async function warmUp(module: WebAssembly.Module): Promise<void> {
  const engine = await Engine.create(module);
  const stage = document.createElement("div");
  const shown = ({ answer }: Reply): Answer => {
    render(renderBlocks(answer.view.blocks ?? [], nobody), stage);
    return answer;
  };
  let answer = shown(engine.start("1", Date.now()));
  for (let i = 0; i < presses; i += 1) {
    await idle();
    answer = shown(engine.act(Date.now(), ...nextPress(answer, i)));
  }
}

/** Answers what has to be answered; goes through the tabs first and ends weeks then. */
function nextPress(
  { alert, modal, view, tabs = [], tab = 0, endWeek }: Answer,
  turn: number,
): [screen: PressScreen, id: string, value: string] {
  if (alert) return ["alert", String(alert.key), "0"];
  if (modal && view.mainAction) return [view.key, view.mainAction.id, ""];
  if (endWeek && turn >= weeksFrom) return ["nav", "endTheWeekButton", ""];
  return ["tabs", "tab", String((tab + 1) % Math.max(1, tabs.length))];
}

function idle(): Promise<void> {
  return new Promise((done) => {
    if ("requestIdleCallback" in window) requestIdleCallback(() => done());
    else setTimeout(done, 100);
  });
}
