import { launchBrowser } from "./browser.mjs";
import { serve } from "./serve.mjs";
import { openWorld, world } from "./worlds.mjs";
const out = "/tmp/vshots/";
const server = await serve({ root: "dist" });
const home = `http://127.0.0.1:${server.address().port}/`;
const browser = await launchBrowser({ forPictures: true });
const ways = {
  create: ["Music", "Song No. 5", "MUSIC VIDEO"],
  song: ["Music", "Song No. 1"],
  social: ["Social"],
  channel: ["Social", "YouVideo"],
  film: ["Social", "YouVideo", "Song No. 2"],
  description: ["Social", "YouVideo", "Song No. 2", "Description"],
  about: ["Social", "YouVideo", "About the channel"],
  edit: ["Social", "YouVideo", "About the channel", "Edit"],
  cameos: ["Music", "Song No. 5", "MUSIC VIDEO", "Cameos"],
  profile: ["Music", "Artist Profile"],
};
for (const [theme, width] of [["dark", 390], ["light", 390], ["dark", 320]]) {
  for (const [name, presses] of Object.entries(ways)) {
    const context = await browser.newContext({ viewport: { width, height: 844 }, colorScheme: theme, reducedMotion: "reduce" });
    const page = await context.newPage();
    page.on("console", (m) => m.type() === "error" && console.error(name, m.text()));
    page.on("pageerror", (e) => console.error(name, e.message));
    try {
      await openWorld(page, home, world("on film"));
      for (const press of presses) {
        const re = new RegExp(`^${press.replace(/[^\w\s]/g, "\\$&")}`, "i");
        const within = page.locator(".layer.top, .tab-bar");
        await within.getByRole("button", { name: re }).or(within.getByRole("tab", { name: re })).first().click({ timeout: 5000 });
        await page.waitForTimeout(250);
      }
      await page.waitForTimeout(500);
      await page.screenshot({ path: `${out}${name}-${theme}-${width}.png` });
      await page.locator(".layer.top .scroll").evaluate((s) => s.scrollBy(0, 600));
      await page.waitForTimeout(300);
      await page.screenshot({ path: `${out}${name}-${theme}-${width}-below.png` });
    } catch (e) { console.error(name, theme, width, String(e).slice(0, 300)); await page.screenshot({ path: `${out}${name}-${theme}-${width}-stuck.png` }); }
    await context.close();
  }
}
await browser.close();
server.close();
