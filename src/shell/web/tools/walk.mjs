// Walks through every screen that a career can reach from its tabs, and through the report of one week.
import { answerAll, leave, pressables } from "./presses.mjs";

/** A hand that presses on the page. */
export const handOn =
  (page) =>
  (screen, id, value = "") =>
    page.evaluate(
      ([screen, id, value]) => {
        const { player } = document.querySelector("backbeat-app");
        player.act(screen, id, value);
        return player.answer;
      },
      [screen, id, value],
    );

/** What stands on the page. */
export const answerOf = (page) => page.evaluate(() => document.querySelector("backbeat-app").player.answer);

/**
 * Calls `visit(name)` for each screen and each message, once, while it stands on the page. Presses what leads on, and
 * answers every message with its first button.
 */
export async function walk(page, visit) {
  const seen = new Set();
  const act = handOn(page);
  const once = async (name) => {
    if (seen.has(name)) return;
    seen.add(name);
    await visit(name);
  };
  const met = ({ title }) => once(`message ${title}`);
  const explore = async (answer) => {
    const { screen, key } = answer.view;
    if (seen.has(screen)) return answer;
    await once(screen);
    const depth = answer.stack.length;
    for (const id of pressables(answer.view)) {
      const after = await answerAll(act, await act(key, id), met);
      if (after.stack.length > depth || after.modal) answer = await leave(act, await explore(after), depth, met);
      else if (after.stack.length < depth) return after;
    }
    return answer;
  };
  let answer = await answerAll(act, await answerOf(page), met);
  if (answer.modal) {
    await once(answer.view.screen);
    await leave(act, answer, 1, met);
  }
  for (const tab of [0, 1, 2, 3, 4]) await explore(await answerAll(act, await act("tabs", "tab", String(tab)), met));
  await act("tabs", "tab", "0");
  answer = await act("nav", "endTheWeekButton");
  await once(answer.view.screen);
  await leave(act, await answerAll(act, answer, met), 1, met);
  await once("home after a week");
}
