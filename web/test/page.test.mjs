// The page as a person uses it: tools, help, undo, files, on a desktop and on a phone.
import { mkdirSync, readFileSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { at as points, built, clicks, drag, equal, isTrue, pageTest } from "./harness.mjs";

const pictures = join(built, "pictures");
mkdirSync(pictures, { recursive: true });

/** A test on the page; `at` tells where a part of its picture is. */
function editorTest(name, settings, run) {
    pageTest(name, "", settings, async (page) => {
        await page.waitForSelector("[data-ready]");
        const box = await page.locator(".frame > canvas:last-child").boundingBox();
        await run(page, (x, y) => [Math.round(box.x + x * box.width), Math.round(box.y + y * box.height)]);
    });
}

const DESKTOP = { viewport: { width: 1440, height: 860 } };
const PHONE = { viewport: { width: 390, height: 844 }, deviceScaleFactor: 3, hasTouch: true, isMobile: true };
const DRAWN = { drag: "0,0 0.13,0.2", line: "0,0 0.13,0.2", path: "0,0 0.12,0.02 0.1,0.2", marks: "0,0" };
const rules = (page) => page.locator("#rules li");
const hasRules = (page, count) =>
    page.waitForFunction((count) => document.querySelectorAll("#rules li").length === count, count);
const help = (page) => page.locator("#help").textContent();
const picture = (page, name) => page.screenshot({ path: join(pictures, `${name}.png`) });

editorTest("the page draws a rule of every type and lists it", DESKTOP, async (page, at) => {
    const deleteFirst = page.locator("#rules li:first-child").getByRole("button", { name: /^Delete/ });
    for (let left = await rules(page).count(); left > 0; --left) {
        await deleteFirst.click();
    }
    const tools = page.locator("#tools [data-type]");
    const types = await tools.evaluateAll((buttons) => buttons.map((button) => button.dataset.type));
    equal(types.length, 15, "tools");
    for (const [index, type] of types.entries()) {
        const [x, y] = [0.06 + 0.19 * (index % 5), 0.1 + 0.3 * Math.floor(index / 5)];
        await page.locator(`[data-type="${type}"]`).click();
        isTrue((await help(page)).length > 10 && !(await help(page)).startsWith("Choose"), `the help line for ${type}`);
        const gesture = await page.evaluate("ruleCanvas.drawing.facts.drawing");
        const places = type === "BigCrossShape" ? "0,0 0.1,0.1" : DRAWN[gesture];
        const inFrame = points(places).map(([dx, dy]) => at(x + dx, y + dy));
        const isDragged = gesture === "drag" || gesture === "line";
        await (isDragged ? drag(page, ...inFrame) : clicks(page, inFrame, { path: gesture === "path" }));
        await hasRules(page, index + 1);
    }
    await picture(page, "every-type");
    await page.mouse.click(...at(0.99, 0.99));
    await page.waitForFunction(() => ruleCanvas.help.startsWith("Choose"));
    await picture(page, "every-type-deselected");
});

editorTest("undo, redo, save and open on the page", DESKTOP, async (page, at) => {
    equal(await rules(page).count(), 4, "rules of the beginning");
    await page.locator('[data-type="Rect"]').click();
    await drag(page, at(0.1, 0.1), at(0.3, 0.3));
    await page.waitForFunction(() => !document.getElementById("undo").disabled);
    await page.keyboard.press("Control+z");
    await hasRules(page, 4);
    await page.locator("#redo").click();
    await hasRules(page, 5);

    const downloading = page.waitForEvent("download");
    await page.locator("#save").click();
    const saved = join(pictures, "saved.rules.json");
    await (await downloading).saveAs(saved);
    equal(JSON.parse(readFileSync(saved, "utf8")).rules.length, 5, "rules in the file");

    await page.evaluate("ruleCanvas.clear()");
    await page.locator("#rulesFile").setInputFiles(saved);
    await hasRules(page, 5);
    equal(await page.evaluate("ruleCanvas.saveText()"), readFileSync(saved, "utf8"), "the opened rules");

    const wrong = join(pictures, "wrong.rules.json");
    writeFileSync(wrong, '{"format":"rulecanvas-rules","version":1,"rules":[{"type":"Star","name":"a"}]}');
    await page.locator("#rulesFile").setInputFiles(wrong);
    await page.locator(".toast:not(.good)").waitFor();
    isTrue((await page.locator(".toast:not(.good)").textContent()).includes('rule 1 "a"'), "the refused rule is named");
    equal(await rules(page).count(), 5, "rules after a refused file");
});

editorTest("the properties of a rule", DESKTOP, async (page, at) => {
    await page.mouse.move(...at(0.5, 0.7));
    await page.mouse.down();
    await page.waitForFunction(() => document.getElementById("help").textContent.startsWith("Let go"));
    await page.mouse.up();
    await page.waitForFunction(() => document.getElementById("help").textContent.startsWith("Drag"));
    await page.locator("#properties").waitFor();
    await page.getByLabel("Caption").fill("Zebra");
    await page.getByLabel("Caption").press("Enter");
    await page.getByLabel("Direction").selectOption("Inwards");
    await page.getByLabel("Colour while not selected").fill("#ff00ff");
    await page.getByLabel("Behaviour").selectOption("Stays convex");
    const record = await page.evaluate("ruleCanvas.rule('crossing').record");
    equal(
        [record.caption, record.direction, record.colours.unselected, record.option],
        ["Zebra", 0, [255, 0, 255], "Convex"],
        "the rule",
    );
    await page.getByLabel("Name").fill("oncoming");
    await page.getByLabel("Name").press("Enter");
    await page.locator(".toast").waitFor();
    equal(await page.evaluate("ruleCanvas.selected.name"), "crossing", "a name that is taken");
    equal(await page.getByLabel("Name").inputValue(), "crossing", "the field of a refused name");
    await picture(page, "properties");
});

editorTest("the page on a phone", PHONE, async (page, at) => {
    equal(await page.evaluate("document.documentElement.scrollWidth"), 390, "the width that the page takes");
    await page.locator('[data-type="Polygon"]').tap();
    for (const [x, y] of points("0.1,0.2 0.4,0.15 0.3,0.5")) {
        await page.touchscreen.tap(...at(x, y));
    }
    isTrue((await help(page)).includes("hold the finger still"), "the help line for fingers");
    await picture(page, "phone-drawing");
    await page.locator("#finish").tap();
    await hasRules(page, 5);
    await picture(page, "phone");
});
