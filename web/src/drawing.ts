import type { TypedEvents } from "./events.js";
import type { Rule } from "./rule.js";

/** What the user is drawing. */
export class Drawing {
    /** The rule that the user is drawing or is to draw. */
    rule: Rule | null = null;
    /** Whether the library has the mouse; of a rule that is to be drawn, whether it took it since. */
    hasMouse = false;

    constructor(private readonly events: TypedEvents) {}

    /** A rule from which the user begins to draw. */
    start(rule: Rule): void {
        this.rule = rule;
        this.hasMouse = false;
    }

    /** A rule is complete, or gone. Whether it was this one. */
    end(rule: Rule): boolean {
        const isDrawn = this.rule === rule;
        this.rule = isDrawn ? null : this.rule;
        return isDrawn;
    }

    /** The library does not say that a drawing began or was given up, but it holds the mouse from then to then. */
    notice(): void {
        const { rule } = this;
        if (rule === null || (rule.state !== "waiting" && rule.state !== "drawing")) {
            return;
        }
        const from = rule.state;
        const goesOn = rule.facts.drawing === "marks" && from === "drawing";
        rule.state = this.hasMouse || goesOn ? "drawing" : "waiting";
        if (rule.state !== from) {
            this.events.emit("state", { rule, from, to: rule.state });
        }
    }
}
