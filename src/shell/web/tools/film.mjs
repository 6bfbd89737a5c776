// Plays a filmed life on the page, press by press, at the hours of its trace.
import { traceOf } from "../../../../tests/wasm/careers.mjs";

/** Calls `visit(name)` for the report and for home of each week, while it stands on the page. */
export async function film(page, home, name, visit) {
  const [{ seed, now }, ...events] = traceOf(name);
  await page.addInitScript((now) => {
    window.hour = now;
    Date.now = () => window.hour;
  }, now);
  await page.goto(`${home}?seed=${seed}`);
  await page.locator(".layer.top").first().waitFor();
  let week = 0;
  for (const { now, press } of events) {
    const closes = press[1] === "closeButton";
    if (closes) {
      week += 1;
      const told = await page.evaluate(() => document.querySelector("backbeat-app").player.answer.view.theme);
      if (told !== "report") throw new Error(`${name} does not end its week ${week} on the page as it does without`);
      await visit(`week ${week}`);
    }
    await page.evaluate(
      ([now, press]) => {
        window.hour = now;
        document.querySelector("backbeat-app").player.act(...press);
      },
      [now, press],
    );
    if (closes) await visit(`home after week ${week}`);
  }
}
