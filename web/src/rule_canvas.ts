import { Board } from "./board.js";
import type { RuleCanvasOptions } from "./canvas_options.js";
import { loadCore, type CoreModule, type Library } from "./core.js";
import { Documents, type Snapshot } from "./documents.js";
import { RuleCanvasError } from "./errors.js";
import { TypedEvents } from "./events.js";
import type { Size } from "./geometry.js";
import { Gestures } from "./gestures.js";
import { helpFor } from "./help.js";
import { Input } from "./input.js";
import { Model } from "./model.js";
import { recordOf, type AddOptions } from "./options.js";
import type { Rule } from "./rule.js";
import { writeRulesFile, type RulesFile } from "./rules_file.js";

/** A canvas on which a user draws and edits rules.
 *
 * Its events are those of `RuleCanvasEvents`; `on` and `addEventListener` listen to them. */
export class RuleCanvas extends TypedEvents {
    /** The canvas element. */
    readonly canvas: HTMLCanvasElement;
    private readonly board: Board;
    private readonly model: Model;
    private readonly gestures: Gestures;
    private readonly input: Input;
    private readonly ownsCanvas: boolean;
    private readonly documents: Documents;
    private destroyed = false;

    /** Lays a canvas over a picture, a video or any other element, and keeps it there. */
    static async over(target: HTMLElement, options: RuleCanvasOptions = {}): Promise<RuleCanvas> {
        const core = await loadCore(options.wasm);
        const canvas = document.createElement("canvas");
        canvas.style.position = "absolute";
        target.after(canvas);
        return new RuleCanvas(core, canvas, target, options);
    }

    /** Uses a canvas of the page, whose size the page sets by CSS. */
    static async on(canvas: HTMLCanvasElement, options: RuleCanvasOptions = {}): Promise<RuleCanvas> {
        return new RuleCanvas(await loadCore(options.wasm), canvas, null, options);
    }

    private constructor(
        core: CoreModule,
        canvas: HTMLCanvasElement,
        target: HTMLElement | null,
        options: RuleCanvasOptions,
    ) {
        super();
        const view = options.view ?? 0;
        this.canvas = canvas;
        this.ownsCanvas = target !== null;
        this.board = new Board(core, canvas, target, view, options.picture, {
            notified: (text) => this.model.notified(text),
            captured: (taken) => this.model.capture(taken),
            resized: () => this.model?.geometries.forgetAll(),
            beforeFrame: () => this.model.selection.read(),
        });
        this.model = new Model(this.board, this, view);
        this.documents = new Documents(this.model);
        this.gestures = new Gestures(this.board, this.model, this, view);
        this.gestures.editable = options.editable ?? true;
        canvas.tabIndex = Math.max(canvas.tabIndex, 0);
        canvas.style.touchAction = "none";
        this.input = new Input(canvas, this.gestures, (pointing) => {
            if (this.board.pointing !== pointing) {
                this.board.pointing = pointing;
                this.board.invalidate();
            }
        });
    }

    /** The library's 29 functions for what this class does not offer, and the handle of this canvas's container. */
    get library(): { readonly functions: Library; readonly container: number; readonly core: CoreModule } {
        const { core, container } = this.board.host;
        const functions = new Proxy({} as Library, {
            get: (_target, name) => core[`_${String(name)}` as keyof CoreModule],
        });
        return { functions, container, core };
    }

    /** The rules, in the order in which they are drawn. */
    get rules(): readonly Rule[] {
        return this.model.rules;
    }

    /** The rule of this name. */
    rule(name: string): Rule | undefined {
        return this.model.set.find(name);
    }

    /** The rule that the user is drawing or is to draw. */
    get drawing(): Rule | null {
        return this.model.drawing.rule;
    }

    /** The selected rules; a press may select one that lies under another. */
    get selection(): readonly Rule[] {
        return this.model.selection.rules;
    }

    /** The first selected rule. */
    get selected(): Rule | null {
        return this.selection[0] ?? null;
    }

