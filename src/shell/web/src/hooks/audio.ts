let context: AudioContext | null = null;

/** The one place where sounds are made. First asked for in a press: browsers want to see the hand in it. */
export function audio(): AudioContext {
  if (!context) {
    context = new AudioContext();
    document.addEventListener("visibilitychange", wakeOrSleep);
  }
  wakeOrSleep();
  return context;
}

/** In the background it is silent, and what was playing goes on when the page is seen again. */
function wakeOrSleep(): void {
  void (document.hidden ? context?.suspend() : context?.resume());
}
