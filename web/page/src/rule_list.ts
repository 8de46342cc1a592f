import { hexOf, type Rule, type RuleCanvas } from "rulecanvas";
import { byId, make } from "./dom.js";
import { icon } from "./icons.js";

function button(
    sign: Parameters<typeof icon>[0],
    title: string,
    pressed: boolean | null,
    action: () => void,
): HTMLButtonElement {
    const element = make("button", { innerHTML: icon(sign), title, type: "button" });
    element.setAttribute("aria-label", title);
    if (pressed !== null) {
        element.setAttribute("aria-pressed", String(pressed));
    }
    element.addEventListener("click", (event) => {
        event.stopPropagation();
        action();
    });
    return element;
}

function entryOf(canvas: RuleCanvas, rule: Rule, selected: boolean): HTMLLIElement {
    const chip = make("span", { className: "chip" });
    chip.style.background = rule.colours.unselected ? hexOf(rule.colours.unselected) : "#ff0000";
    const words = make("span", { className: "words" }, make("span", { textContent: rule.caption || rule.name }));
    words.append(make("span", { className: "type", textContent: rule.facts.title }));
    const entry = make("li", { className: rule.visible ? "" : "hidden" }, chip, words);
    entry.setAttribute("aria-selected", String(selected));
    entry.append(
        button(
            rule.visible ? "eye" : "hiddenEye",
            rule.visible ? "Hide" : "Show",
            null,
            () => (rule.visible = !rule.visible),
        ),
        button(
            rule.locked ? "lock" : "unlocked",
            rule.locked ? "Unlock" : "Lock",
            rule.locked,
            () => (rule.locked = !rule.locked),
        ),
        button("bin", `Delete ${rule.name}`, null, () => rule.remove()),
    );
    entry.addEventListener("click", () => {
        canvas.select(rule);
        canvas.canvas.focus({ preventScroll: true });
    });
    return entry;
}

/** Shows the rules of a canvas, the ones drawn last on top. */
export function showRules(canvas: RuleCanvas): void {
    const rules = canvas.rules.filter((rule) => rule !== canvas.drawing);
    const selection = canvas.selection;
    byId("rules").replaceChildren(...rules.map((rule) => entryOf(canvas, rule, selection.includes(rule))).reverse());
    byId("count").textContent = String(rules.length);
    byId("empty").hidden = rules.length > 0;
}
