// What a player can press on a screen, and how to get past what stands in the way. A hand, `act(screenKey, id, value)`,
// presses and answers with the new state of the glass: on the page, or on the engine alone.

/** What the player would not want to happen for the sake of a look. */
const leftAlone = /^(exportCareer|importCareer|restoreSnapshot)$/;

export const verbOf = (id) => id.split(":")[0];

/** The ids of everything on a screen that can be pressed without a value, at most so many for each verb. */
export function pressables(view, most = 1) {
  const ids = [];
  const add = (id) => {
    if (!id || leftAlone.test(id) || ids.includes(id)) return;
    if (ids.filter((known) => verbOf(known) === verbOf(id)).length < most) ids.push(id);
  };
  for (const block of view.blocks ?? []) {
    if (["button", "chart"].includes(block.kind)) add(block.id);
    for (const item of [...(block.items ?? []), ...(block.people ?? []), ...(block.choices ?? [])]) {
      add(item.id);
      for (const action of item.actions ?? []) add(action.id);
    }
    for (const button of block.buttons ?? []) add(button.id);
  }
  add(view.mainAction?.id);
  add(view.aside?.id);
  return ids;
}

/** The ids of the texts that a screen asks for. */
export const fieldsOf = (view) => (view.blocks ?? []).filter(({ kind }) => kind === "field").map(({ id }) => id);

/** What is typed wherever a text is asked for. */
export const anyText = "Paper Kites";

/** Answers every message with its first button; `met` hears of each while it stands. */
export async function answerAll(act, answer, met = () => {}) {
  while (answer.alert) {
    await met(answer.alert);
    answer = await act("alert", String(answer.alert.key), "0");
  }
  return answer;
}

/** Goes back to the screen that lies so deep in its tab, out of all that covers it. */
export async function leave(act, answer, depth, met) {
  for (let i = 0; i < 50 && (answer.modal || answer.stack.length > depth); i += 1) {
    if (answer.modal) {
      for (const id of fieldsOf(answer.view)) await act(answer.view.key, id, anyText);
      answer = await answerAll(act, await act(answer.view.key, answer.view.mainAction?.id ?? "close"), met);
    } else answer = await answerAll(act, await act("nav", "back"), met);
  }
  return answer;
}
