import { drawsOf, pick } from "./chance";

/** Sky above, sky below, shade, light. */
type Palette = readonly [string, string, string, string];
type Draw = () => number;

const palettes: readonly Palette[] = [
  ["#ffd84d", "#e2541c", "#8f2a0c", "#fff6e6"],
  ["#ff8fa8", "#ffa200", "#4a2c00", "#fff0e0"],
  ["#d9a0ff", "#3b56ff", "#0a1a5c", "#f4ecff"],
  ["#63dbc9", "#2447e0", "#0b1d6b", "#eafcff"],
  ["#ff7aa2", "#7a1fd1", "#2c0a55", "#ffe9f2"],
  ["#a8f0b4", "#0f8a5f", "#053b2c", "#f2fff0"],
  ["#ffe2b8", "#e0795b", "#5f2430", "#fffaf0"],
  ["#8ee3ff", "#1e6fd0", "#08264d", "#f0fbff"],
  ["#ffb347", "#d81b60", "#4a0a2c", "#fff2dc"],
  ["#c9d6ff", "#6f7bb8", "#242a4d", "#ffffff"],
  ["#f4e04d", "#1fa37a", "#0a3d3a", "#fffde0"],
  ["#ff9a8b", "#b0247c", "#3d0a3f", "#fff0ec"],
  ["#e8e4da", "#8a7f72", "#2b2622", "#ffffff"],
  ["#5ef0ff", "#8a2be2", "#1d0a4a", "#efffff"],
];

const n = (value: number): string => value.toFixed(1);

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

const motifs = [sun, triangles, waves, rings, night, mountains, bars, dots, arches, flower, orbit, rays];

/**
 * A record sleeve as markup: it follows from the name alone. Drawn in the page itself, since every image of its own
 * costs the browser a document; the colours lie behind the drawing, so that no two drawings share an id.
 */
export function sleeve(name: string): string {
  const draw = drawsOf(name);
  const palette = pick(palettes, draw);
  const motif = pick(motifs, draw);
  const tilt = pick([135, 180, 225, 158], draw);
  const sky = `linear-gradient(${tilt}deg,${palette[0]},${palette[1]})`;
  return (
    `<span class="picture cover" style="background:radial-gradient(70% 70% at 50% 0,#ffffff4d,#fff0),${sky}">` +
    `<svg viewBox="0 0 100 100" aria-hidden="true">${motif(palette, draw)}</svg></span>`
  );
}
