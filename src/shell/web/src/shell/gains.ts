import { prefersStillness } from "../motion";
import type { View } from "../protocol";

/** What grew between two answers of one screen: the names of its levels and by how much. */
export function gainsBetween(before: View, now: View): Map<string, number> {
  const gains = new Map<string, number>();
  if (before.key !== now.key) return gains;
  const earlier = levels(before);
  for (const [name, level] of levels(now)) {
    const gain = level - (earlier.get(name) ?? level);
    if (gain > 0) gains.set(name, Math.round(gain * 100) / 100);
  }
  return gains;
}

function levels({ blocks = [] }: View): Map<string, number> {
  const found = new Map<string, number>();
  const note = (name = "", value = "", share?: number): void => {
    const number = /\d[\d,]*(\.\d+)?/.exec(value)?.[0];
    if (share !== undefined && number) found.set(name, Number(number.replaceAll(",", "")));
  };
  for (const block of blocks) {
    if (block.kind === "meter") note(block.label, block.value, block.share);
    if (block.kind === "rows") for (const { title, value, share } of block.items ?? []) note(title, value, share);
  }
  return found;
}

const places = { ".meter-texts > :first-child": ".meter-value", ".row-title > .clip": ".row-value" };

/** Each gain rises from its value and is gone. */
export function flyGains(gains: Map<string, number>, screen: Element | null): void {
  if (gains.size === 0 || !screen || prefersStillness()) return;
  for (const [names, values] of Object.entries(places)) {
    for (const name of screen.querySelectorAll(names)) {
      const gain = gains.get(name.textContent ?? "");
      const value = gain && name.closest(".meter, .row-main")?.querySelector(values);
      if (value) fly(`+${gain}`, value.getBoundingClientRect());
    }
  }
}

function fly(text: string, { right, top }: DOMRect): void {
  const sign = document.createElement("span");
  sign.className = "gain";
  sign.ariaHidden = "true";
  sign.textContent = text;
  sign.style.cssText = `right:${innerWidth - right}px;top:${top}px`;
  document.body.append(sign);
  const path = { transform: ["translateY(26px) scale(0.8)", "none", "translateY(-14px)"], opacity: [0, 1, 0] };
  const flight = sign.animate(path, { duration: 700, easing: "ease-out" });
  flight.onfinish = flight.oncancel = () => sign.remove();
}
