import { retry } from "./waiting.mjs";

/** The name under which WebDriver hands out elements. */
export const elementKey = "element-6066-11e4-a52e-4f735466cecf";

/** What a check does in any browser, made of what its driver can do. */
export function browser(driver) {
  /** Runs a function in the page and gives what it answers, promised or not. */
  async function run(work, ...values) {
    const [answer, fault] = await driver.script(
      `const done = arguments[arguments.length - 1];
       const values = [...arguments].slice(0, -1);
       Promise.resolve().then(() => (${work})(...values)).then((answer) => done([answer ?? null]), (fault) => done([null, String(fault)]));`,
      values,
    );
    if (fault) throw new Error(fault);
    return answer;
  }

  const until = (work, ...values) => retry(() => run(work, ...values), `${work} ${JSON.stringify(values)}`);

  /** Presses the button with that name as soon as it is there, in reach, and nothing moves any more. */
  async function press(name, where = ".layer.top, .tab-bar") {
    // One try is all of it: what was drawn anew in between is marked anew.
    const pressed = async () => {
      const hindrance = await run(markButton, name, where);
      if (hindrance) throw new Error(hindrance);
      await driver.click(await driver.find("#pressed"));
      return true;
    };
    await retry(pressed, `${name} can be pressed in ${where}`);
  }

  /** Waits for the element and types into it. */
  async function type(css, text) {
    await driver.type(await retry(() => driver.find(css), `${css} is there`), text);
  }

  /** Presses the key on what has the focus. */
  const key = (value) =>
    driver.actions([
      {
        type: "key",
        id: "keys",
        actions: [
          { type: "keyDown", value },
          { type: "keyUp", value },
        ],
      },
    ]);

  /** Drags from one place to the other, with a "mouse" or by "touch". */
  const drag = (pointerType, from, to) =>
    driver.actions([
      {
        type: "pointer",
        id: pointerType,
        parameters: { pointerType },
        actions: [
          { type: "pointerMove", duration: 0, ...from },
          { type: "pointerDown", button: 0 },
          { type: "pointerMove", duration: 200, x: Math.round((from.x + to.x) / 2), y: to.y },
          { type: "pointerMove", duration: 200, ...to },
          { type: "pointerUp", button: 0 },
        ],
      },
    ]);

  async function reload() {
    await run(() => {
      window.old = true;
      setTimeout(() => location.reload());
    });
    await until(() => !window.old && document.readyState === "complete");
  }

  return { ...driver, run, until, press, type, key, drag, reload };
}

/** Gives the button an id to find it by; what hinders its being pressed for now, or nothing. */
async function markButton(name, where) {
  const nameOf = (button) => (button.ariaLabel ?? button.textContent).replace(/\s+/g, " ").trim();
  const buttons = [...document.querySelectorAll(where)].flatMap((place) => [...place.querySelectorAll("button")]);
  const button = buttons.find((each) => new RegExp(name).test(nameOf(each)));
  document.querySelector("#pressed")?.removeAttribute("id");
  if (!button) return `there are only ${buttons.map(nameOf).join(", ")}`;
  if (document.querySelector(".moving")) return "the screens still move";
  for (let part = button; part; part = part.parentElement) {
    if (part.getAnimations().some(({ playState }) => playState === "running")) return `${part.className} still moves`;
  }
  button.id = "pressed";
  button.scrollIntoView({ block: "center" });
  // The driver aims where it stands: rows that have come near may still push it on.
  const place = () => JSON.stringify(button.getBoundingClientRect());
  const aimed = place();
  await new Promise((done) => setTimeout(done, 50)); // a tab in the background draws no frames
  return place() === aimed ? "" : `it still moves, from ${aimed} to ${place()}`;
}
