import { around, contains, type Sides } from "./boxes.js";
import { DisplayList } from "./display_list.js";
import type { Size } from "./geometry.js";
import { Painter, wholePixels, type Scale, type Sheet } from "./painter.js";
import { Patch } from "./patch.js";
import type { Recording } from "./recording.js";
import type { TextPen } from "./text.js";
import type { TextPlaces } from "./text_places.js";

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

    /** Whether the canvas lacks something that the next paint draws, even if the library paints the same. */
    isOwing(moving: boolean): boolean {
        return this.stale || (!moving && this.patch?.area != null);
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
        } else if (moving && this.patch?.area != null && damage.every((part) => contains(this.patch!.area!, part))) {
            this.painter.draw(this.list, damage, this.patch.sheet(scale.ratio), scale);
        } else {
            this.showOnCanvas(damage, view, scale, moving);
        }
        this.stale = false;
    }

    end(): void {
        this.patch?.close();
    }

    /** What the patch showed goes back to the canvas, which gets another hole while something moves. */
    private showOnCanvas(damage: readonly Sides[], view: Size, scale: Scale, moving: boolean): void {
        const { patch } = this;
        const parts = patch?.area == null ? damage : [...damage, patch.area];
        const area = moving && damage.length > 0 ? patch?.areaRound(damage.reduce(around), view, scale.ratio) : null;
        patch?.close();
        this.painter.draw(this.list, parts, this.sheet, scale);
        if (patch != null && area != null) {
            const { left, top, right, bottom } = wholePixels(area, scale.ratio);
            this.sheet.context.clearRect(left, top, right - left, bottom - top);
            this.painter.draw(this.list, null, patch.open(area, scale.ratio), scale);
        }
    }
}
