/** Says that the game cannot go on, with a way out. Made of nothing that may itself have failed to load. */
export function tellBroken(fault: unknown): void {
  console.warn("Backbeat could not start.", fault);
  const page = document.createElement("main");
  page.className = "full-notice";
  const add = (name: string, text: string): HTMLElement =>
    page.appendChild(Object.assign(document.createElement(name), { textContent: text }));
  add("h1", "Backbeat could not start");
  const text = add(
    "p",
    "Your save is untouched. Try again, and if that does not help, close other tabs, restart the browser or bring it up to date.",
  );
  text.role = "status";
  const again = add("button", "Try again") as HTMLButtonElement;
  again.type = "button";
  again.className = "button primary";
  again.onclick = () => location.reload();
  document.querySelector("backbeat-app, .full-notice")!.replaceWith(page);
  again.focus();
}
