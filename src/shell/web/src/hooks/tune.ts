import { drawsOf, pick } from "../pictures/chance";

/** One sound: when it begins and how long it lasts in seconds, its pitch in hertz, how loud it is from 0 to 1. */
export interface Note {
  at: number;
  length: number;
  pitch: number;
  loudness: number;
  voice: Voice;
}

export type Voice = "lead" | "chord" | "bass" | "kick" | "snare" | "hat";

export interface Tune {
  notes: Note[];
  lead: OscillatorType;
}

export const hookLength = 10;

interface Style {
  tempo: [slowest: number, fastest: number];
  scale: keyof typeof scales;
  lead: OscillatorType;
  /** A bar of eight quavers: k kick, s snare, h hat, . nothing. */
  drums: string;
}

const scales = {
  major: [0, 2, 4, 5, 7, 9, 11],
  minor: [0, 2, 3, 5, 7, 8, 10],
  dorian: [0, 2, 3, 5, 7, 9, 10],
  blues: [0, 3, 5, 6, 7, 10, 11],
};

const plain: Style = { tempo: [100, 124], scale: "major", lead: "triangle", drums: "khshkhsh" };

const styles: Record<string, Style> = {
  Alternative: { tempo: [104, 128], scale: "dorian", lead: "sawtooth", drums: "k.shkksh" },
  Blues: { tempo: [72, 92], scale: "blues", lead: "triangle", drums: "k.shk.sh" },
  Classical: { tempo: [84, 112], scale: "major", lead: "sine", drums: "........" },
  Country: { tempo: [96, 120], scale: "major", lead: "triangle", drums: "k.s.k.s." },
  Electronic: { tempo: [122, 134], scale: "minor", lead: "square", drums: "khkhkhkh" },
  Folk: { tempo: [88, 110], scale: "major", lead: "sine", drums: "k...k..." },
  Gospel: { tempo: [76, 104], scale: "major", lead: "sine", drums: "k.s.k.s." },
  "Hip-Hop": { tempo: [82, 98], scale: "minor", lead: "square", drums: "khshhksh" },
  Jazz: { tempo: [108, 140], scale: "dorian", lead: "triangle", drums: "h.hhh.hh" },
  Latin: { tempo: [94, 108], scale: "minor", lead: "triangle", drums: "k.hsk.sh" },
  Metal: { tempo: [140, 164], scale: "minor", lead: "sawtooth", drums: "kkskkksk" },
  Pop: { tempo: [104, 124], scale: "major", lead: "square", drums: "khshkhsh" },
  Punk: { tempo: [156, 176], scale: "major", lead: "sawtooth", drums: "khshkhsh" },
  "R&B": { tempo: [68, 88], scale: "dorian", lead: "sine", drums: "k.shhksh" },
  Reggae: { tempo: [72, 84], scale: "major", lead: "triangle", drums: "..sh..kh" },
  Rock: { tempo: [112, 138], scale: "minor", lead: "sawtooth", drums: "khshkksh" },
};

const progressions = [
  [0, 4, 5, 3],
  [0, 5, 3, 4],
  [5, 3, 0, 4],
  [0, 3, 4, 3],
  [0, 6, 5, 4],
];

const drumOf: Record<string, Voice> = { k: "kick", s: "snare", h: "hat" };

/** Ten seconds of music that follow from a title and a genre ("title|genre"): the same song is the same on every device. */
export function tuneOf(hook: string): Tune {
  const draw = drawsOf(hook);
  const style = styles[hook.slice(hook.lastIndexOf("|") + 1)] ?? plain;
  const [slowest, fastest] = style.tempo;
  const quaver = 30 / (slowest + Math.floor(draw() * (fastest - slowest + 1)));
  const root = 45 + Math.floor(draw() * 10);
  const chords = pick(progressions, draw);
  const motif = Array.from({ length: 8 }, () => (draw() < 0.3 ? null : Math.floor(draw() * 8) - 1));
  const notes: Note[] = [];
  const add = (voice: Voice, at: number, quavers: number, pitch: number, loudness: number): void => {
    if (at < hookLength) notes.push({ voice, at, length: quavers * quaver, pitch, loudness });
  };
  const pitchOf = (degree: number, octave: number): number => {
    const scale = scales[style.scale];
    const step = ((degree % 7) + 7) % 7;
    const key = root + 12 * (octave + Math.floor(degree / 7)) + scale[step]!;
    return 440 * 2 ** ((key - 69) / 12);
  };
  for (let bar = 0; bar * 8 * quaver < hookLength; bar += 1) {
    const chord = chords[bar % chords.length]!;
    const start = bar * 8 * quaver;
    for (const third of [0, 2, 4]) add("chord", start, 7.5, pitchOf(chord + third, 1), 0.5);
    for (let i = 0; i < 8; i += 1) {
      const at = start + i * quaver;
      if (i % 2 === 0) add("bass", at, 1.6, pitchOf(chord, i === 6 ? 0 : -1), 0.8);
      const drum = drumOf[style.drums[i]!];
      if (drum) add(drum, at, 0.5, 0, 0.7);
      const step = motif[i] ?? null;
      // The last bar of four answers instead of asking again.
      if (step !== null) add("lead", at, 1, pitchOf(chord + (bar % 4 === 3 ? 4 - step : step), 2), 0.7);
    }
  }
  return { notes, lead: style.lead };
}
