/** One paint as the core wrote it down: see Command in core/recording_surface.hpp. */
export interface Recording {
    readonly words: Uint32Array;
    /** The same memory. */
    readonly numbers: Float32Array;
    /** Where the recording begins and ends, in words. */
    readonly begin: number;
    readonly end: number;
}

/** What reads a recording. Colours are 0xRRGGBBAA; coordinates are pixels of the view. */
export interface RecordingReader {
    pen(width: number, colour: number, patterned: boolean): void;
    /** `count` points from the index `first` of `numbers` on. */
    path(numbers: Float32Array, first: number, count: number): void;
    rectangle(left: number, top: number, right: number, bottom: number): void;
    ellipse(left: number, top: number, right: number, bottom: number): void;
    fillEllipse(left: number, top: number, right: number, bottom: number, colour: number): void;
    fillRectangle(left: number, top: number, right: number, bottom: number, colour: number): void;
    /** Texts are read for whoever wants them. */
    text?(x: number, y: number, size: number, colour: number, text: string): void;
    caption?(x: number, y: number, colour: number, clip: readonly number[], text: string): void;
}

export const PEN = 1;
const PATH = 2;
const RECTANGLE = 3;
const ELLIPSE = 4;
const FILL_ELLIPSE = 5;
const FILL_RECTANGLE = 6;
const TEXT = 7;
const CAPTION = 8;

const utf8 = new TextDecoder();

/** Hands the command at an index to a reader. Where the next one begins. */
export function readCommand(w: Uint32Array, n: Float32Array, at: number, reader: RecordingReader): number {
    const textAt = (text: number): string =>
        utf8.decode(new Uint8Array(w.buffer, w.byteOffset + (text + 1) * 4, w[text]!));
    const afterText = (text: number): number => text + 1 + Math.ceil(w[text]! / 4);
    const i = at + 1;
    switch (w[at]) {
        case PEN:
            reader.pen(n[i]!, w[i + 1]!, w[i + 2] === 1);
            return i + 3;
        case PATH:
            reader.path(n, i + 1, w[i]!);
            return i + 1 + 2 * w[i]!;
        case RECTANGLE:
            reader.rectangle(n[i]!, n[i + 1]!, n[i + 2]!, n[i + 3]!);
            return i + 4;
        case ELLIPSE:
            reader.ellipse(n[i]!, n[i + 1]!, n[i + 2]!, n[i + 3]!);
            return i + 4;
        case FILL_ELLIPSE:
            reader.fillEllipse(n[i]!, n[i + 1]!, n[i + 2]!, n[i + 3]!, w[i + 4]!);
            return i + 5;
        case FILL_RECTANGLE:
            reader.fillRectangle(n[i]!, n[i + 1]!, n[i + 2]!, n[i + 3]!, w[i + 4]!);
            return i + 5;
        case TEXT:
            reader.text?.(n[i]!, n[i + 1]!, n[i + 2]!, w[i + 3]!, textAt(i + 4));
            return afterText(i + 4);
        case CAPTION:
            reader.caption?.(n[i]!, n[i + 1]!, w[i + 2]!, [n[i + 3]!, n[i + 4]!, n[i + 5]!, n[i + 6]!], textAt(i + 7));
            return afterText(i + 7);
        default:
            throw new Error(`The recording holds the unknown command ${w[at]}`);
    }
}

/** Hands the commands of a recording to a reader, in order. */
export function readRecording({ words, numbers, begin, end }: Recording, reader: RecordingReader): void {
    for (let i = begin; i < end;) {
        i = readCommand(words, numbers, i, reader);
    }
}
