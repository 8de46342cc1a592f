import { RuleCanvasError } from "./errors.js";
import { configurationOf, type Point, type Size } from "./geometry.js";
import type { Configuration, RuleRecord } from "./record.js";
import { factsOf, RULE_TYPES, type RuleType, type RuleTypeFacts } from "./rule_types.js";
import { rgbOf, styleToOption, type Colour, type RuleStyle } from "./style.js";

/** What a new rule is made of. Only the type is needed; without a geometry the user draws the rule. */
export interface AddOptions {
    type: RuleType;
    /** Unique on the canvas; made from the type when absent. */
    name?: string;
    /** "EventName" in the rule's notifications. */
    label?: string;
    /** Shown beside the rule. */
    caption?: string;
    /** The geometry in pixels of the picture; see `RuleCanvas.picture`. Two corners for boxes, places for marks. */
    points?: readonly Point[];
    /** The geometry as the library writes it, instead of `points`. */
    configuration?: Configuration;
    /** A mode word that the type knows, such as "Convex". */
    mode?: string;
    /** How many marks the user places, for "CrossShape". */
    count?: number;
    /** Instead of a mode. */
    style?: RuleStyle;
    /** A mode word, or a style in the library's own keys, instead of `mode`, `count` and `style`. */
    option?: RuleRecord["option"];
    /** Of the outline while the rule is selected, and while it is not. */
    colours?: { selected?: Colour; unselected?: Colour };
    /** One of the type's `directions`. */
    direction?: number;
    /** How many points the user may and must give. */
    pointLimits?: { maximum: number; minimum: number };
    /** Gets presses. */
    enabled?: boolean;
    visible?: boolean;
    /** Shown, but not to be edited. */
    locked?: boolean;
    /** The view that shows the rule; the canvas's own when absent. */
    view?: number;
    /** Whether it is selected then; a rule that the user draws is. */
    selected?: boolean;
}

const KNOWN = new Set([
    "type",
    "name",
    "label",
    "caption",
    "points",
    "configuration",
    "mode",
    "count",
    "style",
    "option",
    "colours",
    "direction",
    "pointLimits",
    "enabled",
    "visible",
    "locked",
    "view",
    "selected",
]);

function refuse(reason: "wrong-option" | "wrong-value", message: string): never {
    throw new RuleCanvasError(reason, message);
}

/** The facts of a type; throws for one that the library does not have. */
export function requiredFacts(type: unknown): RuleTypeFacts {
    const facts = typeof type === "string" ? factsOf(type) : undefined;
    if (facts === undefined) {
        const known = RULE_TYPES.map((each) => each.type).join(", ");
        throw new RuleCanvasError("unknown-type", `There is no type ${JSON.stringify(type)}; there are ${known}`);
    }
    return facts;
}

function checkText(value: unknown, what: string): void {
    if (value !== undefined && (typeof value !== "string" || value.includes("\0"))) {
        refuse("wrong-value", `${what} takes a text, not ${JSON.stringify(value)}`);
    }
}

function optionOf(options: AddOptions, facts: RuleTypeFacts): RuleRecord["option"] {
    const given = (["mode", "count", "style", "option"] as const).filter((key) => options[key] !== undefined);
    if (given.length > 1) {
        refuse("wrong-option", `The library takes one of ${given.join(" and ")}, not both`);
    }
    if (options.mode !== undefined && !facts.modes.includes(options.mode)) {
        const known = facts.modes.length > 0 ? `it knows ${facts.modes.join(", ")}` : "it knows none";
        refuse("wrong-option", `${facts.type} has no mode ${JSON.stringify(options.mode)}; ${known}`);
    }
    if (options.count !== undefined) {
        if (!facts.modes.includes("count")) {
            refuse("wrong-option", `${facts.type} has a fixed number of points and takes no count`);
        }
        if (!Number.isInteger(options.count) || options.count < 1 || options.count > facts.points[1]) {
            refuse("wrong-value", `count takes a whole number from 1 to ${facts.points[1]}, not ${options.count}`);
        }
        return String(options.count);
    }
    if (options.style !== undefined) {
        if (!facts.styled) {
            refuse("wrong-option", `${facts.type} reads no style; colour it with "colours"`);
        }
        return styleToOption(options.style);
    }
    return options.mode ?? options.option;
}

