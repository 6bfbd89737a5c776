import type { Draw, Palette } from "./palettes";
import { pick } from "./chance";
import { at, box, dot, line, n, oval, palm, repeat, shape, turned, windows } from "./words";

/** What is drawn on a sleeve: 100 by 100, on a sky that lies behind. */
export type Motif = (palette: Palette, draw: Draw) => string;

function sun([, b, , light]: Palette, draw: Draw): string {
  const y = 42 + draw() * 8;
  const r = 20 + draw() * 6;
  const bars = [0, 1, 2, 3, 4, 5].map((i) => {
    const width = 70 + draw() * 30;
    return `<rect x="0" y="${n(y + r * 0.35 + i * 7.5)}" width="${n(width)}" height="${n(2 + i * 0.8)}" fill="${b}"/>`;
  });
  return `<circle cx="50" cy="${n(y)}" r="${n(r)}" fill="${light}"/>${bars.join("")}`;
}

function triangles([, , , light]: Palette, draw: Draw): string {
  const lean = (draw() - 0.5) * 16;
  return `<path d="M${n(50 + lean)} 16 84 82H16Z" fill="none" stroke="${light}" stroke-width="3"/><path d="M${n(50 + lean)} 36 72 76H28Z" fill="${light}" opacity=".9"/>`;
}

function waves([, , shade]: Palette, draw: Draw): string {
  const sway = 6 + draw() * 8;
  return [0, 1, 2, 3]
    .map((i) => {
      const y = 52 + i * 12;
      const s = i % 2 ? sway : -sway;
      return `<path d="M0 ${y}C25 ${n(y - s)} 40 ${n(y - s)} 55 ${y}S85 ${n(y + s)} 100 ${n(y - s / 3)}V100H0Z" fill="${shade}" opacity="${n(0.3 + i * 0.2)}"/>`;
    })
    .join("");
}

function rings([, , shade, light]: Palette, draw: Draw): string {
  const x = 30 + draw() * 40;
  const y = 30 + draw() * 40;
  const circles = [40, 31, 22, 13].map(
    (r, i) =>
      `<circle cx="${n(x)}" cy="${n(y)}" r="${r}" fill="none" stroke="${i % 2 ? shade : light}" stroke-width="4" opacity="${n(0.5 + i * 0.13)}"/>`,
  );
  return `${circles.join("")}<circle cx="${n(x)}" cy="${n(y)}" r="5" fill="${light}"/>`;
}

function night([, , shade, light]: Palette, draw: Draw): string {
  const stars = Array.from({ length: 14 }, () => {
    const r = 0.5 + draw() * 1.1;
    return `<circle cx="${n(draw() * 100)}" cy="${n(draw() * 70)}" r="${n(r)}" fill="${light}"/>`;
  });
  const x = 34 + draw() * 32;
  return `<rect width="100" height="100" fill="${shade}" opacity=".55"/>${stars.join("")}<path d="M${n(x)} 22a24 24 0 1 0 24 36 20 20 0 1 1-24-36z" fill="${light}"/>`;
}

function mountains([, , shade, light]: Palette, draw: Draw): string {
  const peak = 34 + draw() * 14;
  return `<circle cx="${n(20 + draw() * 60)}" cy="28" r="10" fill="${light}"/><path d="M-5 84 34 ${n(peak)} 58 66 74 ${n(peak + 12)} 106 88V100H-5Z" fill="${shade}" opacity=".55"/><path d="M-5 94 22 64 44 84 68 60 106 96V100H-5Z" fill="${shade}"/>`;
}

function bars([, , , light]: Palette, draw: Draw): string {
  return [0, 1, 2, 3, 4, 5, 6]
    .map((i) => {
      const h = 14 + draw() * 56;
      return `<rect x="${14 + i * 10.6}" y="${n(50 - h / 2)}" width="6" height="${n(h)}" rx="3" fill="${light}" opacity="${n(0.6 + draw() * 0.4)}"/>`;
    })
    .join("");
}

