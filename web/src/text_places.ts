import type { Size } from "./geometry.js";
import type { TextPen } from "./text.js";

/** Between a caption and the point that it belongs to. */
const CAPTION_GAP = 4;

/** Where a text stands, with the room round it. */
export interface Placed {
    readonly x: number;
    readonly y: number;
    readonly width: number;
    readonly height: number;
}

function inside(value: number, low: number, high: number): number {
    return Math.max(low, Math.min(value, high));
}

/** Decides where texts stand. */
export class TextPlaces {
    view: Size = { width: 0, height: 0 };

    constructor(
        private readonly context: CanvasRenderingContext2D,
        private readonly pen: TextPen,
    ) {}

    /** A text that would leave the picture is moved into it. */
    text(x: number, y: number, size: number, text: string): Placed {
        const [width, height] = this.pen.measure(this.context, text, size);
        return { x: inside(x, 0, this.view.width - width), y: inside(y, 0, this.view.height - height), width, height };
    }

    /** Above the first point of the figure, or below it where there is no room, and never outside the clip. */
    caption(x: number, y: number, clip: readonly number[], text: string): Placed {
        const [left = 0, top = 0, right = 0, bottom = 0] = clip;
        const [width, height] = this.pen.measure(this.context, text, 0);
        const above = y - height - CAPTION_GAP;
        const wanted = above >= top ? above : y + CAPTION_GAP;
        return { x: inside(x, left, right - width), y: inside(wanted, top, bottom - height), width, height };
    }
}
