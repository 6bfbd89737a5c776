/** Runs a share from 0 to 1 within that time, quick at first and slow at the end. The answer stops it where it is. */
export function runShare(ms: number, show: (share: number) => void): () => void {
  const start = performance.now();
  let frame = 0;
  const step = (now: number): void => {
    const passed = Math.min(1, Math.max(0, (now - start) / ms));
    if (passed < 1) frame = requestAnimationFrame(step);
    show(1 - (1 - passed) ** 3);
  };
  frame = requestAnimationFrame(step);
  return () => cancelAnimationFrame(frame);
}

const number = /\d[\d,]*(\.\d+)?/;

const amountOf = (digits: string): number => Number(digits.replaceAll(",", ""));

/** A finished text with its number at a part of the way from that of another: halfway from "$1,000" to "$1,250" is "$1,125". */
export function between(from: string, to: string, share: number): string {
  const start = amountOf(number.exec(from)?.[0] ?? "0");
  return to.replace(number, (digits, decimals: string | undefined) => {
    const places = decimals ? decimals.length - 1 : 0;
    const part = start + (amountOf(digits) - start) * share;
    return part.toLocaleString("en-US", { minimumFractionDigits: places, maximumFractionDigits: places });
  });
}
