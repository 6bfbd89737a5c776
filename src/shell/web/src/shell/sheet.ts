import { html, LitElement, nothing, type TemplateResult } from "lit";
import { pricePill, toneClass } from "../blocks/parts";
import { glyph } from "../pictures/icons";
import type { SheetContent, SheetItem } from "../scene";

/** What comes up from the bottom, and goes by a choice, Escape, a press beside it or a pull downwards. */
class SheetElement extends LitElement {
  static override properties = { content: { attribute: false }, dismiss: { attribute: false } };
  declare content: SheetContent | null;
  declare dismiss: () => void;

  private last: SheetContent | null = null;
  private pulledFrom: number | null = null;

  protected override createRenderRoot(): this {
    return this;
  }

  protected override render(): TemplateResult {
    this.last = this.content ?? this.last;
    const { title = "", text, items = [] } = this.last ?? {};
    return html`<dialog
      class="sheet"
      aria-labelledby="sheet-title"
      @cancel=${this.cancel}
      @close=${this.closed}
      @click=${this.pressBeside}
    >
      <div class="sheet-body">
        <div
          class="sheet-head"
          @pointerdown=${this.pullStart}
          @pointermove=${this.pull}
          @pointerup=${this.pullEnd}
          @pointercancel=${this.pullEnd}
        >
          <span class="grabber"></span>
          <h2 id="sheet-title" dir="auto">${title}</h2>
        </div>
        <div class="sheet-content">
          ${text ? html`<p class="sheet-text" dir="auto">${text}</p>` : nothing}
          ${
            items.length
              ? html`<ul class="group">
                  ${items.map((item) => this.item(item))}
                </ul>`
              : nothing
          }
        </div>
        <button class="button secondary sheet-close" type="button" @click=${() => this.dismiss()}>
          <span class="button-label">${items.length ? "Cancel" : "Done"}</span>
        </button>
      </div>
    </dialog>`;
  }

  protected override updated(): void {
    const dialog = this.querySelector("dialog")!;
    if (this.content && !dialog.open) {
      dialog.showModal();
      this.querySelector(".sheet-content")!.scrollTop = 0;
      // Where there is something to choose the focus belongs there, not on the list that scrolls.
      const [chosen] = [".chosen-item", ".row"].flatMap(
        (row) => this.querySelector<HTMLElement>(`${row} button`) ?? [],
      );
      chosen?.focus({ preventScroll: true });
      chosen?.parentElement!.scrollIntoView({ block: "nearest" });
    }
    if (!this.content && dialog.open) dialog.close();
  }

  private item({ label, note, tone, price, selected, press }: SheetItem): TemplateResult {
    const choose = (): void => {
      this.dismiss();
      press();
    };
    return html`<li class="row ${toneClass(tone)} ${selected ? "chosen-item" : ""}">
      <button class="row-main" type="button" @click=${choose}>
        <span class="row-texts">
          <span class="sheet-label" dir="auto">${label}</span>
          ${note ? html`<span class="sheet-note" dir="auto">${note}</span>` : nothing}
        </span>
        ${pricePill(price)}
        ${selected ? html`<span class="row-mark chosen">${glyph("check")}<span class="unseen">selected</span></span>` : nothing}
      </button>
    </li>`;
  }

  // The event comes a moment after the fact: by then the next sheet may have been opened.
  private closed(event: Event): void {
    if (this.content && !(event.currentTarget as HTMLDialogElement).open) this.dismiss();
  }

  private cancel(event: Event): void {
    event.preventDefault();
    this.dismiss();
  }

  private pressBeside(event: MouseEvent): void {
    if (event.target === event.currentTarget) this.dismiss();
  }

  private pullStart(event: PointerEvent): void {
    this.pulledFrom = event.clientY;
    (event.currentTarget as HTMLElement).setPointerCapture(event.pointerId);
  }

  private pull(event: PointerEvent): void {
    if (this.pulledFrom !== null) this.shift(Math.max(0, event.clientY - this.pulledFrom));
  }

  private pullEnd(event: PointerEvent): void {
    const pulled = this.pulledFrom === null ? 0 : event.clientY - this.pulledFrom;
    this.pulledFrom = null;
    this.shift(0);
    if (pulled > 90) this.dismiss();
  }

  private shift(by: number): void {
    this.querySelector("dialog")!.style.translate = by ? `0 ${by}px` : "";
  }
}

customElements.define("bb-sheet", SheetElement);
