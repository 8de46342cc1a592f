import type { Point } from "./geometry.js";
import { isHandle } from "./painter.js";
import { readRecording, type Recording, type RecordingReader } from "./recording.js";

function nearestOnSegment([x, y]: Point, ax: number, ay: number, bx: number, by: number): Point {
    const length = (bx - ax) ** 2 + (by - ay) ** 2;
    const along = length === 0 ? 0 : Math.min(Math.max(((x - ax) * (bx - ax) + (y - ay) * (by - ay)) / length, 0), 1);
    return [ax + along * (bx - ax), ay + along * (by - ay)];
}

/** Looks through a recording for what lies nearest to a place. */
class Search implements RecordingReader {
    nearest: Point | null = null;
    private best: number;
    private penWidth = 0;

    constructor(
        private readonly at: Point,
        reach: number,
        private readonly wanted: "handles" | "lines",
    ) {
        this.best = reach * reach;
    }

    pen(width: number): void {
        this.penWidth = width;
    }

    path(numbers: Float32Array, first: number, count: number): void {
        for (let i = first; this.wanted === "lines" && i < first + 2 * (count - 1); i += 2) {
            this.offer(nearestOnSegment(this.at, numbers[i]!, numbers[i + 1]!, numbers[i + 2]!, numbers[i + 3]!));
        }
    }

    rectangle(left: number, top: number, right: number, bottom: number): void {
        if (this.wanted === "handles" && isHandle(left, top, right, bottom, this.penWidth)) {
            this.offer([(left + right) / 2, (top + bottom) / 2]);
        }
    }

    ellipse(left: number, top: number, right: number, bottom: number): void {
        if (this.wanted === "lines") {
            this.offer([(left + right) / 2, (top + bottom) / 2]);
        }
    }

    fillEllipse(left: number, top: number, right: number, bottom: number): void {
        this.ellipse(left, top, right, bottom);
    }

    fillRectangle(): void {}

    private offer(place: Point): void {
        const distance = (place[0] - this.at[0]) ** 2 + (place[1] - this.at[1]) ** 2;
        if (distance < this.best) {
            this.best = distance;
            this.nearest = place;
        }
    }
}

/** The middle of the nearest handle on the picture, or null when none is within reach. */
export function nearestHandle(recording: Recording, at: Point, reach: number): Point | null {
    const search = new Search(at, reach, "handles");
    readRecording(recording, search);
    return search.nearest;
}

/** The nearest place on a line, or the middle of a small round mark. */
export function nearestLine(recording: Recording, at: Point, reach: number): Point | null {
    const search = new Search(at, reach, "lines");
    readRecording(recording, search);
    return search.nearest;
}
