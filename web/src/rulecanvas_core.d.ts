import type { CoreModule } from "./core.js";

export default function createCore(settings?: {
    wasmBinary?: ArrayBuffer;
    locateFile?: (name: string) => string;
}): Promise<CoreModule>;
