import { Engine, EngineFault, loadEngineModule, type Import, type Reply } from "./engine";
import type { HandedFile } from "./files";
import { askToKeep } from "./keeping";
import { Messages } from "./messages";
import type { Answer, PressScreen, View } from "./protocol";
import { obey } from "./requests";
import { readInWorker, rehearseInWorker } from "./reading";
import { makeRoomForCopies } from "./room";
import { asidesOf, isAside, type Row, type StoredRow } from "./rows";
import { Save, type Trouble } from "./save";
import { keepScores, keptScores } from "./scores";
import type { PurchaseAnswer } from "./shop";
import { forgetStops, noteStop, stopsTooOften } from "./stops";

/** What the shell plays: the latest answer of the engine, and the way to press something. */
export interface Player {
  readonly answer: Answer;
  /** How often the engine has been started: with each start, all screens are new ones. */
  readonly launches: number;
  /** Why the save is not being written for the moment, as a sentence; "" while it is. */
  readonly unsaved: string;
  /** What the page itself has to say. */
  readonly messages: Messages;
  act(screen: PressScreen, id: string, value?: string): void;
  /** What a press of a tab that was not opened yet will show first; null when it is open, or there is no telling. */
  ahead(tab: number): View | null;
  /** Called after every change of the members above, but for the messages. */
  onChange: () => void;
}

const troubles: Record<Trouble, string> = {
  "": "",
  full: "Not saved: this device is full. Make room, and it is saved by itself.",
  failing: "Not saved yet. Trying again …",
};

/** The one owner of engine and save. */
export class Game implements Player {
  answer!: Answer;
  launches = 0;
  unsaved = "";
  readonly messages = new Messages();
  onChange: () => void = () => {};
  /** Called when the engine has stopped too often in a row on this save. */
  onStuck: () => void = () => {};
  /** Called when the game cannot go on for another reason. */
  onBroken: (fault: unknown) => void = () => {};

  /** None while the save is being exchanged: what is pressed meanwhile belongs to a screen that is gone. */
  private engine: Engine | null = null;
  /** Nobody has asked for what lies ahead: when that stopped the engine, it is left alone. */
  private looksAhead = true;

  private constructor(
    private readonly module: Promise<WebAssembly.Module>,
    private readonly save: Save,
    private readonly seed: () => string,
  ) {
    save.onTrouble = (trouble) => {
      this.unsaved = troubles[trouble];
      this.onChange();
      if (trouble === "full") void makeRoomForCopies(this);
    };
    save.onCleared = () => void this.storeAnew();
    save.onPacked = (copy) => this.engine?.holdCopies([copy]);
    void save.packCopies();
    addEventListener("beforeunload", (event) => {
      if (this.unsaved) event.preventDefault(); // the browser asks before it throws the unsaved away
    });
  }

  /** False before the first launch, and while the save is being exchanged. */
  get isPlaying(): boolean {
    return this.engine !== null;
  }

  /** Opens the save; the engine is still on its way. `seed` gives the seed of each start of the engine. */
  static async open(seed: () => string): Promise<Game> {
    const module = loadEngineModule("./engine.wasm");
    module.catch(() => {}); // whoever needs the engine hears of it
    return new Game(module, await Save.open(), seed);
  }

  /** Begins a launch. False when the engine has stopped too often in a row for another try. */
  async launch(): Promise<boolean> {
    while (!stopsTooOften()) {
      try {
        const engine = await this.engineOnShelf();
        engine.holdScores(keptScores());
        this.take(engine.start(this.seed(), Date.now()));
        this.engine = engine;
        this.launches += 1;
        return true;
      } catch (fault) {
        this.stopped(fault);
      }
    }
    return false;
  }

  /** Has the engine's parts ready before they are first needed; nothing waits for it. Gives samples of its screens. */
  async rehearse(): Promise<View[]> {
    return rehearseInWorker(await this.module);
  }

  act(screen: PressScreen, id: string, value = ""): void {
    if (!this.engine) return;
    const before = this.answer;
    try {
      this.take(this.engine.act(Date.now(), screen, id, value));
      keepScores(this.engine.changedScores());
    } catch (fault) {
      return this.recover(fault);
    }
    forgetStops();
    this.onChange();
    askToKeep(before, this.answer);
    if (this.answer.request) void obey(this, this.answer);
  }

  ahead(tab: number): View | null {
    if (!this.engine || !this.looksAhead) return null;
    try {
      return this.engine.ahead(tab);
    } catch (fault) {
      this.looksAhead = false;
      this.recover(fault);
      return null;
    }
  }

  /** Hears what the shop answers. */
  takePurchase(answer: PurchaseAnswer): void {
    if (!this.engine) return;
    try {
      this.take(this.engine.purchase(Date.now(), answer));
    } catch (fault) {
      return this.recover(fault);
    }
    this.onChange();
  }

  /** All that was pressed in this launch, as a file. */
  replayFile(): HandedFile | null {
    try {
      return this.engine && { name: "backbeat-replay.txt", bytes: this.engine.trace(), type: "text/plain" };
    } catch (fault) {
      this.recover(fault);
      return null;
    }
  }

  /** The career as a file; null when making it stopped the engine. */
  careerFile(): HandedFile | null {
    try {
      return this.engine?.careerFile() ?? null;
    } catch (fault) {
      this.recover(fault);
      return null;
    }
  }

