import { html, type TemplateResult } from "lit";
import { toggleBlock } from "../blocks/controls";
import { setSound, soundOn } from "../preferences";
import type { Scene } from "../scene";

/** What the page adds to the game's settings: things that concern this device alone. */
export function ownSettings(scene: Scene): TemplateResult {
  const own: Scene = { ...scene, press: (_, value) => setSound(value === "1") };
  const sound = { id: "sound", label: "Sound", note: "Ten seconds of each song, and soft sounds", on: soundOn() };
  return html`<div class="heading"><h2>This device</h2></div>
    <div class="group lines">${toggleBlock({ kind: "toggle", ...sound }, own)}</div>`;
}
