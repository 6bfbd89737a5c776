// The page on which the gallery hangs: the tabs with their screens, room by room, and what lies over everything.

const groups = ["Home", "Music", "Life", "Business", "Social", "Over everything"];
const rankOf = (group) => {
  const rank = groups.findIndex((start) => group.startsWith(start));
  return rank < 0 ? groups.length : rank;
};

export function galleryPage(shots, { width, height }) {
  const figure = ({ name, told, file }) =>
    `<figure><img src="${file}" loading="lazy" width="${width}" height="${height}" alt=""><figcaption>${name}<br>${told}</figcaption></figure>`;
  const names = [...new Set(shots.map(({ group }) => group))].sort(
    (a, b) => rankOf(a) - rankOf(b) || a.localeCompare(b),
  );
  const figures = (name) => shots.filter(({ group }) => group === name).map(figure);
  const parts = names.map((name) => `<h2>${name}</h2><div>${figures(name).join("")}</div>`);
  return `<!doctype html><meta charset="utf-8"><title>Backbeat, every screen</title>
<style>body{font:14px system-ui;margin:20px;background:#777}div{display:flex;flex-wrap:wrap;gap:16px}figure{margin:0}img{display:block;border-radius:20px}</style>
${parts.join("\n")}
`;
}
