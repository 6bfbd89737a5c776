/** What can be wrong with the looks of a page, as lists of faults. */
import { drawnWhole } from "../tools/whole.mjs";

/** Waits for what is drawn below the first screenful, and brings all that fades or slides to its end. */
export async function quiet(page) {
  await page.evaluate(() => document.fonts.ready.then(() => {}));
  await drawnWhole(page);
  await page.evaluate(() => {
    for (const animation of document.getAnimations()) {
      if (animation.effect.getComputedTiming().endTime !== Infinity) animation.finish();
    }
  });
}

/** What axe, which must be in the page, finds serious; of the named rules alone when there are any. */
export async function barriers(page, ...rules) {
  const { violations } = await page.evaluate(async (rules) => {
    // What nobody can reach for the moment is looked at when it is on top; till then axe need not read through it.
    const aside = [...document.querySelectorAll(".layer:not(.top, .left, .right)")].map((layer) => {
      const place = document.createComment("");
      layer.replaceWith(place);
      return () => place.replaceWith(layer);
    });
    const found = await window.axe.run({
      resultTypes: ["violations"],
      selectors: false,
      ...(rules.length > 0 && { runOnly: rules }),
    });
    for (const putBack of aside) putBack();
    return found;
  }, rules);
  return violations
    .filter(({ impact }) => impact === "serious" || impact === "critical")
    .map(({ id, nodes }) => `${id}: ${nodes.map((node) => node.html.slice(0, 120)).join(" | ")}`);
}

/** What sticks out of the screen or of the row, card or button it lies in. */
export function tooWide(page) {
  return page.evaluate(() => {
    const scroll = document.querySelector(".layer.top .scroll");
    const room = scroll.getBoundingClientRect();
    const found = scroll.scrollWidth > scroll.clientWidth ? ["the screen scrolls sideways"] : [];
    const pieces = ".status > *, .row-main > *, .card > *, .button > *, .heading > *, .line > *, .dock > *";
    for (const piece of scroll.querySelectorAll(pieces)) {
      const box = piece.getBoundingClientRect();
      if (box.width === 0 || piece.classList.contains("unseen") || piece.closest(".table, .strip, .tree")) continue;
      if (box.left < room.left - 0.5 || box.right > room.right + 0.5) found.push(piece.outerHTML.slice(0, 120));
    }
    const status = [...scroll.querySelectorAll(".status > *")].map((piece) => piece.getBoundingClientRect());
    for (const [i, a] of status.entries()) {
      for (const b of status.slice(i + 1)) {
        const apart = a.right <= b.left + 0.5 || b.right <= a.left + 0.5 || a.bottom <= b.top || b.bottom <= a.top;
        if (!apart) found.push("pieces of the status row overlap");
      }
    }
    return found;
  });
}

/** Controls that a finger cannot get at, however it scrolls. A toast covers some for a moment, and goes by itself. */
export function unreachable(page) {
  return page.evaluate(() => {
    const dialog = document.querySelector("dialog[open]");
    const roots = dialog
      ? [dialog]
      : [document.querySelector(".layer.top"), document.querySelector(".tab-bar:not([inert])")];
    const controls = roots.flatMap((root) => [...(root?.querySelectorAll("button, input, textarea, select") ?? [])]);
    const visible = controls.filter((control) => control.checkVisibility() && control.getClientRects().length > 0);
    return visible
      .filter((control) => {
        control.scrollIntoView({ block: "center" });
        const { left, top, width, height } = control.getBoundingClientRect();
        const hit = document.elementFromPoint(left + width / 2, top + height / 2);
        return !hit || !(control.contains(hit) || control.closest("label")?.contains(hit) || hit.closest(".toast"));
      })
      .map((control) => `out of reach: ${control.outerHTML.slice(0, 120)}`);
  });
}

/** Words of usual length that a line breaks in the middle. */
export function brokenWords(page) {
  return page.evaluate(() => {
    const scroll = document.querySelector("dialog[open]") ?? document.querySelector(".layer.top .scroll");
    const texts = document.createTreeWalker(scroll, NodeFilter.SHOW_TEXT);
    const range = document.createRange();
    const found = [];
    while (texts.nextNode()) {
      const text = texts.currentNode;
      if (text.parentElement.closest(".unseen") || !text.parentElement.checkVisibility()) continue;
      for (const { 0: word, index } of text.data.matchAll(/(?<=^|\s)[\p{L}\p{N}$.,%]{2,13}(?=\s|$)/gu)) {
        range.setStart(text, index);
        range.setEnd(text, index + word.length);
        const lines = new Set([...range.getClientRects()].map(({ top }) => Math.round(top)));
        if (lines.size > 1) found.push(`broken word: ${word} in ${text.parentElement.outerHTML.slice(0, 90)}`);
      }
    }
    return found;
  });
}

/** What a screen opens with and the browser is told to leave out until it has come near: it would slide in empty. */
export function drawnLate(page) {
  return page.evaluate(() =>
    [...document.querySelectorAll(".layer.top .blocks *")]
      .filter((piece) => getComputedStyle(piece).contentVisibility === "auto")
      .filter((piece) => {
        const scrolled = piece.closest(".scroll")?.scrollTop ?? 0; // what a reader scrolled to was drawn by then
        return piece.getBoundingClientRect().top + scrolled < innerHeight;
      })
      .map((piece) => `drawn late: ${piece.outerHTML.slice(0, 90)}`),
  );
}

/** Rings around what the keyboard reached that something cuts off. */
export async function cutRings(page) {
  await page.keyboard.press("Shift");
  return page.evaluate(() => {
    const was = document.activeElement;
    const root = document.querySelector("dialog[open]") ?? document.querySelector(".layer.top .blocks");
    const cut = [...root.querySelectorAll("button, input, textarea")].filter((control) => {
      control.focus({ preventScroll: true });
      const { outlineStyle, outlineWidth, outlineOffset } = getComputedStyle(control);
      if (outlineStyle === "none") return false;
      const reach = parseFloat(outlineWidth) + parseFloat(outlineOffset) - 1;
      const box = control.getBoundingClientRect();
      for (let frame = control.parentElement; frame !== root.parentElement; frame = frame.parentElement) {
        const { overflowX, overflowY } = getComputedStyle(frame);
        const edge = frame.getBoundingClientRect();
        if (overflowX !== "visible" && (box.left - reach < edge.left || box.right + reach > edge.right)) return true;
        if (overflowY === "hidden" && (box.top - reach < edge.top || box.bottom + reach > edge.bottom)) return true;
      }
      return false;
    });
    was?.focus({ preventScroll: true });
    return cut.map((control) => `cut ring: ${control.outerHTML.slice(0, 90)}`);
  });
}
