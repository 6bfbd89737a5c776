import type { SheetContent } from "../scene";

/** What keys can do; all of it can be pressed, too. */
export interface KeyHost {
  tab(number: number): void;
  back(): void;
  endWeek(): void;
  show(sheet: SheetContent): void;
  /** The main button of a screen that asks for nothing but to be agreed to. */
  agree(): HTMLElement | null;
  /** Something lies over the screens and has keys of its own. */
  busy(): boolean;
}

export const keySheet: SheetContent = {
  title: "Keys",
  text: "1 to 5\tthe tabs\n↑ ↓\tthrough a screen\n← →\tfrom one screen to the one beside it\nEnter\tpresses, and goes on after a report\nBackspace\tback\nE\tends the week\n?\tthis list",
};

const itsOwn = "input:not([type=checkbox]), textarea, select, [role=slider], bb-deck, bb-slider, bb-stepper";
const reachable = "button, input, textarea, select, [tabindex='0']";

/** Listens for the keys of the whole page; letters are never taken from who types. */
export function listenForKeys(host: KeyHost): void {
  addEventListener("keydown", (event) => {
    const at = event.target instanceof Element ? event.target : null;
    if (event.defaultPrevented || event.ctrlKey || event.metaKey || event.altKey || host.busy()) return;
    if (event.key === "Escape" ? at?.matches("input, textarea") : at?.closest(itsOwn)) return;
    if (act(event, at, host)) event.preventDefault();
  });
}

function act(event: KeyboardEvent, at: Element | null, host: KeyHost): boolean {
  const digit = /^(?:Digit|Numpad)?([1-5])$/.exec(event.shiftKey ? "" : event.key) ?? null;
  if (digit) host.tab(Number(digit[1]) - 1);
  else if (event.key === "Escape" || event.key === "Backspace") host.back();
  else if (event.key === "e" || event.key === "E") {
    if (!event.repeat) host.endWeek();
  } else if (event.key === "?") host.show(keySheet);
  else if (event.key === "Enter") return event.repeat || agree(at, host);
  else if (event.key === "ArrowDown" || event.key === "ArrowUp") return step(at, event.key === "ArrowDown" ? 1 : -1);
  else if (event.key === "ArrowRight" || event.key === "ArrowLeft") {
    return aside(at, event.key === "ArrowRight" ? 1 : -1);
  } else return false;
  return true;
}

/** Enter on a button is the button's own. */
function agree(at: Element | null, host: KeyHost): boolean {
  if (at?.closest("button, [role=button], summary, a")) return false;
  const button = host.agree();
  button?.click();
  return button !== null;
}

const inSight = (element: Element): boolean => element.checkVisibility({ visibilityProperty: true });

/** The places that the focus goes through: the rail and the screens that can be pressed, from left to right. */
function places(): HTMLElement[] {
  return [...document.querySelectorAll<HTMLElement>(":is(.side-rail, .layer:is(.top, .left, .right)):not([inert])")]
    .filter(inSight)
    .sort((a, b) => a.getBoundingClientRect().left - b.getBoundingClientRect().left);
}

function controls(place: Element): HTMLElement[] {
  return [...place.querySelectorAll<HTMLElement>(reachable)].filter(inSight);
}

function step(at: Element | null, by: 1 | -1): boolean {
  const place = at?.closest(".side-rail, .layer") ?? document.querySelector(".layer.top");
  if (!place) return false;
  const all = controls(place);
  const now = all.findIndex((control) => control === at);
  // From the title of a screen both ways lead into it.
  const next = now < 0 ? all.find((control) => !control.closest(".top-bar")) : all[now + by];
  if (!next) return false;
  next.focus({ focusVisible: true } as FocusOptions);
  next.scrollIntoView({ block: "nearest" });
  return true;
}

const left = new WeakMap<Element, HTMLElement>();

/** Into the place beside, to where the focus was there. */
function aside(at: Element | null, by: 1 | -1): boolean {
  const all = places();
  const here = at?.closest<HTMLElement>(".side-rail, .layer") ?? document.querySelector<HTMLElement>(".layer.top");
  const there = here ? all[all.indexOf(here) + by] : undefined;
  if (!here || !there) return false;
  if (at instanceof HTMLElement && here.contains(at)) left.set(here, at);
  const before = left.get(there);
  const lit = there.querySelector<HTMLElement>(".row-main[aria-current], .rail-tab[aria-current]");
  const next = before?.isConnected && inSight(before) ? before : (lit ?? controls(there)[0]);
  next?.focus({ focusVisible: true } as FocusOptions);
  return next !== undefined;
}
