import { LitElement, type TemplateResult } from "lit";
import { headHeight } from "../extent";
import { painted } from "../motion";
import type { View } from "../protocol";
import { renderBlocks } from "../render";
import type { Scene } from "../scene";
import { room } from "./desk";
import { ownSettings } from "./own-settings";

/**
 * The blocks of one screen; drawn again only when the screen has described itself anew. What a new screen of a
 * phone shows is drawn at once, what lies below is added from frame to frame.
 */
class BlocksElement extends LitElement {
  static override properties = { view: { attribute: false }, scene: { attribute: false } };
  declare view: View | null;
  declare scene: Scene;

  /** All of it is drawn. */
  whole = false;
  /** How much of it may be drawn by now, in pixels. */
  private reach = room() === "phone" ? innerHeight - headHeight : Infinity;

  protected override createRenderRoot(): this {
    return this;
  }

  protected override render(): TemplateResult[] {
    const { drawn, whole } = renderBlocks(this.view?.blocks ?? [], this.scene, this.whole ? Infinity : this.reach);
    this.whole ||= whole;
    return whole && this.view?.screen === "SettingsViewController" ? [...drawn, ownSettings(this.scene)] : drawn;
  }

  protected override updated(): void {
    if (!this.whole) void painted().then(() => this.grow());
  }

  private grow(): void {
    this.reach += Math.max(2 * innerHeight, this.reach / 2);
    this.requestUpdate();
  }
}

customElements.define("bb-blocks", BlocksElement);
