import { EngineFault, type Engine } from "./engine";
import type { Answer, PressScreen } from "./protocol";
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

/** Plays a throw-away life on a fresh engine: its name, all tabs, its first report. */
export function rehearse(engine: Engine, now: number): void {
  const life = new Rehearsal(engine, now);
  const { key, blocks = [], mainAction } = life.answer.view;
  const name = blocks.find((block) => block.kind === "field");
  if (!name || !mainAction) throw new Error("A life no longer begins with a name.");
  life.press(key, name.id, "Nova");
  life.press(key, mainAction.id);
  for (const tab of [1, 2, 3, 4, 0]) life.press("tabs", "tab", String(tab));
  life.endTheWeek();
  if (!life.answer.modal) throw new Error("The week of a new life cannot be ended.");
}
