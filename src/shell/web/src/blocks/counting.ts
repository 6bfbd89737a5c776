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
