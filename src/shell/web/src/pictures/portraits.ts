import { createAvatar } from "@dicebear/core";
import * as peeps from "@dicebear/open-peeps";
import { drawsOf, pick } from "./chance";
import { presentationOf, type Presentation } from "./people";

type Look = Parameters<typeof createAvatar<peeps.Options>>[1];

const worn: Record<Presentation, string> = {
  woman:
    "afro bangs bangs2 bantuKnots bun bun2 buns cornrows cornrows2 dreads1 hijab long longAfro longBangs longCurly medium1 medium2 medium3 mediumBangs mediumBangs2 mediumBangs3 mediumStraight grayMedium",
  man: "afro dreads1 dreads2 flatTop flatTopLong grayShort hatBeanie hatHip mohawk mohawk2 noHair1 noHair2 noHair3 pomp shaved1 shaved2 shaved3 short1 short2 short3 short4 short5 turban twists twists2",
};
const young: Record<Presentation, string> = {
  woman: "bangs bangs2 bantuKnots bun2 buns cornrows2 medium1 medium3 mediumBangs mediumBangs3",
  man: "afro flatTop hatBeanie shaved1 shaved3 short1 short2 short3 short4 short5 twists",
};
const old: Record<Presentation, string> = { woman: "grayBun grayMedium hijab", man: "grayShort noHair1 noHair3" };

const faces = "blank calm cheeky cute driven explaining smile smileBig smileLOL smileTeethGap";
const childFaces = "awe calm cheeky cute smile smileBig smileLOL smileTeethGap";
const staffFaces = "blank calm cheeky driven explaining serious smile smileBig";
const glasses = "glasses glasses2 glasses3 glasses4 glasses5";

const beards =
  "chin full full2 full3 full4 goatee1 goatee2 moustache1 moustache2 moustache4 moustache5 moustache6 moustache7 moustache9";

const list = (words: string): never[] => words.split(" ") as never[];

const adult = (presentation: Presentation): Look => ({
  head: list(worn[presentation]),
  face: list(faces),
  accessories: list(`${glasses} sunglasses sunglasses2`),
  accessoriesProbability: 25,
  facialHair: list(beards),
  facialHairProbability: presentation === "man" ? 22 : 0,
});
const child = (presentation: Presentation): Look => ({
  head: list(young[presentation]),
  face: list(childFaces),
  accessories: list(glasses),
  accessoriesProbability: 12,
  facialHairProbability: 0,
  scale: 80,
  translateY: 11,
});
const elder = (presentation: Presentation): Look => ({
  ...adult(presentation),
  head: list(old[presentation]),
  face: list("calm cute old serious smile solemn"),
  facialHair: list("full4 moustache9"),
  facialHairProbability: presentation === "man" ? 60 : 0,
  accessories: list(glasses),
  accessoriesProbability: 55,
  headContrastColor: ["e8e1e1"],
});

/** Ages, callings and moods that a portrait can be asked for, as in "girl:Ada": a name keeps its skin and its clothes. */
const looks: Record<string, (name: string) => Look> = {
  woman: () => adult("woman"),
  man: () => adult("man"),
  baby: () => ({
    ...child("man"),
    head: list("noHair1 noHair2"),
    face: list("calm cute smile"),
    accessoriesProbability: 0,
    scale: 74,
    translateY: 14,
  }),
  girl: () => child("woman"),
  boy: () => child("man"),
  teenGirl: () => ({ ...adult("woman"), scale: 87, translateY: 7 }),
  teenBoy: () => ({ ...adult("man"), head: list(young.man), facialHairProbability: 0, scale: 87, translateY: 7 }),
  oldWoman: () => elder("woman"),
  oldMan: () => elder("man"),
  sad: (name) => ({ ...adult(presentationOf(name)), face: list("concerned solemn tired") }),
  staff: (name) => ({
    ...adult(Number(name) % 2 ? "man" : "woman"),
    face: list(staffFaces),
    accessories: list(glasses),
    accessoriesProbability: 35,
  }),
};

export const portraitForms: readonly string[] = Object.keys(looks);

const skins: Record<string, string[]> = { light: ["ffdbb4", "edb98a", "d08b5b"], dark: ["ae5d29", "694d3d"] };
const hair = ["2c1b18", "4a312c", "724133", "a55728", "b58143", "d6b370", "c93305"];
const darkHair = ["2c1b18", "4a312c"];

const keptFaces = "calm cheeky cute smile smileBig smileLOL smileTeethGap";
const grownAlike: Record<string, Presentation> = {
  girl: "woman",
  boy: "man",
  teenGirl: "woman",
  teenBoy: "man",
  woman: "woman",
  man: "man",
};

/**
 * Who takes after kin says so in three lines, as in "girl:Ada\nNova Theo\nlight": brothers and sisters share skin and
 * hair, and a teen has the head of the child.
 */
function inherited(form: string, name: string): Look {
  const [own = "", kin = "", family = ""] = name.split("\n");
  const [tone = "", another = ""] = family.split(" ", 2);
  if (!Object.hasOwn(skins, tone)) return {};
  const ofKin = drawsOf(`kin of ${kin}`);
  const ofOwn = drawsOf(`${own} ${kin} ${another}`);
  const skinColor = [pick(skins[tone]!, ofKin)];
  const presentation = grownAlike[form];
  if (!presentation) return { skinColor };
  return {
    skinColor,
    headContrastColor: [pick(tone === "dark" ? darkHair : hair, ofKin)],
    head: [pick(list(young[presentation]), ofOwn)],
    face: [pick(list(keptFaces), ofOwn)],
  };
}

/** A portrait as an SVG text, cut out: it follows from the name alone, or from "form:name". */
export function portrait(named: string): string {
  const colon = named.indexOf(":");
  const form = named.slice(0, Math.max(colon, 0));
  const asked = Object.hasOwn(looks, form);
  const name = asked ? named.slice(colon + 1) : named;
  const look = asked ? looks[form]!(name) : adult(presentationOf(name));
  const kin = inherited(form, name);
  return createAvatar(peeps, { seed: name, maskProbability: 0, scale: 92, translateY: 4, ...look, ...kin }).toString();
}
