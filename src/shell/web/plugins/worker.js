// Keeps the whole page on the device. The build writes above what `files` there are, each with a hash of what is in it,
// and names the `version` that they make up. A new version is fetched whole beside the old one and waits until the player asks for it.
const scope = registration.scope;
const family = `backbeat ${scope} `;
const cacheName = family + version;

addEventListener("install", (event) => event.waitUntil(fill()));
addEventListener("activate", (event) => event.waitUntil(takeOver()));
addEventListener("message", ({ data }) => data === "takeOver" && skipWaiting());
addEventListener("fetch", (event) => {
  const { method, url } = event.request;
  if (method === "GET" && url.startsWith(scope)) event.respondWith(answer(event.request));
});

async function fill() {
  const cache = await caches.open(cacheName);
  await Promise.all(Object.entries(files).map(([name, hash]) => keep(cache, new URL(name, scope).href, hash)));
}

async function keep(cache, address, hash) {
  const kept = await caches.match(address);
  const known = kept && (await hashOf(kept)) === hash;
  const response = known ? kept : await fetch(address, { cache: "no-cache" });
  // A host that is just being updated may hand out files of two versions; then this one is tried again later.
  if (!response.ok || (await hashOf(response)) !== hash) throw new Error(`${address} is not of this version.`);
  await cache.put(address, response);
}

async function hashOf(response) {
  const digest = await crypto.subtle.digest("SHA-256", await response.clone().arrayBuffer());
  return [...new Uint8Array(digest, 0, 16)].map((byte) => byte.toString(16).padStart(2, "0")).join("");
}

async function takeOver() {
  const old = (await caches.keys()).filter((name) => name.startsWith(family) && name !== cacheName);
  await Promise.all(old.map((name) => caches.delete(name)));
  await clients.claim();
}

async function answer(request) {
  const cache = await caches.open(cacheName);
  const address = request.url.split(/[?#]/)[0].replace(/\/index\.html$/, "/");
  return (await cache.match(address)) ?? fetch(request);
}
