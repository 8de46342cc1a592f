import type { CoreModule } from "./core.js";
import type { Point, Size } from "./geometry.js";
import type { Pointing } from "./help.js";
import { Host } from "./host.js";
import { Painter } from "./painter.js";
import { readRecording, type Recording } from "./recording.js";
import { naturalSize, Stage, type Target } from "./stage.js";
import { TextPen } from "./text.js";

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

/** A container of the library and the canvas that shows it: paints are asked of the library and drawn once a frame. */
export class Board {
    readonly host: Host;
    /** Fingers get larger handles. */
    pointing: Pointing = matchMedia("(pointer: coarse)").matches ? "touch" : "mouse";
    private readonly stage: Stage;
    private readonly painter: Painter;
    private readonly texts = new TextPen();
    private readonly context: CanvasRenderingContext2D;
    private frame = 0;
    private mustDraw = true;
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
        this.painter = new Painter(this.context, this.texts);
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
            this.frame = requestAnimationFrame(() => this.render());
        }
    }

    /** Lets the library paint before a frame does: some shapes take over in a paint what was done to them. */
    paintAhead(): Recording {
        this.mustDraw = this.host.paint(this.view) || this.mustDraw;
        this.requestFrame();
        return this.host.recording();
    }

    /** Draws at once instead of with the next frame. Nothing is drawn where nothing differs. */
    render(): void {
        cancelAnimationFrame(this.frame);
        this.frame = 0;
        if (this.ended) {
            return;
        }
        this.listener.beforeFrame();
        const differs = this.host.paint(this.view);
        if (differs || this.mustDraw) {
            this.mustDraw = false;
            this.painter.begin(...this.stage.ratio, this.pointing === "touch" ? FINGER_HANDLE_SCALE : 1);
            readRecording(this.host.recording(), this.painter);
            this.painter.end();
        }
    }

    /** The next frame is drawn even if nothing of the library's differs. */
    invalidate(): void {
        this.mustDraw = true;
        this.requestFrame();
    }

    end(): void {
        this.ended = true;
        cancelAnimationFrame(this.frame);
        this.stage.end();
        this.host.release();
    }

    private resize(): void {
        // The stage speaks once before the constructor knows it.
        if (this.stage === undefined) {
            return;
        }
        const { width, height } = this.size;
        this.host.resize(width, height);
        this.host.setVideoSize(this.picture.width, this.picture.height);
        if (this.texts.follow(this.canvas)) {
            this.host.forgetMeasures();
        }
        this.listener.resized();
        this.invalidate();
    }
}
