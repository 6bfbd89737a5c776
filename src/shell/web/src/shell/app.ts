import { html, LitElement, nothing, type PropertyValues, type TemplateResult } from "lit";
import { guard } from "lit/directives/guard.js";
import { repeat } from "lit/directives/repeat.js";
import { setAppearance } from "../appearance";
import { BackGesture } from "../back-gesture";
import { tellDrafts } from "../drafts";
import type { Player } from "../game";
import type { Toast } from "../messages";
import { prefersStillness } from "../motion";
import { glyph } from "../pictures/icons";
import { picture } from "../pictures/picture";
import type { Alert, Answer, Header, PressScreen, View } from "../protocol";
import type { Scene, SheetContent } from "../scene";
import { Stack, type Layer, type Step } from "../stack";
import "./alert";
import "./blocks";
import { dock, moodOf } from "./dock";
import { EdgeSwipe } from "./edge-swipe";
import "./sheet";
import { shakeEnergy, statusRow } from "./status";
import { tabBar } from "./tab-bar";
import { toastPlace } from "./toast";
import { play } from "./transition";

/** The phone: the stack of screens, the tabs, and what comes up over them. */
class AppElement extends LitElement {
  static override properties = { player: { attribute: false }, sheet: { state: true } };
  declare player: Player;
  declare sheet: SheetContent | null;

  private stack = new Stack();
  private launches = 0;
  private readonly scenes = new WeakMap<Layer, Scene>();
  private readonly swipe = new EdgeSwipe({
    pulled: (share) => this.pull(share),
    released: (back) => this.release(back),
  });
  private readonly backGesture = new BackGesture(() => this.deviceBack());
  private seen: Answer | null = null;
  private drawn: Answer | null = null;
  private step: Step = { motion: "none", leaving: null };
  private moving: Animation[] = [];
  private pulledShare = 0;

  constructor() {
    super();
    this.sheet = null;
    addEventListener("keydown", (event) => this.key(event));
  }

  protected override createRenderRoot(): this {
    this.replaceChildren();
    return this;
  }

  /** Shows what the player has now. */
  show(): void {
    const { answer } = this.player;
    if (answer !== this.seen) this.take(answer);
    this.requestUpdate();
  }

  private take(answer: Answer): void {
    this.stopMoving();
    this.remember();
    if (this.launches !== this.player.launches) this.stack = new Stack(); // the screens of another launch are gone
    this.launches = this.player.launches;
    const before = this.stack.top;
    this.step = this.stack.advance(answer);
    this.seen = answer;
    if (before !== this.stack.top || answer.alert) this.sheet = null;
    if (this.canGoBack) this.backGesture.arm();
    setAppearance(answer.appearance);
  }

  private get toast(): Toast | null {
    const { toast } = this.player.messages;
    const onRoot = this.stack.layers.length === 1 && !this.stack.top!.modal && !this.alerting;
    return toast?.onRootsOnly && !onRoot ? null : toast;
  }

  private get alerting(): boolean {
    return Boolean(this.player?.messages.alert ?? this.player?.answer.alert);
  }

  private get canGoBack(): boolean {
    return this.stack.layers.length > 1 && !this.stack.top!.modal;
  }

  protected override willUpdate(changed: PropertyValues<this>): void {
    if (changed.has("player")) {
      this.player.onChange = () => this.show();
      this.player.messages.onChange = () => this.requestUpdate();
      this.take(this.player.answer);
    }
  }

