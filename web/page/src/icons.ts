import type { RuleType } from "rulecanvas";

const SHAPES: { readonly [K in RuleType]: string } = {
    Rect: '<rect x="3" y="5" width="14" height="10"/>',
    Polygon: '<path d="m10 3 7 5-3 8H6L3 8z"/>',
    VirablePolygon: '<path d="m3 4 7 4 7-5-2 13-11-1z"/><circle cx="10" cy="8" r="1.4" fill="currentColor"/>',
    OvalShape: '<ellipse cx="10" cy="10" rx="7.5" ry="5.5"/>',
    LineShape: '<path d="M3 16 17 4"/>',
    VerticalLineShape: '<path d="M10 3v14"/>',
    HorizontalLineShape: '<path d="M3 10h14"/>',
    DashLineShape: '<path d="M3 16 17 4" stroke-dasharray="3 3.4"/>',
    ArrowLineShape: '<path d="M3 16 17 4m-6 .6L17 4l-1.4 6"/>',
    XLineShape: '<path d="M3 10h14M10 17V3M7.4 5.6 10 3l2.6 2.6"/>',
    BrokenLine: '<path d="m2 15 5-9 5 7 6-9"/>',
    PixelCountShape:
        '<rect x="3" y="4" width="14" height="12" stroke-dasharray="2.4 2.4"/><path d="M7 13V9m3 4V7m3 6v-3"/>',
    CrossShape: '<path d="M10 5v10M5 10h10"/>',
    BigCrossShape: '<path d="M7 2v16M2 7h16M13 2v16M2 13h16" stroke-width="1.2"/>',
    SpotShape: '<circle cx="10" cy="10" r="4"/>',
};

const SIGNS = {
    pointer: '<path d="m5 3 10 7-4.6.8L13 16l-2 1-2.4-5.2L5 15z"/>',
    eye: '<path d="M2 10s3-5 8-5 8 5 8 5-3 5-8 5-8-5-8-5z"/><circle cx="10" cy="10" r="2"/>',
    hiddenEye: '<path d="M2 10s3-5 8-5 8 5 8 5-3 5-8 5-8-5-8-5zM4 16 16 4"/>',
    lock: '<rect x="5" y="9" width="10" height="7" rx="1.5"/><path d="M7 9V6.5a3 3 0 0 1 6 0V9"/>',
    unlocked: '<rect x="5" y="9" width="10" height="7" rx="1.5"/><path d="M7 9V6.5a3 3 0 0 1 5.6-1.5"/>',
    bin: '<path d="M4 6h12M8 6V4h4v2m-6 0 .7 10h6.6L14 6"/>',
};

/** A drawing as SVG text, 20 x 20 units. */
export function icon(name: RuleType | keyof typeof SIGNS): string {
    return `<svg viewBox="0 0 20 20" aria-hidden="true">${name in SHAPES ? SHAPES[name as RuleType] : SIGNS[name as keyof typeof SIGNS]}</svg>`;
}
