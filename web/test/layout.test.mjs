// Sizes, pixel ratios, zoomed pages, fingers and keys.
import { readFileSync } from "node:fs";
import { join } from "node:path";
import { at, clicks, drag, equal, isTrue, root, viewTest } from "./harness.mjs";

const points = (page, name) => page.evaluate((name) => window.canvas.rule(name).points, name);
const add = (page, options) => page.evaluate((options) => window.canvas.add(options).name, options);
const restyle = (page, style) =>
    page.evaluate((style) => void Object.assign(document.getElementById("picture").style, style), style);
const expectPoints = async (page, name, expected, what) => equal(await points(page, name), at(expected), what);

for (const ratio of [1, 1.5, 3]) {
    viewTest(`a screen with ${ratio} device pixels for a CSS pixel`, { deviceScaleFactor: ratio }, async (page) => {
        await add(page, { type: "Rect", name: "gate" });
        await drag(page, [100, 100], [300, 200]);
        await expectPoints(page, "gate", "100,100 300,200", "the rectangle");
        const size = await page.evaluate("[canvas.canvas.width, canvas.canvas.height]");
        equal(size, [800 * ratio, 600 * ratio], "the canvas's own pixels");
        // Two strokes of 200 and two of 100 CSS pixels, 2 thick, and four handles.
        const painted = (await page.evaluate("paintedPixels()")) / (ratio * ratio);
        isTrue(painted > 1100 && painted < 2400, `that ${painted} pixels are painted`);
    });
}

viewTest("rules follow a picture that is resized", {}, async (page) => {
    await add(page, { type: "Polygon", name: "field", points: at("100,100 300,100 200,300") });
    await restyle(page, { width: "400px", height: "300px" });
    await page.waitForFunction("canvas.size.width === 400");
    equal(await page.evaluate("[canvas.canvas.width, canvas.canvas.clientWidth]"), [400, 400], "the canvas");
    await drag(page, [100, 80], [110, 90]);
    await expectPoints(page, "field", "120,120 320,120 220,320", "the moved polygon in pixels of the picture");
    await restyle(page, { display: "none" });
    await page.evaluate("new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(done)))");
    await restyle(page, { display: "", width: "800px", height: "600px" });
    await page.waitForFunction("canvas.size.width === 800");
    await expectPoints(page, "field", "120,120 320,120 220,320", "the polygon after the picture was hidden");
});

viewTest("a page that is zoomed and scrolled", {}, async (page) => {
    await page.evaluate(() => {
        document.body.style.height = "3000px";
        Object.assign(document.body.firstElementChild.style, { transform: "scale(1.25)", transformOrigin: "0 0" });
        window.scrollTo(0, 50);
    });
    await add(page, { type: "Rect", name: "gate" });
    await drag(page, [125, 75], [375, 200]);
    await expectPoints(page, "gate", "100,100 300,200", "the rectangle");
    await page.mouse.move(200, 200);
    await page.mouse.wheel(0, 120);
    await page.waitForFunction("window.scrollY > 50");
});

viewTest("a picture shown with borders by object-fit", { start: null }, async (page) => {
    const box = await page.evaluate(async () => {
        const source = Object.assign(document.createElement("canvas"), { width: 400, height: 400 });
        const image = Object.assign(new Image(), { src: source.toDataURL() });
        Object.assign(image.style, { width: "800px", height: "600px", objectFit: "contain" });
        await image.decode();
        document.getElementById("picture").replaceWith(image);
        const canvas = await window.rulecanvas.RuleCanvas.over(image);
        const { left, top, width, height } = canvas.canvas.getBoundingClientRect();
        return [left, top, width, height, canvas.picture.width];
    });
    equal(box, [100, 0, 600, 600, 400], "the canvas over the picture alone");
});

viewTest("a canvas of the page's own", { start: null, deviceScaleFactor: 2 }, async (page) => {
    const sizes = await page.evaluate(async () => {
        const element = Object.assign(document.createElement("canvas"), { width: 300, height: 200 });
        document.body.append(element);
        const canvas = await window.rulecanvas.RuleCanvas.on(element);
        return [element.clientWidth, element.clientHeight, element.width, element.height, canvas.size.width];
    });
    equal(sizes, [300, 200, 600, 400, 300], "layout and own pixels");
});

