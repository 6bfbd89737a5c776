import { html, LitElement, type TemplateResult } from "lit";
import { cutPicture, cutRectangle, drawCut, ratioOf, type Cut, type Shape } from "../pictures/shrink";

const previewWidth = 640;

/** Lets the player choose what is cut out of a picture: by dragging it, or with three sliders. */
class CropElement extends LitElement {
  static override properties = {
    picture: { attribute: false },
    shape: { attribute: false },
    taken: { attribute: false },
    cut: { state: true },
  };
  declare picture: ImageBitmap;
  declare shape: Shape;
  /** Called once with the address of the cut; with "" when the player wants none, null when it cannot be made. */
  declare taken: (address: string | null) => void;
  declare cut: Cut;

  private held: { x: number; y: number } | null = null;

  constructor() {
    super();
    this.cut = { zoom: 1, across: 0.5, down: 0.5 };
  }

  protected override createRenderRoot(): this {
    return this;
  }

  protected override render(): TemplateResult {
    return html`<dialog class="alert crop" aria-labelledby="crop-title" @cancel=${this.cancel}>
      <div class="alert-body">
        <div class="alert-texts">
          <h2 id="crop-title">Choose the part</h2>
          <canvas
            class="crop-view ${this.shape}"
            role="img"
            aria-label="The part that is kept"
            width=${previewWidth}
            height=${Math.round(previewWidth / ratioOf(this.shape))}
            @pointerdown=${this.hold}
            @pointermove=${this.drag}
            @pointerup=${this.letGo}
            @pointercancel=${this.letGo}
          ></canvas>
          ${this.slider("Closer", "zoom", 1, 4)} ${this.slider("Left and right", "across", 0, 1)}
          ${this.slider("Up and down", "down", 0, 1)}
        </div>
        <div class="alert-buttons side-by-side">
          <button class="button secondary" type="button" @click=${() => this.taken("")}>
            <span class="button-label">Cancel</span>
          </button>
          <button class="button primary" type="button" @click=${this.take}>
            <span class="button-label">Use</span>
          </button>
        </div>
      </div>
    </dialog>`;
  }

  private slider(label: string, part: keyof Cut, least: number, most: number): TemplateResult {
    const value = this.cut[part];
    const move = (event: Event): void => {
      this.cut = { ...this.cut, [part]: (event.target as HTMLInputElement).valueAsNumber };
    };
    return html`<label class="slider crop-slider">
      <span class="line-label">${label}</span>
      <input
        type="range"
        min=${least}
        max=${most}
        step="0.01"
        style="--share:${(value - least) / (most - least)}"
        .value=${String(value)}
        @input=${move}
      />
    </label>`;
  }

  protected override firstUpdated(): void {
    this.querySelector("dialog")!.showModal();
  }

  protected override updated(): void {
    drawCut(this.querySelector("canvas")!, this.picture, this.shape, this.cut);
  }

  private cancel(event: Event): void {
    event.preventDefault();
    this.taken("");
  }

  private take(): void {
    this.taken(cutPicture(this.picture, this.shape, this.cut) ?? null);
  }

  private hold(event: PointerEvent): void {
    this.held = { x: event.clientX, y: event.clientY };
    (event.currentTarget as HTMLElement).setPointerCapture(event.pointerId);
  }

  private drag(event: PointerEvent): void {
    if (!this.held) return;
    const { width, height } = cutRectangle(this.picture, this.shape, this.cut);
    const pixels = width / (event.currentTarget as HTMLElement).clientWidth;
    const moved = (from: number, by: number, room: number): number =>
      room > 0 ? Math.min(1, Math.max(0, from - (by * pixels) / room)) : from;
    this.cut = {
      zoom: this.cut.zoom,
      across: moved(this.cut.across, event.clientX - this.held.x, this.picture.width - width),
      down: moved(this.cut.down, event.clientY - this.held.y, this.picture.height - height),
    };
    this.held = { x: event.clientX, y: event.clientY };
  }

  private letGo(): void {
    this.held = null;
  }
}

customElements.define("bb-crop", CropElement);
