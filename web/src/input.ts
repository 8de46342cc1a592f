import type { Point } from "./geometry.js";
import type { Pointing } from "./help.js";
import { MOUSE } from "./host.js";

/** Where the user's input goes. Places are pixels of the view. */
export interface InputSink {
    toView(clientX: number, clientY: number): Point;
    mouse(code: number, at: Point): void;
    /** Where a finger that comes down here is taken to press: on a handle or a line close by. */
    aim(at: Point): Point;
    escape(): void;
    finish(): void;
    deleteSelected(): void;
    /** Whether there was something to move. */
    nudge(dx: number, dy: number): boolean;
}

const LEFT = 1;
const RIGHT = 2;
/** A finger that stays this long is the right button ... */
const LONG_PRESS = 500;
/** ... unless it moves this far, which is a drag. */
const TOUCH_SLOP = 8;
const SMALL_STEP = 1;
const LARGE_STEP = 10;
const ARROWS: { readonly [key: string]: Point } = {
    ArrowLeft: [-1, 0],
    ArrowRight: [1, 0],
    ArrowUp: [0, -1],
    ArrowDown: [0, 1],
};

/** A finger that is down. What it means is open until it moves, leaves or has stayed long enough. */
interface Finger {
    readonly pointer: number;
    readonly client: Point;
    timer: number;
    dragging: boolean;
    /** From the finger to the place that it has hold of. */
    offset: Point;
}

/** Turns pointer and key events of a canvas into mouse events of the library. */
export class Input {
    private readonly listeners = new AbortController();
    private buttons = 0;
    private last: Point = [0, 0];
    private finger: Finger | null = null;

    constructor(
        private readonly canvas: HTMLCanvasElement,
        private readonly sink: InputSink,
        private readonly pointsWith: (pointing: Pointing) => void,
    ) {
        const { signal } = this.listeners;
        const on = <K extends keyof HTMLElementEventMap>(
            name: K,
            handler: (event: HTMLElementEventMap[K]) => void,
        ): void => canvas.addEventListener(name, handler, { signal });
        on("pointerdown", (event) => this.down(event));
        on("pointermove", (event) => this.move(event));
        on("pointerup", (event) => this.up(event));
        on("pointercancel", (event) => this.lost(event));
        on("lostpointercapture", (event) => this.lost(event));
        on("contextmenu", (event) => event.preventDefault());
        on("keydown", (event) => this.key(event));
    }

    end(): void {
        this.listeners.abort();
        clearTimeout(this.finger?.timer);
    }

    private down(event: PointerEvent): void {
        if (!event.isPrimary) {
            return;
        }
        this.pointsWith(event.pointerType === "touch" ? "touch" : "mouse");
        // A ring round the canvas is for those who come by keyboard.
        this.canvas.focus({ preventScroll: true, focusVisible: false } as FocusOptions);
        this.canvas.setPointerCapture(event.pointerId);
        if (event.pointerType === "touch") {
            const client: Point = [event.clientX, event.clientY];
            const timer = window.setTimeout(() => this.longPress(), LONG_PRESS);
            this.finger = { pointer: event.pointerId, client, timer, dragging: false, offset: [0, 0] };
        } else {
            this.takeButtons(event);
        }
    }

    private move(event: PointerEvent): void {
        if (!event.isPrimary) {
            return;
        }
        if (event.pointerType === "touch") {
            this.moveFinger(event);
            return;
        }
        this.takeButtons(event);
        this.send(MOUSE.moved, this.placeOf(event));
    }

    private up(event: PointerEvent): void {
        if (!event.isPrimary) {
            return;
        }
        if (event.pointerType === "touch") {
            this.liftFinger(event);
        } else {
            this.takeButtons(event);
        }
    }

    /** Another element or the system took the pointer: the gesture ends where it last was. */
    private lost(event: PointerEvent): void {
        if (event.pointerType === "touch") {
            if (this.finger?.pointer === event.pointerId) {
                this.endFinger();
            }
        } else if ((this.buttons & LEFT) !== 0) {
            this.send(MOUSE.leftUp, this.last);
        }
        this.buttons = 0;
    }

    /** A second button that goes down or up arrives as a move, so every event is asked for what changed. */
    private takeButtons(event: PointerEvent): void {
        const at = this.placeOf(event);
        const changed = this.buttons ^ event.buttons;
        this.buttons = event.buttons;
        if ((changed & LEFT) !== 0) {
            this.send((event.buttons & LEFT) !== 0 ? MOUSE.leftDown : MOUSE.leftUp, at);
        }
        if ((changed & RIGHT) !== 0) {
            const press = event.altKey ? MOUSE.altRightDown : MOUSE.rightDown;
            this.send((event.buttons & RIGHT) !== 0 ? press : MOUSE.rightUp, at);
        }
    }

    private moveFinger(event: PointerEvent): void {
        const { finger } = this;
        if (finger === null) {
            return;
        }
        const [x, y] = finger.client;
        if (!finger.dragging && Math.hypot(event.clientX - x, event.clientY - y) > TOUCH_SLOP) {
            this.pressWith(finger);
            finger.dragging = true;
        }
        if (finger.dragging) {
            this.send(MOUSE.moved, this.heldBy(finger, event));
        }
    }

    private liftFinger(event: PointerEvent): void {
        const { finger } = this;
        if (finger === null) {
            return;
        }
        if (!finger.dragging) {
            this.pressWith(finger);
        }
        clearTimeout(finger.timer);
        this.finger = null;
        this.send(MOUSE.leftUp, this.heldBy(finger, event));
    }

    private pressWith(finger: Finger): void {
        clearTimeout(finger.timer);
        const touched = this.sink.toView(...finger.client);
        const aimed = this.sink.aim(touched);
        finger.offset = [aimed[0] - touched[0], aimed[1] - touched[1]];
        this.send(MOUSE.leftDown, aimed);
    }

    private longPress(): void {
        const { finger } = this;
        if (finger === null) {
            return;
        }
        this.finger = null;
        const at = this.sink.toView(...finger.client);
        this.send(MOUSE.rightDown, at);
        this.send(MOUSE.rightUp, at);
    }

    private endFinger(): void {
        const { finger } = this;
        this.finger = null;
        clearTimeout(finger?.timer);
        if (finger?.dragging === true) {
            this.send(MOUSE.leftUp, this.last);
        }
    }

    private heldBy(finger: Finger, event: PointerEvent): Point {
        const [x, y] = this.placeOf(event);
        return [x + finger.offset[0], y + finger.offset[1]];
    }

    private key(event: KeyboardEvent): void {
        const step = event.shiftKey ? LARGE_STEP : SMALL_STEP;
        const arrow = ARROWS[event.key];
        if (event.ctrlKey || event.metaKey || event.altKey) {
            return;
        }
        if (arrow !== undefined) {
            if (this.sink.nudge(arrow[0] * step, arrow[1] * step)) {
                event.preventDefault();
            }
        } else if (event.key === "Escape") {
            this.sink.escape();
        } else if (event.key === "Enter") {
            this.sink.finish();
        } else if (event.key === "Delete" || event.key === "Backspace") {
            this.sink.deleteSelected();
            event.preventDefault();
        }
    }

    private placeOf(event: PointerEvent): Point {
        return this.sink.toView(event.clientX, event.clientY);
    }

    private send(code: number, at: Point): void {
        this.last = at;
        this.sink.mouse(code, at);
    }
}
