#!/usr/bin/env node
// A screenshot after a list of presses, each by what the name of a button, switch, option or tab begins with:
//   node tools/shot.mjs [--theme dark|light] [--width 390] [--height 844] [--seed 7] [--root dist | --url http://...]
//                       [--scroll 400] [--out shot.png] "Music" "Create a song" ...
// A press written as "Label=text" types the text into that field.
import { parseArgs } from "node:util";
import { launchBrowser } from "./browser.mjs";
import { serve } from "./serve.mjs";

const { values, positionals: presses } = parseArgs({
  allowPositionals: true,
  options: {
    theme: { type: "string", default: "dark" },
    width: { type: "string", default: "390" },
    height: { type: "string", default: "844" },
    seed: { type: "string", default: "7" },
    root: { type: "string", default: "dist" },
    url: { type: "string" },
    scroll: { type: "string", default: "0" },
    out: { type: "string", default: "shot.png" },
  },
});

const server = values.url ? null : await serve({ root: values.root });
const browser = await launchBrowser({ forPictures: true });
try {
  const page = await browser.newPage({
    viewport: { width: Number(values.width), height: Number(values.height) },
    deviceScaleFactor: 2,
    colorScheme: values.theme === "light" ? "light" : "dark",
    reducedMotion: "reduce",
  });
  page.on("console", (message) => message.type() === "error" && console.error(message.text()));
  page.on("pageerror", (error) => console.error(error.message));
  const address = new URL(values.url ?? `http://127.0.0.1:${server.address().port}/`);
  address.searchParams.set("seed", values.seed);
  await page.goto(address.href);
  await page.locator(".layer.top, .full-notice button").first().waitFor();
  for (const press of presses) await perform(page, press);
  await page.locator(".layer.top .scroll").evaluate((scroll, by) => scroll.scrollBy(0, by), Number(values.scroll));
  await page.waitForTimeout(400);
  await page.screenshot({ path: values.out });
  console.log(values.out);
} finally {
  await browser.close();
  server?.close();
}

async function perform(page, press) {
  const [start, text] = press.split(/=(.*)/s);
  const name = new RegExp(`^${start.replace(/[^\w\s]/g, "\\$&")}`, "i");
  const dialog = page.locator("dialog[open]");
  const within = (await dialog.count()) ? dialog : page.locator(".layer.top, .tab-bar");
  if (text !== undefined) return within.getByRole("textbox", { name }).first().fill(text);
  const controls = ["button", "switch", "radio"].map((role) => within.getByRole(role, { name }));
  return controls
    .reduce((all, one) => all.or(one))
    .first()
    .click({ timeout: 5000 });
}
