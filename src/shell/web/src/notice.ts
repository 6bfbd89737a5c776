import { html, render } from "lit";

interface Notice {
  title: string;
  text: string;
  button: string;
  press: () => void;
}

/** A notice that takes the whole page; the game is gone from it until the button is pressed. */
export function showNotice({ title, text, button, press }: Notice): void {
  const page = document.createElement("main");
  page.className = "full-notice";
  render(
    html`<h1>${title}</h1>
      <p>${text}</p>
      <button class="button primary" type="button" @click=${press}>
        <span class="button-label">${button}</span>
      </button>`,
    page,
  );
  document.querySelector("backbeat-app, .full-notice")!.replaceWith(page);
  page.querySelector("button")!.focus();
}
