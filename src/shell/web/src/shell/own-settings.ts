import { html, type TemplateResult } from "lit";
import { toggleBlock } from "../blocks/controls";
import { hooksOn, setHooks } from "../preferences";
import type { Scene } from "../scene";

/** What the page adds to the game's settings: things that concern this device alone. */
export function ownSettings(scene: Scene): TemplateResult {
  const own: Scene = { ...scene, press: (_, value) => setHooks(value === "1") };
  const hooks = { id: "hooks", label: "Song hooks", note: "Hear ten seconds of a song on its screen", on: hooksOn() };
  return html`<div class="heading"><h2>This device</h2></div>
    <div class="group lines">${toggleBlock({ kind: "toggle", ...hooks }, own)}</div>`;
}
