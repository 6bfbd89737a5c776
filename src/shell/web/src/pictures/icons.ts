import { html, nothing, type TemplateResult } from "lit";
import * as glyphs from "ionicons/icons";

export type Tint =
  | "red"
  | "orange"
  | "yellow"
  | "green"
  | "teal"
  | "blue"
  | "indigo"
  | "purple"
  | "pink"
  | "gray"
  | "bronze"
  | "silver"
  | "platinum"
  | "diamond";

const guitar = `<svg viewBox='0 0 512 512'><path d='M478 34a30 30 0 0 0-42 0l-30 30a30 30 0 0 0-8 28l3 13-118 118c-31-17-69-14-93 10-13 13-20 29-21 46-1 14-11 25-25 27-29 3-56 15-77 36-47 47-45 114-4 155s108 43 155-4c21-21 33-48 36-77 2-14 13-24 27-25 17-1 33-8 46-21 24-24 27-62 10-93l118-118 13 3a30 30 0 0 0 28-8l30-30a30 30 0 0 0 0-42zM197 367a52 52 0 1 1-73-73 52 52 0 0 1 73 73z' fill-rule='evenodd'/></svg>`;
const piano = `<svg viewBox='0 0 512 512'><path d='M80 96a48 48 0 0 0-48 48v224a48 48 0 0 0 48 48h64V272h-12a20 20 0 0 1-20-20V96zM200 96v156a20 20 0 0 1-20 20h-8v144h168V272h-8a20 20 0 0 1-20-20V96zM400 96v156a20 20 0 0 1-20 20h-12v144h64a48 48 0 0 0 48-48V144a48 48 0 0 0-48-48z'/></svg>`;
const speaker = `<svg viewBox='0 0 512 512'><path d='M144 32a48 48 0 0 0-48 48v352a48 48 0 0 0 48 48h224a48 48 0 0 0 48-48V80a48 48 0 0 0-48-48zm112 56a40 40 0 1 1 0 80 40 40 0 0 1 0-80zm0 120a104 104 0 1 1 0 208 104 104 0 0 1 0-208zm0 56a48 48 0 1 0 0 96 48 48 0 0 0 0-96z' fill-rule='evenodd'/></svg>`;
const booth = `<svg viewBox='0 0 512 512'><path d='M96 32a48 48 0 0 0-48 48v352a48 48 0 0 0 48 48h320a48 48 0 0 0 48-48V80a48 48 0 0 0-48-48zm28 60h264a16 16 0 0 1 16 16v236a16 16 0 0 1-16 16H124a16 16 0 0 1-16-16V108a16 16 0 0 1 16-16z' fill-rule='evenodd'/><rect x='216' y='124' width='80' height='128' rx='40'/><path d='M184 212v8a72 72 0 0 0 144 0v-8M256 292v68' class='ionicon-fill-none ionicon-stroke-width' stroke-linecap='round'/></svg>`;

/** Every glyph that a screen may name, with the tint of its tile. */
const named: Record<string, [drawing: string, tint: Tint]> = {
  home: [glyphs.home, "pink"],
  music: [glyphs.musicalNotes, "purple"],
  life: [glyphs.happy, "orange"],
  business: [glyphs.business, "blue"],
  social: [glyphs.people, "green"],
  mic: [glyphs.mic, "pink"],
  note: [glyphs.musicalNote, "purple"],
  album: [glyphs.disc, "indigo"],
  video: [glyphs.videocam, "red"],
  chart: [glyphs.barChart, "indigo"],
  flame: [glyphs.flame, "orange"],
  trophy: [glyphs.trophy, "yellow"],
  bronzeTrophy: [glyphs.trophy, "bronze"],
  silverTrophy: [glyphs.trophy, "silver"],
  platinumTrophy: [glyphs.trophy, "platinum"],
  diamondTrophy: [glyphs.trophy, "diamond"],
  people: [glyphs.people, "green"],
  person: [glyphs.person, "teal"],
  bolt: [glyphs.flash, "yellow"],
  cash: [glyphs.cash, "green"],
  briefcase: [glyphs.briefcase, "blue"],
  food: [glyphs.fastFood, "orange"],
  fashion: [glyphs.shirt, "pink"],
  health: [glyphs.fitness, "red"],
  house: [glyphs.home, "teal"],
  car: [glyphs.car, "red"],
  studio: [glyphs.options, "purple"],
  settings: [glyphs.settings, "gray"],
  info: [glyphs.information, "blue"],
  chirp: [glyphs.chatbubbleEllipses, "blue"],
  megaphone: [glyphs.megaphone, "blue"],
  calendar: [glyphs.calendar, "red"],
  pencil: [glyphs.pencil, "orange"],
  star: [glyphs.star, "yellow"],
  dice: [glyphs.dice, "indigo"],
  heart: [glyphs.heart, "pink"],
  headphones: [glyphs.headset, "purple"],
  label: [glyphs.pricetag, "indigo"],
  document: [glyphs.documentText, "gray"],
  warning: [glyphs.warning, "orange"],
  lock: [glyphs.lockClosed, "gray"],
  plus: [glyphs.add, "green"],
  trash: [glyphs.trash, "red"],
  pin: [glyphs.pin, "orange"],
  restart: [glyphs.refresh, "teal"],
  theme: [glyphs.contrast, "indigo"],
  guest: [glyphs.personAdd, "teal"],
  cart: [glyphs.cart, "orange"],
  trend: [glyphs.trendingUp, "green"],
  gift: [glyphs.gift, "pink"],
  check: [glyphs.checkmark, "green"],
  teacher: [glyphs.school, "blue"],
  box: [glyphs.cube, "orange"],
  radio: [glyphs.radio, "red"],
  camera: [glyphs.camera, "gray"],
  ticket: [glyphs.ticket, "yellow"],
  keyboard: [piano, "indigo"],
  computer: [glyphs.desktop, "gray"],
  speaker: [speaker, "gray"],
  booth: [booth, "purple"],
  guitar: [guitar, "orange"],
  spark: [glyphs.sparkles, "yellow"],
  globe: [glyphs.globe, "blue"],
  hourglass: [glyphs.hourglass, "gray"],
};

