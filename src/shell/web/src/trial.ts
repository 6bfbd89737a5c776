import { EngineFault, type Engine } from "./engine";
import { isOrder, type Row, type StoredRow } from "./rows";

const mostAlerts = 200; // more than a launch ever has to say

/**
 * Launches the career of an import on an engine that nothing else runs on, and ends a week of it as a player would. Why
 * it cannot be played, as a sentence, or "". Step 1 is the launch, 2 the week.
 */
export function trialProblem(engine: Engine, batch: Row[], now: number, onStep: (step: number) => void): string {
  try {
    onStep(1);
    engine.hold(batch.filter((row): row is StoredRow => row.value !== null && !isOrder(row)));
    let { answer } = engine.start("1", now);
    const answerAll = (): void => {
      for (let answered = 0; answer.alert && answered < mostAlerts; answered += 1) {
        ({ answer } = engine.act(now, "alert", String(answer.alert.key), "0"));
      }
    };
    answerAll();
    const { modal, view } = answer;
    if (modal && view.mainAction) {
      ({ answer } = engine.act(now, view.key, view.mainAction.id, "")); // a report that was still open
      answerAll();
    }
    onStep(2);
    ({ answer } = engine.act(now, "nav", "endTheWeekButton", ""));
    return answer.modal ? "" : "The week of this career cannot be ended."; // its report covers the tabs
  } catch (fault) {
    if (!(fault instanceof EngineFault)) throw fault;
    console.warn("The career stopped the engine.", fault.cause);
    return "The game stops on this career.";
  }
}
