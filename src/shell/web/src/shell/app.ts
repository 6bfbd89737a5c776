import { html, LitElement, nothing, type PropertyValues, type TemplateResult } from "lit";
import { guard } from "lit/directives/guard.js";
import { repeat } from "lit/directives/repeat.js";
import { setAppearance } from "../appearance";
import { BackGesture } from "../back-gesture";
import { tellDrafts } from "../drafts";
import type { Player } from "../game";
import type { Toast } from "../messages";
import { prefersStillness, takeOff } from "../motion";
import { playSoft, soundOf, type SoftSound } from "../hooks/soft";
import { glyph } from "../pictures/icons";
import { picture } from "../pictures/picture";
import type { Alert, Answer, Header, Picture, PressScreen, View } from "../protocol";
import type { Scene, SheetContent } from "../scene";
import { Stack, unseen, type Layer, type Step } from "../stack";
import type { Ahead } from "./ahead";
import "./alert";
import type { BlocksElement } from "./blocks";
import "./blocks";
import { onRoomChange, room, type Room } from "./desk";
import { dock, endWeekDock, headButtons, moodOf, soleAnswer } from "./dock";
import { EdgeSwipe } from "./edge-swipe";
import { flyGains, gainsBetween } from "./gains";
import { keySheet, listenForKeys } from "./keys";
import { rail } from "./rail";
import { isRelease, playRelease } from "./release";
import "./sheet";
import { shakeEnergy, statusRow } from "./status";
import { tabBar } from "./tab-bar";
import { toastPlace } from "./toast";
import { play, type Stage } from "./transition";
import { washOf } from "./wash";

