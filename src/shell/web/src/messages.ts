import type { Alert, AlertButton } from "./protocol";

/** A question or a piece of news of the page's own, in the look of the game's alerts. */
export interface Question {
  title: string;
  message: string;
  buttons: AlertButton[];
  /** Nothing is seen behind it. */
  covers?: boolean;
}

/** What the shell shows of a question; `share` is how much of some work is done, from 0 to 1, and absent for none. */
export interface Asked extends Alert {
  share?: number;
}

/** Work that takes its time: what it is at, and its end. */
export interface Work {
  tell: (what: string, share: number) => void;
  end: () => void;
}

/** A line that floats over the screen for a while, with one thing to press or none. */
export interface Toast {
  text: string;
  button?: string;
  press?: () => void;
  /** Shown only where nothing is open: on the root of a tab, without an alert. */
  onRootsOnly?: boolean;
}

const shortStay = 4000;

/** What the page itself has to say, one after the other. It goes before the alerts of the engine. */
export class Messages {
  /** Called after every change. */
  onChange: () => void = () => {};
  toast: Toast | null = null;

  private readonly questions: { alert: Asked; covers: boolean; answered: (button: number) => void }[] = [];
  private asked = 0;
  private timer = 0;

  /** The question that waits; its key is negative, unlike those of the engine. */
  get alert(): Asked | null {
    return this.questions[0]?.alert ?? null;
  }

  get covers(): boolean {
    return this.questions[0]?.covers ?? false;
  }

  /** Resolves with the number of the pressed button. */
  ask({ title, message, buttons, covers = false }: Question): Promise<number> {
    this.asked += 1;
    const alert = { key: -this.asked, title, message, buttons };
    return new Promise((answered) => {
      this.questions.push({ alert, covers, answered });
      this.onChange();
    });
  }

  /** Tells something that needs no answer but to be read. */
  async tell(title: string, message: string): Promise<void> {
    await this.ask({ title, message, buttons: [{ label: "OK" }] });
  }

  /** Shows that something is being done, until it ends or the player stops it. */
  work(title: string, stop: () => void): Work {
    this.asked += 1;
    const stopping: AlertButton[] = [{ label: "Stop", style: "cancel" }];
    const question = {
      alert: { key: -this.asked, title, message: "", buttons: stopping, share: 0 },
      covers: false,
      answered: stop,
    };
    this.questions.push(question);
    this.onChange();
    return {
      tell: (message, share) => {
        question.alert = { ...question.alert, message, share };
        this.onChange();
      },
      end: () => {
        const place = this.questions.indexOf(question);
        if (place >= 0) this.questions.splice(place, 1);
        this.onChange();
      },
    };
  }

  answer(button: number): void {
    this.questions.shift()?.answered(button);
    this.onChange();
  }

  /** Shows a line in the place of the one before; without a button it goes by itself. */
  show(toast: Toast): void {
    clearTimeout(this.timer);
    this.toast = toast;
    if (!toast.button) this.timer = window.setTimeout(() => this.dropToast(), shortStay);
    this.onChange();
  }

  dropToast(): void {
    clearTimeout(this.timer);
    this.toast = null;
    this.onChange();
  }
}
