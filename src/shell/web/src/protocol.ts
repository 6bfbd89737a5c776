/** What the engine answers, as docs/page-protocol.md describes it. Members with an empty meaning may be absent. */

export type Tone = "plain" | "good" | "bad" | "warning" | "locked";
export type Theme = "plain" | "chart" | "chirp" | "report" | "bank";

export interface Price {
  energy?: number;
  dollars?: string;
  affordable?: boolean;
}

export interface Picture {
  kind?: "none" | "cover" | "person" | "icon" | "photo" | "object" | "scene" | "still" | "mark";
  name?: string;
}

export interface Heading {
  kind: "heading";
  text: string;
  link?: { id: string; label: string };
}

export interface Text {
  kind: "text";
  text: string;
  tone?: Tone;
  style?: "body" | "caption" | "lead";
}

export interface Tile {
  icon?: string;
  label?: string;
  value?: string;
  note?: string;
  tone?: Tone;
  id?: string;
}

export interface Tiles {
  kind: "tiles";
  items?: Tile[];
}

export interface Meter {
  kind: "meter";
  label?: string;
  value?: string;
  share?: number;
  tone?: Tone;
}

export interface RowAction {
  id: string;
  label: string;
  tone?: Tone;
}

export interface Row {
  picture?: Picture;
  title?: string;
  subtitle?: string;
  value?: string;
  note?: string;
  tone?: Tone;
  badge?: string;
  price?: Price;
  share?: number;
  selected?: boolean;
  opens?: boolean;
  id?: string;
  actions?: RowAction[];
}

export interface Rows {
  kind: "rows";
  items?: Row[];
  id?: string;
  total?: number;
  from?: number;
  columns?: string[];
}

export interface Table {
  kind: "table";
  columns?: string[];
  rows?: string[][];
}

export interface PictureChoice {
  picture?: Picture;
  label?: string;
  selected?: boolean;
  id?: string;
}

export interface PictureGrid {
  kind: "pictures";
  items?: PictureChoice[];
}

export interface ButtonData {
  id: string;
  label: string;
  price?: Price;
  style?: "primary" | "secondary" | "destructive";
  tone?: Tone;
  pulse?: boolean;
}

export interface Button extends ButtonData {
  kind: "button";
}

export interface TextField {
  kind: "field";
  id: string;
  label?: string;
  value?: string;
  placeholder?: string;
  maxLength?: number;
  multiline?: boolean;
  suggest?: string;
}

export interface Option {
  label: string;
  note?: string;
  tone?: Tone;
  price?: Price;
}

export interface Choice {
  kind: "choice";
  id: string;
  label?: string;
  options?: Option[];
  selected?: number;
  style?: "segments" | "list";
}

export interface Toggle {
  kind: "toggle";
  id: string;
  label?: string;
  on?: boolean;
  note?: string;
}

export interface Chart {
  kind: "chart";
  title?: string;
  value?: string;
  note?: string;
  tone?: Tone;
  style?: "line" | "bars";
  points?: number[];
  labels?: string[];
  id?: string;
}

export interface Post {
  kind: "post";
  picture?: Picture;
  name?: string;
  handle?: string;
  age?: string;
  message?: string;
  pinned?: string;
  comments?: string;
  reChirps?: string;
  likes?: string;
  actions?: RowAction[];
}

export interface Card {
  kind: "card";
  picture?: Picture;
  title?: string;
  text?: string;
  badge?: string;
  tone?: Tone;
  buttons?: ButtonData[];
}

export interface Cover {
  kind: "cover";
  hook?: string;
  picture?: Picture;
  title?: string;
  text?: string;
  badge?: string;
}

export interface Figure {
  label?: string;
  value?: string;
  amount?: number;
  dollars?: boolean;
  tone?: Tone;
  note?: string;
}

export interface Figures {
  kind: "figures";
  title?: string;
  items?: Figure[];
  total?: Figure;
  style?: "large" | "ledger";
}

export interface EmptyHint {
  kind: "empty";
  icon?: string;
  text?: string;
}

export type Block =
  | Heading
  | Text
  | Tiles
  | Meter
  | Rows
  | Table
  | PictureGrid
  | Button
  | TextField
  | Choice
  | Toggle
  | Chart
  | Post
  | Card
  | Cover
  | Figures
  | EmptyHint;

export interface Help {
  title: string;
  text: string;
}

export interface View {
  screen?: string;
  key: number;
  title?: string;
  subtitle?: string;
  theme?: Theme;
  picture?: Picture;
  help?: Help;
  mainAction?: ButtonData;
  blocks?: Block[];
}

export interface Header {
  cash?: string;
  cashTone?: Tone;
  energy?: string;
  energyShare?: number;
  date?: string;
}

export interface Tab {
  label: string;
  icon?: string;
  badge?: string;
}

export interface AlertButton {
  label: string;
  style?: "normal" | "cancel" | "destructive";
}

export interface Alert {
  key: number;
  title?: string;
  message?: string;
  buttons?: AlertButton[];
}

export interface Answer {
  header?: Header;
  tabs?: Tab[];
  tab?: number;
  stack?: number[];
  modal?: boolean;
  endWeek?: boolean;
  appearance?: "system" | "dark" | "light";
  feedback?: "none" | "energyBounce" | "success" | "warning";
  alert?: Alert | null;
  request?: "" | "export" | "import" | "restore" | "newYear";
  snapshot?: string;
  notice?: string;
  view: View;
}

/** The screen of a press: the key of the shown screen, or one of the reserved places around it. */
export type PressScreen = number | "tabs" | "nav" | "alert";
