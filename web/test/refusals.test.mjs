// Wrong calls and wrong files are refused with a reason, and change nothing.
import { at, equal, isTrue, viewTest } from "./harness.mjs";

const rule = (name, more = {}) => ({ type: "Rect", name, configuration: { [name]: at("100,100 900,900") }, ...more });
const file = (rules, more = {}) => ({ format: "rulecanvas-rules", version: 1, rules, ...more });

const WRONG_ADDS = [
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
    [
        { type: "Polygon", name: "p", configuration: { p: Array.from({ length: 21 }, (_, i) => [i, i * i]) } },
        "configuration-refused",
        "geometry",
    ],
    [{ type: "Rect", visible: "yes" }, "wrong-value", "visible"],
];

const WRONG_FILES = [
    ["{", "not-a-rules-file", "JSON"],
    ["[]", "not-a-rules-file", "format"],
    [{ format: "other", version: 1, rules: [] }, "not-a-rules-file", "format"],
    [file([], { version: 2 }), "newer-version", "version 2"],
    [
        file([rule("a"), rule("a"), rule("b", { type: "Nothing" }), rule("c", { configuration: { d: 1 } })]),
        "rules-refused",
        'rule 2 "a"',
    ],
    [file([rule("ok"), rule("c", { configuration: { d: [] } })]), "rules-refused", 'rule 2 "c"'],
];

async function refused(page, call, argument) {
    return page.evaluate(
        ([call, argument]) => {
            try {
                window.canvas[call](argument);
            } catch (problem) {
                return {
                    own: problem instanceof window.rulecanvas.RuleCanvasError,
                    reason: problem.reason,
                    message: problem.message,
                    refused: problem.refused,
                };
            }
            return null;
        },
        [call, argument],
    );
}

function refusalTest(name, run) {
    viewTest(name, {}, async (page) => {
        await page.evaluate((rule) => window.canvas.load(rule), file([rule("there")]));
        const before = await page.evaluate("canvas.saveText()");
        await run(page);
        equal(await page.evaluate("canvas.saveText()"), before, "the rules after what was refused");
    });
}

/** Rows of what is given, the reason of its refusal, and a word of the message. */
async function expectRefusals(page, call, rows) {
    for (const [given, reason, word] of rows) {
        const answer = await refused(page, call, given);
        equal([answer?.own, answer?.reason], [true, reason], `the refusal of ${JSON.stringify(given)}`);
        isTrue(answer.message.includes(word), `"${answer.message}" names ${word}`);
    }
}

refusalTest("wrong options are refused with a reason", async (page) => {
    await expectRefusals(page, "add", WRONG_ADDS);
    equal((await refused(page, "select", "nobody"))?.reason, "unknown-rule", "the refusal of an unknown name");
});

refusalTest("wrong rules files are refused whole", async (page) => {
    await expectRefusals(page, "load", WRONG_FILES);
    const { refused: named } = await refused(page, "load", WRONG_FILES[4][0]);
    equal(
        named.map(({ index, reason }) => `${index} ${reason}`),
        ["1 duplicate-name", "2 unknown-type"],
        "the refused rules",
    );
});

viewTest("a rules file keeps what this version does not know, in place", {}, async (page) => {
    const source = {
        future: { a: 1 },
        format: "rulecanvas-rules",
        version: 1,
        picture: { width: 800, height: 600 },
        rules: [
            {
                note: "a",
                type: "SpotShape",
                name: "lamp",
                configuration: { lamp: [[4096, 4096]], radius: 9 },
                more: [1],
            },
            {
                type: "OvalShape",
                name: "tree",
                option: "word",
                configuration: { tree: at("2048,1365 4096,3549") },
                visible: true,
                view: 0,
                locked: true,
            },
            { type: "Rect", name: "far", configuration: { far: at("1433,1775 3481,3413") }, view: 7, enabled: false },
            { type: "Polygon", name: "later", configuration: null },
        ],
        last: [true, null],
    };
    await page.evaluate((source) => window.canvas.load(source), source);
    equal(JSON.parse(await page.evaluate("canvas.saveText()")), source, "the file");
});
