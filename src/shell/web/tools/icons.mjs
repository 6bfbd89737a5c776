#!/usr/bin/env node
// Draws the icons of the installed page from public/icon.svg:  node tools/icons.mjs
import { readFile } from "node:fs/promises";
import { resolve } from "node:path";
import { launchBrowser } from "./browser.mjs";

const folder = resolve(import.meta.dirname, "../public");
const rounded = await readFile(resolve(folder, "icon.svg"), "utf8");
// Devices cut these to a shape of their own: colour up to the edge, and for a mask the drawing within the inner circle.
const square = rounded.replace(/ rx="116"/, "");
const masked = square.replace('<g fill="#fff">', '<g fill="#fff" transform="translate(64 64) scale(0.75)">');

const icons = [
  ["icon-192.png", rounded, 192],
  ["icon-512.png", rounded, 512],
  ["icon-maskable.png", masked, 512],
  ["apple-touch-icon.png", square, 180],
];

const browser = await launchBrowser({ forPictures: true });
try {
  for (const [name, drawing, size] of icons) {
    const page = await browser.newPage({ viewport: { width: size, height: size } });
    await page.setContent(`<style>body{margin:0}svg{display:block;width:100vw;height:100vh}</style>${drawing}`);
    await page.screenshot({ path: resolve(folder, name), omitBackground: true });
    await page.close();
  }
} finally {
  await browser.close();
}
