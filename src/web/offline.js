// Keeps what the network last gave of the page, and gives that where there is no network.
const kept = 'tombolario';
const files = ['./', 'page.js', 'reading.js', 'touch.js', 'tombolario.js', 'tombolario.wasm', 'manifest.json', 'icon.svg'];

self.addEventListener('install', (event) => {
  event.waitUntil(caches.open(kept).then((cache) => cache.addAll(files)));
});

async function keep(request, response) {
  try {
    await (await caches.open(kept)).put(request, response);
  } catch {
    // Storage is refused or full: the page goes on from the network.
  }
}

async function lastKept(request, error) {
  const response = await caches.match(request, {ignoreSearch: true});
  if (!response) throw error;
  return response;
}

self.addEventListener('fetch', (event) => {
  const {request} = event;
  if (request.method !== 'GET') return;
  const fromNetwork = fetch(request);
  event.respondWith(fromNetwork.catch((error) => lastKept(request, error)));
  event.waitUntil(fromNetwork.then(
      (response) => response.ok && keep(request, response.clone()),
      () => {}));
});
