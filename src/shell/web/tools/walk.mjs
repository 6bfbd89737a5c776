// Walks through every screen that a career can reach from its tabs, and through the report of one week.

/** What the player would not want to happen for the sake of a look. */
const leftAlone = /^(exportCareer|importCareer|restoreSnapshot)$/;

/** The ids of everything on a screen that can be pressed without a value, one for each verb. */
function pressables(view) {
  const ids = [];
  const add = (id) => {
    if (id && !leftAlone.test(id) && !ids.some((known) => known.split(":")[0] === id.split(":")[0])) ids.push(id);
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

/**
 * Calls `visit(name)` for each screen and each message, once, while it stands on the page. Presses what leads on, and
 * answers every message with its first button.
 */
export async function walk(page, visit) {
  const seen = new Set();
  const act = (screen, id, value = "") =>
    page.evaluate(
      ([screen, id, value]) => {
        const { player } = document.querySelector("backbeat-app");
        player.act(screen, id, value);
        return player.answer;
      },
      [screen, id, value],
    );
  const once = async (name) => {
    if (seen.has(name)) return;
    seen.add(name);
    await visit(name);
  };
  const answerAll = async (answer) => {
    while (answer.alert) {
      await once(`message ${answer.alert.title}`);
      answer = await act("alert", String(answer.alert.key), "0");
    }
    return answer;
  };
  const leave = async (answer, depth) => {
    for (let i = 0; i < 50 && (answer.modal || answer.stack.length > depth); i += 1) {
      if (answer.modal) answer = await answerAll(await act(answer.view.key, answer.view.mainAction?.id ?? "close"));
      else answer = await answerAll(await act("nav", "back"));
    }
    return answer;
  };
  const explore = async (answer) => {
    const { screen, key } = answer.view;
    if (seen.has(screen)) return answer;
    await once(screen);
    const depth = answer.stack.length;
    for (const id of pressables(answer.view)) {
      const after = await answerAll(await act(key, id));
      if (after.stack.length > depth || after.modal) answer = await leave(await explore(after), depth);
      else if (after.stack.length < depth) return after;
    }
    return answer;
  };
  let answer = await page.evaluate(() => document.querySelector("backbeat-app").player.answer);
  answer = await answerAll(answer);
  if (answer.modal) {
    await once(answer.view.screen);
    const field = answer.view.blocks.find(({ kind }) => kind === "field");
    if (field) await act(answer.view.key, field.id, "Nova");
    await leave(answer, 1);
  }
  for (const tab of [0, 1, 2, 3, 4]) await explore(await answerAll(await act("tabs", "tab", String(tab))));
  await act("tabs", "tab", "0");
  answer = await act("nav", "endTheWeekButton");
  await once(answer.view.screen);
  answer = await leave(await answerAll(answer), 1);
  await once("home after a week");
}