viewTest("fingers draw, finish by a long press, and take hold of handles", { hasTouch: true }, async (page) => {
    const client = await page.context().newCDPSession(page);
    const touch = (type, ...touchPoints) =>
        client.send("Input.dispatchTouchEvent", { type, touchPoints: touchPoints.map(([x, y]) => ({ x, y })) });
    const dragFinger = async (from, ...places) => {
        await touch("touchStart", from);
        for (const place of places) {
            await touch("touchMove", place);
        }
        await touch("touchEnd");
    };
    await add(page, { type: "Polygon", name: "field" });
    for (const [x, y] of at("100,100 300,100 200,300")) {
        await page.touchscreen.tap(x, y);
    }
    equal(await page.evaluate("canvas.rule('field').state"), "drawing", "the state while taps are given");
    await touch("touchStart", [400, 400]);
    await page.waitForFunction("canvas.rule('field').state === 'complete'");
    await touch("touchEnd");
    await expectPoints(page, "field", "100,100 300,100 200,300", "the polygon: the long press gave no point");

    // 12 pixels beside the handle.
    await dragFinger(...at("212,300 222,320 232,320 252,320"));
    await expectPoints(page, "field", "100,100 300,100 240,320", "the dragged vertex");

    await add(page, { type: "LineShape", name: "door" });
    await dragFinger(...at("500,100 520,120 700,300"));
    await expectPoints(page, "door", "500,100 700,300", "the line");
    await page.evaluate("canvas.select(null)");
    await page.touchscreen.tap(608, 192);
    equal(await page.evaluate("canvas.selected?.name"), "door", "a tap beside a thin line");
});

viewTest("keys give up, finish, move and delete", {}, async (page) => {
    await add(page, { type: "Polygon", name: "half" });
    await clicks(page, at("100,100 300,100"));
    await page.keyboard.press("Escape");
    equal(await page.evaluate("[canvas.rules.length, canvas.drawing]"), [0, null], "what is left after Escape");

    await add(page, { type: "Polygon", name: "field" });
    await clicks(page, at("100,100 300,100 200,300"));
    await page.keyboard.press("Enter");
    equal(await page.evaluate("canvas.rule('field').state"), "complete", "the state after Enter");
    await page.mouse.click(200, 150);
    await page.keyboard.press("ArrowRight");
    await page.keyboard.press("Shift+ArrowDown");
    await expectPoints(page, "field", "101,110 301,110 201,310", "the moved polygon");
    equal(await page.evaluate("canvas.selected?.name"), "field", "the selection after moving");
    await page.evaluate("canvas.rule('field').locked = true");
    await page.keyboard.press("ArrowRight");
    await page.keyboard.press("Delete");
    equal((await points(page, "field"))[0], [101, 110], "a locked polygon");
    await page.evaluate("canvas.rule('field').locked = false; canvas.rule('field').select()");
    await page.keyboard.press("Delete");
    equal(await page.evaluate("canvas.rules.length"), 0, "what is left after Delete");
});

viewTest("a gesture ends where the pointer was lost", {}, async (page) => {
    await add(page, { type: "Rect", name: "gate" });
    await page.mouse.move(100, 100);
    await page.mouse.down();
    await page.mouse.move(300, 200);
    await page.dispatchEvent("canvas", "pointercancel", { isPrimary: true, pointerType: "mouse" });
    equal(await page.evaluate("canvas.rule('gate').state"), "complete", "the state");
    await page.mouse.move(500, 500);
    await page.mouse.up();
    await expectPoints(page, "gate", "100,100 300,200", "the rectangle");
});

