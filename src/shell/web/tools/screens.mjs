// Where every screen of the game can be seen, and how to get there: searched for in all named careers, on the engine
// alone, since a page would be too slow for it.
import { careers, careerRows, screens } from "../../../../tests/wasm/careers.mjs";
import { Launch } from "../../../../tests/wasm/door.mjs";
import { answerAll, anyText, fieldsOf, leave, pressables, verbOf } from "./presses.mjs";
import { answerOf, handOn } from "./walk.mjs";
import { openWorld, world, worldNames } from "./worlds.mjs";

const seed = "7";
const weeks = 8;
const mostOfOneVerb = 3;
const deepest = 6;
/** So many pictures of one screen tell what it is like. */
const mostSights = 5;

/** What a screen has, whatever it says: the kinds of its blocks, its headings, and what can be pressed. */
const featuresOf = (view) =>
  new Set([
    ...(view.blocks ?? []).map(
      ({ kind, style = "", text = "" }) => `${kind} ${style} ${kind === "heading" ? text.replace(/\d/g, "") : ""}`,
    ),
    ...pressables(view).map((id) => `press ${verbOf(id)}`),
    `main ${(view.mainAction?.label ?? "").replace(/[\d.,$]+/g, "")}`,
  ]);

const textsIn = (value) => {
  if (typeof value === "string") return 1;
  return value && typeof value === "object" ? Object.values(value).reduce((sum, part) => sum + textsIn(part), 0) : 0;
};

/** Makes one step of a way and answers with what is seen then. */
async function step(act, answer, { press, type, tab, endTheWeek, leaves }) {
  if (tab !== undefined) answer = await act("tabs", "tab", String(tab));
  else if (endTheWeek) answer = await act("nav", "endTheWeekButton");
  else if (leaves) answer = await leave(act, answer, 1);
  else answer = await act(answer.view.key, press, type ?? "");
  return answerAll(act, answer);
}

/** Calls `see(view, way)` for each screen, as often as it looks different, the shortest ways first. */
async function search(name, see) {
  const launch = new Launch({ seed, rows: careerRows(name), now: careers[name].now });
  const act = (screen, id, value) => launch.press(screen, id, value);
  const kinds = new Set();
  const places = [];
  const arrive = (way) => {
    const { view } = launch.answer;
    const steps = way.filter(({ leaves, endTheWeek }) => !leaves && !endTheWeek).length;
    see(view, way);
    const madeHere = JSON.stringify(view).includes(anyText);
    const kind = `${view.screen} ${pressables(view).map(verbOf).sort()} ${madeHere}`;
    if (kinds.has(kind) || steps > deepest) return;
    kinds.add(kind);
    places.push({ mark: launch.mark(), way });
  };
  const go = (next) => step(act, launch.answer, next);

  await answerAll(act, launch.answer);
  const begins = [];
  if (launch.answer.modal) {
    see(launch.answer.view, []);
    begins.push({ leaves: true });
    await go(begins[0]);
  }
  const start = launch.mark();
  for (const tab of [0, 1, 2, 3, 4]) {
    launch.backTo(start);
    await go({ tab });
    arrive([...begins, { tab }]);
  }
  launch.backTo(start);
  const way = [...begins, { tab: 0 }];
  await go({ tab: 0 });
  for (let week = 0; week < weeks; week += 1) {
    way.push({ endTheWeek: true });
    await go(way.at(-1));
    arrive([...way]);
    way.push({ leaves: true });
    await go(way.at(-1));
  }
  while (places.length > 0) {
    const { mark, way } = places.shift();
    launch.backTo(mark);
    const filled = [...way];
    for (const press of fieldsOf(mark.answer.view)) {
      filled.push({ press, type: anyText });
      await go(filled.at(-1));
    }
    const ready = launch.mark();
    const presses = pressables(ready.answer.view, mostOfOneVerb).map((press) => ({ press }));
    for (const { kind, id, options } of ready.answer.view.blocks ?? []) {
      if (kind === "choice") for (const option of options.keys()) presses.push({ press: id, type: String(option) });
    }
    for (const next of presses) {
      launch.backTo(ready);
      await go(next);
      arrive([...filled, next]);
    }
  }
}

/**
 * Every screen with its room and its `sights`: the career and the way in which it is fullest, and then what else it can
 * look like, with other blocks and buttons. A screen that was not found has none.
 */
export async function everyScreen() {
  const seen = new Map();
  for (const career of worldNames) {
    await search(career, (view, way) => {
      const sights = seen.get(view.screen) ?? [];
      const features = [...featuresOf(view)];
      const texts = textsIn(view);
      const alike = sights.find((other) => other.features.join() === features.join());
      if (!alike) sights.push({ career, way, features, texts });
      else if (texts > alike.texts) Object.assign(alike, { career, way, texts });
      seen.set(view.screen, sights);
    });
  }
  const names = new Set(screens.map(({ screen }) => screen));
  for (const name of seen.keys()) if (!names.has(name)) throw new Error(`the list of screens has no ${name}`);
  return [...names].map((name, place) => ({
    name,
    place,
    room: screens.find(({ screen }) => screen === name).room,
    sights: telling(seen.get(name) ?? []),
  }));
}

/** The fullest of the sights, and those that add most to what is seen. */
function telling(sights) {
  const left = [...sights].sort((a, b) => b.texts - a.texts);
  const chosen = [];
  const shown = new Set();
  const adds = ({ features }) => features.filter((feature) => !shown.has(feature)).length;
  while (left.length > 0 && chosen.length < mostSights) {
    const best =
      chosen.length === 0 ? left[0] : left.reduce((best, other) => (adds(other) > adds(best) ? other : best));
    if (chosen.length > 0 && adds(best) === 0) break;
    chosen.push(best);
    left.splice(left.indexOf(best), 1);
    for (const feature of best.features) shown.add(feature);
  }
  return chosen;
}

/** Opens the page on that sight of the screen. */
export async function openSight(page, home, name, { career, way }) {
  await openWorld(page, home, world(career), `?seed=${seed}`);
  const act = handOn(page);
  let answer = await answerAll(act, await answerOf(page));
  for (const next of way) answer = await step(act, answer, next);
  if (answer.view.screen !== name) throw new Error(`${name} is not where it was in "${career}"`);
  return answer;
}
