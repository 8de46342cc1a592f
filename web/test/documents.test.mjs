// The samples of docs/web.md do what the page says.
import { readFile } from "node:fs/promises";
import { join } from "node:path";
import { equal, isTrue, root, viewTest } from "./harness.mjs";

const text = await readFile(join(root, "docs/web.md"), "utf8");
const samplesOf = (language) =>
    [...text.matchAll(new RegExp("```" + language + "\\n(.*?)```", "gs"))].map(([, sample]) => sample);

viewTest("the first page of the guide shows a canvas", { start: null }, async (page) => {
    const [sample] = samplesOf("html");
    const here = sample.replace("./rulecanvas/", "/rulecanvas/").replace(' src="camera.webm"', ""); // a reader's own
    await page.setContent(here);
    await page.waitForSelector("canvas");
});

viewTest("the samples of the guide run, or are refused as it says", { start: {} }, async (page) => {
    const samples = samplesOf("js");
    isTrue(samples.length > 1, "that there are samples");
    for (const sample of samples) {
        const [, reason, message] = sample.match(/\/\/ RuleCanvasError \((\S+)\): (.*)/) ?? [];
        const refusal = await page.evaluate(async (body) => {
            try {
                await new Function("canvas", `return (async () => { ${body} })()`)(window.canvas);
                return [];
            } catch (error) {
                return [error.reason, error.message];
            }
        }, sample);
        equal(refusal, reason === undefined ? [] : [reason, message], `what comes of ${sample}`);
    }
});
