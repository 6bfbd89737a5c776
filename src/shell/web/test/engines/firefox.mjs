import { spawn } from "node:child_process";
import { mkdtempSync, rmSync, writeFileSync } from "node:fs";
import { connect } from "node:net";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { browser, elementKey } from "./browser.mjs";
import { endGroup, freePort, phone, retry } from "./waiting.mjs";

const quiet = {
  "app.update.enabled": false,
  "datareporting.policy.dataSubmissionEnabled": false,
  "network.captive-portal-service.enabled": false,
  "network.connectivity-service.enabled": false,
  "services.settings.server": "data:,#remote-settings-dummy/v1",
};

/** Firefox without a window; driven by its own Marionette, which speaks JSON over a socket. */
export async function firefox({ still = false, language = "en_US.UTF-8" } = {}) {
  const port = await freePort();
  const profile = mkdtempSync(join(tmpdir(), "backbeat-firefox-"));
  const choices = { ...quiet, "marionette.port": port, "ui.prefersReducedMotion": still ? 1 : 0 };
  const lines = Object.entries(choices).map(([name, value]) => `user_pref("${name}", ${JSON.stringify(value)});`);
  writeFileSync(join(profile, "user.js"), lines.join("\n"));
  const program = spawn("firefox-esr", ["--headless", "--marionette", "--no-remote", "--profile", profile], {
    detached: true,
    stdio: "ignore",
    env: { ...process.env, HOME: profile, LC_ALL: language },
  });
  let socket;
  const quit = async () => {
    socket?.destroy();
    await endGroup(program);
    rmSync(profile, { recursive: true, force: true, maxRetries: 5 });
  };
  try {
    socket = await retry(() => connected(port), "Firefox listens", 40_000);
    const call = await talk(socket);
    await call("NewSession", {});
    await call("SetWindowRect", phone);
    return browser({
      go: (url) => call("Navigate", { url }),
      back: () => call("Back"),
      script: (script, args) => call("ExecuteAsyncScript", { script, args }),
      find: async (value) => (await call("FindElement", { using: "css selector", value }))[elementKey],
      click: (id) => call("ElementClick", { id }),
      type: (id, text) => call("ElementSendKeys", { id, text }),
      actions: (actions) => call("PerformActions", { actions }),
      newTab: async () => (await call("NewWindow", { type: "tab" })).handle,
      tab: () => call("GetWindowHandle"),
      toTab: (handle) => call("SwitchToWindow", { handle }),
      quit,
    });
  } catch (failed) {
    await quit();
    throw failed;
  }
}

function connected(port) {
  return new Promise((done, failed) => {
    const socket = connect(port, "127.0.0.1", () => done(socket));
    socket.once("error", failed);
  });
}

/** Waits for the greeting; then a way to call. A message is its length, a colon and a list: kind, number, name, values. */
async function talk(socket) {
  const waiting = new Map();
  await new Promise((greeted) =>
    readMessages(socket, (message) => {
      if (!Array.isArray(message)) return greeted();
      const [, number, error, result] = message;
      const { done, failed } = waiting.get(number);
      waiting.delete(number);
      if (error) failed(new Error(`${error.error}: ${error.message}`));
      else done(result?.value !== undefined ? result.value : result);
    }),
  );
  let calls = 0;
  return (name, values = {}) =>
    new Promise((done, failed) => {
      calls += 1;
      waiting.set(calls, { done, failed });
      const text = JSON.stringify([0, calls, `WebDriver:${name}`, values]);
      socket.write(`${Buffer.byteLength(text)}:${text}`);
    });
}

function readMessages(socket, take) {
  let held = Buffer.alloc(0);
  socket.on("data", (bytes) => {
    held = Buffer.concat([held, bytes]);
    for (;;) {
      const colon = held.indexOf(":");
      const end = colon + 1 + Number(held.subarray(0, Math.max(colon, 0)));
      if (colon < 0 || held.length < end) return;
      const message = JSON.parse(held.subarray(colon + 1, end));
      held = held.subarray(end);
      take(message);
    }
  });
}
