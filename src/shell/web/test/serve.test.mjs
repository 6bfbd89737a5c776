import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { mkdtemp, mkdir, rm, symlink, writeFile } from "node:fs/promises";
import { request } from "node:http";
import { tmpdir } from "node:os";
import { join, resolve } from "node:path";
import { after, before, test } from "node:test";
import { addressOf, serve } from "../tools/serve.mjs";

const script = resolve(import.meta.dirname, "../tools/serve.mjs");
const policy = `<meta http-equiv="Content-Security-Policy" content="default-src 'none'">`;
let folder;
let server;

before(async () => {
  folder = await mkdtemp(join(tmpdir(), "backbeat-serve-"));
  const root = join(folder, "root");
  await mkdir(root);
  await writeFile(join(root, "index.html"), policy);
  await writeFile(join(root, "engine.wasm"), "wasm");
  await writeFile(join(folder, "secret.txt"), "secret");
  await mkdir(join(folder, "root-beside"));
  await writeFile(join(folder, "root-beside", "secret.txt"), "secret");
  await symlink(join(folder, "secret.txt"), join(root, "link.txt"));
  server = await serve({ root });
});
after(async () => {
  server.close();
  await rm(folder, { recursive: true });
});

/** Asks for a raw path: a client that tidies addresses up would never send the wicked ones. */
function ask(path) {
  return new Promise((done, failed) => {
    request({ host: "127.0.0.1", port: server.address().port, path }, (response) => {
      let body = "";
      response.on("data", (piece) => (body += piece));
      response.on("end", () => done({ status: response.statusCode, headers: response.headers, body }));
    })
      .on("error", failed)
      .end();
  });
}

test("the page comes with its types and its policy", async () => {
  const page = await ask("/?seed=7");
  assert.equal(page.status, 200);
  assert.match(page.headers["content-type"], /^text\/html/);
  assert.equal(page.headers["content-security-policy"], "default-src 'none'; frame-ancestors 'none'");
  assert.equal((await ask("/engine.wasm")).headers["content-type"], "application/wasm");
});

test("nothing outside of the folder is given away", async () => {
  const wicked = [
    "/../secret.txt",
    "/%2e%2e/secret.txt",
    "/..%2fsecret.txt",
    "/../root-beside/secret.txt",
    "/link.txt",
    "/%",
    "/a%00b",
    "//",
  ];
  for (const path of wicked) {
    const { body } = await ask(path);
    assert.ok(!body.includes("secret"), path);
  }
  assert.equal((await ask("/..%2fsecret.txt")).status, 404);
});

const served = (...words) => spawnSync(process.execPath, [script, ...words], { encoding: "utf8", timeout: 10_000 });

test("a port that is taken is told in one line", () => {
  const { port } = server.address();
  const { status, stderr } = served("--port", String(port), "--root", join(folder, "root"));
  assert.equal(status, 1);
  assert.match(stderr, /^Port \d+ is taken.*\n$/);
});

test("misuse is told in one line", () => {
  const senseless = [["--port"], ["--port", "http"], ["--port", "65536"], ["--port", "-1"], ["--tempo", "3"], ["dist"]];
  for (const words of senseless) {
    const { status, stderr } = served(...words);
    assert.equal(status, 2, words.join(" "));
    assert.match(stderr, /^[^\n]+ Usage: node tools\/serve\.mjs [^\n]*\n$/, words.join(" "));
  }
});

test("an address of IPv6 stands in brackets", () => {
  assert.equal(addressOf("::1", 8080), "http://[::1]:8080/");
  assert.equal(addressOf("127.0.0.1", 8080), "http://127.0.0.1:8080/");
});
