import type { Snapshot } from "./documents.js";
import type { RuleCanvas } from "./rule_canvas.js";

/** Undo and redo for a canvas: remembers the rules after every change that the user or the program makes. */
export class History {
    private readonly past: Snapshot[] = [];
    private readonly future: Snapshot[] = [];
    private present: Snapshot;
    private pending = 0;
    private restoring = false;
    private readonly endings: (() => void)[];

    /** Calls `changed` whenever `canUndo` or `canRedo` may differ. `most` steps are kept. */
    constructor(
        private readonly canvas: RuleCanvas,
        private readonly changed: () => void = () => {},
        private readonly most = 100,
    ) {
        this.present = canvas.snapshot();
        const note = (): void => this.note();
        this.endings = (["create", "change", "delete", "rules"] as const).map((event) => canvas.on(event, note));
    }

    get canUndo(): boolean {
        return this.past.length > 0;
    }

    get canRedo(): boolean {
        return this.future.length > 0;
    }

    undo(): void {
        this.settle();
        this.go(this.past, this.future);
    }

    redo(): void {
        this.settle();
        this.go(this.future, this.past);
    }

    /** Forgets all steps: what is there now is the beginning. */
    reset(): void {
        this.settle();
        this.past.length = 0;
        this.future.length = 0;
        this.changed();
    }

    end(): void {
        clearTimeout(this.pending);
        this.endings.forEach((end) => end());
    }

    /** Changes that come together are one step. */
    private note(): void {
        if (!this.restoring && this.pending === 0) {
            this.pending = window.setTimeout(() => this.settle());
        }
    }

    private settle(): void {
        clearTimeout(this.pending);
        this.pending = 0;
        const now = this.canvas.snapshot();
        if (JSON.stringify(now.records) === JSON.stringify(this.present.records)) {
            this.present = now;
            return;
        }
        this.past.push(this.present);
        this.past.splice(0, this.past.length - this.most);
        this.future.length = 0;
        this.present = now;
        this.changed();
    }

    private go(from: Snapshot[], to: Snapshot[]): void {
        const wanted = from.pop();
        if (wanted === undefined) {
            return;
        }
        to.push(this.present);
        this.restoring = true;
        this.canvas.restore(wanted);
        this.restoring = false;
        this.present = this.canvas.snapshot();
        this.changed();
    }
}