  protected override render(): TemplateResult {
    const { answer, messages } = this.player;
    const { everywhere, top } = this.stack;
    const { leaving } = this.step;
    const modal = top!.modal;
    // In an order in which none ever has to move: moved, it would lose its scroll position.
    const shown = [...new Set(leaving ? [...everywhere, leaving] : everywhere)].sort((a, b) => a.key - b.key);
    return html`<div class="phone">
      ${repeat(
        shown,
        (layer) => `${this.launches} ${layer.key}`,
        // Nobody sees a parked layer: it stays as it was drawn until it comes back.
        (layer) => guard([this.placeOf(layer) === "parked" ? "parked" : {}], () => this.layer(layer, answer)),
      )}
      ${this.canGoBack ? this.edge() : nothing}
      ${tabBar(answer.tabs ?? [], answer.tab ?? 0, modal, (tab) => this.press("tabs", "tab", String(tab)))}
      ${toastPlace(this.toast, () => messages.dropToast())}
      <bb-sheet .content=${this.sheet} .dismiss=${() => (this.sheet = null)}></bb-sheet>
      <bb-alert
        class=${messages.covers ? "whole-page" : ""}
        .alert=${messages.alert ?? answer.alert ?? null}
        .answer=${this.answerAlert}
      ></bb-alert>
    </div>`;
  }

  private layer(layer: Layer, answer: Answer): TemplateResult {
    const view = layer.view;
    const place = this.placeOf(layer);
    const top = place === "top";
    const endWeek = top && answer.endWeek;
    return html`<section
      class="layer ${place} ${layer.modal ? "modal" : ""} theme-${view?.theme ?? "plain"} ${moodOf(view)}"
      data-screen=${view?.screen ?? nothing}
      aria-label=${view?.title || nothing}
      role=${top ? "main" : nothing}
      ?inert=${!top}
    >
      <div class="scroll">
        <div class="page">
          ${this.topBar(layer, answer.header ?? {})} ${layer.pushed || isUntitled(view) ? nothing : this.bigTitle(view)}
          <bb-blocks class="blocks" .view=${view} .scene=${this.sceneOf(layer)}></bb-blocks>
          ${dock(view, this.sceneOf(layer), endWeek ? this.endWeekButton() : null)}
        </div>
      </div>
    </section>`;
  }

  private placeOf(layer: Layer): "top" | "leaving" | "beneath" | "parked" {
    const { layers } = this.stack;
    if (layer === layers.at(-1)) return "top";
    if (layer === this.step.leaving) return "leaving";
    return layer === layers.at(-2) ? "beneath" : "parked";
  }

  private topBar({ view, pushed, modal }: Layer, header: Header): TemplateResult {
    const notices = [this.player.unsaved, this.player.answer.notice ?? ""];
    return html`<header class="top-bar">
      ${
        pushed
          ? html`<div class="nav-row">
              <button class="round" type="button" aria-label="Back" @click=${() => this.press("nav", "back")}>
                ${glyph("back")}
              </button>
              <div class="nav-titles">
                <h1 class="nav-title" tabindex="-1" dir="auto">${view?.title}</h1>
                ${view?.subtitle ? html`<p class="nav-subtitle" dir="auto">${view.subtitle}</p>` : nothing}
              </div>
              <div class="nav-end">${this.helpButton(view) ?? picture(view?.picture)}</div>
            </div>`
          : nothing
      }
      ${modal ? nothing : statusRow(header)}
      ${notices.map((notice) => (notice ? html`<p class="notice" role="status" dir="auto">${notice}</p>` : nothing))}
    </header>`;
  }

  private bigTitle(view: View | null): TemplateResult {
    return html`<div class="title-row">
      <div class="titles">
        ${view?.subtitle ? html`<p class="subtitle" dir="auto">${view.subtitle}</p>` : nothing}
        <h1 class="title" tabindex="-1" dir="auto">${view?.title}</h1>
      </div>
      ${this.helpButton(view)} ${picture(view?.picture)}
    </div>`;
  }

  private helpButton(view: View | null): TemplateResult | undefined {
    const help = view?.help;
    if (!help) return undefined;
    return html`<button
      class="round"
      type="button"
      aria-haspopup="dialog"
      aria-label="About: ${help.title}"
      @click=${() => (this.sheet = help)}
    >
      ${glyph("info")}
    </button>`;
  }

  private endWeekButton(): TemplateResult {
    return html`<button class="button primary" type="button" @click=${() => this.press("nav", "endTheWeekButton")}>
      <span class="button-label">END THE WEEK</span>
    </button>`;
  }

  private edge(): TemplateResult {
    const { down, move, up } = this.swipe;
    return html`<div
      class="edge"
      @pointerdown=${down}
      @pointermove=${move}
      @pointerup=${up}
      @pointercancel=${up}
    ></div>`;
  }

