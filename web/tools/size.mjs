// Prints what a visitor downloads: every file of the module as it is and packed. Ends with an error above the limit.
import { readdirSync, readFileSync } from "node:fs";
import { join } from "node:path";
import { brotliCompressSync, gzipSync } from "node:zlib";

const LIMIT = 150_000;
const folder = process.argv[2];
const total = { files: 0, plain: 0, gzip: 0, brotli: 0 };
for (const name of readdirSync(folder).filter((each) => /\.(js|wasm)$/.test(each))) {
    const bytes = readFileSync(join(folder, name));
    total.files += 1;
    total.plain += bytes.length;
    total.gzip += gzipSync(bytes, { level: 9 }).length;
    total.brotli += brotliCompressSync(bytes).length;
}
console.log(
    `${total.files} files, ${total.plain} bytes; packed ${total.gzip} by gzip, ${total.brotli} by brotli; the limit is ${LIMIT}`,
);
process.exitCode = total.files > 0 && total.gzip < LIMIT ? 0 : 1;
