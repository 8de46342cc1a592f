/** Why a call was refused. */
export type ErrorReason =
    /** The type is not one of the library's; see `RULE_TYPES`. */
    | "unknown-type"
    /** An option that does not exist, or that this type of rule does not understand. */
    | "wrong-option"
    /** An option that exists with a value that it cannot take. */
    | "wrong-value"
    /** Another rule has this name already. */
    | "duplicate-name"
    /** The library does not accept the geometry. */
    | "configuration-refused"
    /** The text is not JSON, or not a rules file. */
    | "not-a-rules-file"
    /** The rules file was written by a later version. */
    | "newer-version"
    /** Single rules of a file were refused; `refused` names each. */
    | "rules-refused"
    /** No rule has this name, or the rule was removed. */
    | "unknown-rule"
    /** The WebAssembly module could not be loaded. */
    | "core-not-loaded"
    /** The canvas was ended by `destroy`. */
    | "destroyed";

/** A rule of a file that was refused. */
export interface RefusedRule {
    /** Its place in the file, from 0. */
    readonly index: number;
    /** Its name, empty when it has none. */
    readonly name: string;
    readonly reason: ErrorReason;
    readonly message: string;
}

/** What every refused call throws. Nothing has changed then. */
export class RuleCanvasError extends Error {
    readonly reason: ErrorReason;
    /** For the reason "rules-refused": every rule that was refused. */
    readonly refused: readonly RefusedRule[];

    constructor(reason: ErrorReason, message: string, refused: readonly RefusedRule[] = []) {
        super(message);
        this.name = "RuleCanvasError";
        this.reason = reason;
        this.refused = refused;
    }
}
