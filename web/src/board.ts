import type { CoreModule } from "./core.js";
import type { Point, Size } from "./geometry.js";
import type { Pointing } from "./help.js";
import { Host } from "./host.js";
import type { Scale } from "./painter.js";
import type { Recording } from "./recording.js";
import { Screen } from "./screen.js";
import { naturalSize, Stage, type Target } from "./stage.js";
import { TextPen } from "./text.js";
import { TextPlaces } from "./text_places.js";

/** What the board tells. */
export interface BoardListener {
    notified(text: string): void;
    captured(taken: boolean): void;
    /** The view has another size now. */
    resized(): void;
    /** A frame is about to be drawn. */
    beforeFrame(): void;
}

const FINGER_HANDLE_SCALE = 1.6;
/** A pointer that stays this long may be about to press. */
const REST = 60;

/** A container of the library and the canvas that shows it: paints are asked of the library and drawn once a frame. */
export class Board {
    readonly host: Host;
    /** Fingers get larger handles. */
    pointing: Pointing = matchMedia("(pointer: coarse)").matches ? "touch" : "mouse";
    private readonly stage: Stage;
    private readonly screen: Screen;
    private readonly places: TextPlaces;
    private readonly texts = new TextPen();
    private readonly context: CanvasRenderingContext2D;
    /** Whether something follows the pointer. */
    moving = false;
    private frame = 0;
    private resting = 0;
    /** Whether a paint ahead differed from what the canvas shows. */
    private differs = false;
    private ended = false;

    constructor(
        core: CoreModule,
        readonly canvas: HTMLCanvasElement,
        target: Target | null,
        private readonly view: number,
        private readonly givenPicture: Size | undefined,
        private readonly listener: BoardListener,
    ) {
        this.context = canvas.getContext("2d")!;
        this.places = new TextPlaces(this.context, this.texts);
        this.screen = new Screen(canvas, this.texts, this.places, target !== null);
        this.host = new Host(core, {
            notified: (text) => listener.notified(text),
            captured: (taken) => listener.captured(taken),
            redrawRequested: () => this.requestFrame(),
            measured: (text, size) => this.texts.measure(this.context, text, size),
        });
        this.stage = new Stage(canvas, target, () => this.resize());
        this.resize();
    }

    /** The view in CSS pixels. */
    get size(): Size {
        return this.stage.size;
    }

    /** The picture in pixels of its own; the view where nothing tells it. */
    get picture(): Size {
        return this.givenPicture ?? (this.stage.target && naturalSize(this.stage.target)) ?? this.stage.size;
    }

    toView(clientX: number, clientY: number): Point {
        return this.stage.toView(clientX, clientY);
    }

    requestFrame(): void {
        if (this.frame === 0 && !this.ended) {
            this.frame = requestAnimationFrame(() => this.draw());
        }
    }

    /** Lets the library paint before a frame does: some shapes take over in a paint what was done to them. */
    paintAhead(): Recording {
        this.differs = this.host.paint(this.view) || this.differs;
        this.requestFrame();
        return this.host.recording();
    }

    /** Draws at once instead of with the next frame, all of it on the canvas. */
    render(): void {
        this.draw();
        if (!this.ended) {
            this.screen.settle(this.size, this.scale);
        }
    }

    /** The pointer is here and presses nothing. */
    hover(at: Point): void {
        clearTimeout(this.resting);
        this.resting = window.setTimeout(() => this.screen.prepare(at, this.size, this.scale), REST);
    }

    /** The next frame is drawn even if nothing of the library's differs. */
    invalidate(): void {
        this.screen.invalidate();
        this.requestFrame();
    }

    end(): void {
        this.ended = true;
        cancelAnimationFrame(this.frame);
        clearTimeout(this.resting);
        this.screen.end();
        this.stage.end();
        this.host.release();
    }

    private get scale(): Scale {
        return { ratio: this.stage.ratio, handles: this.pointing === "touch" ? FINGER_HANDLE_SCALE : 1 };
    }

    private draw(): void {
        cancelAnimationFrame(this.frame);
        this.frame = 0;
        if (this.ended) {
            return;
        }
        this.listener.beforeFrame();
        if (this.host.paint(this.view) || this.differs || this.screen.isStale) {
            this.screen.show(this.host.recording(), this.size, this.scale, this.moving);
            this.differs = false;
        }
    }

    private resize(): void {
        // The stage speaks once before the constructor knows it.
        if (this.stage === undefined) {
            return;
        }
        const { width, height } = this.size;
        this.host.resize(width, height);
        this.places.view = this.size;
        this.host.setVideoSize(this.picture.width, this.picture.height);
        if (this.texts.follow(this.canvas)) {
            this.host.forgetMeasures();
        }
        this.listener.resized();
        this.invalidate();
    }
}