function dots([, , shade, light]: Palette, draw: Draw): string {
  return Array.from({ length: 25 }, (_, i) => {
    const r = 1.5 + draw() * 6;
    return `<circle cx="${14 + (i % 5) * 18}" cy="${14 + Math.floor(i / 5) * 18}" r="${n(r)}" fill="${draw() < 0.25 ? shade : light}"/>`;
  }).join("");
}

function arches([, , shade, light]: Palette, draw: Draw): string {
  const from = draw() < 0.5 ? 0 : 1;
  return [44, 34, 24, 14]
    .map(
      (r, i) =>
        `<path d="M${50 - r} 100V${64}a${r} ${r} 0 0 1 ${r * 2} 0V100Z" fill="${(i + from) % 2 ? shade : light}" opacity="${i % 2 ? 0.85 : 0.75}"/>`,
    )
    .join("");
}

function flower([, , shade, light]: Palette, draw: Draw): string {
  const turn = draw() * 60;
  const petals = Array.from(
    { length: 6 },
    (_, i) =>
      `<ellipse cx="50" cy="28" rx="11" ry="20" transform="rotate(${n(turn + i * 60)} 50 50)" fill="${light}" opacity=".8"/>`,
  );
  return `${petals.join("")}<circle cx="50" cy="50" r="9" fill="${shade}"/>`;
}

function orbit([, , shade, light]: Palette, draw: Draw): string {
  const turn = draw() * 180;
  return `<g transform="rotate(${n(turn)} 50 50)"><ellipse cx="50" cy="50" rx="40" ry="14" fill="none" stroke="${light}" stroke-width="2.5"/><circle cx="50" cy="50" r="20" fill="${shade}"/><path d="M30 50a20 20 0 0 1 40 0c-8 5-32 5-40 0Z" fill="${light}" opacity=".25"/><path d="M10 50c0 7 18 14 40 14s40-7 40-14" fill="none" stroke="${light}" stroke-width="2.5"/><circle cx="88" cy="46" r="4.5" fill="${light}"/></g>`;
}

function rays([, , shade, light]: Palette, draw: Draw): string {
  const x = draw() * 100;
  const beams = Array.from({ length: 9 }, (_, i) => {
    const left = -60 + i * 28;
    return `<path d="M${n(x)} 104 ${left} -10h13Z" fill="${i % 2 ? shade : light}" opacity=".45"/>`;
  });
  return `${beams.join("")}<circle cx="${n(x)}" cy="100" r="26" fill="${light}"/>`;
}

function lanterns({ 2: shade, 3: light }: Palette, draw: Draw): string {
  return [26, 54, 78]
    .map((x, i) => {
      const y = 30 + ((i * 2) % 3) * 13 + draw() * 8;
      const r = 12 + draw() * 5;
      return (
        line(`M${x} 0V${n(y)}`, light, 1) +
        oval(x, y + r, r, r * 1.15, light, 0.92) +
        box(x - r / 2, y - 2, r, 3, shade) +
        box(x - r / 2, y + r * 2.1, r, 3, shade) +
        [0.35, 0.72]
          .map((wide) =>
            line(
              `M${x} ${n(y)}a${n(r * wide)} ${n(r)} 0 0 0 0 ${n(r * 2)}a${n(r * wide)} ${n(r)} 0 0 0 0-${n(r * 2)}`,
              shade,
              1,
              0.3,
            ),
          )
          .join("")
      );
    })
    .join("");
}

const heartPath = "M0 9C-14-4-26 4-20 16-16 24-6 30 0 36 6 30 16 24 20 16 26 4 14-4 0 9Z";

function heart({ 2: shade, 3: light }: Palette, draw: Draw): string {
  const x = 44 + draw() * 12;
  return at(x, 22, shape(heartPath, shade, 0.5), 1.5) + at(x, 30, shape(heartPath, light), 1.1);
}

