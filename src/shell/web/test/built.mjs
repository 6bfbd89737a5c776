/** The bundles that the tests open, built once for each state of the sources. */
import { createHash } from "node:crypto";
import { existsSync } from "node:fs";
import { mkdir, mkdtemp, readdir, readFile, rename, rm } from "node:fs/promises";
import { basename, join, relative, resolve, sep } from "node:path";

const web = resolve(import.meta.dirname, "..");
const shelf = resolve(web, "../../../build/page-tests");
const sources = [
  "index.html",
  "package-lock.json",
  "plugins",
  "public",
  "src",
  "test/built.mjs",
  "test/stage",
  "tsconfig.json",
  "vite.config.ts",
];

/** The folder of a bundle of the sources as they are now: of the page itself, or of the test stage. */
export async function builtFolder(name) {
  const folder = join(shelf, `${name}-${await fingerprint()}`);
  if (!existsSync(folder)) await buildInto(folder, name);
  return folder;
}

async function buildInto(folder, name) {
  await mkdir(shelf, { recursive: true });
  const old = (await readdir(shelf)).filter((other) => other.startsWith(`${name}-`) && other !== basename(folder));
  await Promise.all(old.map((other) => rm(join(shelf, other), { recursive: true, force: true })));
  const { build } = await import("vite");
  const unfinished = await mkdtemp(join(shelf, "unfinished-"));
  await build({
    ...(name === "stage" ? { root: resolve(web, "test/stage"), publicDir: false } : { root: web }),
    configFile: resolve(web, "vite.config.ts"),
    logLevel: "warn",
    build: { outDir: unfinished, emptyOutDir: true },
  });
  // Another test may have been quicker with the same.
  await rename(unfinished, folder).catch(() => rm(unfinished, { recursive: true }));
}

async function fingerprint() {
  const hash = createHash("sha256");
  for (const source of sources) {
    for (const path of await filesOf(join(web, source))) {
      hash.update(`${relative(web, path).split(sep).join("/")}\0`).update(await readFile(path));
    }
  }
  return hash.digest("hex").slice(0, 16);
}

async function filesOf(path) {
  const entries = await readdir(path, { recursive: true, withFileTypes: true }).catch(() => null);
  if (!entries) return [path];
  return entries
    .filter((entry) => entry.isFile())
    .map((entry) => join(entry.parentPath, entry.name))
    .sort();
}
