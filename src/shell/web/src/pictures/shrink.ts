/** The longest side of a kept photo, in pixels, and the most characters its address may have. */
const longestSide = 512;
const longestAddress = 200_000;

/** A chosen picture as a small JPEG in a data: address, or nothing when the file is no picture. */
export async function shrunkPicture(file: Blob): Promise<string | undefined> {
  let picture: ImageBitmap;
  try {
    picture = await createImageBitmap(file);
  } catch {
    return undefined;
  }
  for (let side = longestSide; side >= 64; side /= 2) {
    const scale = Math.min(1, side / Math.max(picture.width, picture.height));
    const canvas = document.createElement("canvas");
    canvas.width = Math.max(1, Math.round(picture.width * scale));
    canvas.height = Math.max(1, Math.round(picture.height * scale));
    canvas.getContext("2d")?.drawImage(picture, 0, 0, canvas.width, canvas.height);
    const address = canvas.toDataURL("image/jpeg", 0.82);
    if (address.length <= longestAddress) return address;
  }
  return undefined;
}
