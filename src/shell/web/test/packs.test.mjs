import assert from "node:assert/strict";
import { existsSync } from "node:fs";
import { readFile } from "node:fs/promises";
import { createRequire } from "node:module";
import { resolve } from "node:path";
import { after, before, describe, test } from "node:test";
import { answerAlerts, downloaded, press, setting, start, takeCareer, playedCareer } from "./life.mjs";
import { barriers, quiet, tooWide, unreachable } from "./look.mjs";
import { openGame } from "./open.mjs";

const axe = await readFile(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");
const engine = resolve(import.meta.dirname, "../public/engine.wasm");

describe(
  "what belongs to the player",
  { skip: !existsSync(engine) && "the engine is not built for the browser" },
  () => {
    let house;
    before(async () => (house = await openGame()));
    after(() => house?.close());

    async function open(options = {}) {
      const { page, context, faults } = await house.open({ address: `${house.home}?seed=7`, ...options });
      await start(page);
      return {
        page,
        async close() {
          assert.deepEqual(faults, []);
          await context.close();
        },
      };
    }

    const energy = async (page) => Number(/(-?\d+) \//.exec(await page.locator(".layer.top .status").innerText())[1]);
    const alert = (page) => page.locator(".alert[open]:not(.crop)");

    async function openScreen(page, name) {
      await press(page, "Home");
      await press(page, name);
    }

    /** Barriers and what lies out of reach on the screen, on narrow and on large ones. */
    async function expectOpenToAll(page, what) {
      await page.evaluate(axe);
      for (const width of [320, 390]) {
        await page.setViewportSize({ width, height: 700 });
        await quiet(page);
        assert.deepEqual(await tooWide(page), [], `${what} at ${width} px`);
        assert.deepEqual(await unreachable(page), [], `${what} at ${width} px`);
      }
      assert.deepEqual(await barriers(page), [], what);
    }

    test("a pack is taken once a week, stays over a reload and over another career", async () => {
      const { page, close } = await open();
      await openScreen(page, /^Packs/);
      await expectOpenToAll(page, "packs");
      const before = await energy(page);
      await press(page, /^60 Energy/);
      await alert(page).getByRole("button", { name: "Close" }).click();
      assert.equal(await energy(page), before, "a question is no purchase");
      await press(page, /^60 Energy/);
      await alert(page).getByRole("button", { name: "Take It" }).click();
      await alert(page).getByText("Yours").waitFor();
      await answerAlerts(page);
      assert.equal(await energy(page), before + 60);
      await press(page, /^60 Energy/);
      await alert(page).getByText("Once a Week").waitFor();
      await answerAlerts(page);
      await page.reload();
      await page.locator(".layer.top .status").waitFor();
      assert.equal(await energy(page), before + 60);
      const rows = () =>
        page.evaluate(async () => {
          const { player } = document.querySelector("backbeat-app");
          await player.settled();
          const db = await new Promise((done) => {
            indexedDB.open("backbeat").onsuccess = (event) => done(event.target.result);
          });
          const keys = await new Promise((done) => {
            db.transaction("rows").objectStore("rows").getAllKeys().onsuccess = (event) => done(event.target.result);
          });
          db.close();
          return keys.filter(([key]) => key === "creditedPurchases").length;
        });
      assert.equal(await rows(), 1);
      await takeCareer(page, "mara.plist", playedCareer());
      const purchases = await page.evaluate(
        () => document.querySelector("backbeat-app").player.careerFile().bytes.length,
      );
      assert.ok(purchases > 0);
      assert.equal(await rows(), 1, "the device remembers what it has given");
      await openScreen(page, "Artist profile");
      assert.equal(await page.getByText("Assisted").count(), 0, "the other career took none");
      await close();
    });

    test("a photo is cut by hand or by keys, kept, shown and taken away again", async () => {
      const { page, close } = await open();
      await openScreen(page, "Artist profile");
      await expectOpenToAll(page, "the profile");
      const picture = (width, height) =>
        page.evaluate(
          ([width, height]) => {
            const canvas = Object.assign(document.createElement("canvas"), { width, height });
            const pen = canvas.getContext("2d");
            pen.fillStyle = "#f00";
            pen.fillRect(0, 0, width / 2, height);
            pen.fillStyle = "#00f";
            pen.fillRect(width / 2, 0, width, height);
            return canvas.toDataURL("image/png").split(",")[1];
          },
          [width, height],
        );
      const give = async (label, name, content) =>
        page
          .locator(".layer.top")
          .getByLabel(label)
          .setInputFiles({ name, mimeType: "image/png", buffer: Buffer.from(content, "base64") });
      const crop = page.locator(".crop[open]");
      const kept = async (selector) =>
        page.locator(`.layer.top ${selector} img`).evaluate(async (image) => {
          await image.decode();
          const canvas = Object.assign(document.createElement("canvas"), { width: 1, height: 1 });
          const pen = canvas.getContext("2d");
          pen.drawImage(image, image.naturalWidth / 2, 0, 1, 1, 0, 0, 1, 1);
          const [red, , blue] = pen.getImageData(0, 0, 1, 1).data;
          return { width: image.naturalWidth, height: image.naturalHeight, half: red > blue ? "left" : "right" };
        });

      await give("Your own photo", "wide.png", await picture(1200, 400));
      await crop.waitFor();
      assert.deepEqual(await barriers(page), []);
      await crop.getByLabel("Left and right").focus();
      await page.keyboard.press("End");
      await crop.getByRole("button", { name: "Use" }).click();
      assert.deepEqual(await kept(".head-picture"), { width: 400, height: 400, half: "right" });

      await give("Your own header", "tall.png", await picture(3000, 3000));
      await crop.waitFor();
      const box = await crop.locator("canvas").boundingBox();
      await crop.getByLabel("Closer").focus();
      await page.keyboard.press("End");
      await page.mouse.move(box.x + 20, box.y + 20);
      await page.mouse.down();
      await page.mouse.move(box.x + 20 + box.width, box.y + 20);
      await page.mouse.move(box.x + 20 + 2 * box.width, box.y + 20);
      await page.mouse.up();
      await crop.getByRole("button", { name: "Use" }).click();
      const header = await kept(".head-back");
      assert.equal(header.half, "left");
      assert.ok(Math.abs(header.width / header.height - 3) < 0.02);

      for (const [width, height] of [
        [1, 1],
        [4000, 1],
        [1, 4000],
      ]) {
        await give("Your own photo", "strange.png", await picture(width, height));
        await crop.getByRole("button", { name: "Use" }).click();
        await crop.waitFor({ state: "detached" });
      }
      await give("Your own photo", "broken.png", Buffer.from("no picture").toString("base64"));
      await page.getByText("That file is no picture").waitFor();
      await give("Your own photo", "left.png", await picture(30, 30));
      await crop.waitFor();
      await page.keyboard.press("Escape");
      await crop.waitFor({ state: "detached" });

      await press(page, "Remove header");
      await press(page, "Remove photo");
      assert.equal(
        await page.locator(".layer.top .head img").count(),
        await page.locator(".layer.top .head .person img").count(),
      );
      await close();
    });

    test("a letter, a rating, a replay and the device's own settings do what they say", async () => {
      const { page, close } = await open();
      await page.evaluate(() => {
        const click = HTMLAnchorElement.prototype.click;
        HTMLAnchorElement.prototype.click = function () {
          if (this.protocol === "mailto:") window.letter = this.href;
          else click.call(this);
        };
      });
      await setting(page, /^Write to us/);
      const letter = decodeURIComponent(await page.evaluate(() => window.letter));
      assert.match(letter, /^mailto:[^?]*\?subject=Backbeat&body=\s+Backbeat \d+\.\d+\.\d+\nWeek 1, 2023/);
      assert.doesNotMatch(letter, /Nova/, "no name leaves the device by itself");
      await press(page, /^Rate Backbeat/);
      await page.getByText("Thank you.").waitFor();
      const { name, bytes } = await downloaded(page, () => press(page, /^Replay file/));
      assert.match(name, /^backbeat-replay\.txt$/);
      const lines = bytes.toString().trim().split("\n");
      assert.match(lines[0], /^launch 7 \d+$/);
      assert.match(lines.at(-1), /^act \d+ \d+ handOverReplay %$/);
      await expectOpenToAll(page, "the settings");

      const letters = () => page.evaluate(() => parseFloat(getComputedStyle(document.documentElement).fontSize));
      const normal = await letters();
      await page.locator(".layer.top").getByRole("radio", { name: "Larger" }).check();
      assert.ok((await letters()) > 1.25 * normal);
      await expectOpenToAll(page, "large letters");
      await page.locator(".layer.top").getByRole("switch", { name: "Less movement" }).click();
      await page.reload();
      await page.locator(".layer.top .status").waitFor();
      assert.ok((await letters()) > 1.25 * normal, "it stays with the browser");
      assert.match(await page.evaluate(() => document.documentElement.className), /still/);
      await close();
    });
  },
);
