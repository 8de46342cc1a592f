import type { Board } from "./board.js";
import { RuleCanvasError } from "./errors.js";
import type { TypedEvents } from "./events.js";
import { pointsOf, type Point } from "./geometry.js";
import { checkRecord } from "./options.js";
import { pixelCounterBoxes, type Box } from "./pixel_counters.js";
import type { Configuration, RuleRecord } from "./record.js";
import type { Rule, RuleOwner } from "./rule.js";
import { RuleSet } from "./rule_set.js";
import { withMembers } from "./rules_file.js";
import { RULE_STATES } from "./rule_types.js";
import { MOUSE } from "./host.js";

/** A notification of the library. */
interface Notification {
    EventParam: { ShapeID: number; PreShapeState?: number; ShapeState?: number };
}

/** The rules of a canvas with what the user is doing to them. */
export class Model implements RuleOwner {
    readonly set: RuleSet;
    /** The rule that the user is drawing or is to draw. */
    drawn: Rule | null = null;
    /** Whether the library has taken the mouse since the drawn rule was added. */
    private captured = false;
    private configurations = new WeakMap<Rule, Configuration | null>();
    private selectedShapes = new Set<number>();
    private selectionMayDiffer = false;
    /** While the program makes rules, they say what no user did. */
    private making = false;

    constructor(
        private readonly board: Board,
        private readonly events: TypedEvents,
        private readonly view: number,
    ) {
        this.set = new RuleSet(board.host, this, view);
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
        this.configurations.delete(rule);
        this.events.emit("state", { rule, from, to: rule.state });
        if (rule.state === "complete") {
            this.finished(rule);
        }
    }

    /** The library takes the mouse, or gives it back. */
    capture(taken: boolean): void {
        this.captured = taken;
        this.events.emit("capture", { taken });
    }

    /** A rule from which the user begins to draw. */
    startDrawing(rule: Rule): void {
        this.drawn = rule;
        this.captured = false;
    }

    /** The library does not say that a drawing began or was given up, but it holds the mouse from then to then. */
    noticeDrawing(): void {
        const rule = this.drawn;
        if (rule === null || (rule.state !== "waiting" && rule.state !== "drawing")) {
            return;
        }
        const from = rule.state;
        const goesOn = rule.facts.drawing === "marks" && from === "drawing";
        rule.state = this.captured || goesOn ? "drawing" : "waiting";
        if (rule.state !== from) {
            this.events.emit("state", { rule, from, to: rule.state });
        }
    }

    /** A shape is complete: it was drawn, or changed. */
    finished(rule: Rule): void {
        const isNew = this.drawn === rule;
        this.drawn = isNew ? null : this.drawn;
        this.configurations.delete(rule);
        this.events.emit(isNew ? "create" : "change", { rule });
    }

    forgetConfiguration(rule: Rule): void {
        this.configurations.delete(rule);
    }

    /** Another view size writes other grid values. */
    forgetConfigurations(): void {
        this.configurations = new WeakMap();
    }

    configurationOf(rule: Rule): Configuration | null {
        let known = this.configurations.get(rule);
        if (known === undefined) {
            const text = rule.shape === 0 ? "" : this.board.host.configuration(rule.shape);
            known = text === "" ? null : withRadius(JSON.parse(text) as Configuration, rule.kept.configuration);
            this.configurations.set(rule, known);
        }
        return known;
    }

    pointsOf(rule: Rule): Point[] {
        const configuration = this.configurationOf(rule);
        return configuration === null ? [] : pointsOf(rule.type, rule.name, configuration, this.board.picture);
    }

    /** A rule as a file keeps it. */
    recordOf(rule: Rule): RuleRecord {
        return withMembers(rule.kept, { configuration: this.configurationOf(rule) });
    }

    isSelected(rule: Rule): boolean {
        return this.selection().includes(rule);
    }

    selection(): readonly Rule[] {
        this.readSelection();
        return this.rules.filter((rule) => this.selectedShapes.has(rule.shape));
    }

    /** A press may have selected others. */
    selectionTouched(): void {
        this.selectionMayDiffer = true;
    }

    readSelection(): void {
        if (!this.selectionMayDiffer) {
            return;
        }
        this.selectionMayDiffer = false;
        const all = this.board.host.selected();
        this.takeSelection(new Set(this.rules.map((rule) => rule.shape).filter((shape) => all.has(shape))));
    }

