import { html, LitElement, nothing, type PropertyValues, type TemplateResult } from "lit";
import { prefersStillness, tap } from "../motion";
import { drawsOf, pick } from "../pictures/chance";
import { glyph } from "../pictures/icons";
import { picture } from "../pictures/picture";
import type { Deck, DeckChoice, Picture } from "../protocol";
import type { Scene } from "../scene";
import { toneClass } from "./parts";
import { Swipe, type Pull } from "./swipe";

const outMs = 260;
const glide = "cubic-bezier(0.32, 0.72, 0, 1)";
const keys: Record<string, Side> = { ArrowLeft: "left", ArrowUp: "up", ArrowRight: "right" };

type Side = NonNullable<DeckChoice["side"]>;

/** One candidate on a card: answered by a button, an arrow key or a swipe; who comes next is drawn only then. */
class DeckElement extends LitElement {
  static override properties = { deck: { attribute: false }, scene: { attribute: false } };
  declare deck: Deck;
  declare scene: Scene;

  private leaving: { deck: Deck; pull: Pull; side: Side } | null = null;
  private answered: { deck: Deck; pull: Pull; side: Side } | null = null;
  private told = "";
  private readonly room = new ResizeObserver(() => this.giveWay());
  private readonly swipe = new Swipe({
    pulled: (pull) => this.show(pull),
    released: (pull, side) => this.release(pull, side),
  });

  protected override createRenderRoot(): this {
    return this;
  }

  override connectedCallback(): void {
    super.connectedCallback();
    this.room.observe(this);
  }

  override disconnectedCallback(): void {
    super.disconnectedCallback();
    this.room.disconnect();
  }

  protected override willUpdate(changed: PropertyValues<this>): void {
    if (!changed.has("deck")) return;
    const before = changed.get("deck") as Deck | undefined;
    if (!before || sameFace(before, this.deck)) return;
    this.told = spoken(this.deck);
    if (this.answered && !prefersStillness()) this.leaving = this.answered;
    this.answered = null;
  }

  protected override render(): TemplateResult {
    const { choices = [], note } = this.deck;
    const { down, move, up, cancel } = this.swipe;
    return html`<div class="deck" @keydown=${this.key}>
      <div class="deck-cards">
        <span class="deck-under" aria-hidden="true"></span>
        <article
          class="deck-card"
          tabindex="0"
          aria-label=${this.deck.title || "Candidate"}
          @pointerdown=${down}
          @pointermove=${move}
          @pointerup=${up}
          @pointercancel=${cancel}
        >
          ${face(this.deck)}
          ${choices.map(
            ({ side = "left", icon = "" }) =>
              html`<span class="deck-mark ${side}" aria-hidden="true">${glyph(icon)}</span>`,
          )}
        </article>
        ${this.leaving ? html`<div class="deck-card gone" aria-hidden="true">${face(this.leaving.deck)}</div>` : nothing}
      </div>
      <div class="deck-choices">${choices.map((choice) => this.button(choice))}</div>
      ${note ? html`<p class="deck-note" dir="auto">${glyph("bolt")}${note}</p>` : nothing}
      <p class="unseen" aria-live="polite">${this.told}</p>
    </div>`;
  }

  private button(choice: DeckChoice): TemplateResult {
    const { label, icon = "", side = "left", price } = choice;
    const cost = [price?.energy ? `${price.energy} energy` : "", price?.dollars ?? ""].filter(Boolean).join(" and ");
    const dear = cost !== "" && !price?.affordable;
    return html`<button
      class="deck-choice ${side} ${dear ? "dear" : ""}"
      type="button"
      aria-label=${[label, cost, dear ? "more than you have" : ""].filter(Boolean).join(", ")}
      @click=${() => this.answer(choice, { x: 0, y: 0 })}
    >
      ${glyph(icon)}
    </button>`;
  }

  protected override updated(): void {
    if (!this.leaving) return;
    const gone = this.querySelector<HTMLElement>(".deck-card.gone");
    const card = this.card!;
    if (gone && gone.getAnimations().length === 0) this.partWays(gone, card);
  }

  private get card(): HTMLElement | null {
    return this.querySelector<HTMLElement>("article.deck-card");
  }

  /** The answered card flies on, the blank one beneath rises, then the next face comes in. */
  private partWays(gone: HTMLElement, card: HTMLElement): void {
    const { pull, side } = this.leaving!;
    const far = { left: "-130%, 6%", right: "130%, 6%", up: "0, -130%" }[side];
    const turn = { left: -14, right: 14, up: 0 }[side];
    const away = `translate(${far}) rotate(${turn}deg)`;
    const flight = gone.animate(
      { transform: [poseOf(pull, this.clientWidth), away] },
      { duration: outMs, easing: "ease-in" },
    );
    card.animate({ transform: ["scale(0.96)", "none"] }, { duration: outMs, easing: glide });
    for (const part of card.querySelectorAll(":scope > :not(.deck-mark)")) {
      part.animate({ opacity: [0, 1] }, { duration: 160, delay: outMs, fill: "backwards" });
    }
    void flight.finished
      .catch(() => {})
      .then(() => {
        this.leaving = null;
        this.requestUpdate();
      });
  }

