// Keeps the page, a version whole or not at all, and opens it from there whatever the network does.
const files = @FILES@; // of this version, with their digests
// Others on this server keep things, too, another room among them.
const ours = `tombolario ${registration.scope} `;
const kept = `${ours}@KEPT@`;

// What the page has just asked for is not asked for again, unless it was of another version.
async function get(file) {
  const integrity = files[file];
  try {
    return await fetch(file, {integrity, cache: 'force-cache'});
  } catch {
    return fetch(file, {integrity, cache: 'reload'});
  }
}

async function keep() {
  const names = Object.keys(files);
  const responses = await Promise.all(names.map(get));
  const cache = await caches.open(kept);
  await Promise.all(names.map((name, i) => cache.put(name, responses[i])));
  await self.skipWaiting();
}

async function keptVersions() {
  return (await caches.keys()).filter((name) => name.startsWith(ours));
}

// A page that is just opening may still want the version before.
async function forget() {
  const versions = await keptVersions();
  await Promise.all(versions.slice(0, -2).map((version) => caches.delete(version)));
}

async function find(request) {
  const file = new URL(request.url).pathname.slice(new URL(registration.scope).pathname.length);
  const name = file === '' || file === 'index.html' ? './' : file;
  for (const version of new Set([kept, ...await keptVersions()])) {
    const response = await (await caches.open(version)).match(name);
    if (response) return response;
  }
}

self.addEventListener('install', (event) => event.waitUntil(keep()));
self.addEventListener('activate', (event) => event.waitUntil(forget()));
self.addEventListener('fetch', (event) => {
  const {request} = event;
  if (request.method !== 'GET' || !request.url.startsWith(registration.scope)) return;
  event.respondWith(find(request).catch(() => {}).then((response) => response ?? fetch(request)));
});
