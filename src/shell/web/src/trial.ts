import { EngineFault, type Engine } from "./engine";
import type { Answer, PressScreen, View } from "./protocol";
import { isOrder, type Row, type StoredRow } from "./rows";

const mostAlerts = 200; // more than a launch ever has to say

/** Launches what the engine holds, and plays it as somebody who agrees to everything. */
class Rehearsal {
  answer: Answer;

  constructor(
    private readonly engine: Engine,
    private readonly now: number,
  ) {
    ({ answer: this.answer } = engine.start("1", now));
    this.agree();
  }

  press(screen: PressScreen, id: string, value = ""): void {
    ({ answer: this.answer } = this.engine.act(this.now, screen, id, value));
    this.agree();
  }

  endTheWeek(): void {
    ({ answer: this.answer } = this.engine.act(this.now, "nav", "endTheWeekButton", ""));
  }

  /** Writes a text into the first field of a screen and presses its main button. */
  fillIn(text: string): void {
    const { key, blocks = [], mainAction } = this.answer.view;
    const field = blocks.find((block) => block.kind === "field");
    if (!field || !mainAction) throw new Error("Nothing can be filled in here.");
    this.press(key, field.id, text);
    this.press(key, mainAction.id);
  }

  /** Where a press leads, and back again. */
  lookInto(id: string): View[] {
    this.press(this.answer.view.key, id);
    const { stack = [], view } = this.answer;
    if (stack.length < 2) return [];
    this.press("nav", "back");
    return [view];
  }

  private agree(): void {
    for (let answered = 0; this.answer.alert && answered < mostAlerts; answered += 1) {
      const { key } = this.answer.alert;
      ({ answer: this.answer } = this.engine.act(this.now, "alert", String(key), "0"));
    }
  }
}

/**
 * Launches the career of an import on an engine that nothing else runs on, and ends a week of it as a player would. Why
 * it cannot be played, as a sentence, or "". Step 1 is the launch, 2 the week.
 */
export function trialProblem(engine: Engine, batch: Row[], now: number, onStep: (step: number) => void): string {
  try {
    onStep(1);
    engine.hold(batch.filter((row): row is StoredRow => row.value !== null && !isOrder(row)));
    const trial = new Rehearsal(engine, now);
    const { modal, view } = trial.answer;
    if (modal && view.mainAction) trial.press(view.key, view.mainAction.id); // a report that was still open
    onStep(2);
    trial.endTheWeek();
    return trial.answer.modal ? "" : "The week of this career cannot be ended."; // its report covers the tabs
  } catch (fault) {
    if (!(fault instanceof EngineFault)) throw fault;
    console.warn("The career stopped the engine.", fault.cause);
    return "The game stops on this career.";
  }
}

/**
 * Plays a throw-away life on a fresh engine: its name, its first report, a song, and all that the tabs lead to. Gives the
 * screens that it came by.
 */
export function rehearse(engine: Engine, now: number): View[] {
  const life = new Rehearsal(engine, now);
  life.fillIn("Nova");
  life.press("tabs", "tab", "0");
  life.endTheWeek();
  if (!life.answer.modal) throw new Error("The week of a new life cannot be ended.");
  life.press(life.answer.view.key, life.answer.view.mainAction!.id);
  life.press("tabs", "tab", "1");
  life.press(life.answer.view.key, "createSongButton");
  life.fillIn("Paper Lanterns");
  return [1, 2, 3, 4, 0].flatMap((tab) => {
    life.press("tabs", "tab", String(tab));
    return [...idsIn(life.answer.view)].flatMap((id) => life.lookInto(id));
  });
}

/** All that can be pressed there. */
function idsIn(part: object): Set<string> {
  const ids = new Set<string>();
  for (const [name, value] of Object.entries(part)) {
    if (name === "id") ids.add(value as string);
    if (typeof value === "object" && value) for (const id of idsIn(value as object)) ids.add(id);
  }
  return ids;
}
