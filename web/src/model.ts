import type { Board } from "./board.js";
import { Counters, isCounter } from "./counters.js";
import { Drawing } from "./drawing.js";
import { RuleCanvasError } from "./errors.js";
import type { TypedEvents } from "./events.js";
import { Geometries } from "./geometries.js";
import type { Point } from "./geometry.js";
import { checkRecord } from "./options.js";
import type { Box } from "./pixel_counters.js";
import type { Configuration, RuleRecord } from "./record.js";
import type { Rule, RuleOwner } from "./rule.js";
import { RuleSet } from "./rule_set.js";
import { withMembers } from "./rules_file.js";
import { RULE_STATES } from "./rule_types.js";
import { Selection } from "./selection.js";

/** A notification of the library. */
interface Notification {
    EventParam: { ShapeID: number; PreShapeState?: number; ShapeState?: number };
}

/** The rules of a canvas with what the user is doing to them. */
export class Model implements RuleOwner {
    readonly set: RuleSet;
    readonly selection: Selection;
    readonly geometries: Geometries;
    readonly drawing: Drawing;
    private readonly counters: Counters;
    /** While the program makes rules, they say what no user did. */
    private making = false;

    constructor(
        private readonly board: Board,
        private readonly events: TypedEvents,
        view: number,
    ) {
        this.set = new RuleSet(board.host, this, view);
        this.drawing = new Drawing(events);
        this.selection = new Selection(board.host, this.set, events);
        this.geometries = new Geometries(board);
        this.counters = new Counters(board, this.geometries, view);
    }

    get rules(): readonly Rule[] {
        return this.set.all;
    }

    /** Makes a change by the program: it is drawn, and told when it is whole. */
    change<T>(call: () => T): T {
        return this.events.whole(() => {
            const result = this.quietly(call);
            this.board.requestFrame();
            this.events.emit("rules", { rules: this.rules });
            return result;
        });
    }

    /** The library says something. */
    notified(text: string): void {
        const { ShapeID, PreShapeState, ShapeState } = (JSON.parse(text) as Notification).EventParam;
        const rule = this.set.behind(ShapeID >>> 0);
        this.events.emit("notify", { text, rule });
        if (rule === null || this.making || PreShapeState === undefined || ShapeState === undefined) {
            return;
        }
        const from = RULE_STATES[PreShapeState] ?? "complete";
        rule.state = RULE_STATES[ShapeState] ?? "complete";
        this.geometries.forget(rule);
        this.events.emit("state", { rule, from, to: rule.state });
        if (rule.state === "complete") {
            this.finished(rule);
        }
    }

    /** The library takes the mouse, or gives it back. */
    capture(taken: boolean): void {
        this.drawing.hasMouse = taken;
        this.events.emit("capture", { taken });
    }

    /** A shape is complete: it was drawn, or changed. */
    finished(rule: Rule): void {
        const isNew = this.drawing.end(rule);
        this.geometries.forget(rule);
        this.events.emit(isNew ? "create" : "change", { rule });
    }

    configurationOf(rule: Rule): Configuration | null {
        return this.geometries.of(rule);
    }

    pointsOf(rule: Rule): Point[] {
        return this.geometries.pointsOf(rule);
    }

    /** A rule as a file keeps it. */
    recordOf(rule: Rule): RuleRecord {
        return withMembers(rule.kept, { configuration: this.configurationOf(rule) });
    }

    isSelected(rule: Rule): boolean {
        return this.selection.has(rule);
    }

    select(wanted: Rule | null): void {
        this.events.whole(() => {
            this.selection.become(new Set(wanted === null ? [] : [wanted]));
            this.board.requestFrame();
        });
    }

    apply(rule: Rule, changes: Partial<RuleRecord>): void {
        this.require(rule);
        const record = withMembers(rule.kept, changes);
        checkRecord(record);
        this.change(() => {
            rule.kept = record;
            this.set.apply(rule.shape, changes);
            if ("enabled" in changes || "locked" in changes) {
                const wasSelected = this.isSelected(rule);
                this.set.applyEnabled(rule.shape, record);
                this.board.host.select(rule.shape, wasSelected);
            }
        });
    }

