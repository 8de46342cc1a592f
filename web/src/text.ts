/** Sizes below this one stand for the page's own default size. */
const SMALLEST_SIZE = 6;
const DEFAULT_SIZE = 14;
/** Room round a text, so that it does not touch the line that it belongs to. */
const PADDING_X = 3;
const PADDING_Y = 2;
const LINE_HEIGHT = 1.2;
/** A pixel counter shows another text at every step; what is kept stays bounded. */
const MOST_WIDTHS = 4096;

/** The CSS colour of 0xRRGGBBAA. */
export function cssColour(colour: number): string {
    return `#${(colour >>> 0).toString(16).padStart(8, "0")}`;
}

/** Behind every text, so that it can be read on any picture. */
function shadowOf(colour: number): string {
    const brightness = 0.3 * (colour >>> 24) + 0.59 * ((colour >>> 16) & 255) + 0.11 * ((colour >>> 8) & 255);
    return brightness < 100 ? "rgba(255, 255, 255, 0.75)" : "rgba(0, 0, 0, 0.75)";
}

/** A style that was never given a colour is transparent black. */
function inkOf(colour: number): number {
    return (colour & 255) === 0 ? 0xffffffff : colour;
}

/** Draws and measures texts in the font of the page. */
export class TextPen {
    private family = "sans-serif";

    private readonly widths = new Map<string, number>();

    /** Takes over the font of an element. Whether it is another one. */
    follow(element: Element): boolean {
        const family = getComputedStyle(element).fontFamily || "sans-serif";
        const changed = family !== this.family;
        this.family = family;
        this.widths.clear();
        return changed;
    }

    /** Width and height of a text with the room round it. */
    measure(context: CanvasRenderingContext2D, text: string, size: number): [number, number] {
        const pixels = this.pixelsOf(size);
        const key = `${pixels} ${text}`;
        let width = this.widths.get(key);
        if (width === undefined) {
            this.select(context, size);
            width = context.measureText(text).width;
            if (this.widths.size >= MOST_WIDTHS) {
                this.widths.clear();
            }
            this.widths.set(key, width);
        }
        return [width + 2 * PADDING_X, pixels * LINE_HEIGHT + 2 * PADDING_Y];
    }

    /** Draws a text with its top left at a place. */
    draw(context: CanvasRenderingContext2D, x: number, y: number, text: string, size: number, colour: number): void {
        const pixels = this.select(context, size);
        const ink = inkOf(colour);
        context.textBaseline = "middle";
        context.lineJoin = "round";
        context.lineWidth = 3;
        context.strokeStyle = shadowOf(ink);
        context.fillStyle = cssColour(ink);
        const middle = y + PADDING_Y + (pixels * LINE_HEIGHT) / 2;
        context.strokeText(text, x + PADDING_X, middle);
        context.fillText(text, x + PADDING_X, middle);
    }

    private pixelsOf(size: number): number {
        return size < SMALLEST_SIZE ? DEFAULT_SIZE : size;
    }

    private select(context: CanvasRenderingContext2D, size: number): number {
        const pixels = this.pixelsOf(size);
        context.font = `600 ${pixels}px ${this.family}`;
        return pixels;
    }
}
