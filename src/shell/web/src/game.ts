import { Engine, EngineFault, loadEngineModule, type Reply } from "./engine";
import type { Answer, PressScreen } from "./protocol";
import { Save } from "./save";

/** What the shell plays: the latest answer of the engine, and the way to press something. */
export interface Player {
  readonly answer: Answer;
  /** Writing the save fails for the moment. */
  readonly failing: boolean;
  /** The engine stopped and was started again from the last save; lasts until the player has read it. */
  readonly recovered: boolean;
  act(screen: PressScreen, id: string, value?: string): void;
  acknowledgeRecovery(): void;
  /** Called after every change of the members above. */
  onChange: () => void;
}

/** The one owner of engine and save. */
export class Game implements Player {
  answer!: Answer;
  failing = false;
  recovered = false;
  onChange: () => void = () => {};
  /** Called when even a fresh engine cannot go on with the save. */
  onBroken: (fault: unknown) => void = () => {};

  private engine: Engine | null = null;

  private constructor(
    private readonly module: WebAssembly.Module,
    private readonly save: Save,
    private readonly seed: () => string,
  ) {}

  /** Loads engine and save and begins a launch. `seed` gives the seed of each start of the engine. */
  static async open(seed: () => string): Promise<Game> {
    const [module, save] = await Promise.all([loadEngineModule("./engine.wasm"), Save.open()]);
    const game = new Game(module, save, seed);
    save.onFailing = (failing) => {
      game.failing = failing;
      game.onChange();
    };
    await game.launch();
    addEventListener("beforeunload", (event) => {
      if (game.failing) event.preventDefault(); // the browser asks before it throws the unsaved away
    });
    return game;
  }

  act(screen: PressScreen, id: string, value = ""): void {
    if (!this.engine) return; // recovering: what was pressed belongs to a screen that is gone
    try {
      this.take(this.engine.act(Date.now(), screen, id, value));
    } catch (fault) {
      if (!(fault instanceof EngineFault)) throw fault;
      console.warn(fault.message, fault.cause);
      void this.recover();
      return;
    }
    this.onChange();
  }

  acknowledgeRecovery(): void {
    this.recovered = false;
    this.onChange();
  }

  /** Stops for good: another tab plays on. */
  close(): void {
    this.engine = null;
    this.save.close();
  }

  private async recover(): Promise<void> {
    this.engine = null;
    try {
      await this.launch();
      this.recovered = true;
      this.onChange();
    } catch (fault) {
      this.onBroken(fault);
    }
  }

  private async launch(): Promise<void> {
    const [engine, rows] = await Promise.all([Engine.create(this.module), this.save.load()]);
    for (const { key, chunk, value } of rows) if (value) engine.row(key, chunk, value);
    this.take(engine.start(this.seed(), Date.now()));
    this.engine = engine;
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
