/**
 * What presses cost the page's main thread until their result is painted, in milliseconds of processor time: that does
 * not depend on what else the machine is doing. The count begins here; `end` gives its sums.
 */
export async function countCosts(browser, page) {
  const tracer = await browser.newBrowserCDPSession();
  const events = [];
  const names = [];
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

  /** The costs of the presses of each name. */
  async function end() {
    const complete = new Promise((done) => tracer.once("Tracing.tracingComplete", done));
    await tracer.send("Tracing.end");
    await complete;
    await tracer.detach();
    const costs = {};
    for (const [i, name] of names.entries()) (costs[name] ??= []).push(mainThreadTime(events, i));
    return costs;
  }

  return { press, end };
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

function mainThreadTime(events, number) {
  const mark = (name) => events.find((event) => event.name === name && event.cat.includes("blink.user_timing"));
  const [press, painted] = [mark(`press ${number}`), mark(`painted ${number}`)];
  const tasks = events.filter(
    ({ name, ph, pid, tid, ts, dur, tdur }) =>
      name.endsWith("RunTask") &&
      ph === "X" &&
      tdur !== undefined &&
      pid === press.pid &&
      tid === press.tid &&
      ts + dur >= press.ts &&
      ts <= painted.ts,
  );
  return tasks.reduce((sum, { tdur }) => sum + tdur, 0) / 1000;
}

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
