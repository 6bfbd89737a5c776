import { createHash } from "node:crypto";
import { readdirSync, readFileSync, writeFileSync } from "node:fs";
import { join, relative, sep } from "node:path";

const workerName = "sw.js";
/** What the page itself never asks for: the device does, once, when it installs the page. */
const leftOut = [/^icon.*\.png$/, /^apple-touch-icon\.png$/, new RegExp(`^${workerName}$`)];

/** Writes the service worker beside the finished page. */
export function offline() {
  let folder;
  return {
    name: "offline",
    apply: "build",
    configResolved: ({ build }) => void (folder = build.outDir),
    closeBundle: { order: "post", sequential: true, handler: () => writeWorker(folder) },
  };
}

/** Writes the service worker for the files in `folder` as they are now: each with a hash of what is in it. */
export function writeWorker(folder) {
  const files = Object.fromEntries(
    readdirSync(folder, { recursive: true, withFileTypes: true })
      .filter((entry) => entry.isFile())
      .map((entry) => join(entry.parentPath, entry.name))
      .map((path) => [relative(folder, path).split(sep).join("/"), path])
      .filter(([name]) => !leftOut.some((pattern) => pattern.test(name)))
      .sort(([a], [b]) => (a < b ? -1 : 1))
      .map(([name, path]) => [name === "index.html" ? "./" : name, hash(readFileSync(path))]),
  );
  const worker = readFileSync(join(import.meta.dirname, "worker.js"), "utf8");
  const list = JSON.stringify(files, null, 1);
  writeFileSync(join(folder, workerName), `const files = ${list};\nconst version = "${hash(list)}";\n${worker}`);
}

function hash(bytes) {
  return createHash("sha256").update(bytes).digest("hex").slice(0, 32);
}
