import { readRecording, type Recording, type RecordingReader } from "./recording.js";

/** A box by its corners, in parts of the view from 0 to 1. */
export type Box = readonly [left: number, top: number, right: number, bottom: number];

/** A pixel counter writes its size into its middle and then draws its patterned box. */
class BoxReader implements RecordingReader {
    readonly found: { text: string; box: Box }[] = [];
    private lastText = "";
    private isCounterPen = false;

    constructor(
        private readonly width: number,
        private readonly height: number,
    ) {}

    pen(width: number, _colour: number, patterned: boolean): void {
        this.isCounterPen = patterned && width === 1;
    }

    rectangle(left: number, top: number, right: number, bottom: number): void {
        if (this.isCounterPen && this.lastText !== "") {
            const { width, height } = this;
            this.found.push({ text: this.lastText, box: [left / width, top / height, right / width, bottom / height] });
        }
        this.lastText = "";
    }

    text(_x: number, _y: number, _size: number, _colour: number, text: string): void {
        this.lastText = text;
    }

    path(): void {}
    ellipse(): void {}
    fillEllipse(): void {}
    fillRectangle(): void {}
}

/** Where the pixel counters of a recording are, each by the text "width*height" that it shows: their geometry is a size
 * and tells no place. In the order in which they were made. */
export function pixelCounterBoxes(recording: Recording, width: number, height: number): { text: string; box: Box }[] {
    const reader = new BoxReader(width, height);
    readRecording(recording, reader);
    return reader.found;
}
