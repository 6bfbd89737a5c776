/** What is cut out of a picture: a square, or a view three times as wide as high. */
export type Shape = "square" | "wide";

export const ratioOf = (shape: Shape): number => (shape === "wide" ? 3 : 1);

/** Which part of a picture is cut out: how much larger than it need be, and where, each way from 0 to 1. */
export interface Cut {
  zoom: number;
  across: number;
  down: number;
}

/** The longest side of a kept photo, in pixels, and the most characters its address may have. */
const longestSides: Record<Shape, number> = { square: 512, wide: 1024 };
const longestAddress = 200_000;

/** A file as a picture, or nothing when it is none. */
export function pictureIn(file: Blob): Promise<ImageBitmap | null> {
  return createImageBitmap(file).catch(() => null);
}

/** Draws what is cut out of a picture, as large as the canvas. */
export function drawCut(canvas: HTMLCanvasElement, picture: ImageBitmap, shape: Shape, cut: Cut): void {
  const { left, top, width, height } = cutRectangle(picture, shape, cut);
  const pen = canvas.getContext("2d")!;
  pen.fillStyle = "#fff"; // what can be seen through would turn black in a JPEG
  pen.fillRect(0, 0, canvas.width, canvas.height);
  pen.drawImage(picture, left, top, width, height, 0, 0, canvas.width, canvas.height);
}

/** The cut as a small JPEG in a data: address, or nothing when it cannot be made small enough. */
export function cutPicture(picture: ImageBitmap, shape: Shape, cut: Cut): string | undefined {
  const { width } = cutRectangle(picture, shape, cut);
  const canvas = document.createElement("canvas");
  for (let side = longestSides[shape]; side >= 64; side /= 2) {
    canvas.width = Math.max(1, Math.round(Math.min(side, width)));
    canvas.height = Math.max(1, Math.round(canvas.width / ratioOf(shape)));
    drawCut(canvas, picture, shape, cut);
    const address = canvas.toDataURL("image/jpeg", 0.82);
    if (address.length <= longestAddress) return address;
  }
  return undefined;
}

/** The cut in pixels of the picture. */
export function cutRectangle(
  picture: { width: number; height: number },
  shape: Shape,
  { zoom, across, down }: Cut,
): { left: number; top: number; width: number; height: number } {
  const ratio = ratioOf(shape);
  const width = Math.min(picture.width, picture.height * ratio) / zoom;
  const height = width / ratio;
  return { left: (picture.width - width) * across, top: (picture.height - height) * down, width, height };
}
