import type { Model } from "./model.js";
import type { Box } from "./pixel_counters.js";
import type { RuleRecord } from "./record.js";
import { emptyFile, readRulesFile, type RulesFile } from "./rules_file.js";
import type { Size } from "./geometry.js";

/** All rules as they were at one moment; made by `RuleCanvas.snapshot`. */
export interface Snapshot {
    readonly records: readonly RuleRecord[];
    /** Where pixel counters were, in parts of the view: their geometry tells no place. */
    readonly boxes: ReadonlyMap<string, Box>;
}

/** All rules of a canvas as a whole: in rules files and snapshots. A rule that is being drawn is in none of them. */
export class Documents {
    /** What the file that was read says besides its rules. */
    private file: RulesFile = emptyFile();

    constructor(private readonly model: Model) {}

    clear(): void {
        this.model.drawing.rule = null;
        this.model.remake(0, [], new Map());
        this.file = emptyFile();
    }

    load(source: string | object): void {
        const file = readRulesFile(source);
        const wanted = file.rules.map((record) => ({ record }));
        this.model.cancelDrawing();
        this.model.remake(0, wanted, new Map());
        this.file = file;
    }

    save({ width, height }: Size): RulesFile {
        return { ...this.file, picture: { ...this.file.picture, width, height }, rules: this.records() };
    }

    snapshot(): Snapshot {
        return { records: this.records(), boxes: this.model.counterBoxes() };
    }

    /** Only what comes after the first difference is made anew. */
    restore({ records, boxes }: Snapshot): void {
        const { model } = this;
        model.cancelDrawing();
        const current = this.records().map((record) => JSON.stringify(record));
        const changed = records.findIndex((record, index) => JSON.stringify(record) !== current[index]);
        const from = changed < 0 ? records.length : changed;
        const replaced = new Set(model.rules.slice(from));
        const wanted = records.slice(from).map((record) => {
            const rule = model.set.find(record.name);
            return { record, rule: rule?.type === record.type && replaced.has(rule) ? rule : undefined };
        });
        model.remake(from, wanted, boxes);
    }

    private records(): RuleRecord[] {
        const { model } = this;
        return model.rules.filter((rule) => rule !== model.drawing.rule).map((rule) => model.recordOf(rule));
    }
}
