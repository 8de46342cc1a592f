import type { RuleType } from "./rule_types.js";

/** Red, green and blue, 0 to 255 each. */
export type Rgb = readonly [number, number, number];

/** A geometry as the library writes it: an object with one member named after the rule, on a grid of 0 to 8191 over the
 * picture's width and height. A spot may have "radius" beside it. */
export type Configuration = { readonly [member: string]: unknown };

/** A rule as a rules file keeps it. Members that this version does not know stay where they are. */
export interface RuleRecord {
    type: RuleType;
    name: string;
    label?: string;
    caption?: string;
    /** A mode word, or a style in the library's own keys. */
    option?: string | { [key: string]: unknown };
    /** Null or absent: not drawn yet. */
    configuration?: Configuration | null;
    colours?: { selected?: Rgb; unselected?: Rgb };
    direction?: number;
    pointLimits?: { maximum: number; minimum: number };
    enabled?: boolean;
    visible?: boolean;
    locked?: boolean;
    view?: number;
    [unknown: string]: unknown;
}

/** The members that this version knows, with what stands for an absent one. */
export const DEFAULTS = { enabled: true, visible: true, locked: false, view: 0 } as const;
