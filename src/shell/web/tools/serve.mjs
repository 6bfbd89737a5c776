#!/usr/bin/env node
// Serves a built page: node tools/serve.mjs [--port 8080] [--host 127.0.0.1] [--root dist]
import { readFileSync, realpathSync } from "node:fs";
import { readFile, realpath } from "node:fs/promises";
import { createServer } from "node:http";
import { extname, join, resolve, sep } from "node:path";
import { fileURLToPath } from "node:url";
import { parseArgs } from "node:util";

const types = {
  ".css": "text/css; charset=utf-8",
  ".html": "text/html; charset=utf-8",
  ".ico": "image/x-icon",
  ".js": "text/javascript; charset=utf-8",
  ".json": "application/json; charset=utf-8",
  ".png": "image/png",
  ".svg": "image/svg+xml; charset=utf-8",
  ".txt": "text/plain; charset=utf-8",
  ".wasm": "application/wasm",
  ".webmanifest": "application/manifest+json; charset=utf-8",
  ".woff2": "font/woff2",
};

/** Starts a server for the files under `root`; resolves with it once it listens. */
export function serve({ root, port = 0, host = "127.0.0.1" }) {
  const top = realpathSync(resolve(root));
  const policy = policyOf(top);
  const server = createServer(async (request, response) => {
    const send = (status, headers, body) =>
      response.writeHead(status, headers).end(request.method === "HEAD" ? undefined : body);
    if (request.method !== "GET" && request.method !== "HEAD") return send(405, { Allow: "GET, HEAD" }, "");
    const file = await fileFor(top, request.url ?? "/");
    const body = file && (await readFile(file).catch(() => null));
    if (!body) return send(404, { "Content-Type": types[".txt"] }, "Not found\n");
    return send(
      200,
      {
        "Content-Type": types[extname(file)] ?? "application/octet-stream",
        "Content-Length": body.length,
        // Names under assets/ carry a hash of what is in them; everything else is asked for anew.
        "Cache-Control": file.includes(`${sep}assets${sep}`) ? "public, max-age=31536000, immutable" : "no-cache",
        "Content-Security-Policy": policy,
        "X-Content-Type-Options": "nosniff",
        "Referrer-Policy": "no-referrer",
      },
      body,
    );
  });
  return new Promise((done, failed) => {
    server.once("error", failed);
    server.listen(port, host, () => done(server));
  });
}

/** The page's own policy, and what only a header can say. */
function policyOf(top) {
  const page = readFileSync(join(top, "index.html"), "utf8");
  const own = /http-equiv="Content-Security-Policy"\s+content="([^"]+)"/.exec(page)?.[1];
  return [own, "frame-ancestors 'none'"].filter(Boolean).join("; ");
}

/** The file that an address means, or null when it is outside of `top`, links included. */
async function fileFor(top, address) {
  try {
    const path = decodeURIComponent(new URL(address, "http://localhost").pathname);
    const file = await realpath(join(top, path.endsWith("/") ? `${path}index.html` : path));
    return file.startsWith(top + sep) ? file : null;
  } catch {
    return null;
  }
}

const usage = "node tools/serve.mjs [--port 8080] [--host 127.0.0.1] [--root dist]";

/** What the words of the command line ask for, or `misuse`, what is wrong with them. */
function asked(words) {
  try {
    const { values } = parseArgs({
      args: words,
      options: {
        port: { type: "string", default: "8080" },
        host: { type: "string", default: "127.0.0.1" },
        root: { type: "string", default: "dist" },
      },
    });
    const port = /^\d{1,5}$/.test(values.port) ? Number(values.port) : Infinity;
    if (port > 65535) return { misuse: `A port is a number from 0 to 65535, not "${values.port}".` };
    return { ...values, port };
  } catch (refused) {
    return { misuse: refused.message.split(/[.\n]/)[0] + "." };
  }
}

/** An address that a browser takes: those of IPv6 stand in brackets. */
export function addressOf(host, port) {
  return `http://${host.includes(":") ? `[${host}]` : host}:${port}/`;
}

async function main() {
  const { misuse, host, root, port } = asked(process.argv.slice(2));
  if (misuse) {
    console.error(`${misuse} Usage: ${usage}`);
    process.exitCode = 2;
    return;
  }
  try {
    const server = await serve({ root, port, host });
    console.log(`Backbeat is at ${addressOf(host, server.address().port)}  (Ctrl+C ends it)`);
  } catch (failed) {
    const reasons = {
      EADDRINUSE: `Port ${port} is taken; choose another one with --port.`,
      EACCES: `Port ${port} is not allowed here; choose one above 1023 with --port.`,
      ENOTFOUND: `There is no computer called ${host}; --host takes one of this computer's addresses.`,
      EADDRNOTAVAIL: `${host} is no address of this computer.`,
      ENOENT: `There is no built page in ${root}; run "npm run build" first.`,
    };
    console.error(reasons[failed.code] ?? failed.message);
    process.exitCode = 1;
  }
}

if (process.argv[1] && realpathSync(process.argv[1]) === fileURLToPath(import.meta.url)) await main();
