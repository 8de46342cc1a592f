import { withTexts, type CoreModule, type Page } from "./core.js";
import type { Recording } from "./recording.js";
import type { Rgb } from "./record.js";

/** What a host is told while the core runs. */
export interface HostListener {
    /** One line of JSON. */
    notified(text: string): void;
    captured(take: boolean): void;
    redrawRequested(): void;
    measured(text: string, size: number): [number, number];
}

/** The codes of mouse events. */
export const MOUSE = { leftDown: 1, leftUp: 2, moved: 3, rightDown: 4, rightUp: 5, altRightDown: 10 } as const;

const listeners = new Map<number, HostListener>();
let hosts = 0;

/** How the module speaks to whichever host is meant. */
function pageOf(core: CoreModule): Page {
    return {
        notify: (host, text) => listeners.get(host)?.notified(core.UTF8ToString(text)),
        capture: (host, take) => listeners.get(host)?.captured(take),
        requestRedraw: (host) => listeners.get(host)?.redrawRequested(),
        hint: () => undefined,
        measure: (host, text, size, out) => {
            const [width, height] = listeners.get(host)?.measured(core.UTF8ToString(text), size) ?? [0, 0];
            core.HEAPF32[out / 4] = width;
            core.HEAPF32[out / 4 + 1] = height;
        },
    };
}

/** What a shape is made of. */
export interface ShapeTexts {
    readonly view: number;
    readonly type: string;
    readonly label: string;
    readonly name: string;
    readonly configuration: string;
    readonly option: string;
}

/** A container of the library with its delegates, without raw words. */
export class Host {
    /** The handle that the library's functions take. */
    readonly container: number;
    private readonly number = ++hosts;
    private readonly host: number;

    constructor(
        readonly core: CoreModule,
        listener: HostListener,
    ) {
        core.page ??= pageOf(core);
        listeners.set(this.number, listener);
        this.host = core._HostCreate(this.number);
        this.container = core._HostContainer(this.host) >>> 0;
    }

    release(): void {
        this.core._HostRelease(this.host);
        listeners.delete(this.number);
    }

    /** The identity of the new shape, or 0 when the library refuses it. */
    create({ view, type, label, name, configuration, option }: ShapeTexts): number {
        const made = withTexts(this.core, [label, type, name, configuration, option], ([l, t, n, c, o]) =>
            this.core._CreateMainVideoAnalyseShape(this.container, view, l!, t!, n!, c!, o!),
        );
        return made >>> 0;
    }

    delete(shape: number): void {
        this.core._DeleteVideoAnalyseShape(this.container, shape);
    }

    select(shape: number, selected: boolean): void {
        this.core._SelectVideoAnalyseShape(this.container, shape, Number(selected));
    }

    enable(shape: number, enabled: boolean): void {
        this.core._EnableVideoAnalyseShape(this.container, shape, Number(enabled));
    }

    /** Throws the figure away, so that the user draws it again. */
    redraw(shape: number): void {
        this.core._RedrawVideoAnalyseShape(this.container, shape);
    }

    show(shape: number, visible: boolean): void {
        this.core._ShowVideoAnalyseShape(this.container, shape, Number(visible));
    }

    setCaption(shape: number, text: string): void {
        withTexts(this.core, [text], ([t]) => this.core._SetVideoAnalyseShapeShowName(this.container, shape, t!));
    }

    setColour(shape: number, selected: boolean, [red, green, blue]: Rgb): void {
        this.core._SetVideoAnalyseShapeColor(this.container, shape, red, green, blue, Number(selected));
    }

    setDirection(shape: number, direction: number): void {
        this.core._SetVideoAnalyseShapeDirection(this.container, shape, direction);
    }

    setPointLimits(shape: number, maximum: number, minimum: number): void {
        this.core._SetVideoAnalyseShapeMaxPtNum(this.container, shape, maximum, minimum);
    }

    setTip(view: number, text: string): void {
        withTexts(this.core, [text], ([t]) => this.core._SetVideoAnalyseContainerTip(this.container, view, t!));
    }

    setVideoSize(width: number, height: number): void {
        this.core._SetPixelCount(this.container, width, height);
    }

    resize(width: number, height: number): void {
        this.core._HostResize(this.host, width, height);
    }

    mouse(code: number, view: number, x: number, y: number): void {
        this.core._HostMouse(this.host, code, view, x, y);
    }

    key(view: number, virtualKey: number): void {
        this.core._HostKey(this.host, view, virtualKey);
    }

    /** The geometry as one line of JSON, empty without one. */
    configuration(shape: number): string {
        return this.core.UTF8ToString(this.core._HostConfiguration(this.host, shape)).trimEnd();
    }

    /** The identities of the selected shapes. */
    selected(): Set<number> {
        const begin = this.core._HostSelection(this.host) / 4 + 1;
        return new Set(this.core.HEAPU32.subarray(begin, begin + this.core.HEAPU32[begin - 1]!));
    }

    /** Whether notifications are wanted: to write one takes the library as long as to make a shape. */
    listen(listens: boolean): void {
        this.core._HostListen(this.host, Number(listens));
    }

    forgetMeasures(): void {
        this.core._HostForgetMeasures(this.host);
    }

    /** Paints into the recording. Whether it differs from the one before. */
    paint(view: number): boolean {
        return this.core._HostPaint(this.host, view) !== 0;
    }

    /** The last paint; valid until the next call of the core. */
    recording(): Recording {
        const begin = this.core._HostRecording(this.host) / 4;
        const end = begin + this.core._HostRecordingSize(this.host);
        return { words: this.core.HEAPU32, numbers: this.core.HEAPF32, begin, end };
    }
}
