import { RuleCanvasError } from "./errors.js";
import type { Rgb } from "./record.js";

/** A colour: "#rrggbb", or its three parts. */
export type Colour = string | Rgb;

/** How a rule looks and what the user may do with it. Every member may be absent. */
export interface RuleStyle {
    /** Width of the lines while selected, in pixels. */
    thickness?: number;
    /** Width of the lines while not selected. */
    unselectedThickness?: number;
    /** A patterned outline. */
    dashed?: boolean;
    /** Whether the user may move the rule. */
    movable?: boolean;
    /** Whether the user may drag its points. */
    adjustable?: boolean;
    /** Lets an arrow have up to 20 points. */
    manyPoints?: boolean;
    /** Covers a rectangle with cells of so many pixels. */
    mosaic?: number;
}

/** Three whole numbers from 0 to 255; throws for anything else. */
export function rgbOf(colour: Colour, what: string): Rgb {
    if (typeof colour === "string" && /^#[0-9a-f]{6}$/i.test(colour)) {
        const value = parseInt(colour.slice(1), 16);
        return [value >> 16, (value >> 8) & 255, value & 255];
    }
    if (
        Array.isArray(colour) &&
        colour.length === 3 &&
        colour.every((part) => Number.isInteger(part) && part >= 0 && part <= 255)
    ) {
        return [colour[0], colour[1], colour[2]];
    }
    throw new RuleCanvasError(
        "wrong-value",
        `${what} takes "#rrggbb" or three whole numbers from 0 to 255, not ${JSON.stringify(colour)}`,
    );
}

/** "#rrggbb". */
export function hexOf([red, green, blue]: Rgb): string {
    return `#${((red << 16) | (green << 8) | blue).toString(16).padStart(6, "0")}`;
}

function wholeNumber(value: unknown, what: string, least: number, most: number): number {
    if (typeof value !== "number" || !Number.isInteger(value) || value < least || value > most) {
        throw new RuleCanvasError(
            "wrong-value",
            `${what} takes a whole number from ${least} to ${most}, not ${JSON.stringify(value)}`,
        );
    }
    return value;
}

function flag(value: unknown, what: string): boolean {
    if (typeof value !== "boolean") {
        throw new RuleCanvasError("wrong-value", `${what} takes true or false, not ${JSON.stringify(value)}`);
    }
    return value;
}

/** How each member is said in the library's keys. */
const KEYS: { readonly [K in keyof Required<RuleStyle>]: (value: unknown) => { [key: string]: unknown } } = {
    thickness: (value) => ({ LineThickness: wholeNumber(value, "thickness", 1, 50) }),
    unselectedThickness: (value) => ({ UnSelLineThickness: wholeNumber(value, "unselectedThickness", 1, 50) }),
    dashed: (value) => ({ PenStyle: flag(value, "dashed") ? 1 : 0 }),
    movable: (value) => ({ CanMove: flag(value, "movable") }),
    adjustable: (value) => ({ CanAdjust: flag(value, "adjustable") }),
    manyPoints: (value) => ({ XArrowLine: flag(value, "manyPoints") }),
    mosaic: (value) => ({ mosaic: { enable: true, size: wholeNumber(value, "mosaic", 1, 1000) } }),
};

/** The style in the library's own keys. */
export function styleToOption(style: RuleStyle): { [key: string]: unknown } {
    const option = {};
    for (const [key, value] of Object.entries(style)) {
        if (!(key in KEYS)) {
            throw new RuleCanvasError(
                "wrong-option",
                `A style has no "${key}"; it has ${Object.keys(KEYS).join(", ")}`,
            );
        }
        if (value !== undefined) {
            Object.assign(option, KEYS[key as keyof RuleStyle](value));
        }
    }
    return option;
}
