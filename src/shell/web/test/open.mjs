import { mkdtemp, rm } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join, resolve } from "node:path";
import { build } from "vite";
import { launchBrowser } from "../tools/browser.mjs";
import { serve } from "../tools/serve.mjs";

const here = import.meta.dirname;

/** Builds the test stage into a folder of its own and serves it. */
export function openStage() {
  return buildAndOpen({ root: resolve(here, "stage"), publicDir: false });
}

/** Builds the real page with the real engine into a folder of its own and serves it. */
export function openGame() {
  return buildAndOpen({ root: resolve(here, "..") });
}

async function buildAndOpen(what) {
  const folder = await mkdtemp(join(tmpdir(), "backbeat-page-"));
  const configFile = resolve(here, "../vite.config.ts");
  await build({ ...what, configFile, logLevel: "warn", build: { outDir: folder, emptyOutDir: true } });
  const house = await openHouse(folder);
  return { ...house, folder, close: () => house.close().then(() => rm(folder, { recursive: true })) };
}

/** Serves a built folder and opens a browser on it; `open` gives pages that note every fault. */
export async function openHouse(root) {
  const server = await serve({ root });
  const browser = await launchBrowser();
  const home = `http://127.0.0.1:${server.address().port}/`;

  /** `init` runs in the page before anything of its own. */
  async function open({ theme = "dark", width = 390, height = 844, address = home, init, ...more } = {}) {
    const context = await browser.newContext({
      viewport: { width, height },
      colorScheme: theme,
      reducedMotion: "reduce",
      serviceWorkers: "block",
      ...more,
    });
    if (init) await context.addInitScript(init);
    const page = await context.newPage();
    const faults = [];
    page.on("console", (message) => message.type() === "error" && faults.push(message.text()));
    page.on("pageerror", (error) => faults.push(String(error)));
    page.on("request", (request) => {
      const outside = !request.url().startsWith(home) && !request.url().startsWith("data:");
      if (outside) faults.push(`asked for ${request.url()}`);
    });
    await page.goto(address);
    return { page, context, faults };
  }

  async function close() {
    await browser.close();
    if (server.listening) await new Promise((done) => server.close(done));
  }

  /** From now on there is no network. */
  function unplug() {
    server.close();
    server.closeAllConnections();
  }

  return { home, browser, open, unplug, close };
}
