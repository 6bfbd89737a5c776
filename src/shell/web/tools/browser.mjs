import { chromium } from "playwright-core";

const drawn = ["--use-gl=angle", "--use-angle=swiftshader", "--enable-unsafe-swiftshader"];

/**
 * Chromium, quiet on the network. For pictures it draws everything, the blur behind the bars too; without them it leaves
 * out what only a graphics card is quick at.
 */
export function launchBrowser({ forPictures = false } = {}) {
  return chromium.launch({
    executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium",
    args: [
      "--no-sandbox",
      ...(forPictures ? drawn : ["--disable-gpu"]),
      "--disable-background-networking",
      "--disable-component-update",
      "--disable-sync",
      "--no-first-run",
      "--no-default-browser-check",
    ],
  });
}