  private show(pull: Pull): void {
    const { card } = this;
    if (!card) return;
    card.style.transform = pull.x || pull.y ? poseOf(pull, this.clientWidth) : "";
    const side = this.swipe.sideOf(pull);
    const has = side && this.choice(side);
    card.dataset.toward = has ? side : "";
  }

  private release(pull: Pull, side: Side | null): void {
    const choice = side && this.choice(side);
    this.show({ x: 0, y: 0 });
    if (choice) this.answer(choice, pull);
    else this.springBack(pull);
  }

  private choice(side: Side): DeckChoice | undefined {
    return this.deck.choices?.find((choice) => (choice.side ?? "left") === side);
  }

  private answer(choice: DeckChoice, pull: Pull): void {
    tap();
    const answered = { deck: this.deck, pull, side: choice.side ?? "left" };
    this.answered = answered;
    this.scene.press(choice.id, pull.x || pull.y ? "swipe" : "");
    // Whoever is still there has not been answered: the game refused.
    requestAnimationFrame(() => {
      if (this.answered !== answered) return;
      this.answered = null;
      this.springBack(pull);
    });
  }

  private springBack(pull: Pull): void {
    if (prefersStillness() || (!pull.x && !pull.y)) return;
    const from = poseOf(pull, this.clientWidth);
    this.card?.animate({ transform: [from, "none"] }, { duration: 320, easing: "cubic-bezier(0.3, 1.6, 0.5, 1)" });
  }

  private key(event: KeyboardEvent): void {
    const side = keys[event.key];
    const choice = side && this.choice(side);
    if (!choice || event.altKey || event.ctrlKey || event.metaKey) return;
    event.preventDefault();
    this.answer(choice, { x: 0, y: 0 });
  }

  /** A swipe upwards is a choice only where it does not have to scroll. */
  private giveWay(): void {
    const scroll = this.closest(".scroll");
    this.classList.toggle("still", !scroll || scroll.scrollHeight <= scroll.clientHeight + 1);
  }
}

function face({ picture: shown, title, aside, facts, text, tags = [], corners = [] }: Deck): TemplateResult {
  return html`<div class="deck-view">
      ${picture(placeOf(title ?? ""))}<span class="deck-person">${picture(shown)}</span>
    </div>
    ${corners.map(
      ({ icon = "", value, label, tone }, i) =>
        html`<span class="deck-corner ${i ? "end" : ""} ${toneClass(tone)}"
          >${glyph(icon)}<span class="unseen">${label}</span><span dir="auto">${value}</span></span
        >`,
    )}
    <div class="deck-texts">
      <h2 dir="auto">${title}${aside ? html`, <span>${aside}</span>` : nothing}</h2>
      ${
        facts?.length
          ? html`<p class="deck-facts">
              ${facts.map(
                ({ icon = "", label, value }) =>
                  html`<span>${glyph(icon)}<span class="unseen">${label}</span><span dir="auto">${value}</span></span>`,
              )}
            </p>`
          : nothing
      }
      ${text ? html`<p class="deck-text" dir="auto">${text}</p>` : nothing}
      ${tags.length > 0 ? html`<p class="deck-tags">${tags.map((tag) => html`<span dir="auto">${tag}</span>`)}</p>` : nothing}
    </div>`;
}

/** Where somebody is met follows from the name. */
const placeOf = (name: string): Picture => ({
  kind: "scene",
  name: `${pick(["sunset", "palmBeach", "lagoon", "meadow", "loft", "campus"], drawsOf(`${name} is met`))}:${name}`,
});

const poseOf = ({ x, y }: Pull, width: number): string =>
  `translate(${x}px, ${y}px) rotate(${(Math.max(-1, Math.min(1, x / Math.max(1, width))) * 12).toFixed(2)}deg)`;

const sameFace = (a: Deck, b: Deck): boolean =>
  JSON.stringify([a.picture, a.title, a.aside, a.text]) === JSON.stringify([b.picture, b.title, b.aside, b.text]);

function spoken({ title, aside, facts = [], corners = [] }: Deck): string {
  const levels = corners.map(({ label, value }) => [label, value].filter(Boolean).join(" "));
  return [title, aside, facts[0]?.value, levels[0]].filter(Boolean).join(", ");
}

customElements.define("bb-deck", DeckElement);
