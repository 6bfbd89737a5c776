import { html, LitElement, nothing, type TemplateResult } from "lit";
import uPlot from "uplot";
import { painted } from "../motion";
import type { Chart } from "../protocol";
import type { Scene } from "../scene";
import { toneClass } from "./parts";

const plotHeight = 190;

/** A big figure over a line or bars. */
class ChartElement extends LitElement {
  static override properties = {
    // Every press describes the screen anew; only a chart that is really another one is drawn again.
    chart: { attribute: false, hasChanged: (a: Chart, b: Chart) => JSON.stringify(a) !== JSON.stringify(b) },
    scene: { attribute: false },
  };
  declare chart: Chart;
  declare scene: Scene;

  private plot: uPlot | null = null;
  private readonly resized = new ResizeObserver(() => this.fit());
  private readonly repaint = (): void => this.draw();

  protected override createRenderRoot(): this {
    return this;
  }

  override connectedCallback(): void {
    super.connectedCallback();
    this.resized.observe(this);
    document.addEventListener("appearancechange", this.repaint);
    document.fonts.addEventListener("loadingdone", this.repaint);
    if (this.hasUpdated) this.draw();
  }

  override disconnectedCallback(): void {
    super.disconnectedCallback();
    this.resized.disconnect();
    document.removeEventListener("appearancechange", this.repaint);
    document.fonts.removeEventListener("loadingdone", this.repaint);
    this.plot?.destroy();
    this.plot = null;
  }

  protected override render(): TemplateResult {
    const { title, value, note, tone, id } = this.chart;
    const label = html`<span class="chart-title" dir="auto">${title}</span>`;
    return html`<section class="chart card ${toneClass(tone)}">
      ${
        title
          ? id
            ? html`<button class="whole-card" type="button" @click=${() => this.scene.press(id)}>${label}</button>`
            : label
          : nothing
      }
      ${value ? html`<span class="chart-value" dir="auto" style="--letters:${value.length}">${value}</span>` : nothing}
      ${note ? html`<span class="chart-note" dir="auto">${note}</span>` : nothing} ${this.plotOrNothing()}
    </section>`;
  }

  /** One point is no line: the figure says it all. */
  private plotOrNothing(): TemplateResult | typeof nothing {
    const known = this.points().filter((point) => point !== null);
    if (!known.some((point) => point !== 0)) return html`<p class="plot-empty">Nothing to show yet</p>`;
    if (known.length === 1 && this.chart.style !== "bars" && this.chart.value) return nothing;
    return html`<div class="plot" role="img" aria-label=${this.spoken()}></div>`;
  }

  // A plot takes longer than all the rest of its screen, and its room is there already.
  protected override updated(): void {
    void painted().then(() => this.isConnected && this.draw());
  }

  private points(): (number | null)[] {
    return (this.chart.points ?? []).map((point) => (Number.isFinite(point) ? point : null));
  }

  private spoken(): string {
    const points = this.points().filter((point) => point !== null);
    const kind = this.chart.style === "bars" ? "Bars" : "Line";
    return `${kind} from ${abbreviated(points[0] ?? 0)} to ${abbreviated(points.at(-1) ?? 0)}`;
  }

  private fit(): void {
    const host = this.querySelector<HTMLElement>(".plot");
    if (host && this.plot && host.clientWidth !== this.plot.width) {
      this.plot.setSize({ width: host.clientWidth, height: plotHeight });
    } else if (!this.plot) {
      this.draw();
    }
  }

  private draw(): void {
    this.plot?.destroy();
    this.plot = null;
    const host = this.querySelector<HTMLElement>(".plot");
    if (!host || host.clientWidth === 0) return;
    const points = this.points();
    const numbers = points.map((_, i) => i);
    this.plot = new uPlot(this.options(host, points), [numbers, points], host);
  }

