/**
 * What the engine answers, as docs/page-protocol.md describes it. A member that stands on its default is absent: an empty
 * text or list, 0, false, the first name of an enumeration, or what is written beside it.
 */

export type Tone = "plain" | "good" | "bad" | "warning" | "fair" | "locked";
export type Theme =
  | "plain"
  | "chart"
  | "chirp"
  | "report"
  | "bank"
  | "live"
  | "merch"
  | "video"
  | "label"
  | "gala"
  | "love"
  | "family"
  | "estate";

export interface Price {
  energy?: number;
  dollars?: string;
  affordable?: boolean;
}

export interface Picture {
  kind?: "none" | "cover" | "person" | "icon" | "photo" | "object" | "scene" | "still" | "mark";
  name?: string;
}

export interface Fact {
  icon?: string;
  label?: string;
  value?: string;
  tone?: Tone;
}

export interface Link {
  id: string;
  label: string;
}

export interface Heading {
  kind: "heading";
  text: string;
  link?: Link;
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
  price?: Price;
}

export interface Tiles {
  kind: "tiles";
  items?: Tile[];
}

export interface MeterData {
  label?: string;
  value?: string;
  share?: number;
  tone?: Tone;
  steps?: number;
}

export interface Meter extends MeterData {
  kind: "meter";
}

export interface RowAction {
  id: string;
  label: string;
  tone?: Tone;
}

export interface Row {
  picture?: Picture;
  fan?: Picture[];
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
  points?: number[];
}

export interface Rows {
  kind: "rows";
  items?: Row[];
  id?: string;
  total?: number;
  from?: number;
  columns?: string[];
  style?: "list" | "shelf" | "strip" | "route" | "films" | "wire" | "floor";
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
  /** "secondary" when absent */
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

export interface PhotoField {
  kind: "photo";
  id: string;
  label?: string;
  note?: string;
  taken?: boolean;
  shape?: "square" | "wide";
}

export interface Slider {
  kind: "slider";
  id: string;
  label?: string;
  value?: string;
  low?: string;
  high?: string;
  note?: string;
  at?: number;
  count?: number;
}

export interface Stepper {
  kind: "stepper";
  id: string;
  label?: string;
  value?: string;
  note?: string;
  /** true when absent */
  canLess?: boolean;
  /** true when absent */
  canMore?: boolean;
}

export interface Option {
  label: string;
  note?: string;
  tone?: Tone;
  price?: Price;
  picture?: Picture;
  value?: string;
  facts?: Fact[];
  action?: string;
}

export interface Choice {
  kind: "choice";
  id: string;
  label?: string;
  options?: Option[];
  selected?: number;
  /** "list" when absent */
  style?: "segments" | "list" | "cards" | "pictures";
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
  value?: string;
  meters?: MeterData[];
  buttons?: ButtonData[];
  note?: string;
}

export interface Cover {
  kind: "cover";
  picture?: Picture;
  title?: string;
  text?: string;
  badge?: string;
  hook?: string;
  back?: Picture;
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
  /** "ledger" when absent */
  style?: "large" | "ledger" | "pair";
}

export interface EmptyHint {
  kind: "empty";
  icon?: string;
  text?: string;
}

export interface Poster {
  kind: "poster";
  pictures?: Picture[];
  kicker?: string;
  title?: string;
  text?: string;
  figure?: string;
  stamp?: string;
  facts?: Fact[];
  meter?: MeterData;
  style?: "scene" | "ticket" | "torn";
  mood?: "plain" | "celebrate" | "mourn";
}

export interface BillAct {
  name?: string;
  /** 4 when absent */
  rank?: number;
  own?: boolean;
}

export interface Bill {
  kind: "bill";
  kicker?: string;
  title?: string;
  text?: string;
  acts?: BillAct[];
  facts?: Fact[];
}

export interface Obituary {
  kind: "obituary";
  picture?: Picture;
  kicker?: string;
  title?: string;
  text?: string;
  facts?: Fact[];
}

export interface Story {
  kind: "story";
  sky?: Picture;
  kicker?: string;
  title?: string;
  figure?: string;
  text?: string;
  facts?: Fact[];
  share?: string;
}

export interface Gauge {
  label?: string;
  value?: string;
  note?: string;
  share?: number;
  steps?: number;
  tone?: Tone;
  icon?: string;
  id?: string;
}

export interface Gauges {
  kind: "gauges";
  title?: string;
  note?: string;
  items?: Gauge[];
  /** "bars" when absent */
  style?: "faders" | "bars" | "stacks" | "split";
}

export interface DeckCorner {
  icon?: string;
  value?: string;
  label?: string;
  tone?: Tone;
}

export interface DeckChoice {
  id: string;
  label: string;
  icon?: string;
  price?: Price;
  side?: "left" | "up" | "right";
}

export interface Deck {
  kind: "deck";
  picture?: Picture;
  title?: string;
  aside?: string;
  text?: string;
  facts?: Fact[];
  tags?: string[];
  corners?: DeckCorner[];
  choices?: DeckChoice[];
  note?: string;
}

export interface TreePerson {
  picture?: Picture;
  title?: string;
  subtitle?: string;
  generation?: number;
  /** -1 when absent */
  parent?: number;
  /** -1 when absent */
  beside?: number;
  standing?: "kin" | "elder" | "player" | "gone";
  id?: string;
}

export interface Tree {
  kind: "tree";
  people?: TreePerson[];
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
  | PhotoField
  | Choice
  | Toggle
  | Slider
  | Stepper
  | Chart
  | Post
  | Card
  | Cover
  | Figures
  | EmptyHint
  | Poster
  | Bill
  | Obituary
  | Story
  | Gauges
  | Deck
  | Tree;

export interface Help {
  title: string;
  text: string;
}

export interface Total {
  label?: string;
  value?: string;
  tone?: Tone;
  energy?: boolean;
  share?: number;
}

export interface View {
  screen?: string;
  key: number;
  title?: string;
  subtitle?: string;
  picture?: Picture;
  pictureId?: string;
  theme?: Theme;
  blocks?: Block[];
  totals?: Total[];
  mainAction?: ButtonData;
  aside?: ButtonData;
  help?: Help;
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
  request?: "" | "export" | "import" | "restore" | "purchase" | "review" | "feedback" | "replay";
  snapshot?: string;
  product?: string;
  text?: string;
  notice?: string;
  view: View;
  /** At a desk: what can be seen beside the shown screen. */
  beside?: View;
}

/** The screen of a press: the key of the shown screen, or one of the reserved places around it. */
export type PressScreen = number | "tabs" | "nav" | "alert";
