// The same gestures on the module, with real mouse events, and on the native library: what both say and write is equal
// byte for byte.
import { execFileSync } from "node:child_process";
import { readFileSync } from "node:fs";
import { join } from "node:path";
import { drag, equal, isTrue, root, viewTest } from "./harness.mjs";

const table = join(root, "web/test/gestures.txt");

/** Steps that a user takes. */
const BY_HAND = {
    move: (page, x, y) => page.mouse.move(x, y),
    click: (page, x, y) => page.mouse.click(x, y),
    rclick: (page, x, y) => page.mouse.click(x, y, { button: "right" }),
    async altrclick(page, x, y) {
        await page.keyboard.down("Alt");
        await page.mouse.click(x, y, { button: "right" });
        await page.keyboard.up("Alt");
    },
    drag: (page, x1, y1, x2, y2) => drag(page, [x1, y1], [x2, y2]),
    escape: (page) => page.keyboard.press("Escape"),
};

/** Steps that a program takes; runs in the page. */
function playProgram([command, ...words]) {
    const { canvas, log } = window;
    const rule = canvas.rule(words[0]);
    const steps = {
        add([type, name, option, configuration]) {
            canvas.add({
                type,
                name,
                label: "rule",
                ...(option !== "-" && { option: option.startsWith("{") ? JSON.parse(option) : option }),
                ...(configuration && { configuration: JSON.parse(configuration), selected: true }),
            });
        },
        config: () => log.push(`config ${rule.name} ${rule.configuration ? JSON.stringify(rule.configuration) : ""}`),
        direction: () => (rule.direction = Number(words[1])),
        limits: () => (rule.pointLimits = { maximum: Number(words[1]), minimum: Number(words[2]) }),
        caption: () => (rule.caption = words.slice(1).join(" ")),
        select: () => rule.select(),
        remove: () => rule.remove(),
        reload() {
            const saved = canvas.saveText();
            canvas.clear();
            canvas.load(saved);
        },
    };
    steps[command](words);
}

async function play(page, [command, ...words]) {
    const byHand = BY_HAND[command];
    await (byHand ? byHand(page, ...words.map(Number)) : page.evaluate(playProgram, [command, ...words]));
}

async function playInBrowser(page) {
    const lines = [];
    const takeLog = async () => lines.push(...(await page.evaluate(() => window.log.splice(0))));
    for (const line of readFileSync(table, "utf8").split("\n")) {
        if (line.startsWith("case ")) {
            await page.evaluate("window.canvas?.destroy()");
            await takeLog();
            lines.push(line);
            await page.evaluate("start()");
        } else if (line.startsWith(" ")) {
            for (const step of line.split("|")) {
                await play(page, step.trim().split(" "));
                await takeLog();
            }
        }
    }
    await page.evaluate("window.canvas.destroy()");
    await takeLog();
    return lines.filter((line) => /^(case|notify|capture|config) /.test(line));
}

viewTest("gestures on the module and on the native library say and write the same", { start: null }, async (page) => {
    const player = join(root, "web/test/native_player.py");
    const library = join(root, "build/native/librulecanvas.so");
    const native = execFileSync("python3", ["-B", "-X", "utf8", player, library, table], { encoding: "utf8" });
    const expected = native.trimEnd().split("\n");
    const lines = await playInBrowser(page);
    for (const [index, line] of expected.entries()) {
        const begun = expected.slice(0, index + 1).findLast((each) => each.startsWith("case "));
        equal(lines[index], line, `line ${index + 1}, in ${begun}`);
    }
    equal(lines.length, expected.length, "how many lines there are");
    isTrue(lines.length >= 300, `that ${lines.length} lines are more than an equality of nothing`);
});
