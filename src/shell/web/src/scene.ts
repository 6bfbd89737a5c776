import type { Price, Theme, Tone } from "./protocol";

/** One line of a sheet. */
export interface SheetItem {
  label: string;
  note?: string;
  tone?: Tone;
  price?: Price;
  selected?: boolean;
  press: () => void;
}

/** What comes up from the bottom: a text to read, or things to choose from. */
export interface SheetContent {
  title: string;
  text?: string;
  items?: SheetItem[];
}

/** What a block can do on its screen. */
export interface Scene {
  /** The key of the screen, to name what must be unique in the page. */
  readonly key: number;
  /** The face of the app that the screen belongs to. */
  readonly theme: Theme;
  /** What was pressed to open the screen that lies beside; "" when none does. */
  readonly lit?: string;
  press(id: string, value?: string): void;
  open(sheet: SheetContent): void;
  /** Enter in a field: presses the main button where a text is all that the screen asks for. */
  confirm(): void;
}
