// Every type in a browser with a real mouse: drawn, edited, deleted, saved and loaded.
import { at, clicks, drag, equal, isTrue, viewTest } from "./harness.mjs";

/** How each type is drawn and then edited, and what its geometry is afterwards, in pixels of the view. */
const CASES = [
    ["Rect", "drag", "100,100 300,200", "200,150 240,190", "140,140 340,240"],
    ["Polygon", "path", "100,100 300,100 200,300", "200,300 220,340", "100,100 300,100 220,340"],
    ["VirablePolygon", "path", "100,100 300,100 200,300", "200,180 240,200", "140,120 340,120 240,320"],
    ["OvalShape", "drag", "100,100 300,200", "300,200 360,260", "100,100 360,260"],
    ["LineShape", "drag", "100,100 300,200", "300,200 320,260", "100,100 320,260"],
    ["VerticalLineShape", "drag", "100,100 130,300", "100,200 140,200", "140,100 140,300"],
    ["HorizontalLineShape", "drag", "100,100 300,130", "200,100 200,140", "100,140 300,140"],
    ["DashLineShape", "clicks", "100,100 300,200", "100,100 60,80", "60,80 300,200"],
    ["ArrowLineShape", "drag", "100,300 300,100", "300,100 320,60", "100,300 320,60"],
    ["XLineShape", "path", "100,300 300,280 500,320", "300,280 320,240", "100,300 320,240 500,320"],
    ["BrokenLine", "path", "100,100 200,300 300,120", "200,300 220,340", "100,100 220,340 300,120"],
    ["PixelCountShape", "drag", "100,100 300,200", "300,200 340,240", "", { member: [384, 168] }],
    ["CrossShape", "clicks", "100,100 300,200", "300,200 340,240", "100,100 340,240", { count: 2 }],
    ["BigCrossShape", "clicks", "100,100 300,200", "300,200 340,240", "100,100 340,240"],
    ["SpotShape", "clicks", "100,100", "100,100 140,160", "140,160"],
];

const log = (page) =>
    page.evaluate(() => window.log.splice(0).filter((line) => /^(create|change|delete|select)/.test(line)));

const painted = (page) => page.evaluate("paintedPixels()");

for (const [type, gesture, draw, edit, points, { member, count } = {}] of CASES) {
    const picture = member ? { width: 1280, height: 720 } : { width: 800, height: 600 };
    viewTest(`${type} is drawn, edited, saved, loaded and deleted`, { start: { picture } }, async (page) => {
        await page.evaluate(
            ([type, count]) => window.canvas.add({ type, name: "rule", ...(count && { count }) }).state,
            [type, count],
        );
        await log(page);
        equal(await painted(page), 0, "painted before it is drawn");

        await (gesture === "drag" ? drag(page, ...at(draw)) : clicks(page, at(draw), { path: gesture === "path" }));
        isTrue((await log(page)).includes("create rule"), "the event of a drawn rule");
        isTrue((await painted(page)) > 20, "something is painted");

        await drag(page, ...at(edit));
        isTrue((await log(page)).includes("change rule"), "the event of a changed rule");
        const geometry = () =>
            page.evaluate(() => [window.canvas.rule("rule").points, window.canvas.rule("rule").configuration.rule]);
        const [seen, written] = await geometry();
        equal(member ? written : seen, member ?? at(points), "the geometry");

        const saved = await page.evaluate(() => window.canvas.saveText());
        await page.evaluate((text) => window.canvas.load(text), saved);
        equal((await geometry())[1], written, "the loaded geometry");
        equal(await page.evaluate(() => window.canvas.saveText()), saved, "what is saved again");
        isTrue((await painted(page)) > 20, "something is painted after loading");

        await page.evaluate(() => window.canvas.rule("rule").select());
        await page.keyboard.press("Delete");
        isTrue((await log(page)).includes("delete rule"), "the event of a deleted rule");
        equal([await page.evaluate("canvas.rules.length"), await painted(page)], [0, 0], "what is left");
    });
}
