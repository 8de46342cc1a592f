// Serves folders over HTTP on the loopback address. `serve({ "/": folder, "/bench/": other }, port)` resolves to the
// server and its address; by itself: node serve.mjs FOLDER [PORT].
import { createReadStream } from "node:fs";
import { stat } from "node:fs/promises";
import { createServer } from "node:http";
import { extname, join, normalize, resolve } from "node:path";
import { pathToFileURL } from "node:url";

const TYPES = {
    ".html": "text/html; charset=utf-8",
    ".css": "text/css; charset=utf-8",
    ".js": "text/javascript; charset=utf-8",
    ".mjs": "text/javascript; charset=utf-8",
    ".json": "application/json",
    ".wasm": "application/wasm",
    ".svg": "image/svg+xml",
    ".png": "image/png",
    ".jpg": "image/jpeg",
    ".webm": "video/webm",
    ".mp4": "video/mp4",
};

function fileFor(folders, path) {
    const prefix = Object.keys(folders)
        .filter((each) => path.startsWith(each))
        .sort((a, b) => b.length - a.length)[0];
    if (prefix === undefined) {
        return null;
    }
    const root = resolve(folders[prefix]);
    const file = normalize(join(root, path.slice(prefix.length)));
    return file.startsWith(root) ? file : null;
}

/** Videos are only wound by players that are given the part they ask for. */
function partOf(header, size) {
    const [, begin, end] = /^bytes=(\d+)-(\d*)$/.exec(header ?? "") ?? [];
    return begin === undefined ? null : { start: Number(begin), end: end ? Math.min(Number(end), size - 1) : size - 1 };
}

async function answer(folders, request, response) {
    const path = decodeURIComponent(new URL(request.url, "http://local").pathname);
    const file = fileFor(folders, path.endsWith("/") ? `${path}index.html` : path);
    const found = file === null ? null : await stat(file).catch(() => null);
    if (found === null || !found.isFile()) {
        response.writeHead(404).end("not found");
        return;
    }
    const part = partOf(request.headers.range, found.size);
    const headers = {
        "Content-Type": TYPES[extname(file)] ?? "application/octet-stream",
        "Cache-Control": "no-store",
        "Accept-Ranges": "bytes",
    };
    if (part === null) {
        response.writeHead(200, { ...headers, "Content-Length": found.size });
    } else {
        response.writeHead(206, {
            ...headers,
            "Content-Length": part.end - part.start + 1,
            "Content-Range": `bytes ${part.start}-${part.end}/${found.size}`,
        });
    }
    createReadStream(file, part ?? {}).pipe(response);
}

export function serve(folders, port = 0) {
    const server = createServer((request, response) => void answer(folders, request, response));
    return new Promise((done, failed) => {
        server.once("error", failed);
        server.listen(port, "127.0.0.1", () => done({ server, address: `http://127.0.0.1:${server.address().port}/` }));
    });
}

if (import.meta.url === pathToFileURL(process.argv[1] ?? "").href) {
    const { address } = await serve({ "/": process.argv[2] ?? "." }, Number(process.argv[3] ?? 0));
    console.log(`The page is at ${address}`);
}