    replace(rule: Rule, changes: Partial<RuleRecord>): void {
        this.require(rule);
        const old = this.recordOf(rule);
        const record = { ...old, ...changes };
        if (record.name !== old.name && record.configuration && changes.configuration === undefined) {
            const { [old.name]: geometry, ...rest } = record.configuration;
            record.configuration = { ...rest, [record.name]: geometry };
        }
        checkRecord(record);
        if (record.name !== old.name && this.set.find(record.name)) {
            throw new RuleCanvasError("duplicate-name", `Another rule is named "${record.name}"`);
        }
        const at = this.rules.indexOf(rule);
        const boxes = this.counterBoxes();
        const followers = this.rules.slice(at + 1).map((each) => ({ rule: each, record: this.recordOf(each) }));
        this.remake(at, [{ rule, record }, ...followers], boxes);
    }

    /** Puts rules in the place of all from `from` on; those that stay the same objects stay selected. */
    remake(
        from: number,
        wanted: readonly { rule?: Rule | undefined; record: RuleRecord }[],
        boxes: ReadonlyMap<string, Box>,
    ): void {
        this.change(() => {
            const selected = new Set(this.selection.rules);
            this.set.replaceFrom(from, wanted);
            this.settle(this.rules.slice(from), boxes);
            this.selection.become(selected);
        });
    }

    /** New shapes that were given a geometry: some take it over in their first paint, some cannot use it and wait. */
    settle(rules: readonly Rule[], boxes: ReadonlyMap<string, Box> = new Map()): void {
        for (const rule of rules) {
            this.geometries.forget(rule);
            const box = boxes.get(rule.name);
            if (isCounter(rule) && box !== undefined) {
                this.counters.putBack(rule, box);
            }
        }
        if (rules.some(isCounter)) {
            this.board.paintAhead();
        }
        for (const rule of rules) {
            if (mayBeUnusable(rule) && this.configurationOf(rule) === null) {
                rule.state = "waiting";
            }
        }
    }

    /** Where the pixel counters are, by name. */
    counterBoxes(): Map<string, Box> {
        return this.counters.boxesOf(this.rules.filter((rule) => rule !== this.drawing.rule));
    }

    remove(rule: Rule): void {
        this.require(rule);
        this.change(() => {
            this.drawing.end(rule);
            this.set.remove(rule);
            this.selection.touched();
        });
    }

    redraw(rule: Rule): void {
        this.require(rule);
        this.cancelDrawing();
        this.change(() => {
            this.board.host.redraw(rule.shape);
            this.geometries.forget(rule);
            rule.state = "waiting";
            this.selection.touched();
            this.drawing.start(rule);
        });
    }

    cancelDrawing(): void {
        const rule = this.drawing.rule;
        if (rule !== null) {
            this.events.whole(() => {
                this.remove(rule);
                this.events.emit("delete", { rule });
            });
        }
    }

    require(wanted: Rule | string): Rule {
        const rule = typeof wanted === "string" ? this.set.find(wanted) : wanted;
        if (rule === undefined || !this.set.has(rule)) {
            throw new RuleCanvasError(
                "unknown-rule",
                `There is no rule "${typeof wanted === "string" ? wanted : wanted.name}" on this canvas`,
            );
        }
        return rule;
    }

    private quietly<T>(call: () => T): T {
        if (this.making) {
            return call();
        }
        const { host } = this.board;
        this.making = true;
        host.listen(this.events.isHeard("notify"));
        try {
            return call();
        } finally {
            this.making = false;
            host.listen(true);
        }
    }
}

/** Whether the library may have accepted a geometry that it cannot use: too few points, or a rectangle that is too small. */
function mayBeUnusable({ kept: { configuration, name }, facts, type }: Rule): boolean {
    const geometry = configuration?.[name];
    const isShort = !Array.isArray(geometry) || geometry.length < facts.points[0] || geometry.includes(null);
    return configuration ? type === "Rect" || isShort : false;
}
