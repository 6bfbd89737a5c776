import { openWorld, world } from "../tools/worlds.mjs";
import { openGame } from "./open.mjs";
import { answerAlerts } from "./life.mjs";
const game = await openGame();
const { page } = await game.open({ address: "about:blank", reducedMotion: "no-preference" });
await openWorld(page, game.home, world("golden_decade"));
const tracer = await game.browser.newBrowserCDPSession();
const rate = Number(process.argv[2] ?? 1);
const session = await page.context().newCDPSession(page);
await session.send("Emulation.setCPUThrottlingRate", { rate });
await page.evaluate(() => {
  window.entries = [];
  new PerformanceObserver((l) => { for (const e of l.getEntries()) if (e.name === "click") { window.waited = e.duration; window.entry = [e.processingStart - e.startTime, e.processingEnd - e.processingStart, e.duration]; } }).observe({ type: "event", durationThreshold: 16 });
});
const tab = (n) => page.locator(".tab-bar button").nth(n);
const button = (name) => page.locator(".layer.top").getByRole("button", { name }).first();
async function time(name, b) {
  await b.scrollIntoViewIfNeeded();
  await page.waitForFunction(() => !document.querySelector(".moving"));
  await page.evaluate(() => new Promise((idle) => requestIdleCallback(() => ((window.waited = null), idle()))));
  const events = [];
  const on = ({ value }) => events.push(...value);
  tracer.on("Tracing.dataCollected", on);
  await tracer.send("Tracing.start", { transferMode: "ReportEvents", traceConfig: { includedCategories: ["devtools.timeline", "toplevel", "blink.user_timing", "cc", "viz", "gpu", "disabled-by-default-devtools.timeline", "__metadata", "latencyInfo"] } });
  await b.click({ delay: 80 });
  await page.waitForFunction(() => window.waited);
  await page.waitForTimeout(60);
  const done = new Promise((d) => tracer.once("Tracing.tracingComplete", d));
  await tracer.send("Tracing.end"); await done; tracer.off("Tracing.dataCollected", on);
  const entry = await page.evaluate(() => window.entry.map(Math.round));
  const click = events.find((e) => e.name === "EventDispatch" && e.args?.data?.type === "click");
  if (!click) return console.log(name, entry, "no click");
  const end = click.ts + entry[2] * 1000;
  const main = events.filter((e) => e.pid === click.pid && e.tid === click.tid && e.ph === "X" && e.ts >= click.ts - 2000 && e.ts < end && e.dur);
  // self times
  main.sort((a, b) => a.ts - b.ts || b.dur - a.dur);
  const self = {}; const stack = [];
  for (const e of main) { while (stack.length && stack.at(-1).ts + stack.at(-1).dur <= e.ts) stack.pop(); if (stack.length) self[stack.at(-1).name] -= e.dur; self[e.name] = (self[e.name] ?? 0) + e.dur; stack.push(e); }
  const top = Object.entries(self).map(([k, v]) => [k, v / 1000]).filter(([, v]) => v > 0.6).sort((a, b) => b[1] - a[1]).slice(0, 12).map(([k, v]) => `${k} ${v.toFixed(1)}`).join(", ");
  const others = {};
  for (const e of events) if (e.ph === "X" && (e.pid !== click.pid || e.tid !== click.tid) && e.ts >= click.ts && e.ts < end && /RasterTask|ImageDecode|DrawFrame|SwapBuffers|DrawAndSwap|SkiaOutput|GpuScheduler/i.test(e.name)) others[e.name] = (others[e.name] ?? 0) + e.dur / 1000;
  console.log(name, JSON.stringify(entry), "|", top, "|", Object.entries(others).map(([k, v]) => `${k} ${v.toFixed(1)}`).join(", "));
  if (process.argv[3] === "list") { for (const e of main.filter((e) => e.dur > 800)) console.log("   ", ((e.ts - click.ts) / 1000).toFixed(1), (e.dur / 1000).toFixed(1), e.name); }
}
for (let round = 0; round < 2; round += 1) {
  for (const n of [1, 2, 3, 4, 1]) await time("tab" + n, tab(n));
  await time("create", button("Create a Song"));
  await time("back", button("Back"));
  await time("tab0", tab(0));
  await time("report", button("END THE WEEK"));
  await answerAlerts(page);
  await time("continue", button("Continue"));
  await answerAlerts(page);
}
await game.close();
process.exit(0);