  /** The stored career as a file, for when no engine runs on it. */
  async storedHandedFile(): Promise<HandedFile> {
    return (await this.engineOnShelf()).careerFile();
  }

  /** What a career file holds, tried on engines of its own; null when it stopped one or was stopped. Nothing changes. */
  readCareer(file: Uint8Array, onStep: (step: number) => void, signal: AbortSignal): Promise<Import | null> {
    const feed: Parameters<typeof readInWorker>[0] = async (tell) => {
      tell({ module: await this.module, copies: await this.save.copies() });
      await this.save.read((rows) => tell({ rows: rows.filter((row) => !isAside(row)) }));
      tell({ file, now: Date.now() });
    };
    return readInWorker(feed, onStep, signal);
  }

  /** Goes on with the career in `batch`, all or nothing: why not, or "". */
  playOn(batch: Row[]): Promise<Trouble> {
    return this.exchange(() => this.save.replace(batch));
  }

  /** Goes on with a kept copy, all or nothing: why not, or "". */
  goBackTo(copy: string, orders: Row[] = []): Promise<Trouble> {
    return this.exchange(() => this.save.restore(copy, orders));
  }

  /** The names of the kept copies, the newest first. */
  async copies(): Promise<string[]> {
    return (await this.save.copies()).map(({ name }) => name).reverse();
  }

  /** The copy that is missed least, but for `spared`, and how a question calls it. */
  spareCopy(spared: string): { name: string; told: string } | null {
    const copy = this.engine?.spareCopy(spared);
    return copy?.name ? copy : null;
  }

  /** The name of a copy that could not be written yet, or "". */
  waitingCopy(): string {
    return this.save.waitingCopy();
  }

  /** Forgets a copy, stored or waiting, and writes what waits. False when it could not be forgotten. */
  giveUp(copy: string): Promise<boolean> {
    this.engine?.giveUpCopy(copy);
    return this.save.giveUp(copy);
  }

  /** Resolves with true once everything is stored, and with false while writing fails. */
  settled(): Promise<boolean> {
    return this.save.settled();
  }

  /** Stops for good: another tab plays on. */
  close(): void {
    this.engine = null;
    this.save.close();
  }

  private async exchange(work: () => Promise<Trouble>): Promise<Trouble> {
    const engine = this.engine;
    this.engine = null;
    const trouble = await work();
    if (trouble) {
      this.engine = engine;
    } else {
      forgetStops();
      await this.relaunch();
    }
    return trouble;
  }

  private async relaunch(): Promise<void> {
    try {
      if (await this.launch()) this.onChange();
      else this.onStuck();
    } catch (fault) {
      this.onBroken(fault);
    }
  }

  private recover(fault: unknown): void {
    this.engine = null;
    this.stopped(fault);
    void this.relaunch().then(() => this.tellOfStop());
  }

  private stopped(fault: unknown): void {
    if (!(fault instanceof EngineFault)) throw fault;
    console.warn(fault.message, fault.cause);
    noteStop();
  }

  private async tellOfStop(): Promise<void> {
    if (!this.engine) return;
    await this.messages.ask({
      title: "The game stopped and is back",
      message: "Something went wrong inside the game. Your last save was loaded: at most your last press is missing.",
      buttons: [{ label: "Play on" }],
      covers: true,
    });
  }

  // The running engine is the only one that still has the career. A file of it, read by a fresh one, gives every row.
  private async storeAnew(): Promise<void> {
    const engine = this.engine;
    if (!engine) return;
    this.engine = null;
    try {
      const { bytes } = engine.careerFile();
      const { batch } = (await this.freshEngine()).import(Date.now(), bytes);
      this.save.write(batch.filter((row) => row.value));
    } catch (fault) {
      return this.onBroken(fault);
    }
    await this.relaunch();
    await this.messages.tell(
      "Stored anew",
      "This browser threw away what Backbeat had stored. Your career was still open and has been stored anew; the kept copies are gone. A file of it (Settings, Export) is safe from that.",
    );
  }

  private async engineOnShelf(): Promise<Engine> {
    // The save is read while the engine is still being made.
    const making = this.freshEngine();
    const refused: StoredRow[] = [];
    const [engine, copies] = await Promise.all([
      making,
      this.save.copies(),
      this.save.read(async (rows) => {
        refused.push(...(await making).hold(rows.filter((row) => !isAside(row))));
      }),
    ]);
    engine.holdCopies(copies);
    if (refused.length > 0) this.putAside(refused);
    return engine;
  }

  private putAside(rows: StoredRow[]): void {
    this.save.write(asidesOf(rows));
    const keys = [...new Set(rows.map(({ key }) => key))].join(", ");
    void this.messages.tell(
      "Part of the save was damaged",
      `It has been put aside, and everything else is here: ${keys}.`,
    );
  }

  private async freshEngine(): Promise<Engine> {
    return Engine.create(await this.module);
  }

  private take({ answer, batch }: Reply): void {
    this.answer = answer;
    this.save.write(batch);
  }
}

/** The seed of a launch: the one in the address (`?seed=17`), else a random 64-bit number; as decimal text. */
export function launchSeed(address: string): string {
  const fixed = new URL(address).searchParams.get("seed");
  if (fixed && /^\d{1,20}$/.test(fixed)) return fixed;
  return String(crypto.getRandomValues(new BigUint64Array(1))[0]);
}
