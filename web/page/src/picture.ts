import { byId } from "./dom.js";
import { startStreet } from "./street.js";

/** Waits until an element knows the size of its picture. */
function known(element: HTMLVideoElement | HTMLImageElement): Promise<void> {
    return new Promise((done, failed) => {
        element.addEventListener(element instanceof HTMLVideoElement ? "loadedmetadata" : "load", () => done(), {
            once: true,
        });
        element.addEventListener("error", () => failed(new Error("The browser cannot show this file.")), {
            once: true,
        });
    });
}

function place(element: HTMLElement, width: number, height: number): HTMLElement {
    element.className = "picture";
    const frame = byId("frame");
    frame.style.setProperty("--shape", String(width / height));
    frame.replaceChildren(element);
    return element;
}

/** Shows a video that goes round and round. */
export async function showVideo(address: string): Promise<HTMLElement> {
    const video = document.createElement("video");
    Object.assign(video, { muted: true, loop: true, autoplay: true, playsInline: true, src: address });
    await known(video);
    return place(video, video.videoWidth, video.videoHeight);
}

/** Shows a picture or a video of the user's. */
export async function showFile(file: File): Promise<HTMLElement> {
    const address = URL.createObjectURL(file);
    if (file.type.startsWith("video/")) {
        return showVideo(address);
    }
    const image = new Image();
    image.src = address;
    await known(image);
    return place(image, image.naturalWidth, image.naturalHeight);
}

/** Shows the street that needs no file. */
export function showStreet(): HTMLElement {
    const canvas = startStreet();
    return place(canvas, canvas.width, canvas.height);
}