    private takeSelection(shapes: Set<number>): void {
        const same =
            shapes.size === this.selectedShapes.size && [...shapes].every((shape) => this.selectedShapes.has(shape));
        this.selectionMayDiffer = false;
        this.selectedShapes = shapes;
        if (!same) {
            this.events.emit("select", { rules: this.rules.filter((rule) => shapes.has(rule.shape)) });
        }
    }

    select(wanted: Rule | null): void {
        this.events.whole(() => {
            for (const rule of this.rules) {
                this.board.host.select(rule.shape, rule === wanted);
            }
            this.takeSelection(new Set(wanted === null ? [] : [wanted.shape]));
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
            const selected = new Set(this.selection());
            this.set.replaceFrom(from, wanted);
            this.settle(this.rules.slice(from), boxes);
            this.rules.forEach((rule) => this.board.host.select(rule.shape, selected.has(rule)));
            this.takeSelection(new Set(this.rules.filter((rule) => selected.has(rule)).map((rule) => rule.shape)));
        });
    }

    /** New shapes that were given a geometry: some take it over in their first paint, some cannot use it and wait. */
    settle(rules: readonly Rule[], boxes: ReadonlyMap<string, Box> = new Map()): void {
        for (const rule of rules) {
            this.configurations.delete(rule);
            const box = boxes.get(rule.name);
            if (rule.type === "PixelCountShape" && box !== undefined) {
                this.drawAgain(rule, box);
            }
        }
        if (rules.some((rule) => rule.type === "PixelCountShape")) {
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
        const counters = this.rules.filter((rule) => rule.type === "PixelCountShape" && rule !== this.drawn);
        const boxes = new Map<string, Box>();
        if (counters.length === 0) {
            return boxes;
        }
        const { width, height } = this.board.size;
        const shown = pixelCounterBoxes(this.board.paintAhead(), width, height);
        for (const rule of counters) {
            const text = (this.configurationOf(rule)?.[rule.name] as number[] | undefined)?.join("*");
            const at = shown.findIndex((counter) => counter.text === text);
            if (at >= 0) {
                boxes.set(rule.name, shown.splice(at, 1)[0]!.box);
            }
        }
        return boxes;
    }

    remove(rule: Rule): void {
        this.require(rule);
        this.change(() => {
            this.drawn = this.drawn === rule ? null : this.drawn;
            this.set.remove(rule);
            this.selectionMayDiffer = true;
        });
    }

    redraw(rule: Rule): void {
        this.require(rule);
        this.cancelDrawing();
        this.change(() => {
            this.board.host.redraw(rule.shape);
            this.configurations.delete(rule);
            rule.state = "waiting";
            this.selectionMayDiffer = true;
            this.startDrawing(rule);
        });
    }

    cancelDrawing(): void {
        const rule = this.drawn;
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

    /** A pixel counter tells its size and no place, so it is put back where it was as a user draws it. */
    private drawAgain(rule: Rule, [left, top, right, bottom]: Box): void {
        const { host, size } = this.board;
        host.redraw(rule.shape);
        host.mouse(MOUSE.leftDown, this.view, left * size.width, top * size.height);
        host.mouse(MOUSE.moved, this.view, right * size.width, bottom * size.height);
        this.board.paintAhead();
        host.mouse(MOUSE.leftUp, this.view, right * size.width, bottom * size.height);
    }

    private quietly<T>(call: () => T): T {
        const before = this.making;
        this.making = true;
        try {
            return call();
        } finally {
            this.making = before;
        }
    }
}

/** Whether the library may have accepted a geometry that it cannot use: too few points, or a rectangle that is too small. */
function mayBeUnusable({ kept: { configuration, name }, facts, type }: Rule): boolean {
    const geometry = configuration?.[name];
    const isShort = !Array.isArray(geometry) || geometry.length < facts.points[0] || geometry.includes(null);
    return configuration ? type === "Rect" || isShort : false;
}

/** A spot's radius is read by the library and not written. */
function withRadius(configuration: Configuration, given: Configuration | null | undefined): Configuration {
    return given && "radius" in given ? { ...configuration, radius: given["radius"] } : configuration;
}
