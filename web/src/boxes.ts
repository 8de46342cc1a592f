/** A rectangle by its sides. */
export interface Sides {
    left: number;
    top: number;
    right: number;
    bottom: number;
}

export function overlap(a: Sides, b: Sides): boolean {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

export function contains(outer: Sides, inner: Sides): boolean {
    return (
        outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right && outer.bottom >= inner.bottom
    );
}

/** The smallest rectangle round both. */
export function around(a: Sides, b: Sides): Sides {
    return {
        left: Math.min(a.left, b.left),
        top: Math.min(a.top, b.top),
        right: Math.max(a.right, b.right),
        bottom: Math.max(a.bottom, b.bottom),
    };
}

const MOST_PARTS = 6;

/** Few rectangles that do not overlap, round many. */
export class Parts {
    readonly list: Sides[] = [];

    add(given: Sides): void {
        let box = given;
        for (let i = this.list.length - 1; i >= 0; --i) {
            const other = this.list[i]!;
            if (overlap(box, other) || this.list.length >= MOST_PARTS) {
                box = around(box, other);
                this.list.splice(i, 1);
                i = this.list.length;
            }
        }
        this.list.push(box);
    }
}
