import { checkEngine } from "./checks.mjs";
import { webkit } from "./webkit.mjs";

checkEngine("WebKit", webkit);