viewTest("undo and redo, with the place of a pixel counter", {}, async (page) => {
    await page.evaluate("window.steps = new rulecanvas.History(canvas); 0");
    await add(page, { type: "Rect", name: "gate" });
    await drag(page, [500, 100], [700, 200]);
    await add(page, { type: "PixelCountShape", name: "person" });
    await drag(page, [100, 100], [180, 300]);
    await drag(page, [600, 150], [620, 170]);
    await page.evaluate("window.gate = canvas.rule('gate'); 0");
    const boxOf = async () => {
        const parts = await page.evaluate("[...canvas.snapshot().boxes.get('person') ?? []]");
        return parts.map((part, i) => Math.round(part * (i % 2 ? 600 : 800)));
    };
    equal(await boxOf(), [100, 100, 180, 300], "where the pixel counter is");
    await page.evaluate("steps.undo()");
    await expectPoints(page, "gate", "500,100 700,200", "the rectangle after undo");
    equal(await boxOf(), [100, 100, 180, 300], "where the pixel counter is after undo");
    equal(await page.evaluate("canvas.rule('gate') === gate"), true, "the rule is the same object");
    await page.evaluate("steps.redo()");
    await expectPoints(page, "gate", "520,120 720,220", "the rectangle after redo");
    await page.evaluate("steps.undo(); steps.undo(); steps.undo()");
    const left = await page.evaluate("[canvas.rules.length, steps.canUndo, steps.canRedo]");
    equal(left, [0, false, true], "the beginning");
});

viewTest("the library's own functions are within reach", {}, async (page) => {
    await add(page, { type: "Rect", name: "gate", points: at("100,100 300,200"), selected: true });
    const answer = await page.evaluate(() => {
        const { functions, container } = window.canvas.library;
        return functions.GetSelectedVideoAnalyseShapeID(container) === window.canvas.rule("gate").shape;
    });
    equal(answer, true, "the selected shape");
    const definition = readFileSync(join(root, "src/api/rulecanvas.def"), "utf8");
    const names = [...definition.matchAll(/^ +([A-Za-z]+) = /gm)].map((match) => match[1]);
    equal(names.length, 29, "functions of the library");
    for (const name of names) {
        equal(await page.evaluate(`typeof canvas.library.functions.${name}`), "function", name);
    }
});

const FIGURES = [
    ["Rect", "cells", "60,60 420,300", { style: { mosaic: 16 } }],
    ["Polygon", "field", "100,100 500,120 450,400 150,380", { style: { thickness: 3, unselectedThickness: 1 } }],
    ["XLineShape", "wire", "50,250 400,230 700,300", { direction: 2 }],
    ["OvalShape", "tree", "300,200 600,350"],
    ["SpotShape", "lamp", "200,200", { mode: "solid" }],
    ["BigCrossShape", "aim", "350,150 250,330"],
];
const DRAGS =
    "440,380 500,360 | 350,280 300,320 | 200,200 230,260 | 400,230 420,180 | 780,580 790,590 | 250,330 280,300";

viewTest("what is drawn in parts is what is drawn as a whole", { deviceScaleFactor: 1.5 }, async (page) => {
    for (const [type, name, points, more] of FIGURES) {
        await add(page, { type, name, caption: name, points: at(points), ...more });
    }
    /** Pixels that a whole drawing changes more than the smoothing of a cut line; that the drag changed; canvases. */
    const compare = () =>
        page.evaluate(async () => {
            const { canvas, board } = window.canvas;
            const pixels = () => {
                const copy = new OffscreenCanvas(canvas.width, canvas.height).getContext("2d");
                copy.fillStyle = "#808080";
                copy.fillRect(0, 0, canvas.width, canvas.height);
                for (const part of canvas.parentElement.querySelectorAll("canvas")) {
                    const { left, top } = part.getBoundingClientRect();
                    copy.drawImage(part, left * devicePixelRatio, top * devicePixelRatio);
                }
                return copy.getImageData(0, 0, canvas.width, canvas.height).data;
            };
            const differing = (one, other) =>
                one.filter((part, index) => Math.abs(part - (other?.[index] ?? 0)) > 48).length;
            await new Promise((done) => requestAnimationFrame(() => setTimeout(done)));
            const inParts = pixels();
            const parts = canvas.parentElement.querySelectorAll("canvas").length;
            board.invalidate();
            board.render();
            const changed = differing(inParts, window.lastPixels);
            window.lastPixels = inParts;
            return [differing(inParts, pixels()), changed, parts];
        });
    const used = new Set();
    for (const [from, to] of DRAGS.split(" | ").map(at)) {
        await drag(page, from, to, 3);
        const [wrong, changed, parts] = await compare();
        used.add(parts);
        equal(wrong, 0, `wrong pixels after the drag from ${from}`);
        isTrue(changed > 0, `the drag from ${from} changed the picture`);
    }
    isTrue(used.has(2), "a drag on a canvas of its own");
});
