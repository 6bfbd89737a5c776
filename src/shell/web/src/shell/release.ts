import { prefersStillness, tap } from "../motion";
import { soundOn } from "../preferences";
import type { Answer } from "../protocol";

/** The press of this answer brought a song or an album out: its screen no longer asks for it. */
export function isRelease(before: Answer, now: Answer): boolean {
  const asked = before.view.mainAction?.id === "releaseButton";
  return asked && before.view.key === now.view.key && !now.view.mainAction && now.feedback === "success";
}

/** The sleeve rises and turns like a record, the song is heard where that is wanted. */
export function playRelease(screen: Element | null): void {
  tap([15, 40, 25]);
  screen?.querySelector(".scroll")?.scrollTo({ top: 0 });
  if (soundOn()) screen?.querySelector("bb-hook")?.play();
  // The screen's own blocks are drawn a moment later.
  if (!prefersStillness()) requestAnimationFrame(() => turnSleeve(screen));
}

function turnSleeve(screen: Element | null): void {
  screen?.querySelector(".head .picture")?.animate(
    {
      transform: [
        "none",
        "translateY(-18px) scale(1.12) rotate(0)",
        "translateY(-18px) scale(1.12) rotate(1turn)",
        "rotate(1turn)",
      ],
      offset: [0, 0.2, 0.8, 1],
    },
    { duration: 1500, easing: "cubic-bezier(0.32, 0.72, 0, 1)" },
  );
  screen
    ?.querySelector(".poster-texts")
    ?.animate(
      { opacity: [0, 1], transform: ["scale(0.9)", "none"] },
      { duration: 260, delay: 200, fill: "backwards", easing: "ease-out" },
    );
}
