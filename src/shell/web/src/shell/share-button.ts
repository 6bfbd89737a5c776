import { html, LitElement, type TemplateResult } from "lit";
import { handOver } from "../files";
import { glyph } from "../pictures/icons";
import type { Story } from "../protocol";

/** Draws the story of its screen as a picture, here on the device, and hands it to the player. */
class ShareButtonElement extends LitElement {
  static override properties = { story: { attribute: false }, busy: { state: true } };
  declare story: Story & { share: string };
  declare busy: boolean;

  constructor() {
    super();
    this.busy = false;
  }

  protected override createRenderRoot(): this {
    return this;
  }

  protected override render(): TemplateResult {
    return html`<button class="button primary" type="button" ?disabled=${this.busy} @click=${this.share}>
      ${glyph("share")}<span class="button-label">Share</span>
    </button>`;
  }

  private async share(): Promise<void> {
    this.busy = true;
    try {
      const { storyPicture } = await import("../blocks/story-picture");
      const sleeve = this.closest(".layer")?.querySelector(".story-picture > .picture") ?? null;
      const picture = await storyPicture(this.story, sleeve);
      if (!picture) return;
      const name = this.story.share.endsWith(".png") ? this.story.share : `${this.story.share}.png`;
      await handOver({ name, bytes: new Uint8Array(await picture.arrayBuffer()), type: "image/png" });
    } finally {
      this.busy = false;
    }
  }
}

customElements.define("bb-share-button", ShareButtonElement);
