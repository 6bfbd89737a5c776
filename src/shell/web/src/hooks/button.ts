import { html, LitElement, type TemplateResult } from "lit";
import { glyph } from "../pictures/icons";
import { setSound, soundOn } from "../preferences";
import { playHook } from "./sound";

/** Plays and stops the hook of a song; going away stops it, too. The first of them offers all sound of the page. */
class HookElement extends LitElement {
  static override properties = { hook: { attribute: false }, playing: { state: true } };
  declare hook: string;
  declare playing: boolean;

  private stop: (() => void) | null = null;

  constructor() {
    super();
    this.playing = false;
  }

  protected override createRenderRoot(): this {
    return this;
  }

  override disconnectedCallback(): void {
    super.disconnectedCallback();
    this.silence();
  }

  protected override render(): TemplateResult {
    if (!soundOn()) {
      return html`<button class="hook hear-it" type="button" @click=${() => this.accept()}>
        ${glyph("play")}<span>Hear it?</span>
      </button>`;
    }
    return html`${this.playing ? html`<span class="playing-bars" aria-hidden="true"><i></i><i></i><i></i></span>` : ""}
      <button
        class="round hook"
        type="button"
        aria-label=${this.playing ? "Stop the hook" : "Hear the hook"}
        @click=${() => (this.playing ? this.silence() : this.play())}
      >
        ${glyph(this.playing ? "stop" : "play")}
      </button>`;
  }

  private accept(): void {
    setSound(true);
    this.play();
  }

  /** Wants a press of the player, as all sound does. */
  play(): void {
    this.silence();
    this.stop = playHook(this.hook, () => (this.playing = false));
    this.playing = true;
    // Whatever is pressed next leads somewhere else.
    addEventListener("click", this.elsewhere, { capture: true });
  }

  private silence(): void {
    removeEventListener("click", this.elsewhere, { capture: true });
    this.stop?.();
    this.stop = null;
    this.playing = false;
  }

  private readonly elsewhere = (event: Event): void => {
    const leads = (event.target as Element).closest("button");
    if (leads && !this.contains(leads)) this.silence();
  };
}

declare global {
  interface HTMLElementTagNameMap {
    "bb-hook": HookElement;
  }
}

customElements.define("bb-hook", HookElement);
