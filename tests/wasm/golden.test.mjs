// Golden careers end in the browser's engine as they do on a computer.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import test from 'node:test';
import { Launch } from './door.mjs';

const read = (name) => readFileSync(new URL(`../play/${name}`, import.meta.url), 'utf8');
const unescaped = (text) => (text === '%' ? '' : decodeURIComponent(text));

/** Plays the lines of a trace; each launch goes on with the rows that the one before it stored. */
function play(trace) {
  let launch;
  for (const line of trace.split('\n').filter(Boolean)) {
    const [kind, ...rest] = line.split(' ');
    if (kind === 'launch') {
      launch = new Launch({ seed: rest[0], now: Number(rest[1]), rows: launch?.rows });
    } else {
      const [now, ...press] = rest;
      launch.pressAt(Number(now), ...press.map(unescaped));
    }
  }
  return launch;
}

for (const line of read('golden_hashes.txt').trim().split('\n')) {
  const [name, hash] = line.split(' ');
  test(`${name} ends the same as on a computer`, () => {
    assert.equal(play(read(`${name}.trace`)).stateHash(), hash);
  });
}
