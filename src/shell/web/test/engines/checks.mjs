import assert from "node:assert/strict";
import { fileURLToPath } from "node:url";
import { after, before, describe, test } from "node:test";
import { careerFileAt } from "../../../../../tests/wasm/careers.mjs";
import { serve } from "../../tools/serve.mjs";
import { builtFolder } from "../built.mjs";

/** Plays the whole game in a browser other than the one that the page's own tests know. `start` opens it. */
export function checkEngine(name, start) {
  describe(name, () => {
    let server;
    let home;
    let b;
    before(async () => {
      server = await serve({ root: await builtFolder("page") });
      home = `http://127.0.0.1:${server.address().port}/?seed=7`;
      b = await start();
      await b.go(home);
    });
    after(async () => {
      await b?.quit();
      unplug();
    });

    /** A test of the game that all of them play; where one fails, the next begins at a fresh launch. */
    const check = (what, work) =>
      test(what, async () => {
        try {
          await work();
        } catch (failed) {
          await b.reload();
          throw failed;
        }
      });
    const unplug = () => {
      server.close();
      server.closeAllConnections();
    };
    const shown = (wanted) =>
      b.until((wanted) => document.querySelector("backbeat-app")?.player.answer.view.screen === wanted, wanted);
    const status = () =>
      b.until(() => document.querySelector(".layer.top .status")?.textContent.replace(/\s+/g, " ").trim());
    const told = (text, where) =>
      b.until((text, where) => document.querySelector(where)?.textContent.includes(text), text, where);
    const answerAlerts = async () => {
      while (await b.run(() => document.querySelector(".alert[open]") !== null)) await b.press(".", ".alert[open]");
    };
    const endTheWeek = async () => {
      await b.press("^Home");
      await b.press("^END THE WEEK");
      await answerAlerts();
      await b.press("^Continue");
      await answerAlerts();
    };
    const begin = async () => {
      await b.type(".layer.top input", "Nova Reyes");
      await b.press("^Start the career");
      await b.until(() => document.querySelector(".tab-bar:not([inert])") !== null);
      await answerAlerts();
    };

    check("starts a career", begin);

    check("makes a song: a sheet comes up drawn, with the focus on what is chosen", async () => {
      await b.press("^Music");
      await b.press("^Create a Song");
      await b.press("^Suggest");
      await b.run(() => {
        const rows = () => [...document.querySelectorAll(".sheet[open] .row-main .sheet-label")];
        const look = () => {
          if (rows().length === 0) return requestAnimationFrame(look);
          window.blank = rows()
            .slice(0, 8)
            .filter((row) => !row.checkVisibility({ contentVisibilityAuto: true })).length;
        };
        requestAnimationFrame(look);
        const choice = [...document.querySelectorAll(".layer.top button")].find((each) =>
          /^\s*Genre/.test(each.textContent),
        );
        choice.focus();
      });
      await b.key("\uE007");
      await b.until(() => window.blank !== undefined);
      assert.equal(await b.run(() => window.blank), 0);
      await b.press("^Jazz", ".sheet");
      await b.until(() => !document.querySelector(".sheet[open]"));
      await b.key("\uE007"); // the choice has the focus again
      await b.until(() => document.querySelector(".sheet[open]"));
      assert.match(await b.run(() => document.activeElement.textContent), /Jazz/);
      await b.press("^Jazz", ".sheet");
      await b.until(() => !document.querySelector(".sheet[open]"));
      await b.press("^Create song");
      await shown("MusicViewController");
    });

    check("releases it", async () => {
      await b.press("rating");
      await shown("SongDetailViewController");
      await b.press("^RELEASE");
      await answerAlerts();
      await told("RELEASED", ".layer.top");
      await b.press("^Back");
      await shown("MusicViewController");
    });

    check("plays a week, which is all there after a reload", async () => {
      await endTheWeek();
      const there = await status();
      assert.match(there, /Week 2, 2023/);
      await b.reload();
      assert.equal(await status(), there);
    });

    check("draws sleeves, portraits and its own letters", async () => {
      await b.press("^Music");
      await b.until(
        () =>
          document.fonts.check("600 17px 'Inter Variable'") &&
          document.querySelector(".person img")?.naturalWidth > 0 &&
          document.querySelector(".cover svg") !== null,
      );
    });

    check("a field of several lines grows with its text", async () => {
      await b.press("^Social");
      await b.press("^Chirp");
      await shown("CreateTwitterMessageViewController");
      await b.type(".layer.top textarea", "one word after the other ".repeat(9));
      const hidden = await b.run(() => {
        const area = document.querySelector(".layer.top textarea");
        return area.scrollHeight - area.clientHeight;
      });
      assert.ok(hidden <= 1, `${hidden} px of the text are out of sight`);
      await b.press("^Back");
    });

    for (const pointer of ["mouse", "touch"]) {
      check(`goes back by a drag from the left edge (${pointer}), which selects nothing`, async () => {
        await b.press("^Home");
        await b.press("^Settings");
        await shown("SettingsViewController");
        await b.until(() => !document.querySelector(".moving"));
        const [left, y] = await b.run(() => {
          window.selected = "";
          document.addEventListener("selectionchange", () => (window.selected += getSelection()));
          const { left, top, height } = document.querySelector(".edge").getBoundingClientRect();
          return [Math.round(left), Math.round(top + height / 2)];
        });
        await b.drag(pointer, { x: left + 5, y }, { x: left + 320, y: y + 120 });
        await shown("ViewController");
        assert.equal(await b.run(() => window.selected), "");
      });
    }

    check("goes back with the browser's own back", async () => {
      await b.press("^Settings");
      await shown("SettingsViewController");
      await b.back();
      await shown("ViewController");
    });

    check("an alert asks, and Close keeps the career", async () => {
      await b.press("^Settings");
      await b.press("^Restart");
      await b.until(() => document.querySelector(".alert[open]")?.matches(":modal"));
      await b.press("^Close", ".alert[open]");
      await b.until(() => !document.querySelector(".alert[open]"));
    });

    check("exports a career and imports another", async () => {
      await b.run(() => {
        const { createObjectURL } = URL;
        URL.createObjectURL = (file) => {
          window.exported = file;
          return createObjectURL(file);
        };
        const { click } = HTMLInputElement.prototype;
        HTMLInputElement.prototype.click = function () {
          if (this.type !== "file") return click.call(this);
          this.hidden = false;
          this.id = "picker";
        };
      });
      await b.press("^Export");
      const [name, head] = await b.until(
        async () => window.exported && [window.exported.name, await window.exported.slice(0, 8).text()],
      );
      assert.match(name, /^backbeat-nova-reyes-2023-week-2\.plist$/);
      assert.equal(head, "bplist00");
      await b.press("^Import");
      await b.type("#picker", fileURLToPath(careerFileAt("golden_year")));
      await told("Import?", ".alert[open]");
      await b.press("^Import$", ".alert[open]");
      await told("goes on here", ".toast");
      assert.match(await status(), /Week 1, 2024/);
    });

    check("draws a chart", async () => {
      await b.press("^Home");
      await b.press("^Monthly listeners");
      await b.until(() => {
        const canvas = document.querySelector(".layer.top canvas");
        const { data } = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height);
        return data.some((value) => value > 0);
      });
      await b.press("^Back");
    });

    check("says when the device is full, and stores all as soon as it is not", async () => {
      await b.run(() => {
        const { put } = IDBObjectStore.prototype;
        window.makeRoom = () => (IDBObjectStore.prototype.put = put);
        IDBObjectStore.prototype.put = () => {
          throw new DOMException("The disk is full.", "QuotaExceededError");
        };
      });
      await endTheWeek();
      await told("this device is full", ".layer.top .notice");
      await b.run(() => window.makeRoom());
      await b.until(() => !document.querySelector(".layer.top .notice"));
      const there = await status();
      await b.reload();
      assert.equal(await status(), there);
    });

    check("goes on with a fresh engine after one that stopped", async () => {
      const there = await status();
      await b.run(() => {
        // An address that is none: the engine stops as it would on a fault of its own.
        const { engine } = document.querySelector("backbeat-app").player;
        const { bb_row } = engine.door;
        engine.door = { ...engine.door, bb_act: () => bb_row(-8, 8) };
      });
      await b.press("^Music");
      await told("The game stopped and is back", ".alert[open]");
      await answerAlerts();
      assert.equal(await status(), there);
      await endTheWeek();
      assert.notEqual(await status(), there);
    });

    check("a second tab is told, and may take over", async () => {
      const there = await status();
      const take = async () => {
        await told("another tab", ".full-notice");
        await b.press("^Use here", ".full-notice");
        assert.equal(await status(), there);
      };
      const first = await b.tab();
      await b.toTab(await b.newTab());
      await b.go(home);
      await take();
      await b.toTab(first);
      await take();
    });

    check("starts without a network", async () => {
      const there = await status();
      await b.until(() => navigator.serviceWorker.controller !== null);
      unplug();
      await b.go(home.replace("?", "?off&"));
      assert.equal(await status(), there);
    });
  });

  describe(`${name} on a device that wants less movement, and whose language is none`, () => {
    let server;
    let b;
    before(async () => {
      server = await serve({ root: await builtFolder("page") });
      b = await start({ still: true, language: "C.UTF-8" });
    });
    after(async () => {
      await b?.quit();
      server.close();
      server.closeAllConnections();
    });

    test("starts, and nothing slides", async () => {
      await b.go(`http://127.0.0.1:${server.address().port}/`);
      await b.type(".layer.top input", "Nova Reyes");
      await b.run(() => {
        window.slid = [];
        const { animate } = Element.prototype;
        Element.prototype.animate = function (frames, ...more) {
          if ("transform" in frames) window.slid.push(this.className);
          return animate.call(this, frames, ...more);
        };
      });
      await b.press("^Start the career");
      await b.until(() => document.querySelector(".tab-bar:not([inert])") !== null);
      assert.deepEqual(await b.run(() => window.slid), []);
      assert.ok(await b.run(() => matchMedia("(prefers-reduced-motion: reduce)").matches));
    });
  });
}
