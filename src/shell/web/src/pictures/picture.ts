import { html, nothing, type TemplateResult } from "lit";
import { until } from "lit/directives/until.js";
import type { Picture } from "../protocol";
import { drawsOf, pick } from "./chance";
import type { DrawnKind } from "./drawings";
import { glyph, isIcon, tintOf } from "./icons";
import { sleeve } from "./sleeves";

/** Artwork that follows from a name, made once and kept while it is likely to be shown again. */
class Gallery<Work> {
  private readonly made = new Map<string, Work>();

  constructor(private readonly draw: (name: string) => Work) {}

  work(name: string): Work {
    let work = this.made.get(name);
    if (work === undefined) {
      if (this.made.size >= 400) this.made.clear();
      work = this.draw(name);
      this.made.set(name, work);
    }
    return work;
  }
}

/** Something that is asked for when it is first needed, and again after it could not be had. */
class Late<T> {
  now: T | null = null;
  private coming: Promise<T> | null = null;

  constructor(private readonly fetch: () => Promise<T>) {}

  get(): Promise<T> {
    this.coming ??= this.fetch().then(
      (here) => (this.now = here),
      (failed) => {
        this.coming = null;
        throw failed;
      },
    );
    return this.coming;
  }
}

const image = (address: string): TemplateResult =>
  html`<img src=${address} alt="" draggable="false" decoding="async" />`;

/** Our own markup as a template that is parsed once, however often it is shown. */
const fixed = (markup: string): TemplateResult => html(Object.assign([markup], { raw: [markup] }));

const sleeves = new Gallery((name) => fixed(sleeve(name)));

// The portraits' drawings are as large as the rest of the page, and the others are not on the first screen: they come
// after it stands.
const portraits = new Late(async () => {
  const { portrait } = await import("./portraits");
  return new Gallery((name) => `data:image/svg+xml,${encodeURIComponent(portrait(name))}`);
});
const drawings = new Late(async () => {
  const { drawing } = await import("./drawings");
  const of = (kind: DrawnKind) =>
    new Gallery((name) => {
      const [named = "", artist = "", hand = ""] = name.split("\n");
      return fixed(drawing(kind, named, artist && portraits.now!.work(artist), hand));
    });
  return { object: of("object"), scene: of("scene"), still: of("still"), mark: of("mark") };
});

const silhouette = html`<span class="silhouette">${glyph("person")}</span>`;

/** What a late thing makes of it; until it is there, and when it cannot be had, what stands in its place. */
function shown<T>(late: Late<T>, make: (here: T) => unknown, meanwhile: unknown): unknown {
  if (late.now) return make(late.now);
  return until(
    late.get().then(make, () => meanwhile),
    meanwhile,
  );
}

const person = (name: string): unknown => shown(portraits, (gallery) => image(gallery.work(name)), silhouette);

/** The colour behind a portrait; the portrait itself is cut out, so that it can stand before a place as well. */
const wall = (name: string): string =>
  pick(["ffd5e5", "b6e3f4", "c0ead0", "ffe3b8", "d9d0ff", "ffd0c2", "cfe0ff", "f3e6a8"], drawsOf(`wall of ${name}`));

function drawn(kind: DrawnKind, name: string): unknown {
  const blank = html`<span class=${`picture ${kind}`}></span>`;
  const make = () => shown(drawings, (galleries) => galleries[kind].work(name), blank);
  return name.includes("\n") ? shown(portraits, make, blank) : make();
}

/** A picture by kind and name, in a frame whose size the surroundings give. It is decoration: texts beside it name it. */
export function picture(wanted: Picture | undefined): TemplateResult | typeof nothing {
  const name = wanted?.name ?? "";
  switch (wanted?.kind) {
    case "cover":
      return sleeves.work(name);
    case "person":
      return html`<span class="picture person" style=${`--sky:#${wall(name)}`}>${person(name)}</span>`;
    case "photo":
      return html`<span class="picture photo">${name.startsWith("data:image/") ? image(name) : silhouette}</span>`;
    case "icon":
      return html`<span class="picture icon tint-${tintOf(name)}">${glyph(isIcon(name) ? name : "music")}</span>`;
    case "object":
    case "scene":
    case "still":
    case "mark":
      return html`${drawn(wanted.kind, name)}`;
    default:
      return nothing;
  }
}

/** Whether there is anything to see. */
export function hasPicture(wanted: Picture | undefined): boolean {
  return wanted?.kind !== undefined && wanted.kind !== "none";
}
