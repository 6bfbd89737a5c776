#!/usr/bin/env node
// A picture of every screen in every world, dark, and in some of them light too, and of every week of the filmed lives,
// on one page to look through:
//   node tools/gallery.mjs [--root dist] [--out FOLDER] [--world NAME] [--theme dark|light]
import { mkdir, rm, writeFile } from "node:fs/promises";
import { join } from "node:path";
import { parseArgs } from "node:util";
import { launchBrowser } from "./browser.mjs";
import { film } from "./film.mjs";
import { serve } from "./serve.mjs";
import { walk } from "./walk.mjs";
import { filmNames, openWorld, world, worldNames } from "./worlds.mjs";

const { values } = parseArgs({
  options: {
    root: { type: "string", default: "dist" },
    out: { type: "string", default: "gallery" },
    world: { type: "string" },
    theme: { type: "string" },
  },
});
const alsoLight = ["new", "mid-career", "edges"];
const names = values.world ? [values.world] : [...worldNames, ...filmNames];

await rm(values.out, { recursive: true, force: true });
await mkdir(values.out, { recursive: true });
const server = await serve({ root: values.root });
const home = `http://127.0.0.1:${server.address().port}/`;
const browser = await launchBrowser({ forPictures: true });
const shots = [];
const faults = [];
try {
  for (const name of names) for (const theme of themesOf(name)) await take(name, theme);
} finally {
  await browser.close();
  server.close();
}
await writeFile(join(values.out, "index.html"), page());
console.log(`${shots.length} pictures: ${join(values.out, "index.html")}`);
for (const fault of faults) console.error(fault);
process.exitCode = faults.length > 0 ? 1 : 0;

function themesOf(career) {
  if (values.theme) return [values.theme];
  if (filmNames.includes(career)) return ["dark"];
  return values.world || alsoLight.includes(career) ? ["dark", "light"] : ["dark"];
}

async function take(career, theme) {
  const context = await browser.newContext({
    viewport: { width: 390, height: 844 },
    colorScheme: theme,
    reducedMotion: "reduce",
  });
  const page = await context.newPage();
  page.on("console", (message) => message.type() === "error" && faults.push(`${career}: ${message.text()}`));
  page.on("pageerror", (error) => faults.push(`${career}: ${error}`));
  const shot = (name) => shoot(page, career, theme, name);
  if (filmNames.includes(career)) {
    await film(page, home, career, shot);
  } else {
    await openWorld(page, home, world(career));
    await walk(page, async (name) => {
      await shot(name);
      await shootBelow(page, () => shot(`${name}, below`));
    });
  }
  await context.close();
}

/** The end of the screen, where it is longer than the glass. */
async function shootBelow(page, shot) {
  const scrolls = await page.evaluate(() => {
    const scroll = document.querySelector(".layer.top .scroll");
    const more = scroll.scrollHeight > scroll.clientHeight + 60 && !document.querySelector("dialog[open]");
    if (more) scroll.scrollTop = scroll.scrollHeight;
    return more;
  });
  if (!scrolls) return;
  await shot();
  await page.evaluate(() => (document.querySelector(".layer.top .scroll").scrollTop = 0));
}

async function shoot(page, career, theme, name) {
  await stillness(page);
  const file = `${career}-${theme}-${name}`.replace(/[^\w]+/g, "-") + ".jpg";
  await page.screenshot({ path: join(values.out, file), type: "jpeg", quality: 80 });
  shots.push({ career, theme, name, file });
}

/** Waits until nothing moves and every picture is there. */
async function stillness(page) {
  await page.evaluate(async () => {
    await new Promise(requestAnimationFrame);
    const ending = document.getAnimations().filter(({ effect }) => effect.getComputedTiming().endTime !== Infinity);
    await Promise.allSettled(ending.map(({ finished }) => finished));
    await document.fonts.ready;
    await Promise.allSettled([...document.images].map((image) => image.decode()));
    for (let frame = 0; frame < 3; frame += 1) await new Promise(requestAnimationFrame);
  });
}

function page() {
  const figure = ({ career, theme, name, file }) =>
    `<figure><img src="${file}" loading="lazy" width="390" height="844" alt=""><figcaption>${name}<br>${career}, ${theme}</figcaption></figure>`;
  const rows = names.flatMap((career) =>
    themesOf(career).map((theme) => {
      const own = shots.filter((shot) => shot.career === career && shot.theme === theme);
      return `<h2>${career}, ${theme}</h2><div>${own.map(figure).join("")}</div>`;
    }),
  );
  return `<!doctype html><meta charset="utf-8"><title>Backbeat, every screen</title>
<style>body{font:14px system-ui;margin:20px;background:#777}div{display:flex;flex-wrap:wrap;gap:16px}figure{margin:0}img{display:block;border-radius:20px}</style>
${rows.join("\n")}
`;
}
