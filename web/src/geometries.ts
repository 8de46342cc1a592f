import type { Board } from "./board.js";
import { pointsOf, type Point } from "./geometry.js";
import type { Configuration } from "./record.js";
import type { Rule } from "./rule.js";

/** The geometries of rules as the library writes them, each asked for once until it may have changed. */
export class Geometries {
    private known = new WeakMap<Rule, Configuration | null>();

    constructor(private readonly board: Board) {}

    /** Null while there is none. */
    of(rule: Rule): Configuration | null {
        let geometry = this.known.get(rule);
        if (geometry === undefined) {
            const text = rule.shape === 0 ? "" : this.board.host.configuration(rule.shape);
            geometry = text === "" ? null : withRadius(JSON.parse(text) as Configuration, rule.kept.configuration);
            this.known.set(rule, geometry);
        }
        return geometry;
    }

    /** In pixels of the picture. */
    pointsOf(rule: Rule): Point[] {
        const geometry = this.of(rule);
        return geometry === null ? [] : pointsOf(rule.type, rule.name, geometry, this.board.picture);
    }

    forget(rule: Rule): void {
        this.known.delete(rule);
    }

    /** Another view size writes other grid values. */
    forgetAll(): void {
        this.known = new WeakMap();
    }
}

/** A spot's radius is read by the library and not written. */
function withRadius(configuration: Configuration, given: Configuration | null | undefined): Configuration {
    return given && "radius" in given ? { ...configuration, radius: given["radius"] } : configuration;
}
