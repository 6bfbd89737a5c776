import { audio } from "./audio";
import { hookLength, tuneOf, type Note, type Tune } from "./tune";

/** Plays a hook from its beginning; the answer stops it. `ended` is called when it is over, but not when it is stopped. */
export function playHook(hook: string, ended: () => void): () => void {
  const context = audio();
  const out = context.createGain();
  const start = context.currentTime + 0.05;
  const end = start + hookLength;
  out.gain.setValueAtTime(0.16, start);
  out.gain.setValueAtTime(0.16, end - 1);
  out.gain.linearRampToValueAtTime(0, end);
  out.connect(context.destination);
  const tune = tuneOf(hook);
  for (const note of tune.notes) sound(context, out, tune, note, start);
  const timer = setTimeout(() => {
    out.disconnect();
    ended();
  }, hookLength * 1000);
  return () => {
    clearTimeout(timer);
    out.disconnect();
  };
}

function sound(to: AudioContext, out: AudioNode, tune: Tune, note: Note, start: number): void {
  const at = start + note.at;
  const shape = to.createGain();
  shape.gain.setValueAtTime(0, at);
  shape.gain.linearRampToValueAtTime(note.loudness, at + 0.012);
  shape.gain.exponentialRampToValueAtTime(0.001, at + note.length);
  shape.connect(out);
  const source =
    note.voice === "snare" || note.voice === "hat" ? noise(to, note, shape) : tone(to, tune, note, at, shape);
  source.start(at);
  source.stop(at + note.length + 0.05);
}

function tone(to: AudioContext, tune: Tune, note: Note, at: number, shape: AudioNode): AudioScheduledSourceNode {
  const oscillator = to.createOscillator();
  oscillator.type = note.voice === "lead" ? tune.lead : note.voice === "kick" ? "sine" : "triangle";
  if (note.voice === "kick") {
    oscillator.frequency.setValueAtTime(130, at);
    oscillator.frequency.exponentialRampToValueAtTime(45, at + 0.12);
  } else {
    oscillator.frequency.setValueAtTime(note.pitch, at);
  }
  // Rough voices are heard through a cloth.
  const cloth = to.createBiquadFilter();
  cloth.frequency.value = note.voice === "lead" ? 2600 : 1400;
  oscillator.connect(cloth).connect(shape);
  return oscillator;
}

let hiss: AudioBuffer | null = null;

function noise(to: AudioContext, note: Note, shape: AudioNode): AudioScheduledSourceNode {
  if (!hiss) {
    hiss = to.createBuffer(1, to.sampleRate / 2, to.sampleRate);
    const samples = hiss.getChannelData(0);
    for (let i = 0; i < samples.length; i += 1) samples[i] = Math.random() * 2 - 1;
  }
  const source = to.createBufferSource();
  source.buffer = hiss;
  const band = to.createBiquadFilter();
  band.type = note.voice === "hat" ? "highpass" : "bandpass";
  band.frequency.value = note.voice === "hat" ? 7000 : 1800;
  source.connect(band).connect(shape);
  return source;
}
