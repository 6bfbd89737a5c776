/** What tests of the whole game do as a player would. */
import { spawnSync } from "node:child_process";
import { careerFile } from "../../../../tests/wasm/careers.mjs";

export const press = (page, name) => page.locator(".layer.top, .tab-bar").getByRole("button", { name }).first().click();

export async function answerAlerts(page) {
  const alert = page.locator(".alert[open]");
  while (await alert.count()) await alert.getByRole("button").first().click();
}

/** Names the artist and begins. */
export async function start(page, name = "Nova Reyes") {
  await page.getByRole("textbox", { name: "Artist name" }).fill(name);
  await press(page, "Start the career");
  await page.locator(".tab-bar:not([inert])").waitFor();
  await answerAlerts(page);
}

export async function endTheWeek(page) {
  await press(page, /^Home/);
  await press(page, "END THE WEEK");
  await answerAlerts(page);
  await press(page, "Continue");
  await answerAlerts(page);
}

/** Does what starts the engine anew, and waits for that. */
export async function launched(page, ask) {
  const launches = await page.evaluate(() => document.querySelector("backbeat-app").player.launches);
  await ask();
  await page.waitForFunction((n) => document.querySelector("backbeat-app").player.launches > n, launches);
}

/** Opens the settings and presses one of their rows. */
export async function setting(page, name) {
  await press(page, "Home");
  await press(page, /^Settings/);
  await press(page, name);
}

/** Hands a file to the import, up to its question. */
export async function offerCareer(page, name, bytes) {
  const [picker] = await Promise.all([page.waitForEvent("filechooser"), setting(page, /^Import/)]);
  await picker.setFiles({ name, mimeType: "application/octet-stream", buffer: Buffer.from(bytes) });
  await page.locator(".alert[open]:not(:has(progress))").waitFor();
}

/** Goes on with the career in a file. */
export async function takeCareer(page, name, bytes) {
  await offerCareer(page, name, bytes);
  await launched(page, () => page.locator(".alert").getByRole("button", { name: "Import" }).click());
  await page.getByText("Your imported career goes on here.").waitFor();
}

/** The career in the file that the page hands out after `ask`. */
export async function downloaded(page, ask) {
  const [download] = await Promise.all([page.waitForEvent("download"), ask()]);
  const pieces = [];
  for await (const piece of await download.createReadStream()) pieces.push(piece);
  return { name: download.suggestedFilename(), bytes: Buffer.concat(pieces) };
}

/** A career that was played to its end without a page, as a file. */
export const playedCareer = (name = "golden_year") => careerFile(name);

/** The file as another program writes it anew, after `change` (a line of Python over the dictionary `career`). */
export function rewritten(bytes, change = "pass") {
  const program = `import plistlib, sys
career = plistlib.loads(sys.stdin.buffer.read())
${change}
sys.stdout.buffer.write(plistlib.dumps(career, fmt=plistlib.FMT_BINARY))`;
  const { stdout, stderr, status } = spawnSync("python3", ["-c", program], { input: bytes, maxBuffer: 1 << 28 });
  if (status !== 0) throw new Error(String(stderr));
  return stdout;
}
