import { html, nothing, type TemplateResult } from "lit";
import { buttonBlock } from "../blocks/controls";
import type { Story, View } from "../protocol";
import type { Scene } from "../scene";
import "./share-button";
import "./totals";

/** What is pinned under the thumb: what the press would come to, the main button, a second one beside it, END THE WEEK. */
export function dock(view: View | null, scene: Scene, endWeek: TemplateResult | null): TemplateResult | typeof nothing {
  const { totals = [], mainAction, aside, blocks = [] } = view ?? {};
  const story = blocks.find(
    (block): block is Story & { share: string } => block.kind === "story" && Boolean(block.share),
  );
  const buttons = [
    aside ? buttonBlock(aside, scene) : null,
    mainAction ? buttonBlock({ style: "primary", ...mainAction }, scene) : null,
    story ? html`<bb-share-button .story=${story}></bb-share-button>` : null,
  ].filter((button) => button !== null);
  if (buttons.length === 0 && !endWeek && totals.length === 0) return nothing;
  return html`<div class="dock ${totals.length > 0 ? "high" : ""}">
    ${totals.length > 0 ? html`<bb-totals .totals=${totals}></bb-totals>` : nothing}
    <div class="dock-buttons ${aside && buttons.length > 1 ? "with-aside" : ""}">${buttons} ${endWeek}</div>
  </div>`;
}

const besideTheAnswer = new Set(["text", "heading", "cover"]);

/** The main button of a screen that asks for one text and nothing else. */
export function soleAnswer(view: View | null): string | undefined {
  const asked = (view?.blocks ?? []).filter(({ kind }) => !besideTheAnswer.has(kind));
  return asked.length === 1 && asked[0]!.kind === "field" ? view?.mainAction?.id : undefined;
}

/** Sad news takes the warmth out of its whole screen. */
export function moodOf(view: View | null): string {
  return view?.blocks?.some((block) => block.kind === "poster" && block.mood === "mourn") ? "mourning" : "";
}
