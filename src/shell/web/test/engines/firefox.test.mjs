import { checkEngine } from "./checks.mjs";
import { firefox } from "./firefox.mjs";

checkEngine("Firefox", firefox);
