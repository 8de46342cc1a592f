import type { Point } from "./geometry.js";
import type { Configuration, Rgb, RuleRecord } from "./record.js";
import { factsOf, type RuleState, type RuleType, type RuleTypeFacts } from "./rule_types.js";
import { rgbOf, type Colour } from "./style.js";

/** What a rule needs of the canvas that it belongs to. */
export interface RuleOwner {
    /** The geometry as it is now; null while there is none. */
    configurationOf(rule: Rule): Configuration | null;
    pointsOf(rule: Rule): Point[];
    recordOf(rule: Rule): RuleRecord;
    isSelected(rule: Rule): boolean;
    select(rule: Rule | null): void;
    /** Hands changed members of the record to the shape. */
    apply(rule: Rule, changes: Partial<RuleRecord>): void;
    replace(rule: Rule, changes: Partial<RuleRecord>): void;
    remove(rule: Rule): void;
    redraw(rule: Rule): void;
}

/** A rule on a canvas. Made by `RuleCanvas.add` and `RuleCanvas.load`; setting a member shows at once. */
export class Rule {
    /** The identity of the library's shape; changes when the rule is made anew. 0 after the rule was removed. */
    shape = 0;
    /** What the rule is doing. */
    state: RuleState = "waiting";
    /** @internal As kept in a file, without the geometry that the user changes. */
    kept: RuleRecord;
    private readonly owner: RuleOwner;

    /** @internal */
    constructor(owner: RuleOwner, record: RuleRecord) {
        this.owner = owner;
        this.kept = record;
    }

    get type(): RuleType {
        return this.kept.type;
    }
    /** What is known about the type. */
    get facts(): RuleTypeFacts {
        return factsOf(this.kept.type)!;
    }
    get name(): string {
        return this.kept.name;
    }
    /** "EventName" in the rule's notifications. */
    get label(): string {
        return this.kept.label ?? "";
    }
    get view(): number {
        return this.kept.view ?? 0;
    }

    /** Shown beside the rule. */
    get caption(): string {
        return this.kept.caption ?? "";
    }
    set caption(caption: string) {
        this.owner.apply(this, { caption });
    }
    /** Of the outline; the library's own where nothing was set. */
    get colours(): { selected?: Rgb; unselected?: Rgb } {
        return this.kept.colours ?? {};
    }
    /** Sets the colour of the outline while the rule is selected, while it is not, or both. */
    setColours(colours: { selected?: Colour; unselected?: Colour }): void {
        const { selected, unselected } = colours;
        this.owner.apply(this, {
            colours: {
                ...this.colours,
                ...(selected !== undefined && { selected: rgbOf(selected, "selected") }),
                ...(unselected !== undefined && { unselected: rgbOf(unselected, "unselected") }),
            },
        });
    }
    /** One of the directions that the type can show. */
    get direction(): number {
        return this.kept.direction ?? -1;
    }
    set direction(direction: number) {
        this.owner.apply(this, { direction });
    }
    /** How many points the user may and must give. */
    get pointLimits(): { maximum: number; minimum: number } | null {
        return this.kept.pointLimits ?? null;
    }
    set pointLimits(pointLimits: { maximum: number; minimum: number }) {
        this.owner.apply(this, { pointLimits });
    }
    get visible(): boolean {
        return this.kept.visible ?? true;
    }
    set visible(visible: boolean) {
        this.owner.apply(this, { visible });
    }
    /** Whether it gets presses. */
    get enabled(): boolean {
        return this.kept.enabled ?? true;
    }
    set enabled(enabled: boolean) {
        this.owner.apply(this, { enabled });
    }
    /** Shown, but not to be edited. */
    get locked(): boolean {
        return this.kept.locked ?? false;
    }
    set locked(locked: boolean) {
        this.owner.apply(this, { locked });
    }

    /** The geometry as the library writes it, on the grid of 0 to 8191; null while there is none. */
    get configuration(): Configuration | null {
        return this.owner.configurationOf(this);
    }
    /** The points in pixels of the picture; empty while there are none. A pixel counter has none: it is a size. */
    get points(): Point[] {
        return this.owner.pointsOf(this);
    }

    /** The rule as a rules file keeps it. */
    get record(): RuleRecord {
        return this.owner.recordOf(this);
    }

    get selected(): boolean {
        return this.owner.isSelected(this);
    }
    /** Selects this rule alone. */
    select(): void {
        this.owner.select(this);
    }
    /** Makes the rule anew in its place, with other members of its record: name, label, option, configuration. */
    replace(changes: Partial<RuleRecord>): void {
        this.owner.replace(this, changes);
    }
    /** Throws the figure away, so that the user draws it again. */
    redraw(): void {
        this.owner.redraw(this);
    }
    remove(): void {
        this.owner.remove(this);
    }
}
