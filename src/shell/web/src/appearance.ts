import type { Answer } from "./protocol";

const systemLight = matchMedia("(prefers-color-scheme: light)");
let wish: Answer["appearance"] = "system";

/** Shows the page in the player's choice of theme; "system" follows the device from then on. */
export function setAppearance(appearance: Answer["appearance"]): void {
  wish = appearance ?? "system";
  apply();
}

systemLight.addEventListener("change", apply);

function apply(): void {
  const light = wish === "system" ? systemLight.matches : wish === "light";
  const root = document.documentElement;
  const shown = light ? "light" : "dark";
  if (root.dataset.appearance === shown) return;
  root.dataset.appearance = shown;
  document.querySelector('meta[name="theme-color"]')?.setAttribute("content", light ? "#f2f2f7" : "#000000");
  document.dispatchEvent(new Event("appearancechange"));
}