function coloursOf(colours: NonNullable<AddOptions["colours"]>): NonNullable<RuleRecord["colours"]> {
    const result: RuleRecord["colours"] = {};
    for (const [which, colour] of Object.entries(colours)) {
        if (which !== "selected" && which !== "unselected") {
            refuse("wrong-option", `colours has "selected" and "unselected", no "${which}"`);
        }
        if (colour !== undefined) {
            result[which] = rgbOf(colour, `colours.${which}`);
        }
    }
    return result;
}

function geometryOf(options: AddOptions, facts: RuleTypeFacts, name: string, picture: Size): Configuration | undefined {
    if (options.points === undefined) {
        return options.configuration;
    }
    if (options.configuration !== undefined) {
        refuse("wrong-option", "The geometry is given by points or by a configuration, not by both");
    }
    const isPoint = (point: unknown): boolean =>
        Array.isArray(point) && point.length === 2 && point.every(Number.isFinite);
    const [least, most] = facts.points;
    if (!Array.isArray(options.points) || !options.points.every(isPoint)) {
        refuse("wrong-value", `points takes a list of [x, y], not ${JSON.stringify(options.points)}`);
    }
    if (options.points.length < least || options.points.length > most) {
        const wanted = least === most ? `${least}` : `${least} to ${most}`;
        refuse("wrong-value", `${facts.type} takes ${wanted} points, not ${options.points.length}`);
    }
    return configurationOf(facts.type, name, options.points, picture);
}

/** The record of a new rule; throws where an option is wrong. */
export function recordOf(options: AddOptions, freeName: (type: RuleType) => string, picture: Size): RuleRecord {
    const facts = requiredFacts(options.type);
    const unknown = Object.keys(options).filter((key) => !KNOWN.has(key));
    if (unknown.length > 0) {
        refuse("wrong-option", `A rule has no option "${unknown[0]}"`);
    }
    const name = options.name ?? freeName(facts.type);
    const record: RuleRecord = { type: facts.type, name };
    const geometry = geometryOf(options, facts, name, picture);
    const members: Partial<RuleRecord> = {
        label: options.label,
        caption: options.caption,
        option: optionOf(options, facts),
        configuration: geometry,
        colours: options.colours && coloursOf(options.colours),
        direction: options.direction,
        pointLimits: options.pointLimits,
        enabled: options.enabled,
        visible: options.visible,
        locked: options.locked,
        view: options.view,
    };
    for (const [key, value] of Object.entries(members)) {
        if (value !== undefined) {
            record[key] = value;
        }
    }
    checkRecord(record);
    return record;
}

const isFlag = (value: unknown): boolean => value === undefined || typeof value === "boolean";
const isObject = (value: unknown): boolean => typeof value === "object" && value !== null && !Array.isArray(value);
const isWhole = (value: unknown, least: number, most: number): boolean =>
    Number.isInteger(value) && (value as number) >= least && (value as number) <= most;

/** Throws unless every known member of a rule has a value that it can take. */
export function checkRecord(record: RuleRecord): void {
    requiredFacts(record.type);
    for (const key of ["name", "label", "caption"] as const) {
        checkText(record[key], key);
    }
    const wrong = (key: string, wanted: string): never =>
        refuse("wrong-value", `${key} takes ${wanted}, not ${JSON.stringify(record[key])}`);
    if (record.name === undefined || record.name === "") {
        wrong("name", "a text that is not empty");
    }
    const { option, configuration, pointLimits: limits, view, direction } = record;
    if (option !== undefined && typeof option !== "string" && !isObject(option)) {
        wrong("option", "a mode word or a style");
    }
    if (configuration !== undefined && configuration !== null && !isObject(configuration)) {
        wrong("configuration", "an object");
    }
    if (direction !== undefined && !isWhole(direction, -1, 5)) {
        wrong("direction", "a whole number from -1 to 5");
    }
    if (
        limits !== undefined &&
        !(isObject(limits) && isWhole(limits.maximum, 1, 10000) && isWhole(limits.minimum, -1, 10000))
    ) {
        wrong("pointLimits", "a maximum and a minimum");
    }
    if (view !== undefined && !isWhole(view, 0, 0xffffffff)) {
        wrong("view", "a whole number from 0 on");
    }
    for (const key of ["enabled", "visible", "locked"] as const) {
        if (!isFlag(record[key])) {
            wrong(key, "true or false");
        }
    }
    if (record.colours !== undefined) {
        coloursOf(isObject(record.colours) ? record.colours : wrong("colours", "an object"));
    }
}
