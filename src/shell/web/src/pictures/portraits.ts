import { createAvatar } from "@dicebear/core";
import * as peeps from "@dicebear/open-peeps";

const pastels = ["ffd5e5", "b6e3f4", "c0ead0", "ffe3b8", "d9d0ff", "ffd0c2", "cfe0ff", "f3e6a8"];
const faces = [
  "awe",
  "blank",
  "calm",
  "cheeky",
  "cute",
  "driven",
  "explaining",
  "eyesClosed",
  "lovingGrin1",
  "lovingGrin2",
  "serious",
  "smile",
  "smileBig",
  "smileLOL",
  "smileTeethGap",
  "solemn",
] as const;

/** A portrait as an SVG text: it follows from the name alone. */
export function portrait(name: string): string {
  return createAvatar(peeps, {
    seed: name,
    backgroundColor: pastels,
    face: [...faces],
    maskProbability: 0,
    accessories: ["glasses", "glasses2", "glasses3", "glasses4", "glasses5", "sunglasses", "sunglasses2"],
    accessoriesProbability: 25,
    facialHairProbability: 12,
    scale: 92,
    translateY: 4,
  }).toString();
}
