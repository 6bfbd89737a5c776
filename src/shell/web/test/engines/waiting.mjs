import { createServer } from "node:net";

/** The window of the checks: narrower, the browsers on a computer do not become. */
export const phone = { width: 480, height: 960 };

const pause = 50;

/** Tries `work` until it gives something; what it throws meanwhile is told when the time is over. */
export async function retry(work, told, ms = 20_000) {
  const end = Date.now() + ms;
  let fault = null;
  do {
    try {
      const found = await work();
      if (found) return found;
      fault = null;
    } catch (failed) {
      fault = failed;
    }
    await new Promise((done) => setTimeout(done, pause));
  } while (Date.now() < end);
  throw new Error(`waited in vain: ${told}${fault ? `; ${fault.message}` : ""}`, { cause: fault });
}

export function freePort() {
  return new Promise((done) => {
    const server = createServer().listen(0, "127.0.0.1", () => {
      const { port } = server.address();
      server.close(() => done(port));
    });
  });
}

/** Ends a process that leads a group of its own, and the group. */
export async function endGroup(child) {
  const over = child.exitCode !== null || child.signalCode !== null;
  const ended = over ? null : new Promise((done) => child.once("exit", done));
  try {
    process.kill(-child.pid, "SIGKILL");
  } catch {
    // all of them have ended already
  }
  await ended;
}
