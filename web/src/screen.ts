import { around, overlap, type Sides } from "./boxes.js";
import { DisplayList } from "./display_list.js";
import type { Point, Size } from "./geometry.js";
import { Painter, wholePixels, type Scale, type Sheet } from "./painter.js";
import { Patch } from "./patch.js";
import type { Recording } from "./recording.js";
import type { TextPen } from "./text.js";
import type { TextPlaces } from "./text_places.js";

/** How far from the pointer a figure may be that a press there takes hold of. */
const REACH = 8;

/** Shows paints on a canvas: only where they differ from what it shows. */
export class Screen {
    private readonly list: DisplayList;
    private readonly painter: Painter;
    private readonly patch: Patch | null;
    private readonly sheet: Sheet;
    /** Whether everything has to be drawn, whatever the canvas shows. */
    private stale = true;

    /** `patched`: whether a canvas of ours may lie above this one. */
    constructor(canvas: HTMLCanvasElement, texts: TextPen, places: TextPlaces, patched: boolean) {
        this.list = new DisplayList(places);
        this.painter = new Painter(texts, places);
        this.patch = patched ? new Patch(canvas) : null;
        this.sheet = { context: canvas.getContext("2d")!, x: 0, y: 0 };
    }

    /** The next paint is drawn as a whole. */
    invalidate(): void {
        this.stale = true;
    }

    /** Whether something has to be drawn even if the library paints the same. */
    get isStale(): boolean {
        return this.stale;
    }

    /** `moving`: something follows the pointer, so that more paints like this one will come. */
    show(recording: Recording, view: Size, scale: Scale, moving: boolean): void {
        if (this.stale) {
            this.list.forget();
        }
        const damage = this.list.take(recording);
        if (this.stale) {
            this.patch?.close();
            this.painter.draw(this.list, null, this.sheet, scale);
        } else if (this.patch?.covers(damage)) {
            this.painter.draw(this.list, damage, this.patch.sheet(scale.ratio), scale);
        } else {
            const follows = moving && damage.length > 0;
            const area = follows ? this.patch?.areaRound(damage.reduce(around), view, scale.ratio) : null;
            this.movePatch(area ?? null, damage, view, scale);
        }
        this.stale = false;
    }

    /** The pointer rests at a place and may press there: the figures under it get the patch. */
    prepare([x, y]: Point, view: Size, scale: Scale): void {
        const place = { left: x - REACH, top: y - REACH, right: x + REACH, bottom: y + REACH };
        const touched = this.list.items.filter((item) => overlap(item, place));
        if (this.patch === null || this.stale || touched.length === 0 || this.patch.covers(touched)) {
            return;
        }
        const area = this.patch.areaRound(touched.reduce<Sides>(around, place), view, scale.ratio);
        if (area !== null) {
            this.movePatch(area, [], view, scale);
        }
    }

    /** Everything goes back to the canvas itself. */
    settle(view: Size, scale: Scale): void {
        if (this.patch?.area != null) {
            this.movePatch(null, [], view, scale);
        }
    }

    end(): void {
        this.patch?.close();
    }

    /** What the patch showed is drawn on the canvas with all that differs, and the next area leaves it. */
    private movePatch(next: Sides | null, damage: readonly Sides[], view: Size, scale: Scale): void {
        const { patch } = this;
        const parts = patch?.area == null ? damage : [...damage, patch.area];
        patch?.close();
        this.painter.draw(this.list, parts, this.sheet, scale);
        if (patch !== null && next !== null) {
            const { left, top, right, bottom } = wholePixels(next, scale.ratio);
            this.sheet.context.clearRect(left, top, right - left, bottom - top);
            this.painter.draw(this.list, null, patch.open(next, view, scale.ratio), scale);
        }
    }
}