/** Where a screen lies while two find room: the root, what it led to, or a screen that has both places. */
type Panel = "" | "left" | "right" | "wide";

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
  private ahead: Ahead | null = null;
  private seen: Answer | null = null;
  private drawn: Answer | null = null;
  private step: Step = { motion: "none", leaving: null };
  private moving: Animation[] = [];
  private land: () => void = () => {};
  private released = false;
  private gains = new Map<string, number>();
  private typedName = "";
  private heard: SoftSound | null = null;
  private pulledShare = 0;
  private room: Room = room();
  private toldDesk = 0;
  private sample: Layer | null = null;

  constructor() {
    super();
    this.sheet = null;
    onRoomChange(() => this.enterRoom());
    listenForKeys({
      tab: (number) => this.press("tabs", "tab", String(number)),
      back: () => this.canGoBack && this.press("nav", "back"),
      endWeek: () => this.endWeek(),
      show: (sheet) => (this.sheet = sheet),
      agree: () => (this.stack.top?.modal && !this.stack.top.view?.aside ? this.mainButton() : null),
      busy: () => Boolean(this.sheet) || this.alerting || this.querySelector("dialog[open]") !== null,
    });
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
    if (this.launches !== this.player.launches) {
      this.stack = new Stack(); // the screens of another launch are gone
      this.ahead?.beginAnew();
    }
    this.launches = this.player.launches;
    const before = this.stack.top;
    const { panels } = this;
    this.step = this.stack.advance(answer);
    if (this.room === "desk") this.calm(panels);
    if (this.step.motion !== "none") this.land = takeOff();
    this.released = this.seen !== null && isRelease(this.seen, answer);
    this.heard = this.seen && soundOf(this.seen, answer);
    this.gains = this.seen ? gainsBetween(this.seen.view, answer.view) : new Map();
    this.seen = answer;
    if (before !== this.stack.top || answer.alert) this.sheet = null;
    if (this.canGoBack) this.backGesture.arm();
    setAppearance(answer.appearance);
    this.tellDesk();
  }

  /** Takes the root of a tab; false when somebody has opened it already. */
  private foresee(tab: number): boolean {
    const view = this.player.ahead(tab);
    if (!view) return false;
    this.stack.foresee(tab, view);
    this.requestUpdate();
    return true;
  }

  /** From now on what nobody has seen yet is drawn in idle moments: tabs, then samples of what other screens are made of. */
  async lookAhead(samples: Promise<View[]>): Promise<void> {
    const { Ahead } = await import("./ahead");
    this.ahead = new Ahead({
      inReach: () => this.room === "phone" && !this.stack.top!.modal && !this.alerting && !this.sheet,
      resting: () => this.step.motion === "none" || !this.querySelector(".moving"),
      unseen: () => this.unseen,
      foresee: (tab) => this.foresee(tab),
      hang: (sample) => this.hang(sample),
    });
    void this.ahead.goOn();
    this.ahead.rehearse(await samples);
  }

  /** Has a sample drawn in the place of the one before; null takes the last one down. */
  private hang(sample: View | null): void {
    const { sample: before } = this;
    const place = before && this.unseen.find(({ view }) => view === before.view);
    if (place && sample) {
      place.view = before.view = sample;
      return;
    }
    this.sample = sample && { ...unseen(sample), pushed: true };
    this.requestUpdate();
  }

  private get unseen(): BlocksElement[] {
    return [...this.querySelectorAll<BlocksElement>(".layer.ahead bb-blocks")];
  }

  private enterRoom(): void {
    this.room = room();
    this.stopMoving();
    this.tellDesk();
    this.requestUpdate();
  }

  /** Each start of the engine has to hear it again. */
  private tellDesk(): void {
    const told = this.toldDesk === this.launches;
    if (told === (this.room === "desk")) return;
    this.toldDesk = told ? 0 : this.launches;
    queueMicrotask(() => this.player.act("nav", "desk", told ? "0" : "1"));
  }

  /** The screens to be seen at a desk, from left to right. */
  private get panels(): Layer[] {
    const { ofTab, home } = this.stack;
    const [root] = ofTab;
    if (this.room !== "desk" || !root) return [];
    const right = ofTab.length > 1 ? ofTab.at(-1)! : home;
    return right && right !== root ? [root, right] : [root];
  }

  private panelOf(layer: Layer, panels: Layer[]): Panel {
    if (!panels.includes(layer)) return "";
    if (panels.length === 1) return "wide";
    return layer === panels[0] ? "left" : "right";
  }

  /** Side by side nothing slides over anything: what comes is there at once. */
  private calm(before: Layer[]): void {
    const { motion } = this.step;
    if (motion === "rise" || motion === "fall" || motion === "none") return;
    const same = this.panels.every((layer) => before.includes(layer));
    this.step = { motion: same ? "none" : "fade", leaving: null };
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
    const layers = [...everywhere, leaving, this.sample].filter((layer) => layer !== null);
    const shown = [...new Set(layers)].sort((a, b) => a.key - b.key);
    const { panels } = this;
    const { tabs = [], tab = 0, header = {} } = answer;
    const press = (tab: number): void => this.press("tabs", "tab", String(tab));
    return html`<div class="phone ${this.room}">
      ${
        this.room === "phone"
          ? nothing
          : rail({
              header,
              tabs,
              tab,
              home: this.stack.home?.view ?? null,
              covered: modal,
              press,
              endWeek: () => this.endWeek(),
              help: () => (this.sheet = keySheet),
            })
      }
      ${repeat(
        shown,
        (layer) => `${this.launches} ${layer.key}`,
        (layer) => {
          const panel = this.panelOf(layer, panels);
          // Nobody sees a parked layer: it stays as it was drawn until it comes back.
          const unseen = this.placeOf(layer) === "parked" && !panel;
          return guard([unseen ? "parked" : {}], () => this.layer(layer, answer, panel));
        },
      )}
      ${this.canGoBack && this.room !== "desk" ? this.edge() : nothing}
      ${this.room === "phone" ? tabBar(tabs, tab, modal, press) : html`<div class="veil" ?hidden=${!modal}></div>`}
      ${toastPlace(this.toast, () => messages.dropToast())}
      <bb-sheet .content=${this.sheet} .dismiss=${() => (this.sheet = null)}></bb-sheet>
      <bb-alert
        class=${messages.covers ? "whole-page" : ""}
        .alert=${messages.alert ?? answer.alert ?? null}
        .answer=${this.answerAlert}
      ></bb-alert>
    </div>`;
  }

  private layer(layer: Layer, answer: Answer, panel: Panel): TemplateResult {
    const view = layer.view;
    const place = this.placeOf(layer);
    const top = place === "top";
    const scene = this.sceneOf(layer);
    const wash = washOf(view);
    const root = this.stack.isRoot(layer);
    return html`<section
      @input=${view?.screen === "EnterNameViewController" ? this.faceOf : nothing}
      class="layer ${place} ${panel} ${layer.modal ? "modal" : ""} ${layer.ahead ? "ahead" : ""} ${wash && "sleeved"} theme-${view?.theme ?? "plain"} ${moodOf(view)}"
      style=${wash || nothing}
      data-screen=${view?.screen ?? nothing}
      aria-label=${((top || panel) && view?.title) || nothing}
      role=${top ? "main" : nothing}
      ?inert=${panel && !top && this.stack.top!.modal}
    >
      <div class="scroll">
        <div class="page">
          ${this.topBar(layer, answer.header ?? {}, panel)} ${this.titled(layer, panel) ? this.bigTitle(view) : nothing}
          ${root ? headButtons(view, scene) : nothing}
          <bb-blocks class="blocks" .view=${view} .scene=${scene} .ahead=${layer.ahead}></bb-blocks>
          ${this.foot(layer, root)}
        </div>
      </div>
    </section>`;
  }

  private foot(layer: Layer, root: boolean): TemplateResult | typeof nothing {
    if (!root) return dock(layer.view, this.sceneOf(layer));
    const here = layer.endWeek && this.room === "phone";
    return here ? endWeekDock(this.player.answer.header ?? {}, () => this.endWeek()) : nothing;
  }

  private placeOf(layer: Layer): "top" | "leaving" | "beneath" | "parked" {
    const { layers } = this.stack;
    if (layer === layers.at(-1)) return "top";
    if (layer === this.step.leaving) return "leaving";
    return layer === layers.at(-2) ? "beneath" : "parked";
  }

  /** A pushed screen has its title between the buttons of its bar, when there is one. */
  private titled({ view, pushed }: Layer, panel: Panel): boolean {
    return !(pushed && !panel) && !isUntitled(view);
  }

  private topBar(layer: Layer, header: Header, panel: Panel): TemplateResult {
    const { view, pushed, modal } = layer;
    const notices = layer === this.stack.top ? [this.player.unsaved, this.player.answer.notice ?? ""] : [];
    return html`<header class="top-bar">
      ${
        pushed && !panel
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
      ${modal || this.room !== "phone" ? nothing : statusRow(header)}
      ${notices.map((notice) => (notice ? html`<p class="notice" role="status" dir="auto">${notice}</p>` : nothing))}
    </header>`;
  }

  private bigTitle(view: View | null): TemplateResult {
    return html`<div class="title-row ${coverSaysTitle(view) ? "said-below" : ""}">
      <div class="titles">
        ${view?.subtitle ? html`<p class="subtitle" dir="auto">${view.subtitle}</p>` : nothing}
        <h1 class="title" tabindex="-1" dir="auto">${view?.title}</h1>
      </div>
      ${this.helpButton(view)} ${this.face(view)}
    </div>`;
  }

  /** A name has its face while it is still being typed. */
  private readonly faceOf = (event: Event): void => {
    this.typedName = (event.target as HTMLInputElement).value;
    this.requestUpdate();
  };

  /** On the name screen a tap on it does what the button below says. */
  private face(view: View | null): unknown {
    if (view?.pictureId) return this.portraitButton(view, view.pictureId);
    if (view?.screen !== "EnterNameViewController") return picture(view?.picture);
    const { picture: told, key } = view;
    const chosen = / #\d+$/.exec(told?.name ?? "")?.[0] ?? "";
    const typed: Picture | undefined =
      this.typedName && told?.kind === "person" ? { kind: "person", name: this.typedName + chosen } : told;
    return html`<span class="typed-face" @click=${() => this.press(key, "anotherPortrait")}>${picture(typed)}</span>`;
  }

  private portraitButton({ picture: portrait, key }: View, id: string): TemplateResult {
    const open = (): void => this.press(key, id);
    return html`<button class="portrait" type="button" aria-label="Artist profile" @click=${open}>
      ${picture(portrait)}
    </button>`;
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

  private mainButton(): HTMLElement | null {
    const { price } = this.stack.top?.view?.mainAction ?? {};
    return price ? null : this.querySelector<HTMLElement>(".layer.top .dock .primary");
  }

  /** It waits on the roots of the tabs: from elsewhere the way goes there first. */
  private endWeek(): void {
    const { layers, ofTab } = this.stack;
    if (this.room === "phone" && layers.length > 1) return;
    if (ofTab.length > 1) this.press("tabs", "tab", String(this.player.answer.tab ?? 0));
    if (this.player.answer.endWeek && !this.player.answer.alert) this.press("nav", "endTheWeekButton");
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
      const isBeside = (): boolean =>
        this.room === "desk" && layer === this.stack.ofTab[0] && layer.key !== this.seenKey;
      scene = {
        key,
        get lit() {
          return isBeside() ? layer.pressed : "";
        },
        get theme() {
          return layer.view?.theme ?? "plain";
        },
        press: (id, value) => {
          layer.pressed = id;
          this.press(key, id, value);
        },
        confirm: () => {
          const id = soleAnswer(layer.view);
          if (id) this.press(key, id);
        },
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
    if (typeof screen === "number" && this.room === "desk") this.comeTo(screen);
    this.player.act(screen, id, value);
  }

  /** At a desk the screen beside can be pressed as well: it comes back to the top first. */
  private comeTo(key: number): void {
    const { home, ofTab } = this.stack;
    const tab = ofTab[0]?.key === key ? (this.player.answer.tab ?? 0) : home?.key === key ? 0 : -1;
    const here = (): boolean => this.player.answer.view.key === key;
    // The first press of another tab shows it, the second goes back to its root.
    for (let presses = 0; tab >= 0 && presses < 2 && !here(); presses += 1) this.player.act("tabs", "tab", String(tab));
  }

  private readonly answerAlert = (alert: Alert, button: number): void => {
    if (alert === this.player.messages.alert) this.player.messages.answer(button);
    else this.press("alert", String(alert.key), String(button));
  };

  protected override updated(): void {
    const { answer } = this.player;
    void this.ahead?.goOn();
    if (this.drawn === answer) return;
    this.drawn = answer;
    void this.settle(this.step);
    this.feel(answer);
  }

  /** After a step: the focus as it was, then the movement; at its end the leaving screen goes. */
  private async settle(step: Step): Promise<void> {
    if (step.motion === "none") return;
    const top = this.stack.top!;
    const stage = this.stage();
    const element = stage.top!;
    // Before anything asks where things lie: what the class shows is then styled with all the rest.
    for (const moved of Object.values(stage)) moved?.classList.add("moving");
    await element.querySelector<LitElement>("bb-blocks")!.updateComplete;
    if (top !== this.stack.top) return;
    // A new week begins at the top of its screen.
    if (step.leaving?.view?.theme === "report") element.querySelector(".scroll")!.scrollTop = 0;
    const focused = top.focus?.isConnected ? top.focus : element.querySelector<HTMLElement>("h1");
    focused?.focus({ preventScroll: true });
    const atOnce = this.room === "desk" && step.motion === "fade";
    this.moving = atOnce ? [] : play(step.motion, stage, this.pulledShare);
    this.pull(0);
    await Promise.all(this.moving.map((animation) => animation.finished)).catch(() => {});
    if (this.step === step) this.stopMoving();
  }

  private stopMoving(): void {
    this.land();
    for (const animation of this.moving) animation.cancel();
    this.moving = [];
    for (const layer of this.layerElements) layer.classList.remove("moving");
    if (this.step.leaving) {
      this.step = { motion: "none", leaving: null };
      this.requestUpdate();
    }
  }

  private feel({ feedback }: Answer): void {
    if (this.heard) playSoft(this.heard);
    const { gains } = this;
    // The screen's own blocks are drawn a moment later.
    if (gains.size > 0) requestAnimationFrame(() => flyGains(gains, this.stage().top));
    if (this.released) playRelease(this.stage().top);
    if (feedback === "energyBounce") {
      shakeEnergy(this.stage().top, prefersStillness());
      navigator.vibrate?.([20, 40, 20]);
    } else if (feedback === "success") navigator.vibrate?.(15);
    else if (feedback === "warning") navigator.vibrate?.([30, 60, 30]);
  }

  private remember(): void {
    const top = this.stack.top;
    const element = this.stage().top;
    if (!top || !element) return;
    top.focus = element.contains(document.activeElement) ? (document.activeElement as HTMLElement) : top.focus;
  }

  private pull(share: number): void {
    if (share === this.pulledShare) return;
    this.pulledShare = share;
    const { top, beneath } = this.stage();
    for (const layer of this.layerElements) {
      const pulled = share > 0 && (layer === top || layer === beneath);
      layer.classList.toggle("pulled", pulled);
      const at = layer === top ? share * 100 : (1 - share) * -28;
      layer.style.transform = pulled ? `translateX(${at}%)` : "";
    }
  }

  private get layerElements(): HTMLElement[] {
    const phone = this.firstElementChild?.children ?? [];
    return [...phone].filter((part): part is HTMLElement => part.classList.contains("layer"));
  }

  /** The screens that a step can move. */
  private stage(): Stage {
    const at = (place: string): HTMLElement | null =>
      this.layerElements.find((layer) => layer.classList.contains(place)) ?? null;
    return { top: at("top"), beneath: at("beneath"), leaving: at("leaving") };
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

  private get seenKey(): number | undefined {
    return this.seen?.view.key;
  }
}

/** The head of the screen says the same once more, and larger. */
function coverSaysTitle(view: View | null): boolean {
  const first = view?.blocks?.[0];
  return first?.kind === "cover" && first.title === view?.title;
}

/** A screen whose first block is its head. */
function isUntitled(view: View | null): boolean {
  return view !== null && !view.title && !view.subtitle && !view.picture && !view.help;
}

customElements.define("backbeat-app", AppElement);

export type { AppElement };
