/** Names the chunks of the game in the page, so that they come beside the small part that begins, and not after it. */
export function fetchTogether() {
  return {
    name: "fetch-together",
    apply: "build",
    transformIndexHtml: {
      order: "post",
      handler(_, { bundle }) {
        const chunks = Object.values(bundle).filter(({ type }) => type === "chunk");
        const game = chunks.find(({ name }) => name === "main");
        const together = game ? [game.fileName, ...game.imports] : [];
        return together
          .filter((name) => !bundle[name].isEntry)
          .map((name) => ({
            tag: "link",
            attrs: { rel: "modulepreload", crossorigin: true, href: `./${name}` },
            injectTo: "head",
          }));
      },
    },
  };
}

const asked = "new Intl.NumberFormat(domEnv ? nav.language : 'en-US')";

/**
 * At its import the chart library asks for the numbers of the browser's language, and fails where that is no language
 * ("C"). The page writes all its numbers the same way everywhere.
 */
export function chartsInEnglish() {
  return {
    name: "charts-in-english",
    transform(code, id) {
      if (!id.endsWith("/uPlot.esm.js")) return null;
      if (!code.includes(asked))
        throw new Error("The chart library asks for the browser's language in another way now.");
      return { code: code.replace(asked, "new Intl.NumberFormat('en-US')"), map: null };
    },
  };
}
