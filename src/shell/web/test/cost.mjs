/**
 * What a press costs the page's main thread until its result is painted, in milliseconds of processor time: that does
 * not depend on what else the machine is doing. `press` is a function for the page that presses something.
 */
export async function costOfPress(browser, page, press) {
  const tracer = await browser.newBrowserCDPSession();
  const events = [];
  tracer.on("Tracing.dataCollected", ({ value }) => events.push(...value));
  await tracer.send("Tracing.start", {
    transferMode: "ReportEvents",
    traceConfig: { includedCategories: ["blink.user_timing", "toplevel", "__metadata"] },
  });
  await page.evaluate(
    (press) =>
      new Promise((painted) => {
        // The first message behind the frame comes when the frame is made.
        const { port1, port2 } = new MessageChannel();
        port1.onmessage = () => {
          performance.mark("painted");
          painted();
        };
        performance.mark("press");
        new Function(`return (${press})()`)();
        requestAnimationFrame(() => port2.postMessage(null));
      }),
    String(press),
  );
  await page.waitForTimeout(200);
  const complete = new Promise((done) => tracer.once("Tracing.tracingComplete", done));
  await tracer.send("Tracing.end");
  await complete;
  await tracer.detach();
  return mainThreadTime(events);
}

function mainThreadTime(events) {
  const mark = (name) => events.find((event) => event.name === name && event.cat.includes("blink.user_timing"));
  const [press, painted] = [mark("press"), mark("painted")];
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

export function median(values) {
  const sorted = [...values].sort((a, b) => a - b);
  return sorted[Math.floor(sorted.length / 2)];
}
