import { html, nothing, type TemplateResult } from "lit";
import type { Toast } from "../messages";

/** A line over the screen. The place for it is always there, so that a screen reader hears what comes into it. */
export function toastPlace(toast: Toast | null, drop: () => void): TemplateResult {
  return html`<div class="toast-place" role="status">${toast ? toastCard(toast, drop) : nothing}</div>`;
}

function toastCard({ text, button, press }: Toast, drop: () => void): TemplateResult {
  const choose = (): void => {
    drop();
    press?.();
  };
  return html`<div class="toast">
    <p dir="auto">${text}</p>
    ${
      button
        ? html`<div class="toast-buttons">
            <button class="button secondary" type="button" @click=${drop}>
              <span class="button-label">Not now</span>
            </button>
            <button class="button primary" type="button" @click=${choose}>
              <span class="button-label">${button}</span>
            </button>
          </div>`
        : nothing
    }
  </div>`;
}
