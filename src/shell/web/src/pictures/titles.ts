import { drawsOf, pick } from "./chance";
import { anyMotif, told as motifsTold, type Motif } from "./motifs";
import { anyPalette, palettes, type Draw, type Palette, type PaletteName } from "./palettes";

/** The palettes among which a word of a title chooses. */
const coloursTold: readonly [palettes: string, words: string][] = [
  ["sunrise clay lime", "gold golden amber honey copper sun summer radiant"],
  ["mist stone", "silver static ghost faded mirror glass grey gray"],
  ["ember rose peach", "crimson red fire burning fever ember cinder"],
  ["orchid rose peach", "heart love lover rose pink desire kiss velvet"],
  ["iris neon mist orchid", "night midnight moon moonlight shadow dream lullaby star violet"],
  ["ocean lagoon mist", "river ocean wave tide sea water saltwater blue rain frozen winter ice snow"],
  ["lagoon ember iris", "lantern lamp candle"],
  ["meadow lime", "green garden wild valley island paradise orchard"],
  ["neon orchid", "neon electric magnetic kinetic"],
  ["stone", "black ink stone smoke hollow empty"],
  ["clay ember", "desert highway motel southern dust"],
];

const byWord = <T>(table: readonly [T, string][]): Map<string, T> =>
  new Map(table.flatMap(([told, words]) => words.split(" ").map((word): [string, T] => [word, told])));

const motifOf = byWord(motifsTold);
const coloursOf = byWord(coloursTold);

export interface Artwork {
  palette: Palette;
  motif: Motif;
}

/** What a table tells of the words of a title, in their order. */
function heard<T>(table: Map<string, T>, title: string): T[] {
  const words = title.toLowerCase().match(/\p{L}+/gu) ?? [];
  return words.flatMap((word) => table.get(word) ?? table.get(word.replace(/s$/, "")) ?? []);
}

/** What stands on a sleeve of this title: what a word of it tells; else what chance says. */
export function artworkOf(title: string, draw: Draw): Artwork {
  const palette = anyPalette(draw);
  const motif = anyMotif(draw);
  // "Golden Hearts": what comes first colours the thing that comes last.
  const colours = heard(coloursOf, title).at(0);
  return {
    palette: colours ? palettes[pick(colours.split(" "), drawsOf(`colours of ${title}`)) as PaletteName] : palette,
    motif: heard(motifOf, title).at(-1) ?? motif,
  };
}
