/** Rules of video analytics, drawn and edited in a browser. */
export { RuleCanvas } from "./rule_canvas.js";
export type { RuleCanvasOptions } from "./canvas_options.js";
export type { Snapshot } from "./documents.js";
export { Rule } from "./rule.js";
export type { AddOptions } from "./options.js";
export { hexOf, type Colour, type RuleStyle } from "./style.js";
export {
    RULE_TYPES,
    type DirectionChoice,
    type Drawing,
    type RuleState,
    type RuleType,
    type RuleTypeFacts,
} from "./rule_types.js";
export type { RuleCanvasEvents } from "./events.js";
export { RuleCanvasError, type ErrorReason, type RefusedRule } from "./errors.js";
export { History } from "./history.js";
export { readRulesFile, writeRulesFile, type RulesFile } from "./rules_file.js";
export type { Configuration, Rgb, RuleRecord } from "./record.js";
export { configurationOf, pointsOf, GRID, type Point, type Size } from "./geometry.js";
export type { Library } from "./core.js";
