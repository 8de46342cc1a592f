// Wrong calls and wrong files are refused with a reason, and change nothing.
import { at, equal, isTrue, viewTest } from "./harness.mjs";

const rule = (name, more = {}) => ({ type: "Rect", name, configuration: { [name]: at("100,100 900,900") }, ...more });
const misnamed = rule("c", { configuration: { d: [] } });
const file = (rules, more = {}) => ({ format: "rulecanvas-rules", version: 1, rules, ...more });
const tooMany = Array.from({ length: 21 }, (_, i) => [i, i * i]);

/** Rows for each call: what is given, the reason of its refusal, a word of the message, the refused rules of a file. */
const REFUSED = {
    add: [
        [{ type: "Circle" }, "unknown-type", "Circle"],
        [{ type: "rect" }, "unknown-type", "rect"],
        [{ type: "Rect", colour: "#ffffff" }, "wrong-option", "colour"],
        [{ type: "Rect", mode: "Convex" }, "wrong-option", "Convex"],
        [{ type: "Rect", mode: "TextOnly", style: { thickness: 2 } }, "wrong-option", "mode and style"],
        [{ type: "Rect", style: { width: 2 } }, "wrong-option", "width"],
        [{ type: "Rect", style: { thickness: "2" } }, "wrong-value", "thickness"],
        [{ type: "OvalShape", style: { thickness: 2 } }, "wrong-option", "style"],
        [{ type: "BigCrossShape", count: 3 }, "wrong-option", "count"],
        [{ type: "CrossShape", count: 0 }, "wrong-value", "count"],
        [{ type: "Rect", colours: { selected: "red" } }, "wrong-value", "colours.selected"],
        [{ type: "Rect", colours: { hover: "#ff0000" } }, "wrong-option", "hover"],
        [{ type: "Rect", direction: 9 }, "wrong-value", "direction"],
        [{ type: "Rect", name: "" }, "wrong-value", "name"],
        [{ type: "Rect", name: "there" }, "duplicate-name", "there"],
        [{ type: "Rect", points: [[1, 2]] }, "wrong-value", "2 points"],
        [{ type: "Rect", points: at("1,2 3,NaN") }, "wrong-value", "points"],
        [{ type: "Rect", points: at("1,2 300,400"), configuration: {} }, "wrong-option", "both"],
        [{ type: "Rect", name: "a", configuration: { b: at("1,1 500,500") } }, "configuration-refused", "geometry"],
        [{ type: "Polygon", name: "p", configuration: { p: tooMany } }, "configuration-refused", "geometry"],
        [{ type: "Rect", visible: "yes" }, "wrong-value", "visible"],
    ],
    select: [["nobody", "unknown-rule", "nobody"]],
    load: [
        ["{", "not-a-rules-file", "JSON"],
        ["[]", "not-a-rules-file", "format"],
        [{ format: "other", version: 1, rules: [] }, "not-a-rules-file", "format"],
        [file([], { version: 2 }), "newer-version", "version 2"],
        [
            file([rule("a"), rule("a"), rule("b", { type: "Nothing" }), misnamed]),
            "rules-refused",
            'rule 2 "a"',
            ["1 duplicate-name", "2 unknown-type"],
        ],
        [file([rule("ok"), misnamed]), "rules-refused", 'rule 2 "c"', ["1 configuration-refused"]],
    ],
};

/** What comes of a call that must not succeed; runs in the page. */
function refusal([call, argument]) {
    try {
        window.canvas[call](argument);
    } catch (problem) {
        const { reason, message } = problem;
        const rules = problem.refused?.map((rule) => `${rule.index} ${rule.reason}`);
        return { own: problem instanceof window.rulecanvas.RuleCanvasError, reason, message, rules };
    }
    return null;
}

for (const [call, rows] of Object.entries(REFUSED)) {
    viewTest(`a wrong ${call} is refused with a reason and changes nothing`, {}, async (page) => {
        await page.evaluate((rules) => window.canvas.load(rules), file([rule("there")]));
        const before = await page.evaluate("canvas.saveText()");
        for (const [given, reason, word, rules = []] of rows) {
            const answer = await page.evaluate(refusal, [call, given]);
            const refused = [answer?.own, answer?.reason, answer?.rules];
            equal(refused, [true, reason, rules], `the refusal of ${JSON.stringify(given)}`);
            isTrue(answer.message.includes(word), `"${answer.message}" names ${word}`);
        }
        equal(await page.evaluate("canvas.saveText()"), before, "the rules after what was refused");
    });
}

viewTest("a rules file keeps what this version does not know, in place", {}, async (page) => {
    const lamp = { lamp: [[4096, 4096]], radius: 9 };
    const tree = { tree: at("2048,1365 4096,3549") };
    const far = { far: at("1433,1775 3481,3413") };
    const flags = { visible: true, view: 0, locked: true };
    const source = {
        future: { a: 1 },
        format: "rulecanvas-rules",
        version: 1,
        picture: { width: 800, height: 600 },
        rules: [
            { note: "a", type: "SpotShape", name: "lamp", configuration: lamp, more: [1] },
            { type: "OvalShape", name: "tree", option: "word", configuration: tree, ...flags },
            { type: "Rect", name: "far", configuration: far, view: 7, enabled: false },
            { type: "Polygon", name: "later", configuration: null },
        ],
        last: [true, null],
    };
    await page.evaluate((source) => window.canvas.load(source), source);
    equal(JSON.parse(await page.evaluate("canvas.saveText()")), source, "the file");
});
