import assert from "node:assert/strict";
import { readFile, writeFile } from "node:fs/promises";
import { after, before, test } from "node:test";
import { openStage } from "./open.mjs";

let stage;
before(async () => (stage = await openStage()));
after(() => stage.close());

const facts = (name) => [
  { label: "streams", value: "48.2M" },
  { label: "albums sold", value: "391K" },
  { label: "earned", value: "$3.1M" },
  { label: "shows sold out", value: "6 of 6" },
  { label: name, value: "21.4M" },
  { label: name, value: "12.4M" },
  { label: name, value: "6.1M" },
];
const year = (name, sky = { kind: "cover", name }) => ({
  header: { cash: "$100", energy: "7 / 10", energyShare: 0.7, date: "Week 1, 2032" },
  tabs: [{ label: "Home", icon: "home" }],
  tab: 0,
  stack: [1, 5],
  modal: true,
  view: {
    key: 5,
    title: "Your Year",
    aside: { id: "doneButton", label: "Done", style: "secondary" },
    blocks: [
      {
        kind: "story",
        sky,
        kicker: `${name} · My year`,
        title: name,
        figure: "2031",
        text: "21.4M plays",
        facts: facts(name),
        share: "backbeat-2031.png",
      },
    ],
  },
});

/** Shares the story and hands back the picture: its size, and the rightmost columns of its pixels. */
async function shared(page, answer, keepAs) {
  await page.evaluate((answer) => window.stage.show(answer), answer);
  const coming = page.waitForEvent("download");
  await page.getByRole("button", { name: "Share" }).click();
  const download = await coming;
  assert.equal(download.suggestedFilename(), "backbeat-2031.png");
  const bytes = await readFile(await download.path());
  if (process.env.BACKBEAT_PICTURES) await writeFile(`${process.env.BACKBEAT_PICTURES}/${keepAs}.png`, bytes);
  return page.evaluate(async (base64) => {
    const image = new Image();
    image.src = `data:image/png;base64,${base64}`;
    await image.decode();
    const canvas = Object.assign(document.createElement("canvas"), { width: image.width, height: image.height });
    const brush = canvas.getContext("2d");
    brush.drawImage(image, 0, 0);
    const { data } = brush.getImageData(image.width - 60, 0, 60, image.height);
    const white = data.filter((_, i) => i % 4 === 0 && data[i] > 240 && data[i + 1] > 240 && data[i + 2] > 240);
    return { width: image.width, height: image.height, whiteAtTheEdge: white.length };
  }, bytes.toString("base64"));
}

const photo =
  "data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mP8z8BQDwAEhQGAhKmMIQAAAABJRU5ErkJggg==";

test("a year is shared as a picture that any name fits into", async () => {
  const { page, context, faults } = await stage.open({ acceptDownloads: true });
  const names = {
    short: "Ada",
    long: "The Extraordinarily Long Winded and Never Ending Name of an Artist Who Would Not Stop Talking",
    wide: "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW",
    arabic: "أغنية طويلة جدا عن ليلة لا تنتهي أبدا في المدينة القديمة",
    emoji: "👩‍👩‍👧‍👦🔥🎤🏳️‍🌈".repeat(6),
  };
  for (const [kind, name] of Object.entries(names)) {
    assert.deepEqual(
      await shared(page, year(name, kind === "wide" ? { kind: "photo", name: photo } : undefined), kind),
      { width: 1080, height: 1920, whiteAtTheEdge: 0 },
      kind,
    );
  }
  assert.deepEqual(faults, []);
  await context.close();
});
