// The scene that every library shows: 1,000 polygons of 20 points on a picture of 1920 x 1080 pixels, in rows.

export const WIDTH = 1920;
export const HEIGHT = 1080;
const COLUMNS = 40;
const ROWS = 25;
const POINTS = 20;
/** The polygon that is pressed and dragged: one in the middle. */
export const DRAGGED = 12 * COLUMNS + 20;

function ring(x, y) {
    return Array.from({ length: POINTS }, (_, i) => {
        const angle = (i * 2 * Math.PI) / POINTS;
        const radius = i % 2 === 0 ? 20 : 15;
        return [Math.round(x + radius * Math.cos(angle)), Math.round(y + radius * Math.sin(angle))];
    });
}

export const middles = Array.from({ length: COLUMNS * ROWS }, (_, i) => [
    24 + 48 * (i % COLUMNS),
    22 + 43 * Math.floor(i / COLUMNS),
]);
export const polygons = middles.map(([x, y]) => ring(x, y));

/** Where the pointer goes during a drag of so many steps: to and fro. */
export function pathOf(steps) {
    const [x, y] = middles[DRAGGED];
    return Array.from({ length: steps }, (_, i) => [
        Math.round(x + 60 * Math.sin((i + 1) / 6)),
        Math.round(y + 40 * Math.sin((i + 1) / 9)),
    ]);
}
