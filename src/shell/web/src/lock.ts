const lockName = "backbeat";

/**
 * Takes the save for this tab, so that two tabs never overwrite each other. Answers false when another tab has it and
 * `steal` is off. `onLost` is called when another tab takes it away later.
 */
export async function takeSave(steal: boolean, onLost: () => void): Promise<boolean> {
  if (!navigator.locks) return true;
  // The page that a reload leaves behind may hold the lock for a moment longer.
  for (let attempt = 0; attempt < 5; attempt += 1) {
    if (await request(steal, onLost)) return true;
    await new Promise((resolve) => setTimeout(resolve, 100));
  }
  return false;
}

function request(steal: boolean, onLost: () => void): Promise<boolean> {
  return new Promise((resolve) => {
    navigator.locks
      .request(lockName, steal ? { steal } : { ifAvailable: true }, (lock) => {
        resolve(lock !== null);
        return lock ? new Promise<never>(() => {}) : undefined; // held as long as the page lives
      })
      .catch(onLost);
  });
}
