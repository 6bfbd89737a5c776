#!/usr/bin/env node
// A picture of every screen, where it is fullest and what else it can look like, dark and light, and of every week of the
// filmed lives, on one page to look through. A screen without a picture is named, and fails.
//   node tools/gallery.mjs [--root dist] [--out FOLDER] [--theme dark|light] [--screen NAME] [--world NAME]
// --screen takes the screens whose name holds it; --world walks through all that one career or filmed life has.
import { mkdir, rm, writeFile } from "node:fs/promises";
import { join } from "node:path";
import { parseArgs } from "node:util";
import { launchBrowser } from "./browser.mjs";
import { film } from "./film.mjs";
import { galleryPage } from "./gallery-page.mjs";
import { everyScreen, openSight } from "./screens.mjs";
import { serve } from "./serve.mjs";
import { walk } from "./walk.mjs";
import { drawnWhole } from "./whole.mjs";
import { filmNames, openWorld, world } from "./worlds.mjs";

const { values } = parseArgs({
  options: {
    root: { type: "string", default: "dist" },
    out: { type: "string", default: "gallery" },
    screen: { type: "string" },
    world: { type: "string" },
    theme: { type: "string" },
    width: { type: "string", default: "390" },
    height: { type: "string", default: "844" },
    letters: { type: "string", default: "100" },
  },
});
const size = { width: Number(values.width), height: Number(values.height) };
const themes = values.theme ? [values.theme] : ["dark", "light"];
const pagesAtOnce = 2;

await rm(values.out, { recursive: true, force: true });
await mkdir(values.out, { recursive: true });
const server = await serve({ root: values.root });
const home = `http://127.0.0.1:${server.address().port}/`;
const browser = await launchBrowser();
const shots = [];
const faults = [];
try {
  await together(values.world ? [() => takeWorld(values.world)] : await everything());
} finally {
  await browser.close();
  server.close();
}
shots.sort((a, b) => a.place - b.place);
await writeFile(join(values.out, "index.html"), galleryPage(shots, size));
console.log(`${shots.length} pictures: ${join(values.out, "index.html")}`);
for (const fault of faults) console.error(fault);
process.exitCode = faults.length > 0 ? 1 : 0;

async function together(jobs) {
  const next = async () => {
    for (let job = jobs.shift(); job; job = jobs.shift()) await job();
  };
  await Promise.all(Array.from({ length: pagesAtOnce }, next));
}

/** A job for each sight of each screen, and for each filmed life. */
async function everything() {
  const wanted = (await everyScreen()).filter(({ name }) => name.includes(values.screen ?? ""));
  for (const { name, sights } of wanted) if (sights.length === 0) faults.push(`there is no way to ${name}`);
  const jobs = wanted.flatMap((screen) => screen.sights.map((sight, i) => () => takeSight(screen, sight, i)));
  return values.screen ? jobs : [...jobs, ...filmNames.map((life) => () => takeWorld(life))];
}

async function takeSight({ name, room, place }, sight, number) {
  const told = `${name}, ${sight.career}`;
  await onPage(told, async (page) => {
    const { modal, tab, tabs, stack } = await openSight(page, home, name, sight);
    const group = modal ? "Over everything" : `${tabs[tab].label}${stack.length > 1 ? `, ${room}` : ""}`;
    for (const theme of themes) {
      await page.emulateMedia({ colorScheme: theme });
      const take = (what) =>
        shoot(page, {
          group,
          place,
          name: what,
          told: `${sight.career}, ${theme}`,
          file: `${name}-${number}-${theme}`,
        });
      await take(name);
      await below(page, () => take(`${name}, below`));
    }
  });
}

/** All that a career leads to, or all the weeks of a filmed life. */
async function takeWorld(career) {
  for (const theme of filmNames.includes(career) ? themes.slice(0, 1) : themes) {
    await onPage(career, async (page) => {
      await page.emulateMedia({ colorScheme: theme });
      const take = (name) =>
        shoot(page, { group: career, place: Infinity, name, told: theme, file: `${career}-${theme}-${name}` });
      if (filmNames.includes(career)) return film(page, home, career, take);
      await openWorld(page, home, world(career));
      await walk(page, async (name) => {
        await take(name);
        await below(page, () => take(`${name}, below`));
      });
    });
  }
}

async function onPage(told, look) {
  const context = await browser.newContext({ viewport: size, reducedMotion: "reduce" });
  const page = await context.newPage();
  page.on("console", (message) => message.type() === "error" && faults.push(`${told}: ${message.text()}`));
  page.on("pageerror", (error) => faults.push(`${told}: ${error}`));
  if (values.letters !== "100") {
    await page.addInitScript((letters) => {
      addEventListener("DOMContentLoaded", () => (document.documentElement.style.fontSize = `${letters}%`));
    }, values.letters);
  }
  await look(page).catch((error) => faults.push(`${told}: ${error}`));
  await context.close();
}

/** The end of the screen, where it is longer than the glass. */
async function below(page, take) {
  const scrolls = await page.evaluate(() => {
    const scroll = document.querySelector(".layer.top .scroll");
    const more = scroll.scrollHeight > scroll.clientHeight + 60 && !document.querySelector("dialog[open]");
    if (more) scroll.scrollTop = scroll.scrollHeight;
    return more;
  });
  if (!scrolls) return;
  await take();
  await page.evaluate(() => (document.querySelector(".layer.top .scroll").scrollTop = 0));
}

async function shoot(page, shot) {
  await stillness(page);
  const below = shot.name.endsWith("below") && !shot.file.endsWith("below") ? "-below" : "";
  const file = `${shot.file}${below}`.replace(/[^\w]+/g, "-") + ".jpg";
  await page.screenshot({ path: join(values.out, file), type: "jpeg", quality: 80 });
  shots.push({ ...shot, file });
}

/** Waits until all is drawn, nothing moves and every picture is there. */
async function stillness(page) {
  await drawnWhole(page);
  await page.evaluate(async () => {
    await new Promise(requestAnimationFrame);
    const ending = document.getAnimations().filter(({ effect }) => effect.getComputedTiming().endTime !== Infinity);
    await Promise.allSettled(ending.map(({ finished }) => finished));
    await document.fonts.ready;
    await Promise.allSettled([...document.images].map((image) => image.decode()));
    for (let frame = 0; frame < 3; frame += 1) await new Promise(requestAnimationFrame);
  });
}