  private sceneOf(layer: Layer): Scene {
    let scene = this.scenes.get(layer);
    if (!scene) {
      const { key } = layer;
      scene = {
        key,
        get theme() {
          return layer.view?.theme ?? "plain";
        },
        press: (id, value) => this.press(key, id, value),
        open: (sheet) => {
          tellDrafts();
          if (!this.alerting) this.sheet = sheet;
        },
      };
      this.scenes.set(layer, scene);
    }
    return scene;
  }

  private press(screen: PressScreen, id: string, value = ""): void {
    tellDrafts();
    this.player.act(screen, id, value);
  }

  private readonly answerAlert = (alert: Alert, button: number): void => {
    if (alert === this.player.messages.alert) this.player.messages.answer(button);
    else this.press("alert", String(alert.key), String(button));
  };

  protected override updated(): void {
    const { answer } = this.player;
    if (this.drawn === answer) return;
    this.drawn = answer;
    void this.settle(this.step);
    this.feel(answer);
  }

  /** After a step: the focus as it was, then the movement; at its end the leaving screen goes. */
  private async settle(step: Step): Promise<void> {
    if (step.motion === "none") return;
    // Before anything asks where things lie: what the class shows is then styled with all the rest.
    this.classList.add("moving");
    const top = this.stack.top!;
    const element = this.querySelector<HTMLElement>(".layer.top")!;
    await element.querySelector<LitElement>("bb-blocks")!.updateComplete;
    if (top !== this.stack.top) return;
    const focused = top.focus?.isConnected ? top.focus : element.querySelector<HTMLElement>("h1");
    focused?.focus({ preventScroll: true });
    const [beneath, leaving] = [".beneath", ".leaving"].map((place) => this.querySelector<HTMLElement>(place));
    this.moving = play(step.motion, { top: element, beneath, leaving }, this.pulledShare);
    this.pull(0);
    await Promise.all(this.moving.map((animation) => animation.finished)).catch(() => {});
    if (this.step === step) this.stopMoving();
  }

  private stopMoving(): void {
    for (const animation of this.moving) animation.cancel();
    this.moving = [];
    this.classList.remove("moving");
    if (this.step.leaving) {
      this.step = { motion: "none", leaving: null };
      this.requestUpdate();
    }
  }

  private feel({ feedback }: Answer): void {
    if (feedback === "energyBounce") {
      shakeEnergy(this.querySelector(".layer.top"), prefersStillness());
      navigator.vibrate?.([20, 40, 20]);
    } else if (feedback === "success") navigator.vibrate?.(15);
    else if (feedback === "warning") navigator.vibrate?.([30, 60, 30]);
  }

  private remember(): void {
    const top = this.stack.top;
    const element = this.querySelector<HTMLElement>(".layer.top");
    if (!top || !element) return;
    top.focus = element.contains(document.activeElement) ? (document.activeElement as HTMLElement) : top.focus;
  }

  private pull(share: number): void {
    this.pulledShare = share;
    this.classList.toggle("pulling", share > 0);
    this.style.setProperty("--pulled", String(share));
  }

  private release(goBack: boolean): void {
    const top = this.stack.top;
    if (goBack) this.press("nav", "back");
    if (top === this.stack.top) this.pull(0);
  }

  private deviceBack(): boolean {
    if (this.sheet) this.sheet = null;
    else if (this.canGoBack && !this.alerting) this.press("nav", "back");
    return this.canGoBack;
  }

  private key(event: KeyboardEvent): void {
    const typing = event.target instanceof HTMLInputElement || event.target instanceof HTMLTextAreaElement;
    if (event.key !== "Escape" || typing || this.sheet || this.alerting || !this.canGoBack) return;
    this.press("nav", "back");
  }
}

/** A screen whose first block is its head. */
function isUntitled(view: View | null): boolean {
  return view !== null && !view.title && !view.subtitle && !view.picture && !view.help;
}

customElements.define("backbeat-app", AppElement);

export type { AppElement };
