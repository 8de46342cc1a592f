import { overlap, type Sides } from "./boxes.js";
import type { DisplayList } from "./display_list.js";
import type { Point } from "./geometry.js";
import type { RecordingReader } from "./recording.js";
import { cssColour, type TextPen } from "./text.js";
import type { TextPlaces } from "./text_places.js";

/** The library draws a handle as a square of this side. */
export const HANDLE_SIDE = 6;
const HANDLE_PEN = 2;
/** Longer paths are stroked in parts: the time of a stroke grows faster than its length. */
const MOST_POINTS = 400;
const PATTERN = [7, 5];

/** Whether a stroked rectangle is a handle: no figure can be as small. */
export function isHandle(left: number, top: number, right: number, bottom: number, penWidth: number): boolean {
    const isSide = (length: number): boolean => Math.abs(length - HANDLE_SIDE) < 0.01;
    return penWidth === HANDLE_PEN && isSide(right - left) && isSide(bottom - top);
}

/** A rectangle of the view in whole canvas pixels, so that its border cuts none. */
export function wholePixels({ left, top, right, bottom }: Sides, [x, y]: Point): Sides {
    return {
        left: Math.floor(left * x),
        top: Math.floor(top * y),
        right: Math.ceil(right * x),
        bottom: Math.ceil(bottom * y),
    };
}

/** A canvas that shows the view or a part of it. */
export interface Sheet {
    readonly context: CanvasRenderingContext2D;
    /** Where its top left lies in the view, in canvas pixels. */
    readonly x: number;
    readonly y: number;
}

/** How pixels of the view are shown. */
export interface Scale {
    /** Canvas pixels for a pixel of the view. */
    readonly ratio: Point;
    /** Handles are drawn so many times as large. */
    readonly handles: number;
}

/** Draws a recording on a 2D canvas. Strokes of one pen are gathered into one path. */
export class Painter implements RecordingReader {
    private context!: CanvasRenderingContext2D;
    private width = 1;
    private colour = 0;
    private patterned = false;
    private gathered = 0;
    private handleScale = 1;

    constructor(
        private readonly texts: TextPen,
        private readonly places: TextPlaces,
    ) {}

    /** Draws a list on a sheet: in the parts of the view that are given, or everywhere. */
    draw(list: DisplayList, parts: readonly Sides[] | null, { context, x, y }: Sheet, { ratio, handles }: Scale): void {
        this.context = context;
        this.handleScale = handles;
        context.save();
        context.setTransform(1, 0, 0, 1, -x, -y);
        this.clear(parts?.map((part) => wholePixels(part, ratio)) ?? null);
        context.setTransform(ratio[0], 0, 0, ratio[1], -x, -y);
        context.beginPath();
        for (const item of list.items) {
            if (parts === null || parts.some((part) => overlap(part, item))) {
                this.usePen(item.width, item.colour, item.patterned);
                list.read(item, this);
            }
        }
        this.stroke();
        context.restore();
    }

    /** The pen of each command is set before it is read. */
    pen(): void {}

    private usePen(width: number, colour: number, patterned: boolean): void {
        if (width !== this.width || colour !== this.colour || patterned !== this.patterned) {
            this.stroke();
            this.width = width;
            this.colour = colour;
            this.patterned = patterned;
        }
    }

    /** Empties the canvas, or parts of it, to which drawing is limited then. */
    private clear(parts: readonly Sides[] | null): void {
        const { context } = this;
        if (parts === null) {
            const { width, height } = context.canvas;
            const { e: x, f: y } = context.getTransform();
            context.clearRect(-x, -y, width, height);
            return;
        }
        context.beginPath();
        for (const { left, top, right, bottom } of parts) {
            context.clearRect(left, top, right - left, bottom - top);
            context.rect(left, top, right - left, bottom - top);
        }
        context.clip();
    }

    path(numbers: Float32Array, first: number, count: number): void {
        const { context } = this;
        const last = first + 2 * (count - 1);
        const closed = count > 2 && numbers[first] === numbers[last] && numbers[first + 1] === numbers[last + 1];
        context.moveTo(numbers[first]!, numbers[first + 1]!);
        for (let i = first + 2; i < (closed ? last : last + 2); i += 2) {
            context.lineTo(numbers[i]!, numbers[i + 1]!);
        }
        if (closed) {
            context.closePath();
        }
        this.gather(count);
    }

    rectangle(left: number, top: number, right: number, bottom: number): void {
        if (isHandle(left, top, right, bottom, this.width)) {
            this.handle((left + right) / 2, (top + bottom) / 2);
        } else {
            this.context.rect(left, top, right - left, bottom - top);
            this.gather(4);
        }
    }

    ellipse(left: number, top: number, right: number, bottom: number): void {
        this.ellipsePath(left, top, right, bottom);
        this.gather(8);
    }

    fillEllipse(left: number, top: number, right: number, bottom: number, colour: number): void {
        this.stroke();
        this.ellipsePath(left, top, right, bottom);
        this.context.fillStyle = cssColour(colour);
        this.context.fill();
        this.context.beginPath();
    }

    fillRectangle(left: number, top: number, right: number, bottom: number, colour: number): void {
        this.stroke();
        this.context.fillStyle = cssColour(colour);
        this.context.fillRect(left, top, right - left, bottom - top);
    }

    text(x: number, y: number, size: number, colour: number, text: string): void {
        this.stroke();
        const placed = this.places.text(x, y, size, text);
        this.texts.draw(this.context, placed.x, placed.y, text, size, colour);
    }

    caption(x: number, y: number, colour: number, clip: readonly number[], text: string): void {
        this.stroke();
        const placed = this.places.caption(x, y, clip, text);
        this.texts.draw(this.context, placed.x, placed.y, text, 0, colour);
    }

    private handle(x: number, y: number): void {
        this.stroke();
        const side = (HANDLE_SIDE + 2) * this.handleScale;
        this.context.beginPath();
        this.context.rect(x - side / 2, y - side / 2, side, side);
        this.context.fillStyle = "#ffffff";
        this.context.fill();
        this.gather(MOST_POINTS);
    }

    private ellipsePath(left: number, top: number, right: number, bottom: number): void {
        const x = (left + right) / 2;
        const y = (top + bottom) / 2;
        const radiusX = Math.abs(right - left) / 2;
        this.context.moveTo(x + radiusX, y);
        this.context.ellipse(x, y, radiusX, Math.abs(bottom - top) / 2, 0, 0, 2 * Math.PI);
    }

    private gather(points: number): void {
        this.gathered += points;
        if (this.gathered >= MOST_POINTS) {
            this.stroke();
        }
    }

    private stroke(): void {
        if (this.gathered === 0) {
            return;
        }
        const { context } = this;
        context.lineWidth = this.width;
        context.lineJoin = "miter";
        context.miterLimit = 4;
        context.strokeStyle = cssColour(this.colour);
        context.setLineDash(this.patterned ? PATTERN : []);
        context.stroke();
        context.beginPath();
        this.gathered = 0;
    }
}
