// Runs clang-tidy over the sources below src/ that changed since they were last found clean. A source counts as changed when
// it, a header it includes or .clang-tidy differs; what was clean is remembered outside the tree, so that a fresh
// clone of known sources costs nothing. Usage: node scripts/tidy.mjs, after a native build.
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

function keyOf(command, files) {
  const hash = createHash('sha256').update(tidy).update(contentOf(join(house, '.clang-tidy')));
  for (const file of [command.file, ...files.sort()]) hash.update(relative(house, file)).update('\0').update(contentOf(file));
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
  .map((command) => ({ file: command.file, key: keyOf(command, objects.get(objectOf(command))) }));
if (sources.length === 0) throw new Error('no source was built');
const due = sources.filter(({ key }) => !existsSync(join(memory, key)));

mkdirSync(memory, { recursive: true });
let unclean = 0;
async function work() {
  for (let next = due.pop(); next; next = due.pop()) {
    const findings = await findingsIn(next.file);
    if (findings) {
      ++unclean;
      console.log(findings.trim());
    } else {
      writeFileSync(join(memory, next.key), '');
    }
  }
}
console.log(`${due.length} of ${sources.length} sources to look at`);
await Promise.all(Array.from({ length: availableParallelism() }, work));
process.exit(unclean === 0 ? 0 : 1);
