import "@fontsource-variable/inter";
import "uplot/dist/uPlot.min.css";
import "./theme.css";
import { setAppearance } from "./appearance";
import { tellBroken } from "./broken";

setAppearance("system");
// Whatever the game is made of may fail to arrive or to begin here; this small part is then there to say so.
import("./main").catch(tellBroken);