    /** Whether the user may edit. Rules are shown in either case. */
    get editable(): boolean {
        return this.gestures.editable;
    }
    set editable(editable: boolean) {
        this.gestures.editable = editable;
    }

    /** One line that tells the user what is next. */
    get help(): string {
        return helpFor(this.drawing ?? this.selected, this.board.pointing, this.gestures.isDragging);
    }

    /** The size of the picture in pixels of its own; of the view where nothing tells it. */
    get picture(): Size {
        return this.board.picture;
    }

    /** The size of the view: what the user sees, in CSS pixels. */
    get size(): Size {
        return this.board.size;
    }

    /** Adds a rule; without a geometry the user draws it, and what was being drawn is given up. */
    add(options: AddOptions): Rule {
        this.requireAlive();
        const { model } = this;
        const record = recordOf(options, (type) => model.set.freeName(type), this.picture);
        return this.whole(() => {
            if (!record.configuration) {
                model.cancelDrawing();
            }
            return model.change(() => {
                const rule = model.set.add(record);
                if (record.configuration) {
                    model.settle([rule]);
                } else {
                    model.drawing.start(rule);
                }
                if (options.selected ?? !record.configuration) {
                    model.select(rule);
                } else {
                    this.board.host.select(rule.shape, false);
                    model.selection.touched();
                }
                return rule;
            });
        });
    }

    /** Removes a rule, by itself or by its name. */
    remove(rule: Rule | string): void {
        this.model.remove(this.model.require(rule));
    }

    /** Removes all rules. */
    clear(): void {
        this.documents.clear();
    }

    /** Selects one rule alone, or none. */
    select(rule: Rule | string | null): void {
        this.model.select(rule === null ? null : this.model.require(rule));
    }

    /** Gives up the rule that is being drawn. */
    cancelDrawing(): void {
        this.model.cancelDrawing();
    }

    /** Ends a rule that is drawn point by point, as the right button does. */
    finishDrawing(): void {
        this.gestures.finish();
    }

    /** Moves the first selected rule by pixels of the view. Whether there was something to move. */
    nudge(dx: number, dy: number): boolean {
        return this.gestures.nudge(dx, dy);
    }

    /** A text in the middle of the picture until a press hits a rule; "" removes it. */
    setTip(text: string): void {
        this.board.host.setTip(this.gestures.view, text);
        this.board.requestFrame();
    }

    /** Replaces all rules by those of a rules file, given as its text or as the object in it. All or nothing: throws one
     * `RuleCanvasError` that names every refused rule. No rule is selected then. */
    load(source: string | object): void {
        this.requireAlive();
        this.whole(() => this.documents.load(source));
    }

    /** The rules as a rules file. A rule that is being drawn is left out. */
    save(): RulesFile {
        return this.documents.save(this.picture);
    }

    /** The text of `save`. */
    saveText(): string {
        return writeRulesFile(this.save());
    }

    /** All rules as they are now, for `restore`. A rule that is being drawn is left out. */
    snapshot(): Snapshot {
        return this.documents.snapshot();
    }

    /** Brings the rules of a snapshot back. A rule that keeps its name and type stays the same object, and selected. */
    restore(snapshot: Snapshot): void {
        this.whole(() => this.documents.restore(snapshot));
    }

    /** Draws at once instead of with the next frame, and all of it on `canvas`: what changes under the pointer is otherwise
     * drawn on a smaller canvas above it. Call it before you copy the picture. */
    render(): void {
        this.board.render();
    }

    /** Ends the canvas: its rules, its listeners, and the element if it was made here. */
    destroy(): void {
        if (!this.destroyed) {
            this.destroyed = true;
            this.input.end();
            this.board.end();
            if (this.ownsCanvas) {
                this.canvas.remove();
            }
        }
    }

    private requireAlive(): void {
        if (this.destroyed) {
            throw new RuleCanvasError("destroyed", "This canvas was ended by destroy()");
        }
    }
}
