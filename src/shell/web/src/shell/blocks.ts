import { LitElement, type TemplateResult } from "lit";
import type { View } from "../protocol";
import { renderBlocks } from "../render";
import type { Scene } from "../scene";
import { ownSettings } from "./own-settings";

/** The blocks of one screen; drawn again only when the screen has described itself anew. */
class BlocksElement extends LitElement {
  static override properties = { view: { attribute: false }, scene: { attribute: false } };
  declare view: View | null;
  declare scene: Scene;

  protected override createRenderRoot(): this {
    return this;
  }

  protected override render(): TemplateResult[] {
    const drawn = renderBlocks(this.view?.blocks ?? [], this.scene);
    return this.view?.screen === "SettingsViewController" ? [...drawn, ownSettings(this.scene)] : drawn;
  }
}

customElements.define("bb-blocks", BlocksElement);
