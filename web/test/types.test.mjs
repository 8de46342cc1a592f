// Every type in a browser with a real mouse: drawn, edited, deleted, saved and loaded.
import { drag, equal, isTrue, openPage, test } from "./harness.mjs";

/** How each type is drawn and then edited, and what its geometry is afterwards, in pixels of the view. */
const CASES = {
    Rect: {
        draw: ["drag", [100, 100], [300, 200]],
        edit: [
            [200, 150],
            [240, 190],
        ],
        points: [
            [140, 140],
            [340, 240],
        ],
    },
    Polygon: {
        draw: ["path", [100, 100], [300, 100], [200, 300]],
        edit: [
            [200, 300],
            [220, 340],
        ],
        points: [
            [100, 100],
            [300, 100],
            [220, 340],
        ],
    },
    VirablePolygon: {
        draw: ["path", [100, 100], [300, 100], [200, 300]],
        edit: [
            [200, 180],
            [240, 200],
        ],
        points: [
            [140, 120],
            [340, 120],
            [240, 320],
        ],
    },
    OvalShape: {
        draw: ["drag", [100, 100], [300, 200]],
        edit: [
            [300, 200],
            [360, 260],
        ],
        points: [
            [100, 100],
            [360, 260],
        ],
    },
    LineShape: {
        draw: ["drag", [100, 100], [300, 200]],
        edit: [
            [300, 200],
            [320, 260],
        ],
        points: [
            [100, 100],
            [320, 260],
        ],
    },
    VerticalLineShape: {
        draw: ["drag", [100, 100], [130, 300]],
        edit: [
            [100, 200],
            [140, 200],
        ],
        points: [
            [140, 100],
            [140, 300],
        ],
    },
    HorizontalLineShape: {
        draw: ["drag", [100, 100], [300, 130]],
        edit: [
            [200, 100],
            [200, 140],
        ],
        points: [
            [100, 140],
            [300, 140],
        ],
    },
    DashLineShape: {
        draw: ["clicks", [100, 100], [300, 200]],
        edit: [
            [100, 100],
            [60, 80],
        ],
        points: [
            [60, 80],
            [300, 200],
        ],
    },
    ArrowLineShape: {
        draw: ["drag", [100, 300], [300, 100]],
        edit: [
            [300, 100],
            [320, 60],
        ],
        points: [
            [100, 300],
            [320, 60],
        ],
    },
    XLineShape: {
        draw: ["path", [100, 300], [300, 280], [500, 320]],
        edit: [
            [300, 280],
            [320, 240],
        ],
        points: [
            [100, 300],
            [320, 240],
            [500, 320],
        ],
    },
    BrokenLine: {
        draw: ["path", [100, 100], [200, 300], [300, 120]],
        edit: [
            [200, 300],
            [220, 340],
        ],
        points: [
            [100, 100],
            [220, 340],
            [300, 120],
        ],
    },
    PixelCountShape: {
        draw: ["drag", [100, 100], [300, 200]],
        edit: [
            [300, 200],
            [340, 240],
        ],
        member: [384, 168],
    },
    CrossShape: {
        draw: ["clicks", [100, 100], [300, 200]],
        edit: [
            [300, 200],
            [340, 240],
        ],
        points: [
            [100, 100],
            [340, 240],
        ],
        count: 2,
    },
    BigCrossShape: {
        draw: ["clicks", [100, 100], [300, 200]],
        edit: [
            [300, 200],
            [340, 240],
        ],
        points: [
            [100, 100],
            [340, 240],
        ],
    },
    SpotShape: {
        draw: ["clicks", [100, 100]],
        edit: [
            [100, 100],
            [140, 160],
        ],
        points: [[140, 160]],
    },
};

async function drawRule(page, [gesture, ...places]) {
    if (gesture === "drag") {
        await drag(page, ...places);
        return;
    }
    for (const [x, y] of places) {
        await page.mouse.click(x, y);
    }
    if (gesture === "path") {
        await page.mouse.click(...places.at(-1), { button: "right" });
    }
}

const log = (page) =>
    page.evaluate(() => window.log.splice(0).filter((line) => /^(create|change|delete|select)/.test(line)));

const painted = (page) => page.evaluate("paintedPixels()");

for (const [type, { draw, edit, points, member, count }] of Object.entries(CASES)) {
    test(`${type} is drawn, edited, saved, loaded and deleted`, async ({ browser, address }) => {
        const { page, complaints, close } = await openPage(browser, address, "test/view.html");
        await page.waitForFunction("window.ready");
        const picture = member ? { width: 1280, height: 720 } : { width: 800, height: 600 };
        await page.evaluate((picture) => window.start({ picture }), picture);
        await page.evaluate(
            ([type, count]) => window.canvas.add({ type, name: "rule", ...(count && { count }) }).state,
            [type, count],
        );
        await log(page);
        equal(await painted(page), 0, "painted before it is drawn");

        await drawRule(page, draw);
        isTrue((await log(page)).includes("create rule"), "the event of a drawn rule");
        isTrue((await painted(page)) > 20, "something is painted");

        await drag(page, ...edit);
        isTrue((await log(page)).includes("change rule"), "the event of a changed rule");
        const geometry = () =>
            page.evaluate(() => [window.canvas.rule("rule").points, window.canvas.rule("rule").configuration.rule]);
        const [seen, written] = await geometry();
        equal(member ? written : seen, member ?? points, "the geometry");

        const saved = await page.evaluate(() => window.canvas.saveText());
        await page.evaluate((text) => window.canvas.load(text), saved);
        equal((await geometry())[1], written, "the loaded geometry");
        equal(await page.evaluate(() => window.canvas.saveText()), saved, "what is saved again");
        isTrue((await painted(page)) > 20, "something is painted after loading");

        await page.evaluate(() => window.canvas.rule("rule").select());
        await page.keyboard.press("Delete");
        isTrue((await log(page)).includes("delete rule"), "the event of a deleted rule");
        equal([await page.evaluate("canvas.rules.length"), await painted(page)], [0, 0], "what is left");
        equal(complaints, [], "the browser's complaints");
        await close();
    });
}
