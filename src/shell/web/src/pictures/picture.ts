import { html, nothing, type TemplateResult } from "lit";
import { until } from "lit/directives/until.js";
import type { Picture } from "../protocol";
import { glyph, isIcon, tintOf } from "./icons";
import { sleeve } from "./sleeves";

/** Artwork that follows from a name, made once and kept while it is likely to be shown again. */
class Gallery {
  private readonly made = new Map<string, TemplateResult>();

  constructor(private readonly draw: (name: string) => TemplateResult) {}

  work(name: string): TemplateResult {
    let work = this.made.get(name);
    if (work === undefined) {
      if (this.made.size >= 400) this.made.clear();
      work = this.draw(name);
      this.made.set(name, work);
    }
    return work;
  }
}

const drawn = (address: string): TemplateResult =>
  html`<img src=${address} alt="" draggable="false" decoding="async" />`;

/** Our own markup as a template that is parsed once, however often it is shown. */
const fixed = (markup: string): TemplateResult => html(Object.assign([markup], { raw: [markup] }));

const sleeves = new Gallery((name) => fixed(sleeve(name)));
// The portraits' drawings are as large as the rest of the page, so they come after the first screen stands.
let portraits: Gallery | null = null;
let loading: Promise<Gallery> | null = null;

function loadPortraits(): Promise<Gallery> {
  loading ??= import("./portraits").then(
    ({ portrait }) =>
      (portraits = new Gallery((name) => drawn(`data:image/svg+xml,${encodeURIComponent(portrait(name))}`))),
    (failed) => {
      loading = null; // the next portrait tries again
      throw failed;
    },
  );
  return loading;
}

const silhouette = html`<span class="silhouette">${glyph("person")}</span>`;

function person(name: string): unknown {
  if (portraits) return portraits.work(name);
  return until(
    loadPortraits().then(
      (gallery) => gallery.work(name),
      () => silhouette,
    ),
    silhouette,
  );
}

/** A picture by kind and name, in a frame whose size the surroundings give. It is decoration: texts beside it name it. */
export function picture(wanted: Picture | undefined): TemplateResult | typeof nothing {
  const name = wanted?.name ?? "";
  switch (wanted?.kind) {
    case "cover":
      return sleeves.work(name);
    case "person":
      return html`<span class="picture person">${person(name)}</span>`;
    case "photo":
      return html`<span class="picture photo">${name.startsWith("data:image/") ? drawn(name) : silhouette}</span>`;
    case "icon":
      return html`<span class="picture icon tint-${tintOf(name)}">${glyph(isIcon(name) ? name : "music")}</span>`;
    default:
      return nothing;
  }
}

/** Whether there is anything to see. */
export function hasPicture(wanted: Picture | undefined): boolean {
  return wanted?.kind !== undefined && wanted.kind !== "none";
}
