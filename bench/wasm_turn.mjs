// The week of the benchmark through the page's door in WebAssembly: `node wasm_turn.mjs FOLDER`, after backbeat_bench
// left its rows and its own times there. Prints the table in Markdown; fails when the goal is missed or a career ends
// otherwise than on this computer.
//
// The browser compiles twice: quickly, when a function first runs, and well, once it knows what runs often. Each career
// therefore has a process of its own, which tells both: the weeks of the first launch, and those of a launch after
// which nothing gets faster any more.
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { Launch, decodeBatch } from '../tests/wasm/door.mjs';

const [folder, only] = process.argv.slice(2);
const greatestRatio = 3; // of the steady state
const someDay = 1_672_660_800_000;
const launchesToSteady = 12;

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

const careers = readFileSync(join(folder, 'native_turns.txt'), 'utf8')
  .trim()
  .split('\n')
  .map((line) => line.split(' '));

/** Plays one career from its rows, launch after launch; prints its line of the table. */
function measure([years, seed, weeks, native, hash]) {
  const packed = decodeBatch(readFileSync(join(folder, `${years}.rows`)));
  const rows = new Map(packed.map((row) => [`${row.key}\0${row.chunk}`, row]));
  const playLaunch = () => {
    const launch = new Launch({ seed, now: 0, rows: new Map(rows) });
    const took = firstQuartile(Array.from({ length: Number(weeks) }, () => endTheWeek(launch)));
    if (launch.stateHash() !== hash) {
      console.error(`the career of ${years} years ends otherwise in WebAssembly`);
      process.exitCode = 1;
    }
    return took;
  };
  const first = playLaunch();
  for (let launch = 2; launch < launchesToSteady; ++launch) playLaunch();
  const steady = playLaunch();
  const cells = [native, first, first / native, steady, steady / native];
  console.log(`| year ${years} | ${cells.map((cell) => rounded(Number(cell))).join(' | ')} |`);
  if (steady / native > greatestRatio) process.exitCode = 1;
}

if (only) {
  measure(careers.find(([years]) => years === only));
} else {
  console.log(
    '| the week through the door, answers as JSON and rows packed | native, ms | WebAssembly, first launch, ms | ratio | WebAssembly, steady, ms | ratio |',
  );
  console.log('|---|---|---|---|---|---|');
  for (const [years] of careers) {
    try {
      const self = fileURLToPath(import.meta.url);
      execFileSync(process.execPath, [self, folder, years], {
        stdio: 'inherit',
      });
    } catch {
      process.exitCode = 1;
    }
  }
}
