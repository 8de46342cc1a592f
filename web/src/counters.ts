import type { Board } from "./board.js";
import type { Geometries } from "./geometries.js";
import { MOUSE } from "./host.js";
import { pixelCounterBoxes, type Box } from "./pixel_counters.js";
import type { Rule } from "./rule.js";

export function isCounter(rule: Rule): boolean {
    return rule.type === "PixelCountShape";
}

/** Pixel counters tell their size and no place: where they are is read off the picture, and they are put back there as a
 * user draws them. */
export class Counters {
    constructor(
        private readonly board: Board,
        private readonly geometries: Geometries,
        private readonly view: number,
    ) {}

    /** Where the counters among some rules are, by name. */
    boxesOf(rules: readonly Rule[]): Map<string, Box> {
        const counters = rules.filter(isCounter);
        const boxes = new Map<string, Box>();
        if (counters.length === 0) {
            return boxes;
        }
        const { width, height } = this.board.size;
        const shown = pixelCounterBoxes(this.board.paintAhead(), width, height);
        for (const rule of counters) {
            const text = (this.geometries.of(rule)?.[rule.name] as number[] | undefined)?.join("*");
            const at = shown.findIndex((counter) => counter.text === text);
            if (at >= 0) {
                boxes.set(rule.name, shown.splice(at, 1)[0]!.box);
            }
        }
        return boxes;
    }

    putBack(counter: Rule, [left, top, right, bottom]: Box): void {
        const { host, size } = this.board;
        host.redraw(counter.shape);
        host.mouse(MOUSE.leftDown, this.view, left * size.width, top * size.height);
        host.mouse(MOUSE.moved, this.view, right * size.width, bottom * size.height);
        this.board.paintAhead();
        host.mouse(MOUSE.leftUp, this.view, right * size.width, bottom * size.height);
    }
}
