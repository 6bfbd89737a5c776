// Fails when an engine module imports anything or lets a 64-bit integer through its door: the page hands in nothing,
// and numbers past 32 bits do not cross. Usage: node check_wasm.mjs engine.wasm
import { readFileSync } from 'node:fs';

const valueTypes = new Map([[0x7f, 'i32'], [0x7e, 'i64'], [0x7d, 'f32'], [0x7c, 'f64']]);

/** Reads the sections of a module, whose numbers are LEB128. */
class Reader {
  constructor(bytes) {
    this.bytes = bytes;
    this.at = 8;
  }
  number() {
    let value = 0;
    for (let shift = 0; ; shift += 7) {
      const byte = this.bytes[this.at++];
      value += (byte & 0x7f) * 2 ** shift;
      if (byte < 0x80) return value;
    }
  }
  list(read) {
    return Array.from({ length: this.number() }, read);
  }
  text() {
    const length = this.number();
    this.at += length;
    return new TextDecoder().decode(this.bytes.subarray(this.at - length, this.at));
  }
  types() {
    return this.list(() => valueTypes.get(this.bytes[this.at++]) ?? 'other');
  }
}

function readModule(bytes) {
  const reader = new Reader(bytes);
  const found = { signatures: [], functions: [], exports: [] };
  while (reader.at < bytes.length) {
    const section = bytes[reader.at++];
    const size = reader.number();
    const end = reader.at + size;
    if (section === 1) {
      found.signatures = reader.list(() => {
        reader.at++; // every one is a function type
        return [...reader.types(), ...reader.types()];
      });
    }
    if (section === 3) found.functions = reader.list(() => reader.number());
    if (section === 7) {
      found.exports = reader.list(() => ({ name: reader.text(), kind: bytes[reader.at++], index: reader.number() }));
    }
    reader.at = end;
  }
  return found;
}

const bytes = readFileSync(process.argv[2]);
const faults = WebAssembly.Module.imports(new WebAssembly.Module(bytes)).map(
  ({ module, name, kind }) => `imports the ${kind} ${module}.${name}`,
);
if (faults.length === 0) {
  const { signatures, functions, exports } = readModule(bytes);
  for (const { name, kind, index } of exports) {
    if (kind === 0 && signatures[functions[index]].includes('i64')) faults.push(`exports ${name} with a 64-bit integer`);
  }
}
for (const fault of faults) console.error(`${process.argv[2]} ${fault}`);
process.exit(faults.length === 0 ? 0 : 1);
