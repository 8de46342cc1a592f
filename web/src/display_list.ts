import { Parts, type Sides } from "./boxes.js";
import { Extent } from "./extent.js";
import { PEN, readCommand, type Recording, type RecordingReader } from "./recording.js";
import type { TextPlaces } from "./text_places.js";

/** How many commands after a difference are searched for where two paints agree again: more than the handles of a figure. */
const WINDOW = 64;

/** One command with the pen that it is drawn with. */
interface Item extends Sides {
    begin: number;
    end: number;
    readonly width: number;
    readonly colour: number;
    readonly patterned: boolean;
}

/** The words of a paint, in memory of its own. */
interface Words {
    words: Uint32Array;
    /** The same memory. */
    numbers: Float32Array;
    length: number;
}

function roomFor(length: number): Words {
    const words = new Uint32Array(length);
    return { words, numbers: new Float32Array(words.buffer), length: 0 };
}

/** The latest paint, command by command. Most of a paint is what the one before was: only the rest is read. */
export class DisplayList {
    items: readonly Item[] = [];
    private now = roomFor(0);
    private before = roomFor(0);

    constructor(private readonly places: TextPlaces) {}

    /** Takes over the next paint. Where it draws otherwise than the one before. */
    take(recording: Recording): Sides[] {
        this.copy(recording);
        const { items } = this;
        const [head, tail] = this.agreeingEnds();
        const shift = this.now.length - this.before.length;
        const first = firstWhere(items, (item) => item.end > head);
        const { fresh, next } = this.readFrom(first, this.before.length - tail, shift);
        const damage = this.damage(items.slice(first, next), fresh);
        const rest = items.slice(next);
        for (const item of shift === 0 ? [] : rest) {
            item.begin += shift;
            item.end += shift;
        }
        this.items = [...items.slice(0, first), ...fresh, ...rest];
        return damage;
    }

    /** Forgets how far commands paint: the view or the font is another one. */
    forget(): void {
        this.items = [];
        this.now.length = 0;
    }

    read({ begin }: Item, reader: RecordingReader): void {
        readCommand(this.now.words, this.now.numbers, begin, reader);
    }

    private copy({ words, begin, end }: Recording): void {
        const length = end - begin;
        const room = this.before.words.length < length ? roomFor(2 * length) : this.before;
        room.words.set(words.subarray(begin, end));
        room.length = length;
        this.before = this.now;
        this.now = room;
    }

    /** How many words at the beginning and at the end are those of the paint before. */
    private agreeingEnds(): [number, number] {
        const { words: a, length: endA } = this.now;
        const { words: b, length: endB } = this.before;
        const most = Math.min(endA, endB);
        let head = 0;
        while (head < most && a[head] === b[head]) {
            ++head;
        }
        let tail = 0;
        while (tail < most - head && a[endA - tail - 1] === b[endB - tail - 1]) {
            ++tail;
        }
        return [head, tail];
    }

    /** Reads on behind the items that stay, until one is met that goes on as before: `next`. Those may begin where the
     * words of the paint before do not differ any more, and stand `shift` words further on now. */
    private readFrom(first: number, agreeing: number, shift: number): { fresh: Item[]; next: number } {
        const { items } = this;
        const { words, numbers, length } = this.now;
        const fresh: Item[] = [];
        const extent = new Extent(this.places);
        const last = items[first - 1];
        if (last !== undefined) {
            extent.pen(last.width, last.colour, last.patterned);
        }
        let next = firstWhere(items, (item) => item.begin >= agreeing);
        for (let begin = last?.end ?? 0; begin < length;) {
            while (next < items.length && items[next]!.begin + shift < begin) {
                ++next;
            }
            const old = items[next];
            if (old !== undefined && old.begin + shift === begin && samePen(old, extent)) {
                return { fresh, next };
            }
            const end = readCommand(words, numbers, begin, extent);
            if (words[begin] !== PEN) {
                const { left, top, right, bottom, width, colour, patterned } = extent;
                fresh.push({ begin, end, left, top, right, bottom, width, colour, patterned });
            }
            begin = end;
        }
        return { fresh, next: items.length };
    }

    /** Where some commands paint otherwise than those that stood there before. */
    private damage(old: readonly Item[], now: readonly Item[]): Sides[] {
        const parts = new Parts();
        for (let i = 0, j = 0; i < old.length || j < now.length; ++i, ++j) {
            if (i < old.length && j < now.length && this.same(old[i]!, now[j]!)) {
                continue;
            }
            const [skipOld, skipNow] = this.agreement(old, i, now, j);
            old.slice(i, i + skipOld).forEach((item) => parts.add(item));
            now.slice(j, j + skipNow).forEach((item) => parts.add(item));
            i += skipOld;
            j += skipNow;
        }
        return parts.list;
    }

    /** How many commands of each to leave out until both agree again. */
    private agreement(old: readonly Item[], i: number, now: readonly Item[], j: number): [number, number] {
        for (let sum = 1; sum <= WINDOW; ++sum) {
            for (let skipOld = 0; skipOld <= sum; ++skipOld) {
                const [a, b] = [i + skipOld, j + sum - skipOld];
                if (a < old.length && b < now.length && this.same(old[a]!, now[b]!)) {
                    return [skipOld, sum - skipOld];
                }
            }
        }
        return [old.length - i, now.length - j];
    }

    private same(old: Item, now: Item): boolean {
        const length = now.end - now.begin;
        if (length !== old.end - old.begin || !samePen(old, now)) {
            return false;
        }
        for (let i = 0; i < length; ++i) {
            if (this.now.words[now.begin + i] !== this.before.words[old.begin + i]) {
                return false;
            }
        }
        return true;
    }
}

type Pen = Pick<Item, "width" | "colour" | "patterned">;

function samePen(one: Pen, other: Pen): boolean {
    return one.width === other.width && one.colour === other.colour && one.patterned === other.patterned;
}

/** The first place of an ascending list at which a condition begins to hold. */
function firstWhere<T>(list: readonly T[], holds: (item: T) => boolean): number {
    const index = list.findIndex(holds);
    return index < 0 ? list.length : index;
}
