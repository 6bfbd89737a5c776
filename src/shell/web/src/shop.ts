/** What a shop says of a purchase, once or more often. */
export interface PurchaseAnswer {
  result: "done" | "refused" | "failed";
  product: string;
  /** the shop's own name for the purchase, given to no other */
  transaction: string;
  /** no money was asked */
  free: boolean;
}

/** The shop that comes with the page asks no money, so that there is nothing to keep until it is stored. */
export function freePack(product: string): PurchaseAnswer {
  return { result: "done", product, transaction: `free-${transactionName()}`, free: true };
}

function transactionName(): string {
  const words = crypto.getRandomValues(new Uint32Array(4));
  return [...words].map((word) => word.toString(16).padStart(8, "0")).join("");
}
