import { Parts, type Sides } from "./boxes.js";
import { isHandle } from "./painter.js";
import { PEN, readCommand, type Recording, type RecordingReader } from "./recording.js";
import type { TextPlaces } from "./text_places.js";

/** How many commands after a difference are searched for where two lists agree again: more than the handles of a figure. */
const WINDOW = 64;
/** Handles are drawn larger for fingers. */
const HANDLE_MARGIN = 10;

/** Finds how far a command paints. */
class Extent implements RecordingReader, Sides {
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
        let [left, top] = [numbers[first]!, numbers[first + 1]!];
        let [right, bottom] = [left, top];
        for (let i = first + 2; i < first + 2 * count; i += 2) {
            left = Math.min(left, numbers[i]!);
            right = Math.max(right, numbers[i]!);
            top = Math.min(top, numbers[i + 1]!);
            bottom = Math.max(bottom, numbers[i + 1]!);
        }
        this.set(left, top, right, bottom, this.strokeMargin());
    }

    rectangle(left: number, top: number, right: number, bottom: number): void {
        this.set(
            left,
            top,
            right,
            bottom,
            isHandle(left, top, right, bottom, this.width) ? HANDLE_MARGIN : this.strokeMargin(),
        );
    }

    ellipse(left: number, top: number, right: number, bottom: number): void {
        this.set(
            Math.min(left, right),
            Math.min(top, bottom),
            Math.max(left, right),
            Math.max(top, bottom),
            this.strokeMargin(),
        );
    }

    fillEllipse(left: number, top: number, right: number, bottom: number): void {
        this.ellipse(left, top, right, bottom);
    }

    fillRectangle(left: number, top: number, right: number, bottom: number): void {
        this.set(left, top, right, bottom, 1);
    }

    text(x: number, y: number, size: number, _colour: number, text: string): void {
        const placed = this.places.text(x, y, size, text);
        this.set(placed.x, placed.y, placed.x + placed.width, placed.y + placed.height, 3);
    }

    caption(x: number, y: number, _colour: number, clip: readonly number[], text: string): void {
        const placed = this.places.caption(x, y, clip, text);
        this.set(placed.x, placed.y, placed.x + placed.width, placed.y + placed.height, 3);
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

/** One command with the pen that it is drawn with. */
interface Item extends Sides {
    begin: number;
    end: number;
    width: number;
    colour: number;
    patterned: boolean;
}

/** A recording of its own, command by command, which can be compared with the one before and drawn in parts. */
export class DisplayList {
    readonly items: Item[] = [];
    private readonly words: Uint32Array;
    private readonly numbers: Float32Array;

    constructor(recording: Recording, places: TextPlaces) {
        this.words = recording.words.slice(recording.begin, recording.end);
        this.numbers = new Float32Array(this.words.buffer);
        const extent = new Extent(places);
        for (let begin = 0; begin < this.words.length;) {
            const end = readCommand(this.words, this.numbers, begin, extent);
            if (this.words[begin] !== PEN) {
                const { left, top, right, bottom, width, colour, patterned } = extent;
                this.items.push({ begin, end, left, top, right, bottom, width, colour, patterned });
            }
            begin = end;
        }
    }

    read({ begin }: Item, reader: RecordingReader): void {
        readCommand(this.words, this.numbers, begin, reader);
    }

    /** Where this list paints otherwise than the one before. */
    damageSince(before: DisplayList): Sides[] {
        const parts = new Parts();
        const [old, now] = [before.items, this.items];
        let oldEnd = old.length;
        let nowEnd = now.length;
        while (oldEnd > 0 && nowEnd > 0 && this.same(now[nowEnd - 1]!, before, old[oldEnd - 1]!)) {
            --oldEnd;
            --nowEnd;
        }
        for (let i = 0, j = 0; i < oldEnd || j < nowEnd; ++i, ++j) {
            if (i < oldEnd && j < nowEnd && this.same(now[j]!, before, old[i]!)) {
                continue;
            }
            const [skipOld, skipNow] = this.agreement(before, i, oldEnd, j, nowEnd);
            old.slice(i, i + skipOld).forEach((item) => parts.add(item));
            now.slice(j, j + skipNow).forEach((item) => parts.add(item));
            i += skipOld;
            j += skipNow;
        }
        return parts.list;
    }

    /** How many commands of each list to leave out until both agree again. */
    private agreement(before: DisplayList, i: number, oldEnd: number, j: number, nowEnd: number): [number, number] {
        for (let sum = 1; sum <= WINDOW; ++sum) {
            for (let skipOld = 0; skipOld <= sum; ++skipOld) {
                const [a, b] = [i + skipOld, j + sum - skipOld];
                if (a < oldEnd && b < nowEnd && this.same(this.items[b]!, before, before.items[a]!)) {
                    return [skipOld, sum - skipOld];
                }
            }
        }
        return [oldEnd - i, nowEnd - j];
    }

    private same(item: Item, before: DisplayList, old: Item): boolean {
        const length = item.end - item.begin;
        if (
            length !== old.end - old.begin ||
            item.colour !== old.colour ||
            item.width !== old.width ||
            item.patterned !== old.patterned
        ) {
            return false;
        }
        for (let i = 0; i < length; ++i) {
            if (this.words[item.begin + i] !== before.words[old.begin + i]) {
                return false;
            }
        }
        return true;
    }
}
