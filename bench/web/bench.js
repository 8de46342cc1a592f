// Measures one library after the other in this page: loading, a press, and steps of a drag, each until the
// frame that shows it has reached the screen.
import { DRAGGED, middles, pathOf } from "./scene.js";
import { subjects } from "./subjects.js";

const marks = document.getElementById("marks");
const awaited = new Map();
new PerformanceObserver((list) => {
    for (const { identifier, presentationTime } of list.getEntries()) {
        awaited.get(identifier)?.(presentationTime);
    }
}).observe({ type: "element" });

/** When the next frame, with all that was changed until now, had reached the screen. The browser tells it for a text that is new
 * in that frame. The page itself has done its part long before: the browser draws what it was given afterwards. */
async function presented() {
    const mark = Object.assign(document.createElement("div"), { textContent: "x" });
    const name = String(performance.now());
    mark.setAttribute("elementtiming", name);
    const time = new Promise((done) => awaited.set(name, done));
    marks.replaceChildren(mark);
    const result = await time;
    awaited.delete(name);
    return result;
}

/** How long a hand rests on a polygon before it presses. */
const REST = 150;

/** A pointer event and the mouse event that browsers send with it, to whatever lies there. */
function send(kind, [x, y]) {
    const target = document.elementFromPoint(x, y);
    const buttons = kind === "up" ? 0 : 1;
    const settings = {
        bubbles: true,
        composed: true,
        cancelable: true,
        clientX: x,
        clientY: y,
        button: kind === "move" ? -1 : 0,
        buttons,
        view: window,
    };
    const pointer = { ...settings, pointerId: 1, pointerType: "mouse", isPrimary: true };
    target.dispatchEvent(new PointerEvent(`pointer${kind}`, pointer));
    target.dispatchEvent(new MouseEvent(`mouse${kind}`, { ...settings, button: 0 }));
    if (kind === "up") {
        target.dispatchEvent(new MouseEvent("click", { ...settings, button: 0 }));
    }
}

async function timed(action) {
    const begin = performance.now();
    await action();
    return (await presented()) - begin;
}

async function measure(subject, steps) {
    const scene = await subject.prepare();
    await presented();
    const load = await timed(scene.load);
    if (scene.count() !== middles.length) {
        throw new Error(`${scene.count()} polygons were loaded`);
    }
    const middle = middles[DRAGGED];
    send("move", middle);
    await presented();
    await new Promise((done) => setTimeout(done, REST));
    // Some libraries select when the button goes down, some when it comes up: a press is both.
    const press = await timed(() => {
        send("down", middle);
        send("up", middle);
    });
    await presented();
    const before = scene.placeOf(DRAGGED).map(Number);
    send("move", middle);
    send("down", middle);
    await presented();
    const times = [];
    for (const at of pathOf(steps)) {
        times.push(await timed(() => send("move", at)));
    }
    const last = pathOf(steps).at(-1);
    send("up", last);
    await presented();
    const after = scene.placeOf(DRAGGED).map(Number);
    const moved = [after[0] - before[0], after[1] - before[1]];
    const wanted = [last[0] - middle[0], last[1] - middle[1]];
    if (Math.hypot(moved[0] - wanted[0], moved[1] - wanted[1]) > 4) {
        throw new Error(`the polygon moved by ${moved} instead of ${wanted}`);
    }
    scene.end();
    return { load, press, drag: times.reduce((sum, time) => sum + time, 0) / times.length };
}

window.names = Object.keys(subjects);
window.measure = (name, steps) =>
    measure(subjects[name], steps).catch((problem) => {
        throw new Error(`${name}: ${problem.message}`);
    });
