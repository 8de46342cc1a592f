import { contains, type Sides } from "./boxes.js";
import type { Point, Size } from "./geometry.js";
import type { Sheet } from "./painter.js";

/** How far something may go on beyond where it changed first, in pixels of the view, until another patch is needed. */
const MARGIN = 160;
/** A patch begins and ends at multiples of so many pixels of the view: on most screens whole canvas pixels. */
const STEP = 16;
/** The largest patch as a part of the view: a larger one saves nothing. */
const MOST = 0.4;

function isWhole(value: number): boolean {
    return Math.abs(value - Math.round(value)) < 1e-6;
}

/** A small canvas in a hole of a large one, for what changes under the pointer: a browser takes over a changed canvas as a
 * whole, and needs many times as long for the large one. Every pixel of the view is drawn by one of the two, so that what
 * lies above and below stays so. */
export class Patch {
    /** What it shows of the view; null while it is not there. */
    area: Sides | null = null;
    /** The same, without an end at the sides of the view, beyond which nothing is seen. */
    private reach: Sides | null = null;
    private readonly canvas = document.createElement("canvas");
    private readonly context = this.canvas.getContext("2d")!;
    /** A page may hide or move the large canvas, and means both. */
    private readonly follower = new MutationObserver(() => this.follow());

    constructor(private readonly large: HTMLCanvasElement) {
        this.canvas.setAttribute("aria-hidden", "true");
    }

    /** Whether it is there and shows all of these places. */
    covers(places: readonly Sides[]): boolean {
        const { reach } = this;
        return reach !== null && places.every((place) => contains(reach, place));
    }

    /** The area that a patch round a place would have; null where a patch is of no use or would not fit exactly. */
    areaRound(place: Sides, view: Size, ratio: Point): Sides | null {
        const area = {
            left: Math.max(Math.floor((place.left - MARGIN) / STEP) * STEP, 0),
            top: Math.max(Math.floor((place.top - MARGIN) / STEP) * STEP, 0),
            right: Math.min(Math.ceil((place.right + MARGIN) / STEP) * STEP, view.width),
            bottom: Math.min(Math.ceil((place.bottom + MARGIN) / STEP) * STEP, view.height),
        };
        const [width, height] = [area.right - area.left, area.bottom - area.top];
        const isUseful = width > 0 && height > 0 && width * height < MOST * view.width * view.height;
        return isUseful && this.fits(view, ratio) ? area : null;
    }

    /** Puts the patch, empty, in its place. */
    open(area: Sides, view: Size, [x, y]: Point): Sheet {
        this.area = area;
        this.reach = {
            left: area.left > 0 ? area.left : -Infinity,
            top: area.top > 0 ? area.top : -Infinity,
            right: area.right < view.width ? area.right : Infinity,
            bottom: area.bottom < view.height ? area.bottom : Infinity,
        };
        this.canvas.width = Math.round((area.right - area.left) * x);
        this.canvas.height = Math.round((area.bottom - area.top) * y);
        this.follow();
        this.large.after(this.canvas);
        this.follower.observe(this.large, { attributeFilter: ["class", "hidden", "style"] });
        return this.sheet([x, y]);
    }

    sheet([x, y]: Point): Sheet {
        const { left, top } = this.area!;
        return { context: this.context, x: Math.round(left * x), y: Math.round(top * y) };
    }

    close(): void {
        this.follower.disconnect();
        this.canvas.remove();
        this.area = null;
        this.reach = null;
    }

    /** What the page says of all canvases is not for this one; only what shows or hides the large one is. */
    private follow(): void {
        const { large } = this;
        const { display, opacity, visibility, zIndex } = getComputedStyle(large);
        const { left, top, right, bottom } = this.area!;
        this.canvas.style.cssText = "all: initial; position: absolute; pointer-events: none";
        Object.assign(this.canvas.style, {
            display,
            opacity,
            visibility,
            zIndex,
            left: `calc(${large.style.left} + ${left}px)`,
            top: `calc(${large.style.top} + ${top}px)`,
            width: `${right - left}px`,
            height: `${bottom - top}px`,
        });
    }

    /** Whether pixels of both canvases lie on the same grid: not where the page stretches the large one. */
    private fits(view: Size, [x, y]: Point): boolean {
        const box = this.large.getBoundingClientRect();
        return (
            isWhole(STEP * x) &&
            isWhole(STEP * y) &&
            Math.abs(box.width - view.width) < 0.01 &&
            Math.abs(box.height - view.height) < 0.01
        );
    }
}
