import { RuleCanvasError, type RefusedRule } from "./errors.js";
import { configurationToPass } from "./geometry.js";
import type { Host } from "./host.js";
import type { Configuration, RuleRecord } from "./record.js";
import { Rule, type RuleOwner } from "./rule.js";
import { refusal } from "./rules_file.js";
import { rgbOf } from "./style.js";

/** The rules of a canvas, in the order in which the library draws them, with the shapes behind them. */
export class RuleSet {
    private rules: Rule[] = [];
    private readonly byShape = new Map<number, Rule>();
    private readonly byName = new Map<string, Rule>();
    private beingMade: Rule | null = null;

    constructor(
        private readonly host: Host,
        private readonly owner: RuleOwner,
        private readonly view: number,
    ) {}

    get all(): readonly Rule[] {
        return this.rules;
    }

    find(name: string): Rule | undefined {
        return this.byName.get(name);
    }

    /** The rule behind a shape; a shape speaks before its identity is known. */
    behind(shape: number): Rule | null {
        return this.byShape.get(shape) ?? this.beingMade;
    }

    has(rule: Rule): boolean {
        return rule.shape !== 0 && this.byShape.get(rule.shape) === rule;
    }

    /** A name that no rule has, made from a type. */
    freeName(type: string): string {
        let number = this.rules.length + 1;
        while (this.byName.has(`${type} ${number}`)) {
            ++number;
        }
        return `${type} ${number}`;
    }

    /** Makes a rule and its shape; throws when the name is taken or the library refuses the geometry. */
    add(record: RuleRecord): Rule {
        if (this.byName.has(record.name)) {
            throw new RuleCanvasError("duplicate-name", `Another rule is named "${record.name}"`);
        }
        const rule = new Rule(this.owner, record);
        const shape = this.createShape(rule, record);
        if (shape === 0) {
            throw refusedConfiguration(record);
        }
        this.take(rule, record, shape);
        this.rules.push(rule);
        return rule;
    }

    /** Puts rules in the place of all from the index `from` on. A rule that is given stays the same object. All or
     * nothing: throws and changes nothing when the library refuses one. */
    replaceFrom(from: number, wanted: readonly { record: RuleRecord; rule?: Rule | undefined }[]): void {
        const old = this.rules.slice(from);
        const made = wanted.map(({ record, rule = new Rule(this.owner, record) }) => {
            return { rule, record, shape: this.createShape(rule, record) };
        });
        const refused = made.flatMap(({ record, shape }, index): RefusedRule[] => {
            if (shape !== 0) {
                return [];
            }
            const { reason, message } = refusedConfiguration(record);
            return [{ index: from + index, name: record.name, reason, message }];
        });
        if (refused.length > 0) {
            made.forEach(({ shape }) => this.host.delete(shape));
            throw refusal(refused);
        }
        old.forEach((rule) => this.endShape(rule));
        this.rules.length = from;
        for (const { rule, record, shape } of made) {
            this.take(rule, record, shape);
            this.rules.push(rule);
        }
    }

    remove(rule: Rule): void {
        this.endShape(rule);
        rule.state = "deleted";
        this.rules = this.rules.filter((each) => each !== rule);
    }

    /** Hands members of a record to the shape. */
    apply(shape: number, record: Partial<RuleRecord>): void {
        const { host } = this;
        const { caption, direction, colours, pointLimits, visible } = record;
        if (caption !== undefined) {
            host.setCaption(shape, caption);
        }
        if (direction !== undefined) {
            host.setDirection(shape, direction);
        }
        if (colours?.selected !== undefined) {
            host.setColour(shape, true, rgbOf(colours.selected, "colours.selected"));
        }
        if (colours?.unselected !== undefined) {
            host.setColour(shape, false, rgbOf(colours.unselected, "colours.unselected"));
        }
        if (pointLimits !== undefined) {
            host.setPointLimits(shape, pointLimits.maximum, pointLimits.minimum);
        }
        if (visible !== undefined) {
            host.show(shape, visible);
        }
    }

    /** A locked rule gets no presses, as a disabled one. Enabling selects a shape, so it is only done for a change. */
    applyEnabled(shape: number, record: Partial<RuleRecord>): void {
        this.host.enable(shape, (record.enabled ?? true) && !(record.locked ?? false));
    }

    private createShape(rule: Rule, record: RuleRecord): number {
        const { type, name, configuration, option } = record;
        this.beingMade = rule;
        const shape = this.host.create({
            view: record.view ?? this.view,
            type,
            label: record.label ?? "",
            name,
            configuration: configuration ? JSON.stringify(configurationToPass(type, name, configuration)) : "",
            option: typeof option === "object" ? JSON.stringify(option) : (option ?? ""),
        });
        this.beingMade = null;
        return shape;
    }

    private take(rule: Rule, record: RuleRecord, shape: number): void {
        rule.kept = record;
        rule.shape = shape;
        rule.state = record.configuration ? "complete" : "waiting";
        this.byShape.set(shape, rule);
        this.byName.set(record.name, rule);
        this.apply(shape, record);
        if (record.enabled === false || record.locked === true) {
            this.applyEnabled(shape, record);
        }
    }

    private endShape(rule: Rule): void {
        this.host.delete(rule.shape);
        this.byShape.delete(rule.shape);
        this.byName.delete(rule.name);
        rule.shape = 0;
    }
}

function refusedConfiguration({ type, name, configuration }: RuleRecord): RuleCanvasError {
    const geometry: Configuration | null = configuration ?? null;
    return new RuleCanvasError(
        "configuration-refused",
        `${type} "${name}" does not accept the geometry ${JSON.stringify(geometry)}`,
    );
}
