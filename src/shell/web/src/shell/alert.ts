import { html, LitElement, nothing, type TemplateResult } from "lit";
import { keyed } from "lit/directives/keyed.js";
import type { Asked } from "../messages";
import type { AlertButton } from "../protocol";

/** The alert that waits for an answer; the screen behind it cannot be reached meanwhile. */
class AlertElement extends LitElement {
  static override properties = { alert: { attribute: false }, answer: { attribute: false } };
  declare alert: Asked | null;
  declare answer: (alert: Asked, button: number) => void;

  // While it fades out it still says what it said.
  private last: Asked | null = null;

  protected override createRenderRoot(): this {
    return this;
  }

  protected override render(): TemplateResult {
    this.last = this.alert ?? this.last;
    const { key = 0, title = "", message = "", buttons = [], share } = this.last ?? {};
    const live = share === undefined ? nothing : "polite";
    return html`<dialog
      class="alert"
      role="alertdialog"
      aria-labelledby="alert-title"
      aria-describedby="alert-message"
      @cancel=${this.cancel}
      @close=${() => this.requestUpdate()}
    >
      ${keyed(
        key,
        html`<div class="alert-body">
          <div class="alert-texts" tabindex="-1">
            <h2 id="alert-title" dir="auto">${title}</h2>
            <p id="alert-message" dir="auto" aria-live=${live}>${message.replace(/^\r?\n/, "")}</p>
            ${share === undefined ? nothing : html`<progress aria-labelledby="alert-title" .value=${share}></progress>`}
          </div>
          <div class="alert-buttons ${sideBySide(buttons) ? "side-by-side" : ""}">
            ${buttons.map(
              (button, i) =>
                html`<button class="button ${look(button, buttons)}" type="button" @click=${() => this.press(i)}>
                  <span class="button-label" dir="auto">${button.label}</span>
                </button>`,
            )}
          </div>
        </div>`,
      )}
    </dialog>`;
  }

  protected override updated(): void {
    const dialog = this.querySelector("dialog")!;
    if (this.alert && !dialog.open) dialog.showModal();
    if (!this.alert && dialog.open) dialog.close();
    // Return agrees, but never to something that destroys.
    if (this.alert) [...this.querySelectorAll<HTMLElement>(".alert-buttons .button:not(.destructive)")].at(-1)?.focus();
  }

  private press(button: number): void {
    if (this.alert) this.answer(this.alert, button);
  }

  // Where the browser insists on closing the dialog unanswered, it is opened again.
  private cancel(event: Event): void {
    event.preventDefault();
    const buttons = this.alert?.buttons ?? [];
    const cancel = buttons.length === 1 ? 0 : buttons.findIndex(({ style }) => style === "cancel");
    if (cancel >= 0) this.press(cancel);
  }
}

function sideBySide(buttons: AlertButton[]): boolean {
  return buttons.length === 2 && buttons.every(({ label }) => label.length <= 12);
}

/** The one thing to agree to stands out; among several equals none does. */
function look(button: AlertButton, all: AlertButton[]): string {
  if (button.style === "destructive") return "destructive";
  const agreeing = all.filter(({ style }) => style !== "cancel" && style !== "destructive");
  return agreeing.length === 1 && agreeing[0] === button ? "primary" : "secondary";
}

customElements.define("bb-alert", AlertElement);
