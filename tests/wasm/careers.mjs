// The careers that the engine's tests begin from and the golden ones, as files. `ninja -C build/check careers` writes
// them, and so does every build of the tests.
import { existsSync, readFileSync } from 'node:fs';
import { Launch, importedRows } from './door.mjs';

const folder = new URL('../../build/check/careers/', import.meta.url);
const list = new URL('careers.json', folder);
const listed = new URL('screens.json', folder);

/**
 * By name: the file, the hour at which it goes on, and for a golden career its trace, its beginning and its end. A film
 * has its trace alone.
 */
export const careers = existsSync(list) ? JSON.parse(readFileSync(list, 'utf8')) : {};

/** Every screen that there is: its name and its room, which is empty for the roots of the tabs. */
export const screens = existsSync(listed) ? JSON.parse(readFileSync(listed, 'utf8')) : [];

/** Where the file of a career is. */
export const careerFileAt = (name) => new URL((careers[name] ?? fail(name)).file, folder);

/** A career as the file that a player would carry over. */
export const careerFile = (name) => readFileSync(careerFileAt(name));

/** The rows of a save that holds the career. */
export const careerRows = (name) => importedRows(careerFile(name));

/** The launch and the presses of a trace, one after the other. */
export function traceOf(name) {
  const { trace, film } = careers[name] ?? fail(name);
  const lines = readFileSync(new URL(trace ?? film, folder), 'utf8').split('\n').filter(Boolean);
  return lines.map((line) => {
    const [kind, ...rest] = line.split(' ');
    if (kind === 'launch') return { kind, seed: rest[0], now: Number(rest[1]) };
    const [now, ...press] = rest;
    return { kind, now: Number(now), press: press.map(unescaped) };
  });
}

const unescaped = (text) => (text === '%' ? '' : decodeURIComponent(text));

/** Plays a golden career to its end; each of its launches goes on with what the one before it stored. */
export function playGolden(name) {
  const { world } = careers[name] ?? fail(name);
  let rows = world ? careerRows(world) : new Map();
  let launch;
  for (const { kind, seed, now, press } of traceOf(name)) {
    if (kind === 'launch') {
      launch = new Launch({ seed, now, rows });
      rows = launch.rows;
    } else {
      launch.pressAt(now, ...press);
    }
  }
  return launch;
}

function fail(name) {
  throw new Error(`there is no career "${name}": run ninja -C build/check careers`);
}
