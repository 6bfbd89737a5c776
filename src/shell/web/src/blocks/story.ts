import { html, nothing, type TemplateResult } from "lit";
import { picture } from "../pictures/picture";
import { sleeveColours } from "../pictures/sleeves";
import type { Fact, Story } from "../protocol";

const large = 4;

/** The colours of the sky above a story: those of the sleeve it follows from. */
export function skyOf({ sky, title = "" }: Story): [string, string] {
  return sleeveColours(sky?.name ?? title);
}

/** The facts that stand large, and those that are a list with its places before them. */
export function factsOf({ facts = [] }: Story): { told: Fact[]; listed: Fact[] } {
  return { told: facts.slice(0, large), listed: facts.slice(large) };
}

/** A picture to keep: a sky, one figure, a sentence. */
export function storyBlock(story: Story): TemplateResult {
  const { sky, kicker, title, figure = "", text } = story;
  const [above, below] = skyOf(story);
  const { told, listed } = factsOf(story);
  return html`<section class="story" style="--above:${above};--below:${below}">
    ${kicker ? html`<p class="story-kicker">${kicker.split(" · ").map((part) => html`<span dir="auto">${part}</span>`)}</p>` : nothing}
    <p class="story-figure" style="--letters:${Math.max(3, figure.length)}" dir="auto">${figure}</p>
    <div class="story-picture">
      ${picture(sky)}
      ${
        title || text
          ? html`<p class="story-tag">
              <b dir="auto">${title}</b>${text ? html`<span dir="auto">${text}</span>` : nothing}
            </p>`
          : nothing
      }
    </div>
    <dl class="story-facts">
      ${told.map(
        ({ label, value }) =>
          html`<div>
            <dt dir="auto">${label}</dt>
            <dd dir="auto">${value}</dd>
          </div>`,
      )}
    </dl>
    ${
      listed.length > 0
        ? html`<ol class="story-list">
            ${listed.map(
              ({ label, value }) => html`<li><span dir="auto">${label}</span><span dir="auto">${value}</span></li>`,
            )}
          </ol>`
        : nothing
    }
  </section>`;
}
