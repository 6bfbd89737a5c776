import { LitElement, type TemplateResult } from "lit";
import type { View } from "../protocol";
import { renderBlocks } from "../render";
import type { Scene } from "../scene";

/** The blocks of one screen; drawn again only when the screen has described itself anew. */
class BlocksElement extends LitElement {
  static override properties = { view: { attribute: false }, scene: { attribute: false } };
  declare view: View | null;
  declare scene: Scene;

  protected override createRenderRoot(): this {
    return this;
  }

  protected override render(): TemplateResult[] {
    return renderBlocks(this.view?.blocks ?? [], this.scene);
  }
}

customElements.define("bb-blocks", BlocksElement);
