import { html, LitElement, type TemplateResult } from "lit";
import { glyph } from "../pictures/icons";
import { playHook } from "./sound";

/** Plays and stops the hook of a song; going away stops it, too. */
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
    return html`<button
      class="round hook"
      type="button"
      aria-label=${this.playing ? "Stop the hook" : "Hear the hook"}
      @click=${() => (this.playing ? this.silence() : this.begin())}
    >
      ${glyph(this.playing ? "stop" : "play")}
    </button>`;
  }

  private begin(): void {
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

customElements.define("bb-hook", HookElement);
