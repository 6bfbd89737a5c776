import { html, nothing, type TemplateResult } from "lit";
import { buttonBlock } from "../blocks/controls";
import type { ButtonData, Header, Story, Total, View } from "../protocol";
import type { Scene } from "../scene";
import { endWeekButton } from "./end-week";
import "./share-button";
import "./totals";

type Part = TemplateResult | typeof nothing;

/** What is pinned under the thumb: what the press would come to, the main button, a second one beside it. */
export function dock(view: View | null, scene: Scene): Part {
  const { totals = [], mainAction, aside, blocks = [] } = view ?? {};
  const story = blocks.find(
    (block): block is Story & { share: string } => block.kind === "story" && Boolean(block.share),
  );
  const buttons = [
    aside ? buttonBlock(aside, scene) : null,
    mainAction ? buttonBlock(toldOnce(mainAction, totals), scene) : null,
    story ? html`<bb-share-button .story=${story}></bb-share-button>` : null,
  ].filter((button) => button !== null);
  if (buttons.length === 0 && totals.length === 0) return nothing;
  return html`<div class="dock ${totals.length > 0 ? "high" : ""}">
    ${totals.length > 0 ? html`<bb-totals .totals=${totals}></bb-totals>` : nothing}
    <div class="dock-buttons ${aside && buttons.length > 1 ? "with-aside" : ""}">${buttons}</div>
  </div>`;
}

/** Money that stands right above the button, and is there, is not told a second time on it. */
function toldOnce(button: ButtonData, totals: Total[]): ButtonData {
  const { price } = button;
  if (!price?.affordable || !totals.some(({ value }) => value === price.dollars)) return button;
  const { dollars: _, ...rest } = price;
  return { ...button, price: rest };
}

/** On the root of a tab the foot belongs to END THE WEEK; the root's own buttons stand at its head. */
export function headButtons(view: View | null, scene: Scene): Part {
  const { mainAction, aside } = view ?? {};
  if (!mainAction && !aside) return nothing;
  return html`<div class="head-buttons">
    ${mainAction ? buttonBlock(mainAction, scene) : nothing} ${aside ? buttonBlock(aside, scene) : nothing}
  </div>`;
}

export function endWeekDock(header: Header, press: () => void): TemplateResult {
  return html`<div class="dock"><div class="dock-buttons">${endWeekButton(header, press)}</div></div>`;
}

const besideTheAnswer = new Set(["text", "heading", "cover", "button"]);

/** The main button of a screen that asks for one text and nothing else. */
export function soleAnswer(view: View | null): string | undefined {
  const asked = (view?.blocks ?? []).filter(({ kind }) => !besideTheAnswer.has(kind));
  return asked.length === 1 && asked[0]!.kind === "field" ? view?.mainAction?.id : undefined;
}

/** Sad news takes the warmth out of its whole screen. */
export function moodOf(view: View | null): string {
  return view?.blocks?.some((block) => block.kind === "poster" && block.mood === "mourn") ? "mourning" : "";
}