/**
 * Tints of the glyphs whose drawings come when the first of them is asked for: they are not on the first screens, and
 * weigh as much as all others.
 */
export const lateTints = {
  play: "red",
  film: "red",
  eye: "gray",
  thumb: "blue",
  bell: "red",
  shirt: "pink",
  bag: "pink",
  store: "orange",
  factory: "gray",
  card: "green",
  map: "green",
  place: "red",
  van: "orange",
  bus: "orange",
  plane: "blue",
  yacht: "teal",
  rocket: "red",
  skyline: "indigo",
  key: "yellow",
  bed: "blue",
  bath: "teal",
  area: "gray",
  land: "green",
  speed: "red",
  shield: "teal",
  gavel: "orange",
  scale: "blue",
  ear: "teal",
  handshake: "green",
  news: "blue",
  fall: "red",
  up: "green",
  down: "red",
  medal: "yellow",
  ribbon: "yellow",
  podium: "yellow",
  statuette: "yellow",
  envelope: "orange",
  ring: "pink",
  rose: "red",
  wine: "purple",
  message: "pink",
  pass: "gray",
  heartBroken: "gray",
  heartHalf: "pink",
  pram: "orange",
  flower: "pink",
  balloon: "red",
  family: "orange",
  tombstone: "gray",
  share: "blue",
  clock: "gray",
  coffee: "orange",
  pizza: "red",
  gym: "indigo",
  bicycle: "green",
  games: "purple",
  beer: "yellow",
  sun: "yellow",
  paw: "orange",
  equalizer: "teal",
} satisfies Record<string, Tint>;

export type LateGlyph = keyof typeof lateTints;

/** Glyphs of the page's own furniture. */
const furniture: Record<string, string> = {
  back: glyphs.chevronBack,
  stop: glyphs.stop,
  more: glyphs.ellipsisHorizontal,
  comment: glyphs.chatbubbleOutline,
  reChirp: glyphs.repeat,
  like: glyphs.heartOutline,
  add: glyphs.add,
  remove: glyphs.remove,
  share: glyphs.shareOutline,
};

const isLate = (name: string): name is LateGlyph => Object.hasOwn(lateTints, name);

export const iconNames: readonly string[] = [...Object.keys(named), ...Object.keys(lateTints)];

/** Whether a screen may name this glyph. */
export function isIcon(name: string): boolean {
  return Object.hasOwn(named, name) || isLate(name);
}

/** The tint of a named glyph's tile. */
export function tintOf(name: string): Tint {
  if (isLate(name)) return lateTints[name];
  return Object.hasOwn(named, name) ? named[name]![1] : "gray";
}

/** A glyph in the colour of the text around it; nothing for an unknown name. */
export function glyph(name: string): TemplateResult | typeof nothing {
  if (!isIcon(name) && !Object.hasOwn(furniture, name)) return nothing;
  bring(name);
  return html`<svg class="glyph" aria-hidden="true"><use href=${`#glyph-${name}`}></use></svg>`;
}

let coming: Promise<void> | null = null;

/** Sees to it that the drawing of a glyph is there, or soon will be. */
export function bring(name: string): void {
  if (isLate(name)) void installLateGlyphs();
}

export function installLateGlyphs(): Promise<void> {
  coming ??= import("./late-glyphs").then(
    ({ lateDrawings }) => install(Object.entries(lateDrawings)),
    () => {
      coming = null; // the next glyph tries again
    },
  );
  return coming;
}

/** Puts the drawings of the first screens into the document; a glyph refers to its drawing there. */
export function installGlyphs(): void {
  install([
    ...Object.entries(named).map(([name, [drawing]]): [string, string] => [name, drawing]),
    ...Object.entries(furniture),
  ]);
}

function install(drawings: [name: string, drawing: string][]): void {
  const symbols = drawings.map(([name, drawing]) => {
    const inner = drawing.slice(drawing.indexOf(">", drawing.indexOf("<svg")) + 1, drawing.lastIndexOf("</svg>"));
    return `<symbol id="glyph-${name}" viewBox="0 0 512 512" stroke="currentColor">${inner}</symbol>`;
  });
  const sheet = document.createElement("div");
  sheet.hidden = true;
  sheet.innerHTML = `<svg xmlns="http://www.w3.org/2000/svg">${symbols.join("")}</svg>`;
  document.body.prepend(sheet);
}
