import { spawn } from "node:child_process";
import { existsSync, mkdirSync, mkdtempSync, readdirSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { browser, elementKey } from "./browser.mjs";
import { endGroup, freePort, phone, retry } from "./waiting.mjs";

/** WebKit as Debian has it, on a screen of its own; driven by W3C WebDriver. */
export async function webkit({ still = false, language = "en_US.UTF-8" } = {}) {
  const home = mkdtempSync(join(tmpdir(), "backbeat-webkit-"));
  mkdirSync(join(home, "gtk-3.0"));
  writeFileSync(join(home, "gtk-3.0", "settings.ini"), `[Settings]\ngtk-enable-animations=${still ? 0 : 1}\n`);
  const group = { detached: true, stdio: ["ignore", "ignore", "ignore", "pipe"] };
  const screen = spawn("Xvfb", ["-displayfd", "3", "-screen", "0", "1024x1024x24", "-nolisten", "tcp"], group);
  const display = await new Promise((done, failed) => {
    screen.once("error", failed);
    screen.stdio[3].once("data", (number) => done(`:${String(number).trim()}`));
  });
  const port = await freePort();
  const driver = spawn("WebKitWebDriver", [`--port=${port}`], {
    detached: true,
    stdio: "ignore",
    env: { ...process.env, DISPLAY: display, XDG_CONFIG_HOME: home, LC_ALL: language, LIBGL_ALWAYS_SOFTWARE: "1" },
  });
  const quit = async () => {
    await Promise.all([driver, screen].map(endGroup));
    rmSync(home, { recursive: true, force: true, maxRetries: 5 });
  };

  async function call(method, path, body) {
    const answer = await fetch(`http://127.0.0.1:${port}${path}`, { method, body: body && JSON.stringify(body) });
    const { value } = await answer.json();
    if (!answer.ok) throw new Error(`${value.error}: ${value.message}`);
    return value;
  }
  try {
    await retry(async () => (await call("GET", "/status")).ready !== undefined, "the driver is there");
    const alwaysMatch = { "webkitgtk:browserOptions": { binary: program(), args: ["--automation"] } };
    const { sessionId } = await call("POST", "/session", { capabilities: { alwaysMatch } });
    const at = (path) => `/session/${sessionId}${path}`;
    await call("POST", at("/window/rect"), phone);
    return browser({
      go: (url) => call("POST", at("/url"), { url }),
      back: () => call("POST", at("/back"), {}),
      script: (script, args) => call("POST", at("/execute/async"), { script, args }),
      find: async (value) => (await call("POST", at("/element"), { using: "css selector", value }))[elementKey],
      click: (id) => call("POST", at(`/element/${id}/click`), {}),
      type: (id, text) => call("POST", at(`/element/${id}/value`), { text }),
      actions: (actions) => call("POST", at("/actions"), { actions }),
      newTab: async () => (await call("POST", at("/window/new"), { type: "tab" })).handle,
      tab: () => call("GET", at("/window")),
      toTab: (handle) => call("POST", at("/window"), { handle }),
      quit,
    });
  } catch (failed) {
    await quit();
    throw failed;
  }
}

/** The browser that comes with the engine; its folder is named after the machine. */
function program() {
  const places = readdirSync("/usr/lib").map((machine) => `/usr/lib/${machine}/webkit2gtk-4.1/MiniBrowser`);
  return places.find((place) => existsSync(place));
}
