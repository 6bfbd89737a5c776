/** Resolves when the browser has nothing better to do. */
export function leisure(): Promise<void> {
  // Not every browser tells; there a moment after the frame has to do.
  if (!("requestIdleCallback" in window)) return new Promise((done) => setTimeout(done, 50));
  return new Promise((done) => requestIdleCallback(() => done()));
}
