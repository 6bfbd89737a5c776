import { defineConfig } from "vite";

// Relative addresses everywhere, so that the page works in any folder of any server.
export default defineConfig({
  base: "./",
  build: {
    target: ["es2022", "safari16"],
    outDir: "dist",
    emptyOutDir: true,
    modulePreload: { polyfill: false },
    assetsInlineLimit: 0,
    reportCompressedSize: false,
  },
});
