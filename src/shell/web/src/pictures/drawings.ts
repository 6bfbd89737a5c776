import { anyMark, markForms } from "./marks";
import type { Family } from "./family";
import { homeForms } from "./homes";
import { honourForms } from "./honours";
import { productForms } from "./products";
import { anywhere, placeForms } from "./places";
import { officeForms } from "./offices";
import { sceneForms } from "./scenes";
import { shoreForms } from "./shores";
import { stillForms } from "./stills";
import { vehicleForms } from "./vehicles";
import { venueForms } from "./venues";

export type DrawnKind = "object" | "scene" | "still" | "mark";

/** Every form of every kind of drawn picture. */
export const forms: Record<DrawnKind, Family> = {
  object: { ...productForms, ...venueForms, ...vehicleForms, ...honourForms },
  scene: { ...sceneForms, ...placeForms, ...officeForms, ...homeForms, ...shoreForms },
  still: stillForms,
  mark: markForms,
};

/** What stands for a form that is not known. */
const otherwise: Record<DrawnKind, Family[string]> = {
  object: honourForms.parcel!,
  scene: anywhere,
  still: stillForms.cinematic!,
  mark: anyMark,
};

/**
 * The markup of a picture whose name is "form:name", with the portrait at an address where somebody is seen, by the
 * hand of somebody.
 */
export function drawing(kind: DrawnKind, named: string, portrait = "", hand = ""): string {
  const colon = named.indexOf(":");
  const form = named.slice(0, Math.max(colon, 0));
  const draw = Object.hasOwn(forms[kind], form) ? forms[kind][form]! : otherwise[kind];
  return draw(named.slice(colon + 1), portrait, hand);
}
