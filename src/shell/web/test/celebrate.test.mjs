// Good news as it moves: at the head of a report, and on awards night.
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { openStage } from "./open.mjs";

let stage;
before(async () => (stage = await openStage()));
after(() => stage.close());

const root = { tabs: [{ label: "Home", icon: "home" }], stack: [1], view: { key: 1, title: "Home" } };
const report = (mood) => ({
  ...root,
  stack: [1, 2],
  modal: true,
  view: {
    key: 2,
    title: "Week 22",
    theme: "report",
    blocks: [
      { kind: "poster", title: "No. 9 on the chart", figure: "9", pictures: [{ kind: "cover", name: "Tide" }], mood },
      { kind: "figures", style: "pair", items: [{ label: "Net", value: "$41,230" }] },
    ],
    mainAction: { id: "continue", label: "Continue" },
  },
});

/** The report comes up; `first` is what is seen while it still rises. */
async function rise(mood) {
  const { page, context } = await stage.open({ reducedMotion: "no-preference" });
  await page.evaluate((root) => window.stage.show(root), root);
  const first = await page.evaluate(async (report) => {
    window.stage.show(report);
    await new Promise(requestAnimationFrame);
    await new Promise(requestAnimationFrame);
    const confetti = document.querySelector("bb-confetti");
    return {
      rising: document.querySelector(".layer.moving") !== null,
      confetti: confetti && getComputedStyle(confetti).visibility,
      figure: document.querySelector(".figure-value").textContent,
    };
  }, report(mood));
  return { page, context, first };
}

test("confetti and figures wait until the sheet stands, and a tap lets all of it lie", async () => {
  const { page, context, first } = await rise("celebrate");
  assert.deepEqual(first, { rising: true, confetti: "hidden", figure: "$0" });
  const falling = () =>
    page.evaluate(() => document.querySelector("bb-confetti").getAnimations({ subtree: true }).length);
  await page.waitForFunction(() => document.querySelector("bb-confetti").getAnimations({ subtree: true }).length > 0);
  await page.keyboard.press("Shift");
  assert.equal(await falling(), 0);
  assert.equal(await page.locator(".figure-value").textContent(), "$41,230");
  await page.evaluate((report) => window.stage.show(report), report("celebrate"));
  assert.equal(await falling(), 0, "one burst, however often the report is drawn");
  await context.close();
});

test("under sad news nothing counts and nothing falls", async () => {
  const { page, context, first } = await rise("mourn");
  assert.deepEqual(first, { rising: true, confetti: null, figure: "$41,230" });
  await page.waitForFunction(() => !document.querySelector(".moving"));
  await context.close();
});

const night = (fields) => ({
  ...root,
  stack: [1, 3],
  modal: true,
  view: {
    key: 3,
    theme: "gala",
    blocks: [
      { kind: "poster", title: "2031 GRAM WINNERS" },
      ...fields.flatMap((badge) => [
        { kind: "card", badge },
        { kind: "rows", items: Array.from({ length: 9 }, (_, i) => ({ title: `${badge}, ${i}` })) },
      ]),
    ],
    mainAction: { id: "nextEnvelope", label: "Open the Next Envelope" },
  },
});

test("the envelope opened last unfolds on top, wherever one was reading", async () => {
  const { page, context } = await stage.open({ reducedMotion: "no-preference" });
  await page.evaluate((night) => window.stage.show(night), night(["Album", "Record"]));
  const unfolded = () => document.getAnimations().every(({ animationName }) => animationName !== "unfold");
  await page.waitForFunction(() => document.querySelectorAll(".award").length === 2);
  await page.waitForFunction(unfolded);
  await page.evaluate(() => document.querySelector(".layer.modal .scroll").scrollTo({ top: 400 }));
  const unfolding = await page.evaluate(
    (night) => {
      window.stage.show(night);
      return new Promise((done) =>
        document.addEventListener("animationstart", ({ target, animationName }) => {
          if (animationName === "unfold") done(target.querySelector(".award-field").textContent);
        }),
      );
    },
    night(["Song", "Album", "Record"]),
  );
  assert.equal(unfolding, "Song");
  await page.waitForFunction(() => document.querySelector(".layer.modal .scroll").scrollTop === 0);
  await context.close();
});
