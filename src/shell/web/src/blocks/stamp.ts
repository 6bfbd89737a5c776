import { html, LitElement, type TemplateResult } from "lit";
import { tap } from "../motion";

/** A stamp that comes down once, and is felt. */
class StampElement extends LitElement {
  static override properties = { text: { attribute: false } };
  declare text: string;

  protected override createRenderRoot(): this {
    return this;
  }

  protected override render(): TemplateResult {
    return html`<span class="big-stamp" dir="auto">${this.text}</span>`;
  }

  protected override firstUpdated(): void {
    tap([15, 40, 25]);
  }
}

customElements.define("bb-stamp", StampElement);
