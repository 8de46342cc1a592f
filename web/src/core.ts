import createCore from "./rulecanvas_core.js";
import { RuleCanvasError } from "./errors.js";

/** The 29 functions of the library as they are: texts, records and delegates are addresses in `memory`, booleans 0 or 1.
 * rulecanvas.h tells what each does. */
export interface Library {
    CreateVideoAnalyseContainer(hostObject: number): number;
    ReleaseVideoAnalyseContainer(container: number): void;
    CreateMainVideoAnalyseShape(
        container: number,
        view: number,
        label: number,
        type: number,
        name: number,
        configuration: number,
        option: number,
    ): number;
    GetContainerWinMouseEventHandler(container: number, holder: number): number;
    GetContainerDrawEventHandler(container: number, holder: number): number;
    SetContainerNotifyEventDelegate(container: number, delegate: number): void;
    SetAdjustPointCoordinateDelegate(container: number, delegate: number): void;
    AddVideoAnalyseShape(container: number, shape: number, first: number, second: number, third: number): number;
    DeleteVideoAnalyseShape(container: number, shape: number): number;
    DeleteAllVideoAnalyseShape(container: number): void;
    SelectVideoAnalyseShape(container: number, shape: number, select: number): number;
    SetVideoAnalyseShapeDirection(container: number, shape: number, direction: number): number;
    EnableVideoAnalyseContainer(container: number, enable: number): number;
    GetVideoAnalyseShapeConfigData(container: number, shape: number, buffer: number, size: number): number;
    EnableVideoAnalyseShape(container: number, shape: number, enable: number): number;
    RedrawVideoAnalyseShape(container: number, shape: number): number;
    SetGetContainerRectClientDelegate(container: number, delegate: number): number;
    SetCtrlContainerWinMouseCaptureDelegate(container: number, delegate: number): number;
    GetSelectedVideoAnalyseShapeID(container: number): number;
    SetVideoAnalyseShapeShowName(container: number, shape: number, text: number): number;
    ShowVideoAnalyseShape(container: number, shape: number, show: number): number;
    SetContainerTranslateDelegate(container: number, delegate: number): number;
    SetVideoAnalyseContainerTip(container: number, view: number, tip: number): number;
    InvalidateAllShape(container: number): number;
    SetAdjustBoxbShow(container: number, shape: number, show: number): number;
    SetVideoAnalyseShapeColor(
        container: number,
        shape: number,
        red: number,
        green: number,
        blue: number,
        selectedColour: number,
    ): number;
    SetVideoAnalyseShapeMaxPtNum(container: number, shape: number, maximum: number, minimum: number): number;
    SetPixelCount(container: number, width: number, height: number): void;
    GetVideoAnalyseAllShapestates(buffer: number, size: number): void;
}

type Underscored<T> = { [K in keyof T & string as `_${K}`]: T[K] };

/** What the module offers besides the library: memory, and the host that a page needs. */
interface Bridge {
    malloc(size: number): number;
    free(address: number): void;
    HostCreate(number: number): number;
    HostRelease(host: number): void;
    HostContainer(host: number): number;
    HostResize(host: number, width: number, height: number): void;
    HostMouse(host: number, code: number, view: number, x: number, y: number): void;
    HostKey(host: number, view: number, virtualKey: number): void;
    HostPaint(host: number, view: number): number;
    HostRecording(host: number): number;
    HostRecordingSize(host: number): number;
    HostConfiguration(host: number, shape: number): number;
    HostSelection(host: number): number;
    HostListen(host: number, listens: number): void;
    HostForgetMeasures(host: number): void;
}

/** What the module calls while it runs. */
export interface Page {
    notify(host: number, text: number): void;
    capture(host: number, take: boolean): void;
    requestRedraw(host: number): void;
    hint(host: number, value: number): void;
    measure(host: number, text: number, size: number, widthAndHeight: number): void;
}

export type CoreModule = Underscored<Library> &
    Underscored<Bridge> & {
        readonly HEAPU8: Uint8Array;
        readonly HEAPU32: Uint32Array;
        readonly HEAPF32: Float32Array;
        UTF8ToString(address: number): string;
        stringToUTF8(text: string, address: number, size: number): void;
        lengthBytesUTF8(text: string): number;
        addFunction(code: (...words: number[]) => number | void, signature: string): number;
        removeFunction(address: number): void;
        page: Page;
    };

let loading: Promise<CoreModule> | undefined;

/** Loads the module once for the page. `wasm` names the file when it does not lie beside the module. */
export function loadCore(wasm?: string | URL): Promise<CoreModule> {
    loading ??= createCore(wasm === undefined ? {} : { locateFile: () => String(wasm) }).catch((problem: unknown) => {
        loading = undefined;
        throw new RuleCanvasError("core-not-loaded", `The WebAssembly module could not be loaded: ${String(problem)}`);
    });
    return loading;
}

/** Runs a call with texts as addresses of UTF-8 that ends with a zero; they are freed afterwards. */
export function withTexts<T>(core: CoreModule, texts: readonly string[], call: (addresses: number[]) => T): T {
    const sizes = texts.map((text) => core.lengthBytesUTF8(text) + 1);
    const begin = core._malloc(sizes.reduce((sum, size) => sum + size, 0));
    let next = begin;
    const addresses = texts.map((text, i) => {
        const address = next;
        core.stringToUTF8(text, address, sizes[i]!);
        next += sizes[i]!;
        return address;
    });
    try {
        return call(addresses);
    } finally {
        core._free(begin);
    }
}
