/** How a career leaves the page and comes back, and how a picture leaves it: as a file in the player's hands. */

export interface HandedFile {
  name: string;
  bytes: Uint8Array<ArrayBuffer>;
  /** what apps know it by; a career is nothing that they know */
  type?: string;
}

/** What became of a file: handed to another app, put where downloads go, or kept back by the player. */
export type Handed = "shared" | "downloaded" | "cancelled";

/** Hands the player a file: through the device's share sheet where it takes such files, else as a download. */
export async function handOver({ name, bytes, type = "application/octet-stream" }: HandedFile): Promise<Handed> {
  const file = new File([bytes], name, { type });
  if (isTouched() && navigator.canShare?.({ files: [file] })) {
    try {
      await navigator.share({ files: [file], title: name });
      return "shared";
    } catch (failed) {
      if (failed instanceof DOMException && failed.name === "AbortError") return "cancelled";
    }
  }
  download(file);
  return "downloaded";
}

/** Asks for a file; null when none was chosen. Only in answer to a press. */
export function pickFile(): Promise<File | null> {
  const input = document.createElement("input");
  input.type = "file";
  input.hidden = true;
  document.body.append(input); // some browsers do not open a picker that hangs in the air
  return new Promise<File | null>((picked) => {
    input.addEventListener("change", () => picked(input.files?.[0] ?? null));
    input.addEventListener("cancel", () => picked(null));
    input.click();
  }).finally(() => input.remove());
}

function download(file: File): void {
  const link = document.createElement("a");
  link.href = URL.createObjectURL(file);
  link.download = file.name;
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 60_000);
}

/** On a desk a download is what one expects. */
function isTouched(): boolean {
  return matchMedia("(pointer: coarse)").matches;
}
