import { LitElement, type PropertyValues, type TemplateResult } from "lit";
import { headHeight } from "../extent";
import { painted } from "../motion";
import type { View } from "../protocol";
import { renderBlocks } from "../render";
import type { Scene } from "../scene";
import { room } from "./desk";
import { ownSettings } from "./own-settings";

/** What is drawn ahead at a time, in pixels: a row. */
const unseenStep = 50;

/** What is seen of a screen that opens, in pixels; more room than a phone's is filled at once. */
const opening = (): number => (room() === "phone" ? innerHeight - headHeight : Infinity);

/**
 * The blocks of one screen; drawn again only when the screen has described itself anew. What a new screen of a
 * phone shows is drawn at once, what lies below is added from frame to frame. A screen that nobody has seen yet grows
 * only when it is told to.
 */
class BlocksElement extends LitElement {
  static override properties = {
    view: { attribute: false },
    scene: { attribute: false },
    ahead: { attribute: false },
  };
  declare view: View | null;
  declare scene: Scene;
  declare ahead: boolean;

  /** All of it is drawn. */
  whole = false;
  /** How much of it may be drawn by now, in pixels. */
  private reach = 0;
  private laidOut = false;

  protected override createRenderRoot(): this {
    return this;
  }

  protected override willUpdate(changed: PropertyValues<this>): void {
    if (changed.has("view")) this.laidOut = false;
    if (changed.has("ahead") && !this.ahead) this.reach = Math.max(this.reach, opening());
  }

  protected override render(): TemplateResult[] {
    const { drawn, whole } = renderBlocks(this.view?.blocks ?? [], this.scene, this.whole ? Infinity : this.reach);
    this.whole ||= whole;
    return whole && this.view?.screen === "SettingsViewController" ? [...drawn, ownSettings(this.scene)] : drawn;
  }

  protected override updated(): void {
    if (!this.whole && !this.ahead) void painted().then(() => this.grow());
  }

  /** What it opens with is drawn and laid out. */
  get foreseen(): boolean {
    return this.laidOut && (this.whole || this.reach >= opening());
  }

  /** Draws a little more out of sight or has the browser lay it out, by turns: style and layout outlast the hiding. */
  async growUnseen(): Promise<void> {
    this.laidOut = !this.laidOut;
    if (this.laidOut) return void this.offsetHeight;
    this.reach += unseenStep;
    this.requestUpdate();
    await this.updateComplete;
  }

  private grow(): void {
    this.reach += Math.max(2 * innerHeight, this.reach / 2);
    this.requestUpdate();
  }
}

customElements.define("bb-blocks", BlocksElement);

export type { BlocksElement };
