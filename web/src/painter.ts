import type { RecordingReader } from "./recording.js";
import { cssColour, type TextPen } from "./text.js";

/** Between a caption and the point that it belongs to. */
const CAPTION_GAP = 4;
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

function inside(value: number, low: number, high: number): number {
    return Math.max(low, Math.min(value, high));
}

/** Draws a recording on a 2D canvas. Strokes of one pen are gathered into one path. */
export class Painter implements RecordingReader {
    private width = 1;
    private colour = 0;
    private patterned = false;
    private gathered = 0;
    private handleScale = 1;
    private viewWidth = 0;
    private viewHeight = 0;

    constructor(private readonly context: CanvasRenderingContext2D, private readonly texts: TextPen) {}

    /** Clears the canvas; `ratio` is canvas pixels for a pixel of the view, handles are drawn `handleScale` times as large. */
    begin(ratioX: number, ratioY: number, handleScale: number): void {
        const { canvas } = this.context;
        this.context.setTransform(1, 0, 0, 1, 0, 0);
        this.context.clearRect(0, 0, canvas.width, canvas.height);
        this.context.setTransform(ratioX, 0, 0, ratioY, 0, 0);
        this.viewWidth = canvas.width / ratioX;
        this.viewHeight = canvas.height / ratioY;
        this.handleScale = handleScale;
        this.gathered = 0;
        this.context.beginPath();
    }

    end(): void {
        this.stroke();
    }

    pen(width: number, colour: number, patterned: boolean): void {
        this.stroke();
        this.width = width;
        this.colour = colour;
        this.patterned = patterned;
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

    /** A text that would leave the picture is moved into it. */
    text(x: number, y: number, size: number, colour: number, text: string): void {
        this.stroke();
        const [width, height] = this.texts.measure(this.context, text, size);
        this.texts.draw(this.context, inside(x, 0, this.viewWidth - width), inside(y, 0, this.viewHeight - height), text, size, colour);
    }

    /** Above the first point of the figure, or below it where there is no room, and never outside the clip. */
    caption(x: number, y: number, colour: number, clip: readonly number[], text: string): void {
        this.stroke();
        const [left = 0, top = 0, right = 0, bottom = 0] = clip;
        const [width, height] = this.texts.measure(this.context, text, 0);
        const above = y - height - CAPTION_GAP;
        const at = above >= top ? above : y + CAPTION_GAP;
        this.texts.draw(this.context, inside(x, left, right - width), inside(at, top, bottom - height), text, 0, colour);
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
        context.lineJoin = "round";
        context.strokeStyle = cssColour(this.colour);
        context.setLineDash(this.patterned ? PATTERN : []);
        context.stroke();
        context.beginPath();
        this.gathered = 0;
    }
}
