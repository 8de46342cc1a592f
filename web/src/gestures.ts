import type { Board } from "./board.js";
import type { TypedEvents } from "./events.js";
import { movedBy, pointsOf, type Point } from "./geometry.js";
import { MOUSE } from "./host.js";
import type { InputSink } from "./input.js";
import type { Model } from "./model.js";
import type { Rule } from "./rule.js";
import { nearestHandle, nearestLine } from "./targets.js";

const ESCAPE = 27;
/** How far from a handle or a line a finger may come down. */
const FINGER_REACH = 22;
const CURSOR_REACH = 6;
const AREAS: ReadonlySet<string> = new Set(["Rect", "Polygon", "VirablePolygon", "OvalShape", "BrokenLine"]);

/** What the user's input does to the rules. */
export class Gestures implements InputSink {
    editable = true;
    private pointer: Point = [0, 0];
    private isPressed = false;

    constructor(
        private readonly board: Board,
        private readonly model: Model,
        private readonly events: TypedEvents,
        readonly view: number,
    ) {}

    /** Whether something follows the pointer. Some rules keep the mouse when they are let go. */
    get isDragging(): boolean {
        return this.isPressed && this.model.drawing.hasMouse;
    }

    toView(clientX: number, clientY: number): Point {
        return this.board.toView(clientX, clientY);
    }

    mouse(code: number, at: Point): void {
        if (!this.editable) {
            return;
        }
        this.pointer = at;
        this.isPressed = code === MOUSE.leftDown || (this.isPressed && code !== MOUSE.leftUp);
        if (code === MOUSE.leftUp) {
            // A pixel counter measures itself while it is painted, so its last size has to be painted before it ends.
            this.board.paintAhead();
        }
        const before = code === MOUSE.rightDown || code === MOUSE.altRightDown ? this.variablePolygons() : [];
        this.events.whole(() => {
            this.board.host.mouse(code, this.view, at[0], at[1]);
            this.noticePoints(before);
            this.noticeSpot();
            this.takeDeletedAway();
            this.model.drawing.notice();
        });
        if (code !== MOUSE.moved) {
            this.model.selection.touched();
        }
        this.board.moving = code === MOUSE.moved && this.model.drawing.hasMouse;
        if (code === MOUSE.moved && !this.board.moving) {
            this.board.hover(at);
        }
        this.showCursor();
        this.board.requestFrame();
    }

    aim(at: Point): Point {
        if (this.model.drawing.rule !== null) {
            return at;
        }
        const recording = this.board.host.recording();
        return nearestHandle(recording, at, FINGER_REACH) ?? this.lineNear(at) ?? at;
    }

    escape(): void {
        if (this.editable) {
            this.events.whole(() => {
                this.board.host.key(this.view, ESCAPE);
                this.model.cancelDrawing();
                this.model.select(null);
            });
            this.showCursor();
        }
    }

    finish(): void {
        if (this.model.drawing.rule?.state === "drawing") {
            this.mouse(MOUSE.rightDown, this.pointer);
            this.mouse(MOUSE.rightUp, this.pointer);
        }
    }

    deleteSelected(): void {
        if (!this.editable) {
            return;
        }
        this.events.whole(() => {
            for (const rule of this.model.selection.rules.filter((each) => !each.locked)) {
                this.model.remove(rule);
                this.events.emit("delete", { rule });
            }
        });
    }

    nudge(dx: number, dy: number): boolean {
        const rule = this.model.selection.rules[0];
        const configuration = rule && this.model.configurationOf(rule);
        if (
            !this.editable ||
            !configuration ||
            rule.locked ||
            rule.state !== "complete" ||
            rule.type === "PixelCountShape"
        ) {
            return false;
        }
        this.events.whole(() => {
            this.model.replace(rule, {
                configuration: movedBy(rule.type, rule.name, configuration, this.board.size, dx, dy),
            });
            this.events.emit("change", { rule });
        });
        return true;
    }

    /** Fingers do not hit thin lines. Inside an area they mean the area. */
    private lineNear(at: Point): Point | null {
        return this.model.rules.some((rule) => this.spans(rule, at))
            ? null
            : nearestLine(this.board.host.recording(), at, FINGER_REACH);
    }

    private spans(rule: Rule, [x, y]: Point): boolean {
        const configuration = AREAS.has(rule.type) && rule.visible ? this.model.configurationOf(rule) : null;
        const points = configuration === null ? [] : pointsOf(rule.type, rule.name, configuration, this.board.size);
        const isBetween = (value: number, values: number[]): boolean =>
            Math.min(...values) < value && value < Math.max(...values);
        return (
            isBetween(
                x,
                points.map((point) => point[0]),
            ) &&
            isBetween(
                y,
                points.map((point) => point[1]),
            )
        );
    }

    private variablePolygons(): { rule: Rule; text: string }[] {
        return this.model.rules
            .filter((rule) => rule.type === "VirablePolygon" && rule.state === "complete")
            .map((rule) => ({ rule, text: this.board.host.configuration(rule.shape) }));
    }

    /** A variable polygon says nothing of a point that it was given. */
    private noticePoints(before: readonly { rule: Rule; text: string }[]): void {
        for (const { rule, text } of before) {
            if (this.board.host.configuration(rule.shape) !== text) {
                this.model.finished(rule);
            }
        }
    }

    /** A spot is there after one click and says nothing of it. */
    private noticeSpot(): void {
        const drawn = this.model.drawing.rule;
        if (drawn?.type === "SpotShape" && this.board.host.configuration(drawn.shape) !== "") {
            drawn.state = "complete";
            this.events.emit("state", { rule: drawn, from: "waiting", to: "complete" });
            this.model.finished(drawn);
        }
    }

    /** A shape that deleted itself stays in the container, empty, until the host takes it away. */
    private takeDeletedAway(): void {
        for (const rule of this.model.rules.filter((each) => each.state === "deleted")) {
            this.model.remove(rule);
            this.events.emit("delete", { rule });
        }
    }

    private showCursor(): void {
        const overHandle = (): boolean =>
            nearestHandle(this.board.host.recording(), this.pointer, CURSOR_REACH) !== null;
        this.board.canvas.style.cursor =
            this.model.drawing.rule !== null ? "crosshair" : overHandle() ? "grab" : "default";
    }
}
