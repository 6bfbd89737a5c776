// The careers that the engine's tests begin from and the golden ones, as files. `ninja -C build/check careers` writes
// them, and so does every build of the tests.
import { existsSync, readFileSync } from 'node:fs';
import { Launch, importedRows } from './door.mjs';

const folder = new URL('../../build/check/careers/', import.meta.url);
const list = new URL('careers.json', folder);

/** By name: the file, the hour at which it goes on, and for a golden career its trace, its beginning and its end. */
export const careers = existsSync(list) ? JSON.parse(readFileSync(list, 'utf8')) : {};

/** Where the file of a career is. */
export const careerFileAt = (name) => new URL((careers[name] ?? fail(name)).file, folder);

/** A career as the file that a player would carry over. */
export const careerFile = (name) => readFileSync(careerFileAt(name));

/** The rows of a save that holds the career. */
export const careerRows = (name) => importedRows(careerFile(name));

const unescaped = (text) => (text === '%' ? '' : decodeURIComponent(text));

/** Plays a golden career to its end; each of its launches goes on with what the one before it stored. */
export function playGolden(name) {
  const { trace, world } = careers[name] ?? fail(name);
  let rows = world ? careerRows(world) : new Map();
  let launch;
  for (const line of readFileSync(new URL(trace, folder), 'utf8').split('\n').filter(Boolean)) {
    const [kind, ...rest] = line.split(' ');
    if (kind === 'launch') {
      launch = new Launch({ seed: rest[0], now: Number(rest[1]), rows });
      rows = launch.rows;
    } else {
      const [now, ...press] = rest;
      launch.pressAt(Number(now), ...press.map(unescaped));
    }
  }
  return launch;
}

function fail(name) {
  throw new Error(`there is no career "${name}": run ninja -C build/check careers`);
}
