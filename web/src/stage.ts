import type { Point, Size } from "./geometry.js";

/** What is drawn over: any element; a picture or a video shows its own proportions. */
export type Target = HTMLElement;

/** The part of an element's content box that its picture fills, by `object-fit`: "contain" and "scale-down" leave
 * borders free, everything else fills the box. */
function pictureBox(target: Target): { left: number; top: number; width: number; height: number } {
    const box = {
        left: target.clientLeft,
        top: target.clientTop,
        width: target.clientWidth,
        height: target.clientHeight,
    };
    const natural = naturalSize(target);
    const fit = getComputedStyle(target).objectFit;
    if (!natural || (fit !== "contain" && fit !== "scale-down")) {
        return box;
    }
    const fitting = Math.min(box.width / natural.width, box.height / natural.height);
    const scale = fit === "scale-down" ? Math.min(fitting, 1) : fitting;
    const width = natural.width * scale;
    const height = natural.height * scale;
    return { left: box.left + (box.width - width) / 2, top: box.top + (box.height - height) / 2, width, height };
}

/** The size of an element's picture in pixels of its own; null when it has none, or none yet. */
export function naturalSize(target: Element): Size | null {
    let size = { width: 0, height: 0 };
    if (target instanceof HTMLVideoElement) {
        size = { width: target.videoWidth, height: target.videoHeight };
    } else if (target instanceof HTMLImageElement) {
        size = { width: target.naturalWidth, height: target.naturalHeight };
    } else if (target instanceof HTMLCanvasElement) {
        size = { width: target.width, height: target.height };
    }
    return size.width > 0 && size.height > 0 ? size : null;
}

/** A canvas that its own attributes size would grow with the device pixels it gets. */
function keepLayoutSize(canvas: HTMLCanvasElement): void {
    const { clientWidth: width, clientHeight: height } = canvas;
    canvas.width += 1;
    if (canvas.clientWidth !== width) {
        canvas.style.width = `${width}px`;
        canvas.style.height = `${height}px`;
    }
    canvas.width -= 1;
}

/** Keeps a canvas over its target and as sharp as the screen is. A pixel of the view is a CSS pixel; the canvas has as
 * many pixels of its own as the screen shows. */
export class Stage {
    /** Of the view; stays as it was while the canvas is hidden. */
    size: Size = { width: 1920, height: 1080 };
    private readonly observer: ResizeObserver;
    private resolution: MediaQueryList | null = null;
    private readonly refresh = (): void => this.update();

    constructor(
        readonly canvas: HTMLCanvasElement,
        readonly target: Target | null,
        private readonly changed: () => void,
    ) {
        if (target === null) {
            keepLayoutSize(canvas);
        }
        this.observer = new ResizeObserver(this.refresh);
        this.observer.observe(target ?? canvas);
        for (const event of ["load", "loadedmetadata", "resize"]) {
            target?.addEventListener(event, this.refresh);
        }
        window.addEventListener("resize", this.refresh);
        this.update();
    }

    end(): void {
        this.observer.disconnect();
        this.resolution?.removeEventListener("change", this.refresh);
        for (const event of ["load", "loadedmetadata", "resize"]) {
            this.target?.removeEventListener(event, this.refresh);
        }
        window.removeEventListener("resize", this.refresh);
    }

    /** Canvas pixels for a pixel of the view. */
    get ratio(): Point {
        return [this.canvas.width / this.size.width, this.canvas.height / this.size.height];
    }

    /** A place on the page in pixels of the view; right also when the page or an element round it is zoomed. */
    toView(clientX: number, clientY: number): Point {
        const { canvas } = this;
        const box = canvas.getBoundingClientRect();
        const along = (
            client: number,
            begin: number,
            length: number,
            outer: number,
            border: number,
            inner: number,
        ): number => (((client - begin) / length) * outer - border) / inner;
        const x = along(clientX, box.left, box.width, canvas.offsetWidth, canvas.clientLeft, canvas.clientWidth);
        const y = along(clientY, box.top, box.height, canvas.offsetHeight, canvas.clientTop, canvas.clientHeight);
        return [x * this.size.width, y * this.size.height];
    }

    private update(): void {
        this.place();
        this.watchResolution();
        const { canvas } = this;
        const { clientWidth, clientHeight } = canvas;
        if (clientWidth > 0 && clientHeight > 0) {
            const width = Math.round(clientWidth * devicePixelRatio);
            const height = Math.round(clientHeight * devicePixelRatio);
            const same = canvas.width === width && canvas.height === height;
            if (!same || this.size.width !== clientWidth || this.size.height !== clientHeight) {
                canvas.width = width;
                canvas.height = height;
                this.size = { width: clientWidth, height: clientHeight };
            }
        }
        this.changed();
    }

    private place(): void {
        if (this.target === null) {
            return;
        }
        const box = pictureBox(this.target);
        const { style } = this.canvas;
        style.left = `${this.target.offsetLeft + box.left}px`;
        style.top = `${this.target.offsetTop + box.top}px`;
        style.width = `${box.width}px`;
        style.height = `${box.height}px`;
    }

    /** A window that moves to another screen changes its pixel ratio without changing its size. */
    private watchResolution(): void {
        const query = `(resolution: ${devicePixelRatio}dppx)`;
        if (this.resolution?.media !== query) {
            this.resolution?.removeEventListener("change", this.refresh);
            this.resolution = matchMedia(query);
            this.resolution.addEventListener("change", this.refresh);
        }
    }
}
