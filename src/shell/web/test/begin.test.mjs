// What can go wrong before the game begins, and what the page asks of the browser.
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { endTheWeek, press, start } from "./life.mjs";
import { openGame } from "./open.mjs";

let house;
before(async () => (house = await openGame()));
after(() => house.close());

test("begins where the browser's language is none", async () => {
  const init = () => Object.defineProperty(navigator, "language", { get: () => "C" });
  const { page, context, faults } = await house.open({ init });
  await page.locator(".layer.top").waitFor();
  assert.deepEqual(faults, []);
  await context.close();
});

test("says so when a part of it does not arrive or fails, and begins at the next try", async () => {
  const { page, context } = await house.open({ address: "about:blank" });
  const answers = [
    (route) => route.abort(),
    (route) => route.fulfill({ contentType: "text/javascript", body: "throw new Error('not here');" }),
  ];
  for (const answer of answers) {
    await page.route(/main-[^/]*\.js/, answer);
    await page.goto(house.home);
    await page.getByRole("heading", { name: "Backbeat could not start" }).waitFor();
    await page.unroute(/main-[^/]*\.js/);
    await page.getByRole("button", { name: "Try again" }).click();
    await page.locator(".layer.top").waitFor();
  }
  await context.close();
});

test("asks the browser to keep the save once a week is played or the settings are open, and not again", async () => {
  const init = () => {
    navigator.storage.persisted = async () => false;
    navigator.storage.persist = async () => Boolean((window.asked = (window.asked ?? 0) + 1));
  };
  const { page, context, faults } = await house.open({ init });
  const asked = () => page.evaluate(() => window.asked ?? 0);
  await start(page);
  await press(page, /^Music/);
  assert.equal(await asked(), 0);
  await endTheWeek(page);
  await endTheWeek(page);
  assert.equal(await asked(), 1);
  await page.reload();
  assert.equal(await asked(), 0);
  await press(page, /^Settings/);
  await page.waitForFunction(() => window.asked === 1);
  assert.deepEqual(faults, []);
  await context.close();
});
