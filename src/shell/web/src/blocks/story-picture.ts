import type { Story } from "../protocol";
import { factsOf, skyOf } from "./story";

const width = 1080;
const height = 1920;
const side = 88;

/** Draws a story as a picture of its own; the sleeve on it, or the photo, is taken from the page, where it stands already. */
export async function storyPicture(story: Story, sleeve: Element | null): Promise<Blob | null> {
  const canvas = Object.assign(document.createElement("canvas"), { width, height });
  const brush = canvas.getContext("2d")!;
  paintSky(brush, story);
  const { kicker = "", figure = "", title = "", text = "" } = story;
  const write = writer(brush);
  const [about, ...whose] = kicker.split(" · ").reverse();
  write(whose.reverse().join(" · "), side, 150, { size: 44, weight: 650, room: 640 });
  write(about ?? "", width - side, 150, { size: 44, weight: 650, align: "right", room: 250 });
  write(figure, side - 30, 500, { size: 420, weight: 880, tracking: -0.08, room: width - side });
  if (sleeve) await paintSleeve(brush, sleeve, story);
  if (title) paintTag(brush, write, title, text);
  const { told, listed } = factsOf(story);
  told.forEach(({ value = "", label = "" }, i) => {
    const [x, y] = [i % 2 ? 590 : side, 1340 + Math.floor(i / 2) * 150];
    write(value, x, y, { size: 82, weight: 790, tracking: -0.05, room: 430 });
    write(label, x, y + 50, { size: 40, weight: 550, alpha: 0.85, room: 430 });
  });
  if (listed.length > 0) brush.fillRect(side, 1605, width - 2 * side, 5);
  listed.slice(0, 3).forEach(({ value = "", label = "" }, i) => {
    const y = 1685 + i * 68;
    write(String(i + 1), side, y, { size: 46, weight: 600, alpha: 0.8 });
    write(label, side + 62, y, { size: 46, weight: 600, room: 600 });
    write(value, width - side, y, { size: 46, weight: 600, align: "right", room: 260 });
  });
  return new Promise((done) => canvas.toBlob(done, "image/png"));
}

function paintSky(brush: CanvasRenderingContext2D, story: Story): void {
  const [above, below] = skyOf(story);
  const sky = brush.createLinearGradient(0, 0, width * 0.4, height);
  sky.addColorStop(0, above);
  sky.addColorStop(0.55, below);
  sky.addColorStop(1, "#2a0f5c");
  brush.fillStyle = sky;
  brush.fillRect(0, 0, width, height);
  brush.strokeStyle = "rgb(255 255 255 / 0.13)";
  brush.lineWidth = 84;
  for (const radius of [200, 400, 600, 800]) {
    brush.beginPath();
    brush.arc(width - 80, 920, radius, 0, Math.PI * 2);
    brush.stroke();
  }
  brush.fillStyle = "rgb(10 4 40 / 0.28)";
  brush.fillRect(0, 0, width, height);
}

interface Lettering {
  size: number;
  weight: number;
  tracking?: number;
  alpha?: number;
  align?: CanvasTextAlign;
  ink?: string;
  /** What it may take in width; a longer text grows smaller, and is cut where it would grow too small to read. */
  room?: number;
}

type Write = (text: string, x: number, y: number, lettering: Lettering) => number;

/** How much smaller a long text may grow before it is cut. */
const smallest = 0.6;

function writer(brush: CanvasRenderingContext2D): Write {
  const family = getComputedStyle(document.body).fontFamily;
  return (
    text,
    x,
    y,
    { size, weight, tracking = -0.02, alpha = 1, align = "left", ink = "#fff", room = width - 2 * side },
  ) => {
    const wide = (text: string): number => brush.measureText(text).width;
    const set = (pixels: number): void => {
      brush.font = `${weight} ${pixels}px ${family}`;
      brush.letterSpacing = `${pixels * tracking}px`;
    };
    set(size);
    set(size * Math.min(1, Math.max(smallest, room / wide(text))));
    const written = cutTo(text, (part) => wide(part) <= room + 1);
    Object.assign(brush, { textAlign: align, fillStyle: ink, globalAlpha: alpha });
    brush.fillText(written, x, y);
    brush.globalAlpha = 1;
    return wide(written);
  };
}

/** As much of a text as fits, whole characters as eyes count them. */
function cutTo(text: string, fits: (text: string) => boolean): string {
  if (fits(text)) return text;
  const characters = [...new Intl.Segmenter().segment(text)].map(({ segment }) => segment);
  while (characters.length > 0 && !fits(`${characters.join("")}…`)) characters.pop();
  return `${characters.join("")}…`;
}

async function paintSleeve(brush: CanvasRenderingContext2D, sleeve: Element, story: Story): Promise<void> {
  const drawing = sleeve.querySelector("svg");
  const [above, below] = skyOf(story);
  const edge = 560;
  brush.save();
  brush.translate(width - side - edge / 2, 900);
  brush.rotate((5 * Math.PI) / 180);
  brush.shadowColor = "rgb(20 0 50 / 0.5)";
  brush.shadowBlur = 120;
  brush.shadowOffsetY = 50;
  brush.beginPath();
  brush.roundRect(-edge / 2, -edge / 2, edge, edge, 62);
  const fill = brush.createLinearGradient(-edge / 2, -edge / 2, edge / 4, edge / 2);
  fill.addColorStop(0, above);
  fill.addColorStop(1, below);
  brush.fillStyle = fill;
  brush.fill();
  brush.shadowColor = "transparent";
  brush.clip();
  const photo = sleeve.querySelector("img");
  if (drawing) brush.drawImage(await imageOf(drawing, edge), -edge / 2, -edge / 2, edge, edge);
  else if (photo) paintPhoto(brush, photo, edge);
  brush.restore();
}

/** The middle of it, as wide as it is high. */
function paintPhoto(brush: CanvasRenderingContext2D, photo: HTMLImageElement, edge: number): void {
  const { naturalWidth: wide, naturalHeight: high } = photo;
  const whole = Math.min(wide, high);
  if (whole === 0) return; // one that no browser can read
  brush.drawImage(photo, (wide - whole) / 2, (high - whole) / 2, whole, whole, -edge / 2, -edge / 2, edge, edge);
}

async function imageOf(drawing: SVGElement, edge: number): Promise<HTMLImageElement> {
  const copy = drawing.cloneNode(true) as SVGElement;
  copy.setAttribute("xmlns", "http://www.w3.org/2000/svg");
  copy.setAttribute("width", String(edge));
  copy.setAttribute("height", String(edge));
  const image = new Image();
  image.src = `data:image/svg+xml,${encodeURIComponent(new XMLSerializer().serializeToString(copy))}`;
  await image.decode();
  return image;
}

function paintTag(brush: CanvasRenderingContext2D, write: Write, title: string, text: string): void {
  const room = 560;
  const measure = Math.max(
    write(title, 0, -400, { size: 60, weight: 700, tracking: -0.035, room }),
    write(text, 0, -400, { size: 40, weight: 550, room }),
  );
  brush.fillStyle = "#fff";
  brush.beginPath();
  brush.roundRect(side + 10, 985, measure + 84, text ? 180 : 120, 48);
  brush.fill();
  write(title, side + 52, 1062, { size: 60, weight: 700, tracking: -0.035, ink: "#1d0b3a", room });
  write(text, side + 52, 1125, { size: 40, weight: 550, ink: "#6b5a86", room });
  brush.fillStyle = "#fff";
}
