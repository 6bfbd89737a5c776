// Golden careers end in the browser's engine as they do on a computer.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import test from 'node:test';
import { playGolden } from './door.mjs';

const hashes = readFileSync(new URL('../play/golden_hashes.txt', import.meta.url), 'utf8');

for (const line of hashes.trim().split('\n')) {
  const [name, hash] = line.split(' ');
  test(`${name} ends the same as on a computer`, () => {
    assert.equal(playGolden(name).stateHash(), hash);
  });
}
