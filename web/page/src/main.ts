import { History, RULE_TYPES, RuleCanvas, RuleCanvasError, type AddOptions, type RuleType } from "rulecanvas";
import { byId, make, toast } from "./dom.js";
import { icon } from "./icons.js";
import { showFile, showStreet, showVideo } from "./picture.js";
import { showProperties } from "./properties.js";
import { showRules } from "./rule_list.js";

/** What the page begins with; written beside it when it is built. */
interface Start {
    readonly clip: string | null;
    readonly rules: string | null;
}

const PALETTE = ["#3ddc84", "#4aa8ff", "#ffb020", "#ff6b81", "#b78cff", "#2dd4cf", "#f4f06a", "#ff8f4a"];
const SELECTED = "#ffe14d";

let canvas: RuleCanvas;
let history: History;
let tool: RuleType | null = null;
let drawnRules = 0;

/** Tripwires and arrows are nothing without a direction. */
const DIRECTIONS: { readonly [K in RuleType]?: number } = { XLineShape: 0, ArrowLineShape: 5 };

function freeName(title: string): string {
    let number = 1;
    while (canvas.rule(`${title} ${number}`)) {
        ++number;
    }
    return `${title} ${number}`;
}

function optionsFor(type: RuleType): AddOptions {
    const { title } = RULE_TYPES.find((facts) => facts.type === type)!;
    const colours = { unselected: PALETTE[drawnRules % PALETTE.length]!, selected: SELECTED };
    const direction = DIRECTIONS[type];
    return { type, name: freeName(title), colours, ...(direction !== undefined && { direction }) };
}

/** Takes a tool up, or lays all down. */
function choose(type: RuleType | null): void {
    tool = type;
    if (type === null) {
        canvas.cancelDrawing();
    } else {
        canvas.add(optionsFor(type));
        canvas.canvas.focus({ preventScroll: true });
    }
    refresh();
}

function refresh(): void {
    showRules(canvas);
    showProperties(canvas.drawing === null ? canvas.selected : null);
    byId("help").textContent = canvas.help;
    byId<HTMLButtonElement>("undo").disabled = !history.canUndo;
    byId<HTMLButtonElement>("redo").disabled = !history.canRedo;
    const { drawing } = canvas;
    byId("drawing").hidden = drawing === null;
    byId("finish").hidden = drawing?.state !== "drawing" || drawing.facts.points[1] < 3;
    for (const button of byId("tools").querySelectorAll("button")) {
        button.setAttribute("aria-pressed", String((button.dataset["type"] ?? null) === tool));
    }
}

/** Events come in bursts; the page is brought up to date once for each. */
let refreshing = 0;
function refreshSoon(): void {
    refreshing ||= requestAnimationFrame(() => {
        refreshing = 0;
        refresh();
    });
}

async function use(target: HTMLElement): Promise<void> {
    const rules = canvas?.saveText();
    history?.end();
    canvas?.destroy();
    tool = null;
    canvas = await RuleCanvas.over(target);
    if (rules !== undefined) {
        canvas.load(rules);
    }
    history = new History(canvas, refreshSoon);
    for (const event of ["change", "select", "state", "capture", "rules"] as const) {
        canvas.on(event, refreshSoon);
    }
    canvas.on("create", () => {
        ++drawnRules;
        tool = null;
        refreshSoon();
    });
    canvas.on("delete", () => {
        tool = canvas.drawing?.type ?? null;
        refreshSoon();
    });
    Object.assign(window, { ruleCanvas: canvas });
    refresh();
}

/** Shows a refusal instead of throwing it. */
async function attempt(action: () => Promise<void> | void): Promise<void> {
    try {
        await action();
    } catch (problem) {
        toast((problem as Error).message);
        if (!(problem instanceof RuleCanvasError)) {
            console.info(problem);
        }
    }
}

function save(): void {
    const address = URL.createObjectURL(new Blob([canvas.saveText()], { type: "application/json" }));
    make("a", { href: address, download: "picture.rules.json" }).click();
    setTimeout(() => URL.revokeObjectURL(address), 1000);
}

async function open(file: File): Promise<void> {
    canvas.load(await file.text());
    tool = null;
    toast(`${canvas.rules.length} rules from ${file.name}`, true);
}

function fileChosen(id: string, take: (file: File) => Promise<void>): void {
    const input = byId<HTMLInputElement>(id);
    input.addEventListener("change", () => {
        const file = input.files?.[0];
        if (file !== undefined) {
            void attempt(() => take(file));
        }
        input.value = "";
    });
}

function makeTools(): void {
    const button = (type: RuleType | null, title: string): HTMLButtonElement => {
        const element = make(
            "button",
            { innerHTML: icon(type ?? "pointer"), title, type: "button" },
            make("span", { textContent: title }),
        );
        if (type !== null) {
            element.dataset["type"] = type;
        }
        element.addEventListener("click", () => choose(type));
        return element;
    };
    byId("tools").append(
        button(null, "Select and edit"),
        make("hr"),
        ...RULE_TYPES.map(({ type, title }) => button(type, title)),
    );
}

function listen(): void {
    const on = (id: string, action: () => void): void => byId(id).addEventListener("click", action);
    on("undo", () => history.undo());
    on("redo", () => history.redo());
    on("open", () => byId("rulesFile").click());
    on("picture", () => byId("pictureFile").click());
    on("save", save);
    on("finish", () => canvas.finishDrawing());
    on("cancel", () => choose(null));
    fileChosen("rulesFile", open);
    fileChosen("pictureFile", async (file) => use(await showFile(file)));
    document.addEventListener("keydown", (event) => {
        const actions: { [key: string]: () => void } = {
            z: () => (event.shiftKey ? history.redo() : history.undo()),
            y: () => history.redo(),
            s: save,
            o: () => byId("rulesFile").click(),
        };
        const action = event.ctrlKey || event.metaKey ? actions[event.key.toLowerCase()] : undefined;
        if (action !== undefined && !(event.target instanceof HTMLInputElement)) {
            event.preventDefault();
            action();
        }
    });
}

const start = (await (await fetch("start.json")).json()) as Start;
makeTools();
await use(start.clip === null ? showStreet() : await showVideo(start.clip));
if (start.rules !== null) {
    canvas!.load(await (await fetch(start.rules)).text());
    history!.reset();
}
listen();
document.body.dataset["ready"] = "true";
