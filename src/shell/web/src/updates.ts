import type { Game } from "./game";

const askAgainAfter = 60 * 60 * 1000;

/**
 * Keeps the page for playing without a network, and offers a newer one once it lies ready. The player decides when: a
 * reload loses what is open.
 */
export async function offerUpdates(game: Game): Promise<void> {
  const registration = await navigator.serviceWorker?.register("./sw.js").catch(() => undefined);
  if (!registration) return; // the page plays on, but only with a network
  // Without a controller this is the first visit, and what lies ready is what is shown. It may have become the
  // controller by the time one hears that it is installed.
  const shown = navigator.serviceWorker.controller ? null : (registration.installing ?? registration.waiting);
  const offer = (): void => {
    const ready = registration.waiting;
    if (ready && ready !== shown && navigator.serviceWorker.controller) offerNow(game, ready);
  };
  offer();
  registration.addEventListener("updatefound", () => {
    registration.installing?.addEventListener("statechange", offer);
  });
  askNowAndThen(registration);
}

function offerNow(game: Game, ready: ServiceWorker): void {
  game.messages.show({
    text: "A new version of Backbeat is here.",
    button: "Update",
    onRootsOnly: true,
    press: () => void update(game, ready),
  });
}

async function update(game: Game, ready: ServiceWorker): Promise<void> {
  if (!(await game.settled())) {
    return game.messages.show({ text: "The update waits until your save can be written." });
  }
  navigator.serviceWorker.addEventListener("controllerchange", () => location.reload(), { once: true });
  ready.postMessage("takeOver");
}

/** An installed page may stay open for weeks: coming back to it is a moment to look for a newer one. */
function askNowAndThen(registration: ServiceWorkerRegistration): void {
  let asked = Date.now();
  document.addEventListener("visibilitychange", () => {
    if (document.visibilityState !== "visible" || Date.now() - asked < askAgainAfter) return;
    asked = Date.now();
    void registration.update().catch(() => {}); // without a network it is asked another time
  });
}
