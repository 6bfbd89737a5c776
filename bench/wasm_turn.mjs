// The week of the benchmark through the page's door in WebAssembly: `node wasm_turn.mjs FOLDER`, after backbeat_bench
// left its rows and its own times there. Prints the table in Markdown; fails when the goal is missed or a career ends
// otherwise than on this computer.
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { Launch, decodeBatch } from '../tests/wasm/door.mjs';

const folder = process.argv[2];
const greatestRatio = 3;
const someDay = 1_672_660_800_000;
const warmUpWeeks = 300; // the browser compiles twice: at once, and well once it knows what runs often

/** Ends the week by the presses of the native program; the milliseconds that the engine took for it. */
function endTheWeek(launch) {
  const before = launch.engineMs;
  const press = (...words) => launch.pressAt(someDay, ...words);
  press('nav', 'endTheWeekButton');
  while (launch.answer.alert || launch.answer.modal) {
    if (launch.answer.alert) press('alert', launch.answer.alert.key, 0);
    else press(launch.answer.view.key, 'closeButton');
  }
  return launch.engineMs - before;
}

const firstQuartile = (values) => values.sort((a, b) => a - b)[Math.floor(values.length / 4)];
const rounded = (value) => String(Number(value.toPrecision(3)));

let isWarm = false;
console.log(
  '| the week through the door, answers as JSON and rows packed | native, ms | WebAssembly, ms | ratio |',
);
console.log('|---|---|---|---|');
for (const line of readFileSync(join(folder, 'native_turns.txt'), 'utf8').trim().split('\n')) {
  const [years, seed, weeks, native, hash] = line.split(' ');
  const packed = decodeBatch(readFileSync(join(folder, `${years}.rows`)));
  const rows = new Map(packed.map((row) => [`${row.key}\0${row.chunk}`, row]));
  const launchAnew = () => new Launch({ seed, now: 0, rows: new Map(rows) });
  if (!isWarm) {
    const rehearsal = launchAnew();
    for (let week = 0; week < warmUpWeeks; ++week) endTheWeek(rehearsal);
    isWarm = true;
  }
  const launch = launchAnew();
  const took = firstQuartile(Array.from({ length: Number(weeks) }, () => endTheWeek(launch)));
  const ratio = took / Number(native);
  console.log(
    `| year ${years} | ${rounded(Number(native))} | ${rounded(took)} | ${rounded(ratio)} |`,
  );
  if (ratio > greatestRatio) process.exitCode = 1;
  if (launch.stateHash() !== hash) {
    console.error(`the career of ${years} years ends otherwise in WebAssembly`);
    process.exitCode = 1;
  }
}
