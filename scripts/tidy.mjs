// Runs clang-tidy over the sources below src/ whose own text, or .clang-tidy, changed since they were last found clean; a
// changed header alone brings nobody back. With --all also over those for which only a header differs. What was clean is
// remembered outside the tree, so that a fresh clone of known sources costs nothing. Usage, after a native build:
// node scripts/tidy.mjs [--all]
import { execFile, execFileSync } from 'node:child_process';
import { createHash } from 'node:crypto';
import { existsSync, mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { availableParallelism, homedir } from 'node:os';
import { dirname, join, relative, resolve } from 'node:path';

const house = resolve(dirname(import.meta.filename), '..');
const build = join(house, 'build/check');
const tidy = 'clang-tidy-19';
const memory = join(process.env.XDG_CACHE_HOME ?? join(homedir(), '.cache'), 'backbeat-tidy');

const contents = new Map();
function contentOf(file) {
  if (!contents.has(file)) contents.set(file, existsSync(file) ? readFileSync(file) : '');
  return contents.get(file);
}

/** The files of the house that each object was made from, as the build noted them. */
function filesByObject() {
  const files = new Map();
  let current = [];
  for (const line of execFileSync('ninja', ['-C', build, '-t', 'deps'], { encoding: 'utf8', maxBuffer: 2 ** 28 }).split('\n')) {
    if (/^\S.*: #deps/.test(line)) files.set(line.slice(0, line.indexOf(':')), (current = []));
    const file = resolve(build, line.trim());
    if (line.startsWith(' ') && file.startsWith(house)) current.push(file);
  }
  return files;
}

/** By what a clean source is known again: its own text, or that of all the house's files it is made of. */
function keyOf(files) {
  const hash = createHash('sha256').update(tidy).update(contentOf(join(house, '.clang-tidy')));
  for (const file of files) hash.update(relative(house, file)).update('\0').update(contentOf(file));
  return hash.digest('hex');
}

/** What clang-tidy says about one source; '' when it is clean. */
function findingsIn(file) {
  return new Promise((done) => {
    execFile(tidy, ['--quiet', '--extra-arg=-w', '-p', build, file], { cwd: house, maxBuffer: 2 ** 26 }, (error, out, err) =>
      done(error || /(warning|error):/.test(out) ? out + (out.includes('error:') ? '' : err) : ''),
    );
  });
}

const objects = filesByObject();
const commands = JSON.parse(readFileSync(join(build, 'compile_commands.json'), 'utf8'));
const objectOf = ({ command }) => / -o (\S+)/.exec(command)[1];
const sources = commands
  .filter((command) => command.file.startsWith(join(house, 'src/')) && objects.has(objectOf(command)))
  .map((command) => ({
    file: command.file,
    own: keyOf([command.file]),
    whole: keyOf([command.file, ...objects.get(objectOf(command)).sort()]),
  }));
if (sources.length === 0) throw new Error('no source was built');
const all = process.argv.includes('--all');
const due = sources.filter(({ own, whole }) => !existsSync(join(memory, all ? whole : own)));

mkdirSync(memory, { recursive: true });
let unclean = 0;
async function work() {
  for (let next = due.pop(); next; next = due.pop()) {
    const findings = await findingsIn(next.file);
    if (findings) {
      ++unclean;
      console.log(findings.trim());
    } else {
      for (const key of [next.own, next.whole]) writeFileSync(join(memory, key), '');
    }
  }
}
console.log(`${due.length} of ${sources.length} sources to look at`);
await Promise.all(Array.from({ length: availableParallelism() }, work));
process.exit(unclean === 0 ? 0 : 1);
