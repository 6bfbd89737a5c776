import { defineConfig } from "vite";
import { chartsInEnglish, fetchTogether } from "./plugins/begin.mjs";
import { licences } from "./plugins/licences.mjs";
import { offline } from "./plugins/offline.mjs";

// Relative addresses everywhere, so that the page works in any folder of any server.
export default defineConfig({
  base: "./",
  plugins: [chartsInEnglish(), fetchTogether(), licences(), offline()],
  build: {
    target: ["es2022", "safari16"],
    outDir: "dist",
    emptyOutDir: true,
    modulePreload: { polyfill: false },
    assetsInlineLimit: 0,
    reportCompressedSize: false,
  },
});
