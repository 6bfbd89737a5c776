/**
 * What presses cost the page's main thread until their result is painted, in milliseconds of processor time: that does
 * not depend on what else the machine is doing. The count begins here; `end` gives its sums.
 */
export async function countCosts(browser, page) {
  const tracer = await browser.newBrowserCDPSession();
  const events = [];
  const names = [];
  const moments = [];
  tracer.on("Tracing.dataCollected", ({ value }) => events.push(...value));
  await tracer.send("Tracing.start", {
    transferMode: "ReportEvents",
    traceConfig: { includedCategories: ["blink.user_timing", "toplevel", "__metadata"] },
  });

  /** `act` is a function for the page that presses something; `name` is what kind of press it is. */
  async function press(name, act, ...values) {
    names.push(name);
    await page.evaluate(pressAndPaint, [names.length - 1, String(act), values]);
  }

  /** A press that something moves after, for `ms`: its cost is that of the longest task in that time. */
  async function moment(name, ms, act, ...values) {
    const number = names.length;
    await press(name, act, ...values);
    moments.push(number);
    await page.evaluate(
      ([number, ms]) => new Promise((done) => setTimeout(() => done(performance.mark(`still ${number}`)), ms)),
      [number, ms],
    );
  }

  /** The costs of the presses of each name. */
  async function end() {
    const complete = new Promise((done) => tracer.once("Tracing.tracingComplete", done));
    await tracer.send("Tracing.end");
    await complete;
    await tracer.detach();
    const costs = {};
    for (const [i, name] of names.entries()) {
      const cost = moments.includes(i) ? longestTask(events, i) : mainThreadTime(events, i);
      (costs[name] ??= []).push(cost);
    }
    return costs;
  }

  return { press, moment, end };
}

async function pressAndPaint([number, act, values]) {
  await new Promise((painted) => {
    // The first message behind the frame comes when the frame is made.
    const { port1, port2 } = new MessageChannel();
    port1.onmessage = () => {
      performance.mark(`painted ${number}`);
      painted();
    };
    performance.mark(`press ${number}`);
    new Function(`return (${act})`)()(...values);
    requestAnimationFrame(() => port2.postMessage(null));
  });
  // What the press left to do for later belongs to no press.
  await new Promise((idle) => requestIdleCallback(idle));
}

const markOf = (events, name) => events.find((event) => event.name === name && event.cat.includes("blink.user_timing"));

/** The processor times of the main thread's tasks between two marks, in milliseconds. */
function tasksBetween(events, from, to) {
  const [begin, end] = [markOf(events, from), markOf(events, to)];
  const tasks = events.filter(
    ({ name, ph, pid, tid, ts, dur, tdur }) =>
      name.endsWith("RunTask") &&
      ph === "X" &&
      tdur !== undefined &&
      pid === begin.pid &&
      tid === begin.tid &&
      ts + dur >= begin.ts &&
      ts <= end.ts,
  );
  return tasks.map(({ tdur }) => tdur / 1000);
}

const mainThreadTime = (events, number) =>
  tasksBetween(events, `press ${number}`, `painted ${number}`).reduce((sum, ms) => sum + ms, 0);

/** A frame is one task. The one that ends with the mark belongs to the press. */
const longestTask = (events, number) =>
  Math.max(...tasksBetween(events, `painted ${number}`, `still ${number}`).slice(1));

/**
 * How long presses take from the finger to the frame that shows their result, in milliseconds as the browser itself tells
 * it, on a processor that is `slowdown` times slower. Gives a function that presses; its `waits` are the times by name.
 */
export async function timePresses(page, slowdown) {
  const session = await page.context().newCDPSession(page);
  await session.send("Emulation.setCPUThrottlingRate", { rate: slowdown });
  await page.evaluate(() => {
    const look = (list) => {
      for (const { name, duration } of list.getEntries()) if (name === "click") window.waited = duration;
    };
    new PerformanceObserver(look).observe({ type: "event", durationThreshold: 16 });
  });

  async function time(name, button) {
    await button.scrollIntoViewIfNeeded();
    // What the press before it left to do belongs to no press, nor does its movement.
    await page.waitForFunction(() => !document.querySelector(".moving"));
    await page.evaluate(() => new Promise((idle) => requestIdleCallback(() => ((window.waited = null), idle()))));
    await button.click({ delay: 80 }); // as long as a finger lies there
    const waited = await page.waitForFunction(() => window.waited);
    (time.waits[name] ??= []).push(await waited.jsonValue());
  }
  time.waits = {};
  return time;
}

export function median(values) {
  const sorted = [...values].sort((a, b) => a - b);
  return sorted[Math.floor(sorted.length / 2)];
}