  private options(host: HTMLElement, points: (number | null)[]): uPlot.Options {
    const css = getComputedStyle(this);
    const colour = (name: string): string => css.getPropertyValue(name).trim();
    const bars = this.chart.style === "bars";
    const axis = { stroke: colour("--text-3"), font: `500 12px ${colour("--font")}`, ticks: { show: false } };
    const last = points.length - 1;
    const ticks = ticksOf(points, bars);
    const headroom = (ticks.at(-1)! - ticks[0]!) * 0.04;
    return {
      width: host.clientWidth,
      height: plotHeight,
      padding: [14, 0, 0, 18],
      cursor: { show: false },
      legend: { show: false },
      scales: {
        x: { time: false, range: bars || last === 0 ? [-0.6, last + 0.6] : [0, last] },
        y: { range: [ticks[0]!, Math.max(ticks.at(-1)!, ...points.map(Number)) + headroom] },
      },
      axes: [
        {
          ...axis,
          size: 28,
          gap: 8,
          grid: { show: false },
          splits: () => this.labelled(),
          values: (_, at) => at.map((i) => this.chart.labels?.[i] ?? ""),
        },
        {
          ...axis,
          side: 1,
          size: 58,
          gap: 16,
          splits: () => ticks,
          grid: { stroke: colour("--hairline"), width: 1 },
          values: (_, at) => toldApart(at),
        },
      ],
      series: [{}, bars ? barSeries(colour) : lineSeries(colour)],
      hooks: bars ? {} : { draw: [(plot) => endDot(plot, points, colour)] },
    };
  }

  /** A few of the points that have a label, evenly chosen. */
  private labelled(): number[] {
    const named = (this.chart.labels ?? []).flatMap((label, i) => (label && i < this.points().length ? [i] : []));
    if (named.length <= 4) return named;
    const step = Math.ceil(named.length / 3);
    const first = Math.floor(((named.length - 1) % step) / 2);
    return named.filter((_, i) => i >= first && (i - first) % step === 0);
  }
}

function lineSeries(colour: (name: string) => string): uPlot.Series {
  return {
    stroke: colour("--accent"),
    width: 3,
    cap: "round",
    paths: uPlot.paths.spline!(),
    points: { show: false },
    fill: (plot) => vertical(plot, colour("--chart-fill"), colour("--chart-fade")),
  };
}

function barSeries(colour: (name: string) => string): uPlot.Series {
  return {
    width: 0,
    paths: uPlot.paths.bars!({ size: [0.62, 26], radius: 0.22 }),
    points: { show: false },
    fill: (plot) => vertical(plot, colour("--accent"), colour("--bar-foot")),
  };
}

function vertical(plot: uPlot, from: string, to: string): CanvasGradient {
  const gradient = plot.ctx.createLinearGradient(0, plot.bbox.top, 0, plot.bbox.top + plot.bbox.height);
  gradient.addColorStop(0, from);
  gradient.addColorStop(1, to);
  return gradient;
}

function endDot(plot: uPlot, points: (number | null)[], colour: (name: string) => string): void {
  const at = points.findLastIndex((point) => point !== null);
  if (at < 0) return;
  const x = plot.valToPos(at, "x", true);
  const y = plot.valToPos(points[at]!, "y", true);
  const scale = devicePixelRatio;
  for (const [radius, fill] of [
    [9, colour("--chart-fill")],
    [6, colour("--accent")],
    [3.5, "#fff"],
  ] as const) {
    plot.ctx.beginPath();
    plot.ctx.arc(x, y, radius * scale, 0, Math.PI * 2);
    plot.ctx.fillStyle = fill;
    plot.ctx.fill();
  }
}

/** The round numbers beside the plot, from its foot upwards: three or four, two between neighbours, and never an empty range. */
function ticksOf(points: (number | null)[], bars: boolean): number[] {
  const known = points.filter((point) => point !== null);
  let low = Math.min(...known, bars ? 0 : Infinity);
  let high = Math.max(...known, bars ? 0 : -Infinity);
  if (low === high) {
    const room = Math.abs(high) / 2 || 1;
    if (!bars || low !== 0) low = low >= 0 ? Math.max(0, low - room) : low - room;
    high += room;
  }
  const rough = (high - low) / 3;
  const power = 10 ** Math.floor(Math.log10(rough));
  const round = [1, 2, 2.5, 5, 10].map((factor) => factor * power).find((size) => size >= rough)!;
  const step = known.every(Number.isInteger) ? Math.max(1, round) : round; // there is no half of a listener
  const first = Math.floor(low / step);
  const steps = Math.max(1, Math.floor(high / step) - first);
  return Array.from({ length: steps + 1 }, (_, i) => (first + i) * step);
}

/** The numbers of an axis, with as many digits as it takes to tell them apart. */
function toldApart(values: number[]): string[] {
  const short = (digits: number): string[] => values.map((value) => abbreviated(value, digits));
  const enough = [3, 4, 5, 6].find((digits) => new Set(short(digits)).size === values.length);
  return short(enough ?? 6);
}

/** A number as short as an axis needs it: 1250000 is "1.25M". */
function abbreviated(value: number, digits = 3): string {
  return new Intl.NumberFormat("en-US", { notation: "compact", maximumSignificantDigits: digits }).format(value);
}

customElements.define("bb-chart", ChartElement);
