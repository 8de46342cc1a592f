import { hexOf, RuleCanvasError, type Rgb, type Rule } from "rulecanvas";
import { byId, make, toast } from "./dom.js";

const MODES: { readonly [mode: string]: string } = {
    "": "None",
    TextOnly: "Text only",
    EnableRBtnDelete: "Right button deletes",
    Convex: "Stays convex",
    Horizon: "Horizon",
    MovedHLine: "Moves up and down",
    solid: "Filled",
};
/** What the library draws with until it is told otherwise. */
const LIBRARY_COLOURS: { readonly selected: Rgb; readonly unselected: Rgb } = {
    selected: [255, 255, 0],
    unselected: [255, 0, 0],
};

/** A refusal is shown, and the field shows again what holds. */
function attempt(change: () => void, show: () => void): void {
    try {
        change();
    } catch (problem) {
        if (!(problem instanceof RuleCanvasError)) {
            throw problem;
        }
        toast(problem.message);
        show();
    }
}

function row(title: string, ...fields: HTMLElement[]): HTMLLabelElement {
    return make(
        "label",
        {},
        title,
        fields.length === 1 ? fields[0]! : make("span", { className: "swatches" }, ...fields),
    );
}

function textField(value: string, change: (value: string) => void, again: () => void): HTMLInputElement {
    const field = make("input", { type: "text", value });
    field.addEventListener("change", () => attempt(() => change(field.value), again));
    return field;
}

function choice(
    value: string,
    choices: readonly (readonly [string, string])[],
    change: (value: string) => void,
): HTMLSelectElement {
    const field = make(
        "select",
        {},
        ...choices.map(([key, title]) => make("option", { value: key, textContent: title })),
    );
    field.value = value;
    field.addEventListener("change", () => change(field.value));
    return field;
}

function colourField(rule: Rule, which: "selected" | "unselected"): HTMLInputElement {
    const field = make("input", { type: "color", value: hexOf(rule.colours[which] ?? LIBRARY_COLOURS[which]) });
    field.title = which === "selected" ? "While selected" : "While not selected";
    field.setAttribute("aria-label", `Colour ${field.title.toLowerCase()}`);
    field.addEventListener("input", () => rule.setColours({ [which]: field.value }));
    return field;
}

/** The mode word of a rule; a style that the page does not edit stays out of the choice. */
function modeRow(rule: Rule): HTMLElement | null {
    const modes = rule.facts.modes.filter((mode) => mode !== "count");
    const option = rule.record.option;
    if (modes.length === 0 || typeof option === "object") {
        return null;
    }
    const choices = ["", ...modes].map((mode) => [mode, MODES[mode] ?? mode] as const);
    return row(
        "Behaviour",
        choice(option ?? "", choices, (mode) => rule.replace({ option: mode === "" ? undefined : mode })),
    );
}

/** Shows what can be set on a rule; null hides it. What the user is typing is left alone, unless it is refused. */
export function showProperties(rule: Rule | null, refused = false): void {
    const section = byId("properties");
    section.hidden = rule === null;
    if (rule === null || (!refused && section.contains(document.activeElement))) {
        return;
    }
    const again = (): void => showProperties(rule, true);
    const { facts } = rule;
    const rows: (HTMLElement | null)[] = [
        make("h2", { textContent: facts.title }),
        row(
            "Name",
            textField(rule.name, (name) => rule.replace({ name }), again),
        ),
        row(
            "Caption",
            textField(rule.caption, (caption) => (rule.caption = caption), again),
        ),
        row(
            "Event",
            textField(rule.label, (label) => rule.replace({ label }), again),
        ),
        row("Colours", colourField(rule, "unselected"), colourField(rule, "selected")),
    ];
    if (facts.directions.length > 0) {
        const choices = facts.directions.map(({ value, title }) => [String(value), title] as const);
        rows.push(
            row(
                "Direction",
                choice(String(rule.direction), choices, (value) => (rule.direction = Number(value))),
            ),
        );
    }
    rows.push(modeRow(rule));
    const redraw = make("button", { textContent: "Draw again", type: "button" });
    redraw.addEventListener("click", () => rule.redraw());
    const remove = make("button", { textContent: "Delete", type: "button", className: "danger" });
    remove.addEventListener("click", () => rule.remove());
    rows.push(make("div", { className: "buttons" }, redraw, remove));
    section.replaceChildren(...rows.filter((each) => each !== null));
}
