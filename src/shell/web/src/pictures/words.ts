/** Small words that the drawings are made of: each gives SVG markup. A drawing names no id, so that any number can stand on a page. */

export const n = (value: number): string => String(Math.round(value * 10) / 10);

export const repeat = (count: number, draw: (i: number) => string): string =>
  Array.from({ length: count }, (_, i) => draw(i)).join("");

const faint = (opacity: number): string => (opacity < 1 ? ` opacity="${opacity}"` : "");

export const shape = (d: string, fill: string, opacity = 1): string =>
  `<path d="${d}" fill="${fill}"${faint(opacity)}/>`;

export const box = (
  x: number,
  y: number,
  width: number,
  height: number,
  fill: string,
  round = 0,
  opacity = 1,
): string =>
  `<rect x="${n(x)}" y="${n(y)}" width="${n(width)}" height="${n(height)}"${round ? ` rx="${round}"` : ""} fill="${fill}"${faint(opacity)}/>`;

export const dot = (x: number, y: number, r: number, fill: string, opacity = 1): string =>
  `<circle cx="${n(x)}" cy="${n(y)}" r="${n(r)}" fill="${fill}"${faint(opacity)}/>`;

export const oval = (x: number, y: number, rx: number, ry: number, fill: string, opacity = 1): string =>
  `<ellipse cx="${n(x)}" cy="${n(y)}" rx="${n(rx)}" ry="${n(ry)}" fill="${fill}"${faint(opacity)}/>`;

export const line = (d: string, colour: string, width = 2, opacity = 1): string =>
  `<path d="${d}" fill="none" stroke="${colour}" stroke-width="${width}" stroke-linecap="round" stroke-linejoin="round"${faint(opacity)}/>`;

export const ring = (x: number, y: number, r: number, colour: string, width: number, opacity = 1): string =>
  `<circle cx="${x}" cy="${y}" r="${r}" fill="none" stroke="${colour}" stroke-width="${width}"${faint(opacity)}/>`;

export const at = (x: number, y: number, inner: string, scale = 1): string =>
  `<g transform="translate(${n(x)} ${n(y)}) scale(${scale})">${inner}</g>`;

export const turned = (degrees: number, x: number, y: number, inner: string): string =>
  `<g transform="rotate(${degrees} ${x} ${y})">${inner}</g>`;

/** A drawing within a drawing, cut at its edges. */
export const inset = (x: number, y: number, width: number, height: number, view: string, inner: string): string =>
  `<svg x="${n(x)}" y="${n(y)}" width="${n(width)}" height="${n(height)}" viewBox="${view}" preserveAspectRatio="xMidYMid slice">${inner}</svg>`;

/** The same as seen in a mirror, in a picture of this width. */
export const mirrored = (width: number, inner: string): string =>
  `<g transform="translate(${width}) scale(-1 1)">${inner}</g>`;

export const fade = (top: string, bottom: string, degrees = 180): string =>
  `linear-gradient(${degrees}deg,${top},${bottom})`;

export interface Frame {
  /** The class that tells the kind of picture. */
  kind: string;
  /** What lies behind the drawing and fills the box, whatever its shape. */
  sky: string;
  width?: number;
  height?: number;
  /** Shown whole in a box of another shape, instead of filling it. */
  whole?: boolean;
}

/** A whole picture: the drawing on its sky. */
export function framed({ kind, sky, width = 100, height = 100, whole }: Frame, inner: string): string {
  const fit = whole ? "" : ' preserveAspectRatio="xMidYMid slice"';
  return (
    `<span class="picture ${kind}" style="--sky:${sky}">` +
    `<svg viewBox="0 0 ${width} ${height}"${fit} aria-hidden="true">${inner}</svg></span>`
  );
}

/* Landscape: y is where a thing stands on the ground. */

export const hills = (points: string, fill: string, opacity = 1): string =>
  shape(`M-40 100V${points}V100Z`, fill, opacity);

