import type { TypedEvents } from "./events.js";
import type { Host } from "./host.js";
import type { Rule } from "./rule.js";
import type { RuleSet } from "./rule_set.js";

/** Which rules are selected. The library selects and deselects without saying so: it is asked when somebody wants to
 * know. */
export class Selection {
    private shapes: ReadonlySet<number> = new Set();
    private mayDiffer = false;

    constructor(
        private readonly host: Host,
        private readonly set: RuleSet,
        private readonly events: TypedEvents,
    ) {}

    get rules(): readonly Rule[] {
        this.read();
        return this.set.all.filter((rule) => this.shapes.has(rule.shape));
    }

    has(rule: Rule): boolean {
        this.read();
        return this.shapes.has(rule.shape);
    }

    /** Something may have selected others. */
    touched(): void {
        this.mayDiffer = true;
    }

    /** Asks the library, if something may have selected others. */
    read(): void {
        if (this.mayDiffer) {
            const selected = this.host.selected();
            this.take(this.set.all.filter((rule) => selected.has(rule.shape)));
        }
    }

    /** Selects these rules and no others. */
    become(wanted: ReadonlySet<Rule>): void {
        for (const rule of this.set.all) {
            this.host.select(rule.shape, wanted.has(rule));
        }
        this.take(this.set.all.filter((rule) => wanted.has(rule)));
    }

    private take(rules: readonly Rule[]): void {
        const isSame = rules.length === this.shapes.size && rules.every((rule) => this.shapes.has(rule.shape));
        this.mayDiffer = false;
        this.shapes = new Set(rules.map((rule) => rule.shape));
        if (!isSame) {
            this.events.emit("select", { rules });
        }
    }
}
