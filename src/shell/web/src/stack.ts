import type { Answer, View } from "./protocol";

/** One screen: what it said last, and what had the focus when another screen came over it. */
export interface Layer {
  key: number;
  /** Unknown for a screen that has not been on top yet. */
  view: View | null;
  modal: boolean;
  /** Lies on another screen of its tab, to which one can go back. */
  pushed: boolean;
  /** The week could be ended here when the screen was last on top. */
  endWeek: boolean;
  /** Nobody has seen it: it is drawn out of sight before it is asked for. */
  ahead: boolean;
  focus: HTMLElement | null;
  /** The id that was pressed last. */
  pressed: string;
}

/** How the screens change places. */
export type Motion = "none" | "push" | "pop" | "rise" | "fall" | "fade";

export interface Step {
  motion: Motion;
  /** The screen that leaves the stage, still to be seen while it moves out. */
  leaving: Layer | null;
}

/** The screens in the order of the engine's stack, kept per tab, so that a tab is found as it was left. */
export class Stack {
  layers: Layer[] = [];
  private tab = -1;
  private readonly kept = new Map<number, Layer[]>();

  get top(): Layer | undefined {
    return this.layers.at(-1);
  }

  /** The screens of the shown tab without what lies over the tabs, root first. */
  get ofTab(): Layer[] {
    return this.layers.filter(({ modal }) => !modal);
  }

  /** The root of the first tab, once it was seen. */
  get home(): Layer | null {
    return (this.tab === 0 ? this.layers : this.kept.get(0))?.[0] ?? null;
  }

  /** The screens of all tabs. */
  get everywhere(): Layer[] {
    const parked = [...this.kept].flatMap(([tab, layers]) => (tab === this.tab ? [] : layers));
    return [...parked, ...this.layers];
  }

  /** Takes over an answer and tells what moved. */
  advance(answer: Answer): Step {
    const tab = answer.tab ?? 0;
    const keys = answer.stack?.length ? answer.stack : [answer.view.key];
    const before = tab === this.tab ? this.layers : (this.kept.get(tab) ?? []);
    const was = this.top;
    this.kept.set(this.tab, this.layers);

    const modal = answer.modal ?? false;
    this.layers = keys.map((key) => before.find((layer) => layer.key === key) ?? fresh(key));
    const top = this.layers.at(-1)!;
    top.view = answer.view;
    top.modal = modal;
    top.pushed = this.layers.length > 1 && !modal;
    top.endWeek = answer.endWeek ?? false;
    top.ahead = false;

    const step = this.move(was, top, tab === this.tab ? before : null);
    this.tab = tab;
    if (answer.beside) this.seeBeside(answer.beside);
    return step;
  }

  /** Takes the root of a tab that nobody has seen yet. */
  foresee(tab: number, view: View): void {
    this.kept.set(tab, [{ ...unseen(view), endWeek: true }]);
  }

  /** Whether it is the first screen of its tab. */
  isRoot(layer: Layer): boolean {
    return layer === this.layers[0] || [...this.kept.values()].some(([root]) => root === layer);
  }

  /** Beside the top lies the root of its tab or home, which may never have been on top itself. */
  private seeBeside(view: View): void {
    let layer = this.everywhere.find(({ key }) => key === view.key);
    if (!layer) {
      layer = fresh(view.key);
      this.kept.set(0, [layer]);
    }
    layer.view = view;
  }

  private move(was: Layer | undefined, top: Layer, before: Layer[] | null): Step {
    if (!was || was.key === top.key) return { motion: "none", leaving: null };
    if (was.modal && !top.modal) return { motion: "fall", leaving: was };
    if (top.modal && !was.modal) return { motion: "rise", leaving: null };
    if (!before) return { motion: "fade", leaving: null };
    if (before.includes(top)) return { motion: "pop", leaving: was };
    if (this.layers.includes(was)) return { motion: "push", leaving: null };
    return { motion: "fade", leaving: null };
  }
}

/** A layer for a screen that is drawn before anybody asks for it. */
export function unseen(view: View): Layer {
  return { ...fresh(view.key), view, ahead: true };
}

function fresh(key: number): Layer {
  return { key, view: null, modal: false, pushed: false, endWeek: false, ahead: false, focus: null, pressed: "" };
}
