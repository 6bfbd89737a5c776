import { launchBrowser } from "../tools/browser.mjs";
import { serve } from "../tools/serve.mjs";
import { builtFolder } from "./built.mjs";

/** The test stage, served, and a browser on it. */
export async function openStage() {
  return openHouse(await builtFolder("stage"));
}

/** The real page with the real engine, served, and a browser on it. */
export async function openGame() {
  return openHouse(await builtFolder("page"));
}

/** Serves a built folder and opens a browser on it; `open` gives pages that note every fault. */
export async function openHouse(folder) {
  const server = await serve({ root: folder });
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
      // A letter goes to the device's own mail program, and only once the player sends it.
      const outside = ![home, "data:", "mailto:"].some((start) => request.url().startsWith(start));
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

  return { home, folder, browser, open, unplug, close };
}
