import type { Rule } from "./rule.js";

/** How the user points: fingers have no right button. */
export type Pointing = "mouse" | "touch";

function pressing(pointing: Pointing): string {
    return pointing === "touch" ? "Tap" : "Click";
}

function toStart({ facts }: Rule, pointing: Pointing): string {
    switch (facts.drawing) {
        case "drag":
            return "Press in the picture and drag to the opposite corner.";
        case "line":
            return `Press and drag, or ${pressing(pointing).toLowerCase()} both ends.`;
        case "path":
            return `${pressing(pointing)} the first point.`;
        case "marks":
            return `${pressing(pointing)} ${facts.points[1] > 1 ? "each place" : "the place"} in the picture.`;
    }
}

function toGoOn({ facts }: Rule, pointing: Pointing): string {
    switch (facts.drawing) {
        case "drag":
            return "Drag to the opposite corner and let go.";
        case "line":
            return `Drag to the other end and let go, or ${pressing(pointing).toLowerCase()} there.`;
        case "path":
            return pointing === "touch"
                ? "Tap the next point; hold the finger still to finish."
                : "Click the next point; press the right button or Enter to finish, Escape to give up.";
        case "marks":
            return `${pressing(pointing)} the next place.`;
    }
}

function toEdit(rule: Rule, pointing: Pointing): string {
    if (rule.locked) {
        return "This rule is locked.";
    }
    const parts =
        rule.facts.drawing === "marks"
            ? ["Drag a mark to move it"]
            : ["Drag the rule to move it, or a handle to reshape it"];
    if (rule.type === "VirablePolygon") {
        parts.push(`${pointing === "touch" ? "hold" : "right-click"} an edge to put a point there`);
    }
    if (rule.kept.option === "EnableRBtnDelete") {
        parts.push(`${pointing === "touch" ? "hold" : "right-click"} to delete it`);
    }
    return `${parts.join("; ")}.`;
}

/** What the user can do next with a rule that is being drawn or is selected; null stands for none of them. */
export function helpFor(rule: Rule | null, pointing: Pointing, isDragging: boolean): string {
    switch (rule?.state) {
        case "waiting":
            return toStart(rule, pointing);
        case "drawing":
            return toGoOn(rule, pointing);
        case "complete":
            return isDragging ? "Let go where it belongs." : toEdit(rule, pointing);
        default:
            return "Choose a tool to draw a rule, or click a rule to edit it.";
    }
}
