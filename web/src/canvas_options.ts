import type { Size } from "./geometry.js";

/** How a canvas is made. */
export interface RuleCanvasOptions {
    /** The WebAssembly file, when it does not lie beside the module. */
    wasm?: string | URL;
    /** The view that the canvas shows; rules of other views are kept and not shown. 0 when absent. */
    view?: number;
    /** The size of the picture in pixels of its own, when the element cannot tell. */
    picture?: Size;
    /** Whether the user may edit. True when absent. */
    editable?: boolean;
}
