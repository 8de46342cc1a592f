// Measures one library after the other in this page: loading, a press, and steps of a drag, each until the browser has
// rendered the frame that shows it.
import { DRAGGED, middles, pathOf } from "./scene.js";
import { subjects } from "./subjects.js";

/** Resolves when the frame that the last change led to has been rendered: a task after the one that renders. */
function rendered() {
    return new Promise((done) => {
        requestAnimationFrame(() => {
            const channel = new MessageChannel();
            channel.port1.onmessage = () => done();
            channel.port2.postMessage(null);
        });
    });
}

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
    await rendered();
    return performance.now() - begin;
}

async function measure(subject, steps) {
    const scene = await subject.prepare();
    await rendered();
    const load = await timed(scene.load);
    if (scene.count() !== middles.length) {
        throw new Error(`${scene.count()} polygons were loaded`);
    }
    const middle = middles[DRAGGED];
    send("move", middle);
    await rendered();
    // Some libraries select when the button goes down, some when it comes up: a press is both.
    const press = await timed(() => {
        send("down", middle);
        send("up", middle);
    });
    await rendered();
    const before = scene.placeOf(DRAGGED).map(Number);
    send("move", middle);
    send("down", middle);
    await rendered();
    const times = [];
    for (const at of pathOf(steps)) {
        times.push(await timed(() => send("move", at)));
    }
    const last = pathOf(steps).at(-1);
    send("up", last);
    await rendered();
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
