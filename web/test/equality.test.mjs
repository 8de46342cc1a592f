// The same gestures on the module, with real mouse events, and on the native library: what both say and write is equal
// byte for byte.
import { execFileSync } from "node:child_process";
import { readFileSync } from "node:fs";
import { join } from "node:path";
import { built, drag, openPage, root, test } from "./harness.mjs";

const table = join(root, "web/test/gestures.txt");

async function playMouse(page, command, at) {
    const [x, y] = at;
    if (command === "drag") {
        await drag(page, [x, y], [at[2], at[3]]);
        return;
    }
    await page.mouse.move(x, y);
    if (command === "click") {
        await page.mouse.down();
        await page.mouse.up();
    } else if (command === "rclick" || command === "altrclick") {
        const alt = command === "altrclick";
        await (alt && page.keyboard.down("Alt"));
        await page.mouse.down({ button: "right" });
        await page.mouse.up({ button: "right" });
        await (alt && page.keyboard.up("Alt"));
    } else if (command !== "move") {
        throw new Error(`unknown step ${command}`);
    }
}

/** Steps that a program takes; runs in the page. Whether it was one of them. */
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
    steps[command]?.(words);
    return command in steps;
}

async function playStep(page, words) {
    if (words[0] === "escape") {
        await page.keyboard.press("Escape");
    } else if (!(await page.evaluate(playProgram, words))) {
        await playMouse(page, words[0], words.slice(1).map(Number));
    }
}

async function playInBrowser({ browser, address }) {
    const { page, complaints, close } = await openPage(browser, address, "test/view.html");
    await page.waitForFunction("window.ready");
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
                await playStep(page, step.trim().split(" "));
                await takeLog();
            }
        }
    }
    await page.evaluate("window.canvas.destroy()");
    await takeLog();
    await close();
    return { lines: lines.filter((line) => /^(case|notify|capture|config) /.test(line)), complaints };
}

/** Notifications in both logs, so that an equality of nothing does not pass. */
const LEAST_LINES = 300;

test("gestures on the module and on the native library say and write the same", async (session) => {
    const native = execFileSync(join(built, "native_player"), [table], { encoding: "utf8" }).trimEnd().split("\n");
    const { lines, complaints } = await playInBrowser(session);
    const at = native.findIndex((line, index) => line !== lines[index]);
    if (at >= 0 || native.length !== lines.length) {
        const before = native
            .slice(0, Math.max(at, 0))
            .reverse()
            .find((line) => line.startsWith("case "));
        throw new Error(`in "${before}", line ${at + 1} of ${native.length}: ${lines[at]} instead of ${native[at]}`);
    }
    if (native.length < LEAST_LINES || complaints.length > 0) {
        throw new Error(`${native.length} lines; complaints: ${complaints.join("; ")}`);
    }
});