function flames({ 2: shade, 3: light }: Palette, draw: Draw): string {
  const flame = "M0 0C-20-6-20-30-6-44-4-34 2-34 2-56 20-40 24-10 0 0Z";
  return (
    [18, 50, 82].map((x) => at(x, 100, shape(flame, shade, 0.7), n2(1 + draw() * 0.5))).join("") +
    [34, 66].map((x) => at(x, 100, shape(flame, light, 0.9), n2(0.7 + draw() * 0.4))).join("")
  );
}

function skyline({ 2: shade, 3: light }: Palette, draw: Draw): string {
  return (
    dot(30 + draw() * 40, 34, 15, light) +
    repeat(7, (i) => {
      const height = 26 + draw() * 42;
      const x = i * 15 - 2;
      return (
        box(x, 100 - height, 13, 80, shade) +
        windows(x + 2.5, 104 - height, 2, 4, light, { width: 2.6, height: 4, stepX: 5, stepY: 9 })
      );
    })
  );
}

function road({ 2: shade, 3: light }: Palette, draw: Draw): string {
  const x = 40 + draw() * 20;
  return (
    dot(x, 48, 18, light) +
    box(0, 52, 100, 48, shade, 0, 0.55) +
    shape(`M${n(x - 2)} 52h4L88 100H12Z`, shade) +
    repeat(4, (i) => box(x - 0.5 - i * 0.6, 56 + i * i * 3.6, 1 + i * 1.2, 3 + i * 2.4, light))
  );
}

function rain({ 2: shade, 3: light }: Palette, draw: Draw): string {
  const drops = repeat(20, () => {
    const x = draw() * 100;
    const y = 42 + draw() * 56;
    return line(`M${n(x)} ${n(y)}l-3 9`, light, 1.6, 0.8);
  });
  return drops + at(18, 22, shape("M10 30a16 16 0 0 1 2-31 20 20 0 0 1 38-3 15 15 0 0 1 8 34Z", shade));
}

function snowflake({ 3: light }: Palette, draw: Draw): string {
  const turn = Math.round(draw() * 60);
  const arm = line("M50 50V16M50 28l-8-7M50 28l8-7M50 40l-7-6M50 40l7-6", light, 3.4);
  return repeat(6, (i) => turned(turn + i * 60, 50, 50, arm));
}

function palmTree({ 2: shade, 3: light }: Palette, draw: Draw): string {
  return (
    dot(62 + draw() * 12, 46, 20, light) +
    shape("M0 84C30 70 70 72 100 84V100H0Z", shade, 0.6) +
    shape("M0 92C30 84 70 84 100 94V100H0Z", shade) +
    palm(36, 86, 1.5, shade, shade)
  );
}

const n2 = (value: number): number => Math.round(value * 100) / 100;

/** What a title speaks of, when it says so. */
export const told: readonly [Motif, string][] = [
  [lanterns, "lantern lamp candle"],
  [night, "night midnight moon moonlight shadow dream lullaby star"],
  [waves, "river ocean wave tide sea water saltwater"],
  [heart, "heart love lover desire kiss"],
  [flames, "fire flame burning ember fever cinder"],
  [flower, "rose garden flower bloom violet orchard orchid"],
  [sun, "sun sunset sunrise summer daylight horizon radiant sky"],
  [skyline, "street skyline avenue city urban empire kingdom stories"],
  [road, "highway journey road mile motel nowhere exit wandering"],
  [mountains, "valley mountain northern peak canyon"],
  [orbit, "orbit universe gravity planet space infinite satellite"],
  [rain, "rain thunder storm cloud"],
  [snowflake, "winter frozen snow ice"],
  [bars, "static electric machine kinetic anthem engine"],
  [rings, "echo echoes magnetic whisper ripple"],
  [arches, "window door home cathedral sacred"],
  [triangles, "glass mirror prism"],
  [palmTree, "island paradise palm mirage"],
  [rays, "light lights glow carousel"],
];

const motifs = [sun, triangles, waves, rings, night, mountains, bars, dots, arches, flower, orbit, rays];

export const anyMotif = (draw: Draw): Motif => pick(motifs, draw);
