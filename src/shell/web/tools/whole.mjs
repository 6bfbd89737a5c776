/** Waits until the screens that were seen are drawn down to their ends: what lies below the glass follows from frame to frame. */
export const drawnWhole = (page) =>
  page.evaluate(async () => {
    const unfinished = () =>
      [...document.querySelectorAll(".layer:not(.ahead) bb-blocks")].filter(({ whole }) => !whole);
    for (let frames = 0; frames < 2 || unfinished().length > 0; frames += 1) {
      if (frames > 1000) throw new Error(`never whole: ${unfinished().map(({ view }) => view?.screen)}`);
      await new Promise(requestAnimationFrame);
    }
  });
