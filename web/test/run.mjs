// Runs the browser tests of all files beside it, or of those whose names contain the argument; ends with one line that
// counts them.
import { readdir } from "node:fs/promises";
import { dirname } from "node:path";
import { fileURLToPath } from "node:url";
import { startBrowser, tests } from "./harness.mjs";

const folder = dirname(fileURLToPath(import.meta.url));
const wanted = process.argv[2] ?? "";
for (const file of (await readdir(folder)).sort()) {
    if (file.endsWith(".test.mjs") && file.includes(wanted)) {
        await import(`./${file}`);
    }
}

const session = await startBrowser();
let failed = 0;
for (const { name, run } of tests) {
    const begin = performance.now();
    try {
        await run(session);
        console.log(`test-web: passed  ${name} (${Math.round(performance.now() - begin)} ms)`);
    } catch (problem) {
        ++failed;
        console.log(`test-web: FAILED  ${name}\n          ${problem.stack ?? problem}`);
    }
}
await session.end();
console.log(`${tests.length - failed} passed, ${failed} failed`);
process.exitCode = failed > 0 || tests.length === 0 ? 1 : 0;
