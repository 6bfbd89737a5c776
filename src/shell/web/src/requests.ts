import { handOver, pickFile, type HandedFile } from "./files";
import type { Game } from "./game";
import type { Answer } from "./protocol";
import { steps } from "./reading";
import { withRoom } from "./room";
import type { Trouble } from "./save";
import { freePack } from "./shop";

/** Does what the engine asks of the page after a press. */
export async function obey(game: Game, { request, snapshot, product, text }: Answer): Promise<void> {
  if (request === "export") await handOut(game, game.careerFile());
  if (request === "replay") await handOut(game, game.replayFile());
  if (request === "purchase" && product) game.takePurchase(freePack(product));
  if (request === "review") game.messages.show({ text: "Thank you. That you play it is what we hoped for." });
  if (request === "feedback") writeToTheMakers(text ?? "");
  if (request === "import") {
    const file = await pickFile();
    if (file) await offerCareer(game, file);
  }
  if (request === "restore" && snapshot) await goBack(game, snapshot);
}

/** Opens the player's own mail program on a letter; whether it is sent is theirs to say. */
function writeToTheMakers(facts: string): void {
  const address: string = import.meta.env.VITE_FEEDBACK_ADDRESS ?? "";
  const body = `\n\n\n${facts}\n${navigator.userAgent}`;
  const link = document.createElement("a");
  link.href = `mailto:${address}?subject=${encodeURIComponent("Backbeat")}&body=${encodeURIComponent(body)}`;
  link.click();
}

async function handOut(game: Game, file: HandedFile | null): Promise<void> {
  if (file && (await handOver(file)) === "downloaded") game.messages.show({ text: `Saved as ${file.name}` });
}

/** Reads the file and asks whether the career in it is to go on here. */
export async function offerCareer(game: Game, file: File): Promise<void> {
  const { messages } = game;
  const stop = new AbortController();
  const progress = messages.work(file.name, () => stop.abort());
  const onStep = (step: number): void => progress.tell(`${steps[step]} …`, (step + 1) / (steps.length + 1));
  const bytes = await file.arrayBuffer().catch(() => null);
  const read = bytes && (await game.readCareer(new Uint8Array(bytes), onStep, stop.signal));
  progress.end();
  if (stop.signal.aborted) return messages.show({ text: "Stopped. Nothing has changed." });
  if (!read) return messages.tell("Nothing Changed", `${file.name} could not be read.`);
  if (read.problem) return messages.tell("Nothing Changed", `${file.name}\n\n${read.problem}`);
  const agreed = await messages.ask({
    title: "Import?",
    message: `The career in ${file.name} takes the place of the one on this device, which is kept aside as "Before the import".${paragraphs([read.givesUp, ...read.mended])}${lacking(read.missing)}`,
    buttons: [
      { label: "Close", style: "cancel" },
      { label: "Import", style: "destructive" },
    ],
  });
  if (agreed !== 1) return;
  const trouble = await withRoom(game, "", () => game.playOn(read.batch));
  await tellHowItWent(game, trouble, "Your imported career goes on here.");
}

async function goBack(game: Game, copy: string): Promise<void> {
  const trouble = await withRoom(game, copy, () => game.goBackTo(copy));
  await tellHowItWent(game, trouble, "You are back.");
}

async function tellHowItWent({ messages }: Game, trouble: Trouble, done: string): Promise<void> {
  if (!trouble) return messages.show({ text: done });
  await messages.tell(
    "Nothing Changed",
    "It could not be stored on this device, perhaps for want of room. Today's career goes on as it was.",
  );
}

function paragraphs(sentences: string[]): string {
  return sentences.map((sentence) => sentence && `\n\n${sentence}`).join("");
}

function lacking(keys: string[]): string {
  if (keys.length === 0) return "";
  const told = keys.slice(0, 5).join(", ");
  const more = keys.length > 5 ? ` and ${keys.length - 5} more` : "";
  return `\n\nThe file lacks ${told}${more}; there the career begins anew.`;
}
