// Golden careers end in the browser's engine as they do on a computer.
import assert from 'node:assert/strict';
import test from 'node:test';
import { careers, playGolden } from './careers.mjs';

const golden = Object.keys(careers).filter((name) => careers[name].trace);

test('the golden careers are there', () => assert.ok(golden.length > 2, 'run ninja -C build/check careers'));

for (const name of golden) {
  test(`${name} ends the same as on a computer`, () => {
    assert.equal(playGolden(name).stateHash(), careers[name].hash);
  });
}
