// The samples of docs/web.md do what the page says.
import { readFile } from "node:fs/promises";
import { join } from "node:path";
import { equal, isTrue, openPage, root, test } from "./harness.mjs";

const text = await readFile(join(root, "docs/web.md"), "utf8");
const samplesOf = (language) => [...text.matchAll(new RegExp("```" + language + "\\n(.*?)```", "gs"))].map(([, sample]) => sample);

test("the first page of the guide shows a canvas", async ({ browser, address }) => {
    const [sample] = samplesOf("html");
    const { page, complaints, close } = await openPage(browser, address, "test/view.html");
    await page.waitForFunction("window.ready");
    const here = sample.replace("./rulecanvas/", "/rulecanvas/").replace(' src="camera.webm"', ""); // a reader's own
    await page.setContent(here);
    await page.waitForSelector("canvas");
    equal(complaints, [], "what the browser says");
    await close();
});

test("the samples of the guide run, or are refused as it says", async ({ browser, address }) => {
    const { page, complaints, close } = await openPage(browser, address, "test/view.html");
    await page.waitForFunction("window.ready");
    await page.evaluate("start()");
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
    equal(complaints, [], "what the browser says");
    await close();
});
