import type { Sides } from "./boxes.js";
import { isHandle } from "./painter.js";
import type { RecordingReader } from "./recording.js";
import type { Placed, TextPlaces } from "./text_places.js";

/** Handles are drawn larger for fingers. */
const HANDLE_MARGIN = 10;
const TEXT_MARGIN = 3;

/** Finds how far a command paints, and with which pen. */
export class Extent implements RecordingReader, Sides {
    left = 0;
    top = 0;
    right = 0;
    bottom = 0;
    width = 1;
    colour = 0;
    patterned = false;

    constructor(private readonly places: TextPlaces) {}

    pen(width: number, colour: number, patterned: boolean): void {
        this.width = width;
        this.colour = colour;
        this.patterned = patterned;
    }

    path(numbers: Float32Array, first: number, count: number): void {
        let left = numbers[first]!;
        let top = numbers[first + 1]!;
        let right = left;
        let bottom = top;
        for (let i = first + 2; i < first + 2 * count; i += 2) {
            left = Math.min(left, numbers[i]!);
            right = Math.max(right, numbers[i]!);
            top = Math.min(top, numbers[i + 1]!);
            bottom = Math.max(bottom, numbers[i + 1]!);
        }
        this.set(left, top, right, bottom, this.strokeMargin());
    }

    rectangle(left: number, top: number, right: number, bottom: number): void {
        const margin = isHandle(left, top, right, bottom, this.width) ? HANDLE_MARGIN : this.strokeMargin();
        this.set(left, top, right, bottom, margin);
    }

    ellipse(x1: number, y1: number, x2: number, y2: number): void {
        const margin = this.strokeMargin();
        this.set(Math.min(x1, x2), Math.min(y1, y2), Math.max(x1, x2), Math.max(y1, y2), margin);
    }

    fillEllipse(left: number, top: number, right: number, bottom: number): void {
        this.ellipse(left, top, right, bottom);
    }

    fillRectangle(left: number, top: number, right: number, bottom: number): void {
        this.set(left, top, right, bottom, 1);
    }

    text(x: number, y: number, size: number, _colour: number, text: string): void {
        this.setPlaced(this.places.text(x, y, size, text));
    }

    caption(x: number, y: number, _colour: number, clip: readonly number[], text: string): void {
        this.setPlaced(this.places.caption(x, y, clip, text));
    }

    private setPlaced({ x, y, width, height }: Placed): void {
        this.set(x, y, x + width, y + height, TEXT_MARGIN);
    }

    private set(left: number, top: number, right: number, bottom: number, margin: number): void {
        this.left = left - margin;
        this.top = top - margin;
        this.right = right + margin;
        this.bottom = bottom + margin;
    }

    /** A pointed corner reaches further than half the width. */
    private strokeMargin(): number {
        return 2 * this.width + 1;
    }
}
