// Runs the comparison in headless Chromium and prints it as a table; ratios are to RuleCanvas in the same run.
//   node bench/web/run.mjs [ROUNDS]
import { join } from "node:path";
import { openPage, root, startBrowser } from "../../web/test/harness.mjs";

const ROUNDS = Number(process.argv[2] ?? 7);
const STEPS = 30;
const MEASURES = ["load", "press", "drag"];
const modules = join(root, "web/node_modules");

const median = (values) => [...values].sort((a, b) => a - b)[Math.floor(values.length / 2)];

const session = await startBrowser({
    folders: {
        "/bench/": join(root, "bench/web"),
        "/konva/": join(modules, "konva"),
        "/annotorious/": join(modules, "@annotorious/annotorious/dist"),
    },
    // Without them a step takes as long as the screen's next frame lets it wait.
    flags: ["--disable-frame-rate-limit", "--disable-gpu-vsync"],
});
const { page, complaints } = await openPage(session.browser, session.address, "bench/", {
    viewport: { width: 1920, height: 1080 },
});
await page.waitForFunction("window.measure");
await page.mouse.move(5, 5);
const names = await page.evaluate("names");
const results = Object.fromEntries(names.map((name) => [name, { load: [], press: [], drag: [] }]));
for (let round = 0; round <= ROUNDS; ++round) {
    // The libraries take turns, so that whatever else the machine does meets all of them; the first round warms up.
    for (const name of names) {
        const result = await page.evaluate(([name, steps]) => window.measure(name, steps), [name, STEPS]);
        for (const measure of round === 0 ? [] : MEASURES) {
            results[name][measure].push(result[measure]);
        }
    }
    process.stderr.write(`bench-web: round ${round} of ${ROUNDS}\n`);
}
await session.end();

// Ratios are taken within a round, so that whatever else the machine does then meets both sides.
const own = results[names[0]];
console.log(
    `| milliseconds (ratio to RuleCanvas), median of ${ROUNDS} | load | press | drag step |\n|---|---|---|---|`,
);
for (const name of names) {
    const cells = MEASURES.map((measure) => {
        const values = results[name][measure];
        const ratio = median(values.map((value, round) => value / own[measure][round]));
        return `${median(values).toFixed(1)} (${ratio.toFixed(1)})`;
    });
    console.log(`| ${name} | ${cells.join(" | ")} |`);
}
if (complaints.length > 0) {
    console.log(`The browser complained: ${complaints.join("; ")}`);
    process.exitCode = 1;
}
