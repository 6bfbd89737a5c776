import { html, type TemplateResult } from "lit";
import { choiceBlock, toggleBlock } from "../blocks/controls";
import {
  hapticsOn,
  lessMovement,
  letterSize,
  letterSizes,
  setHaptics,
  setLessMovement,
  setLetterSize,
  setSound,
  soundOn,
} from "../preferences";
import type { Scene } from "../scene";

interface Switch {
  id: string;
  label: string;
  note: string;
  on: boolean;
  set: (on: boolean) => void;
}

/** What the page adds to the game's settings: things that concern this device alone. */
export function ownSettings(scene: Scene): TemplateResult {
  const switches: Switch[] = [
    {
      id: "sound",
      label: "Sound",
      note: "Ten seconds of each song, and soft sounds",
      on: soundOn(),
      set: setSound,
    },
    { id: "haptics", label: "Haptics", note: "Where the device can", on: hapticsOn(), set: setHaptics },
    {
      id: "movement",
      label: "Less movement",
      note: "Figures and screens are there at once",
      on: lessMovement(),
      set: setLessMovement,
    },
  ];
  const letters = { kind: "choice", id: "letters", label: "Text size", style: "segments" } as const;
  const options = letterSizes.map(({ label }) => ({ label }));
  const own = (press: (value: string) => void): Scene => ({ ...scene, press: (_, value = "") => press(value) });
  return html`<div class="heading"><h2>This device</h2></div>
    ${choiceBlock(
      { ...letters, options, selected: letterSize() },
      own((value) => setLetterSize(Number(value))),
    )}
    <div class="group lines">
      ${switches.map(({ set, ...shown }) =>
        toggleBlock(
          { kind: "toggle", ...shown },
          own((value) => set(value === "1")),
        ),
      )}
    </div>`;
}
