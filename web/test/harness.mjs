// What every browser test needs: a list of tests, a browser, a server, and checks.
import { dirname, join, resolve } from "node:path";
import { fileURLToPath } from "node:url";
import { chromium } from "playwright-core";
import { serve } from "../tools/serve.mjs";

export const root = resolve(dirname(fileURLToPath(import.meta.url)), "../..");
export const built = join(root, "build/web");

const FLAGS = ["--disable-gpu", "--disable-quic", "--autoplay-policy=no-user-gesture-required"];

/** The tests in the order in which their files add them. */
export const tests = [];

/** `folders` are served beside the page's; `flags` are for the browser. */
export async function startBrowser({ folders = {}, flags = [] } = {}) {
    const browser = await chromium.launch({
        executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium",
        args: [...FLAGS, ...flags],
    });
    const { server, address } = await serve({ "/": join(built, "site"), "/test/": join(root, "web/test"), ...folders });
    const end = async () => {
        await browser.close();
        server.close();
    };
    return { browser, address, end };
}

/** A page of its own, and everything that the browser complains about there. */
export async function openPage(browser, address, path, settings = {}) {
    const context = await browser.newContext({ viewport: { width: 1000, height: 800 }, ...settings });
    const page = await context.newPage();
    const complaints = [];
    page.on("console", (message) => {
        if (message.type() === "error" || message.type() === "warning") {
            complaints.push(message.text());
        }
    });
    page.on("pageerror", (error) => complaints.push(String(error)));
    page.on("requestfailed", (request) => complaints.push(`not loaded: ${request.url()}`));
    await page.goto(address + path);
    return { page, complaints, close: () => context.close() };
}

/** A test on a page of its own; what the browser complains about fails it. */
export function pageTest(name, path, settings, run) {
    const openAndRun = async ({ browser, address }) => {
        const { page, complaints, close } = await openPage(browser, address, path, settings);
        await run(page);
        equal(complaints, [], "the browser's complaints");
        await close();
    };
    tests.push({ name, run: openAndRun });
}

/** A test on view.html, with rules over its picture unless `start` is null. */
export function viewTest(name, { start = { picture: { width: 800, height: 600 } }, ...settings }, run) {
    pageTest(name, "test/view.html", settings, async (page) => {
        await page.waitForFunction("window.ready");
        await (start && page.evaluate((start) => window.start(start), start));
        await run(page);
    });
}

/** Points written as "100,100 300,200". */
export const at = (text) => text.split(" ").map((point) => point.split(",").map(Number));

export function equal(actual, expected, what) {
    const [a, e] = [JSON.stringify(actual), JSON.stringify(expected)];
    if (a !== e) {
        throw new Error(`${what}: ${a} instead of ${e}`);
    }
}

export function isTrue(value, what) {
    if (!value) {
        throw new Error(`${what} does not hold`);
    }
}

/** A drag with the mouse in whole steps. */
export async function drag(page, [x1, y1], [x2, y2], moves = 4) {
    await page.mouse.move(x1, y1);
    await page.mouse.down();
    for (let i = 1; i <= moves; ++i) {
        await page.mouse.move(x1 + ((x2 - x1) * i) / moves, y1 + ((y2 - y1) * i) / moves);
    }
    await page.mouse.up();
}

/** Draws a rule point by point as the user does; a path ends with the right button. */
export async function clicks(page, places, { path = false } = {}) {
    for (const [x, y] of places) {
        await page.mouse.click(x, y);
    }
    await (path && page.mouse.click(...places.at(-1), { button: "right" }));
}
