import { RuleCanvasError, type RefusedRule } from "./errors.js";
import type { Size } from "./geometry.js";
import { checkRecord } from "./options.js";
import { DEFAULTS, type RuleRecord } from "./record.js";

const FORMAT = "rulecanvas-rules";
const VERSION = 1;

/** A rules file: the same that the other editors of the project read and write. Members that this version does not know
 * are kept where they are. */
export interface RulesFile {
    format: typeof FORMAT;
    version: number;
    /** The size of the picture that the rules were drawn on; informative. */
    picture?: Size;
    rules: RuleRecord[];
    [unknown: string]: unknown;
}

/** The members of a new file. */
export function emptyFile(): RulesFile {
    return { format: FORMAT, version: VERSION, rules: [] };
}

function parsed(text: string): unknown {
    try {
        return JSON.parse(text.replace(/^\uFEFF/, ""));
    } catch (problem) {
        throw new RuleCanvasError("not-a-rules-file", `The text is not JSON: ${(problem as Error).message}`);
    }
}

/** Names every refused rule and why, in one message. */
export function refusal(refused: readonly RefusedRule[]): RuleCanvasError {
    const lines = refused.map(({ index, name, message }) => `rule ${index + 1}${name ? ` "${name}"` : ""}: ${message}`);
    return new RuleCanvasError("rules-refused", `No rule was loaded. ${lines.join("; ")}`, refused);
}

/** What is wrong with a rule by itself or among those before it; null when nothing is. */
function problemOf(rule: unknown, names: Set<string>): RuleCanvasError | null {
    if (typeof rule !== "object" || rule === null || Array.isArray(rule)) {
        return new RuleCanvasError("wrong-value", "is not an object");
    }
    const record = rule as RuleRecord;
    try {
        checkRecord(record);
    } catch (problem) {
        return problem as RuleCanvasError;
    }
    if (names.has(record.name)) {
        return new RuleCanvasError("duplicate-name", "another rule has this name");
    }
    names.add(record.name);
    return null;
}

function nameOf(rule: unknown): string {
    const name: unknown = (rule as { name?: unknown } | null)?.name;
    return typeof name === "string" ? name : "";
}

/** Reads a file or the object that it holds. All or nothing: throws one error that names every refused rule. */
export function readRulesFile(source: string | object): RulesFile {
    const root = typeof source === "string" ? parsed(source) : structuredClone(source);
    const file = root as RulesFile;
    if (typeof root !== "object" || root === null || file.format !== FORMAT || !Array.isArray(file.rules)) {
        throw new RuleCanvasError(
            "not-a-rules-file",
            `This is not a rules file: "format" is not "${FORMAT}", or "rules" is no list`,
        );
    }
    if (!Number.isInteger(file.version) || file.version < 1) {
        throw new RuleCanvasError(
            "not-a-rules-file",
            `The rules file has the impossible version ${JSON.stringify(file.version)}`,
        );
    }
    if (file.version > VERSION) {
        throw new RuleCanvasError(
            "newer-version",
            `The rules file has version ${file.version}; versions up to ${VERSION} can be read`,
        );
    }
    const names = new Set<string>();
    const refused: RefusedRule[] = [];
    file.rules.forEach((rule, index) => {
        const problem = problemOf(rule, names);
        if (problem !== null) {
            refused.push({ index, name: nameOf(rule), reason: problem.reason, message: problem.message });
        }
    });
    if (refused.length > 0) {
        throw refusal(refused);
    }
    return file;
}

/** The text of a file. */
export function writeRulesFile(file: RulesFile): string {
    return `${JSON.stringify(file, null, 2)}\n`;
}

/** Changes members of a record: those that are there already stay in their place, and one that would say the default is
 * not added. */
export function withMembers(record: RuleRecord, changes: Partial<RuleRecord>): RuleRecord {
    const result = { ...record };
    for (const [key, value] of Object.entries(changes)) {
        if (value === undefined) {
            delete result[key];
        } else if (key in result || DEFAULTS[key as keyof typeof DEFAULTS] !== value) {
            result[key] = value;
        }
    }
    return result;
}
