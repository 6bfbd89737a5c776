import { readdirSync, readFileSync } from "node:fs";
import { join } from "node:path";

const rule = `\n\n${"=".repeat(72)}\n\n`;

/** Writes licenses.txt: the licence of every package that has a part in the bundle, and those of the engine. */
export function licences() {
  return {
    name: "licences",
    apply: "build",
    generateBundle(_, bundle) {
      const modules = Object.values(bundle).flatMap((piece) => Object.keys(piece.modules ?? {}));
      const folders = new Set([...modules, ...this.getModuleIds()].map(packageFolder).filter(Boolean));
      const texts = [...folders].sort().map(licenceOf);
      texts.push(readFileSync(join(import.meta.dirname, "engine-licences.txt"), "utf8").trim());
      this.emitFile({ type: "asset", fileName: "licenses.txt", source: `${texts.join(rule)}\n` });
    },
  };
}

/** The folder of the package that a module belongs to; none for our own. */
function packageFolder(module) {
  return /^\0?(.*\/node_modules\/(?:@[^/]+\/)?[^/]+)\//.exec(module)?.[1];
}

function licenceOf(folder) {
  const { name, version, license } = JSON.parse(readFileSync(join(folder, "package.json"), "utf8"));
  const file = readdirSync(folder).find((each) => /^licen[cs]e(\.|$)/i.test(each));
  if (!file) throw new Error(`The package ${name} comes without the text of its licence.`);
  return `${name} ${version} (${license})\n\n${readFileSync(join(folder, file), "utf8").trim()}`;
}