export const sunAt = (x: number, y: number, r = 13, fill = "#fff1d6"): string => dot(x, y, r, fill);

export const cloud = (x: number, y: number, scale = 1): string =>
  at(x, y, shape("M0 12a6 6 0 0 1 1-12 9 9 0 0 1 17-2 7 7 0 0 1 11 4 5 5 0 0 1-1 10Z", "#fff", 0.85), scale);

export const palm = (x: number, y: number, scale = 1, leaf = "#17382a", trunk = "#2a1c14"): string =>
  at(
    x,
    y,
    line("M0 0C-2-16 2-27 6-37", trunk, 2.4) +
      shape(
        "M6-37C-4-46-11-42-16-34-7-40-1-40 6-37ZM6-37C6-50 15-55 24-51 15-48 11-44 6-37ZM6-37C15-42 23-38 26-29 19-36 13-38 6-37ZM6-37C1-48-4-50-9-50-2-46 2-44 6-37Z",
        leaf,
      ),
    scale,
  );

export const pine = (x: number, y: number, height: number, fill: string): string =>
  shape(`M${n(x - height * 0.28)} ${y}h${n(height * 0.56)}L${x} ${n(y - height)}Z`, fill);

export const tree = (x: number, y: number, r: number, fill: string, trunk = "#4a3324"): string =>
  box(x - r * 0.12, y - r * 1.1, r * 0.24, r * 1.1, trunk) + dot(x, y - r * 1.6, r, fill);

export const peaks = (y: number, fill: string, snow = "#fff"): string =>
  shape(`M-10 ${y}V${y - 16}L34 ${y - 42} 58 ${y - 14} 86 ${y - 46} 128 ${y - 10} 170 ${y - 28}V${y}Z`, fill) +
  shape(`M34 ${y - 42}l10 12-8-1-6 5-4-7ZM86 ${y - 46}l12 12H88l-6 6-7-7Z`, snow);

/** A grid of windows, or of whatever is small and regular. */
export const windows = (
  x: number,
  y: number,
  across: number,
  down: number,
  fill: string,
  { width = 5, height = 6, stepX = 10, stepY = 11 } = {},
): string =>
  shape(
    repeat(across * down, (i) => {
      const [left, top] = [x + (i % across) * stepX, y + Math.floor(i / across) * stepY];
      return `M${n(left)} ${n(top)}h${width}v${height}h-${width}z`;
    }),
    fill,
  );

/** A house front with a gable: x and y are its lower left corner. */
export const gable = (x: number, y: number, width: number, height: number, wall: string, roof: string): string =>
  box(x, y - height, width, height, wall) +
  shape(`M${x - 3} ${y - height}h${width + 6}L${x + width / 2} ${n(y - height - width * 0.36)}Z`, roof);

/** Glints on water. */
export const glints = (rows: [number, number, number][], opacity = 0.5): string =>
  line(rows.map(([x, y, width]) => `M${x} ${y}h${width}`).join(""), "#fff", 1, opacity);

export const stars = (count: number, width: number, height: number, draw: () => number): string =>
  repeat(count, () => dot(draw() * width, draw() * height, 0.4 + draw() * 0.6, "#fff", 0.7));

/** Heads of people who stand before a stage. */
export const crowd = (width: number, y: number, r: number, fill: string): string =>
  repeat(Math.ceil(width / (r * 1.7)) + 1, (i) => dot(i * r * 1.7, y + ((i * 7) % 5) * r * 0.14, r, fill)) +
  box(0, y, width, 60, fill);

export const notes = (x: number, y: number, fill: string, scale = 1): string =>
  at(
    x,
    y,
    shape("M0 14V0l12-3v14", "none") +
      line("M2 13V1L13-2V10", fill, 2) +
      dot(0, 13, 2.6, fill) +
      dot(11, 10, 2.6, fill),
    scale,
  );
