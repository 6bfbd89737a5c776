// The engine in WebAssembly, through the page's own door.
import assert from 'node:assert/strict';
import test from 'node:test';
import { Launch, beginCareer, endTheWeek, module, settle } from './door.mjs';

/** What a player sees, without the numbers of screens, which every launch counts anew. */
function glass({ header, tabs, tab, view }) {
  return { header, tabs, tab, view: { ...view, key: 0 } };
}

test('the module asks nobody for anything and has the whole door', () => {
  assert.deepEqual(WebAssembly.Module.imports(module), []);
  const names = WebAssembly.Module.exports(module).map(({ name }) => name);
  const door = ['_initialize', 'bb_act', 'bb_ahead', 'bb_alloc', 'bb_batch', 'bb_batch_size', 'bb_export', 'bb_export_name', 'bb_give_up', 'bb_hold_scores', 'bb_import', 'bb_out', 'bb_out_size', 'bb_purchase', 'bb_row', 'bb_scores', 'bb_snapshot', 'bb_spare', 'bb_start', 'bb_state_hash', 'bb_trace', 'memory'];
  assert.deepEqual(names.sort(), door);
});

test('a new career begins with a name and goes on from week to week', () => {
  const launch = new Launch();
  assert.equal(launch.answer.tabs.length, 5);
  assert.ok(launch.answer.modal, 'the name is asked for before anything else');
  beginCareer(launch, 'Zoë 🎤 歌手');
  assert.match(launch.text, /Zoë 🎤 歌手/);
  const dates = [launch.answer.header.date];
  for (let week = 0; week < 5; ++week) dates.push(endTheWeek(launch).header.date);
  assert.equal(new Set(dates).size, dates.length, dates.join(', '));
});

test('what the shop answers is credited once, also by a later launch, and only what it says is done', () => {
  const launch = new Launch();
  beginCareer(launch, 'Ada');
  const energy = () => Number(launch.answer.header.energy.split(' ')[0]);
  const before = energy();
  launch.purchase('failed', 'energy60', 'one', 'paid');
  launch.purchase('perhaps', 'energy60', 'one', 'paid');
  assert.equal(energy(), before);
  launch.purchase('done', 'energy60', 'one', 'paid');
  launch.purchase('done', 'energy60', 'one', 'paid');
  assert.equal(energy(), before + 60);
  const again = new Launch({ rows: new Map(launch.rows) });
  const stored = again.batches.length;
  again.purchase('done', 'energy60', 'one', 'paid');
  assert.deepEqual(again.batches.slice(stored).flat(), []);
  const lines = launch.trace().trim().split('\n');
  assert.match(lines[0], /^launch 20230102 /);
  assert.match(lines.at(-1), /^purchase \d+ done energy60 one paid$/);
  assert.equal(again.trace().split('\n')[0], 'another career');
});

test('what was stored gives the same screens after a restart', () => {
  const launch = new Launch();
  beginCareer(launch, 'Mara');
  for (let week = 0; week < 4; ++week) endTheWeek(launch);
  const again = new Launch({ seed: '7', rows: new Map(launch.rows) });
  for (const tab of [0, 1, 2, 3, 4]) {
    launch.press('tabs', 'tab', tab);
    again.press('tabs', 'tab', tab);
    settle(launch);
    settle(again);
    assert.deepEqual(glass(again.answer), glass(launch.answer));
  }
});

test('what a life scored is handed out once and shown by a later launch, whatever career it plays', () => {
  const launch = new Launch();
  beginCareer(launch, 'Mara');
  assert.equal(launch.changedScores(), '');
  while (!launch.answer.header.date.startsWith('Week 24,')) endTheWeek(launch);
  const scores = launch.changedScores();
  assert.match(scores, /^life \d+ 0 Mara\nscore MONTHLYLISTENERS \d+\n/);
  assert.equal(launch.changedScores(), '');
  const other = new Launch({ scores });
  beginCareer(other, 'Theo');
  other.press('tabs', 'tab', 0);
  settle(other);
  other.press(other.answer.view.key, 'goToRecords');
  assert.match(other.text, /#1 Mara/);
});

test('the same seed and presses give the same bytes, another seed another career', () => {
  const careers = ['11', '11', '12'].map((seed) => {
    const launch = new Launch({ seed });
    beginCareer(launch, 'Ines');
    for (let week = 0; week < 6; ++week) endTheWeek(launch);
    return JSON.stringify([...launch.rows].map(([name, { value }]) => [name, Buffer.from(value).toString('hex')]).sort());
  });
  assert.equal(careers[0], careers[1]);
  assert.notEqual(careers[0], careers[2]);
});

test('what lies ahead is told as its tab will tell it, and nothing is stored', () => {
  const launch = new Launch();
  beginCareer(launch, 'Theo');
  const before = [launch.batches.length, launch.stateHash(), launch.trace()];
  const business = launch.ahead(3);
  assert.deepEqual(['1', '5', '-1', ''].map((tab) => launch.ahead(tab)), [null, null, null, null], 'open, or no tab');
  assert.deepEqual([launch.batches.length, launch.stateHash(), launch.trace()], before);
  assert.deepEqual(launch.press('tabs', 'tab', '3').view, business);
  assert.equal(launch.ahead(3), null);
});

test('presses that do not belong to what is shown change nothing', () => {
  const launch = new Launch();
  beginCareer(launch, 'Theo');
  const before = glass(launch.answer);
  const stored = launch.batches.length;
  const key = launch.answer.view.key;
  for (const [screen, id, value] of [
    [key + 999, 'saveButton', ''],
    [key, 'noSuchButton', '1'],
    [key, '', ''],
    ['', '', ''],
    ['alert', '5', '0'],
    ['tabs', 'tab', '9'],
    ['tabs', 'tab', '-1'],
    ['tabs', 'tab', 'one'],
    ['nav', 'back', ''],
    ['nowhere', 'x'.repeat(70_000), '\0\0'],
  ]) {
    launch.press(screen, id, value);
    assert.deepEqual(glass(launch.answer), before, `${screen} ${id.slice(0, 20)} ${value}`);
  }
  assert.deepEqual(launch.batches.slice(stored).flat(), []);
});
