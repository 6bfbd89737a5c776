import { html, nothing, render, type TemplateResult } from "lit";

export interface NoticeButton {
  label: string;
  note?: string;
  /** The one that stands out. */
  primary?: boolean;
  press: () => void;
}

interface Notice {
  title: string;
  text: string;
  buttons: NoticeButton[];
}

/** A notice that takes the whole page; the game is gone from it until a button is pressed. */
export function showNotice({ title, text, buttons }: Notice): void {
  const page = document.createElement("main");
  page.className = "full-notice";
  render(
    html`<h1>${title}</h1>
      <p role="status">${text}</p>
      ${buttons.map(button)}`,
    page,
  );
  document.querySelector("backbeat-app, .full-notice")!.replaceWith(page);
  page.querySelector("button")!.focus();
}

function button({ label, note, primary, press }: NoticeButton): TemplateResult {
  return html`<button class="button ${primary ? "primary" : "secondary"}" type="button" @click=${press}>
    <span class="button-label" dir="auto">${label}</span>
    ${note ? html`<span class="button-note" dir="auto">${note}</span>` : nothing}
  </button>`;
}
