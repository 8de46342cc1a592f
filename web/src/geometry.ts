import type { Configuration } from "./record.js";
import type { RuleType } from "./rule_types.js";

/** The largest grid value of a configuration, at the right and at the lower border of the picture. */
export const GRID = 8191;

/** A place: x and y, in pixels. */
export type Point = readonly [number, number];

/** Width and height in pixels. */
export interface Size {
    readonly width: number;
    readonly height: number;
}

function toGrid(value: number, size: number): number {
    return Math.min(Math.max(Math.trunc((value * GRID) / size + 0.5), 0), GRID);
}

function fromGrid(value: number, size: number): number {
    return Math.trunc((size * value) / GRID + 0.5);
}

/** Cross-hairs are written as bands of three grid units: the horizontal one, then the vertical one, of each. */
function bandsOf([x, y]: Point): number[][] {
    return [
        [0, y - 1, GRID, y + 1],
        [x - 1, 0, x + 1, GRID],
    ];
}

/** The geometry of a rule from points in pixels of a picture. A pixel counter is given by two corners. */
export function configurationOf(type: RuleType, name: string, points: readonly Point[], size: Size): Configuration {
    if (type === "PixelCountShape") {
        const [[left, top], [right, bottom]] = [points[0] ?? [0, 0], points[1] ?? [0, 0]];
        return { [name]: [Math.trunc(Math.abs(right - left)), Math.trunc(Math.abs(bottom - top))] };
    }
    const grid = points.map(([x, y]): Point => [toGrid(x, size.width), toGrid(y, size.height)]);
    return { [name]: type === "BigCrossShape" ? grid.flatMap(bandsOf) : grid };
}

function numbersAt(value: unknown): number[] {
    return Array.isArray(value) ? value.filter((item): item is number => typeof item === "number") : [];
}

/** The points of a geometry on the grid; empty for a pixel counter, whose geometry is a size and no place. */
function gridPoints(type: RuleType, name: string, configuration: Configuration): Point[] {
    const member = configuration[name];
    if (type === "PixelCountShape" || !Array.isArray(member)) {
        return [];
    }
    if (type !== "BigCrossShape") {
        return member.map((point): Point => [numbersAt(point)[0] ?? 0, numbersAt(point)[1] ?? 0]);
    }
    const crosses: Point[] = [];
    for (let i = 0; i + 1 < member.length; i += 2) {
        crosses.push([(numbersAt(member[i + 1])[0] ?? 0) + 1, (numbersAt(member[i])[1] ?? 0) + 1]);
    }
    return crosses;
}

/** The points of a geometry in pixels of a picture. */
export function pointsOf(type: RuleType, name: string, configuration: Configuration, size: Size): Point[] {
    return gridPoints(type, name, configuration).map(([x, y]): Point => [
        fromGrid(x, size.width),
        fromGrid(y, size.height),
    ]);
}

/** The same geometry moved by whole pixels of the view, as far as the picture reaches. */
export function movedBy(
    type: RuleType,
    name: string,
    configuration: Configuration,
    size: Size,
    dx: number,
    dy: number,
): Configuration {
    const points = pointsOf(type, name, configuration, size);
    if (points.length === 0) {
        return configuration;
    }
    const inside = (wanted: number, values: number[], limit: number): number =>
        Math.min(Math.max(wanted, -Math.min(...values)), limit - Math.max(...values));
    const x = inside(
        dx,
        points.map((point) => point[0]),
        size.width - 1,
    );
    const y = inside(
        dy,
        points.map((point) => point[1]),
        size.height - 1,
    );
    const moved = points.map(([px, py]): Point => [px + x, py + y]);
    return { ...configuration, ...configurationOf(type, name, moved, size) };
}

/** The library writes an oval under its name and reads it under its type. */
export function configurationToPass(type: RuleType, name: string, configuration: Configuration): Configuration {
    return type === "OvalShape" && name in configuration ? { OvalShape: configuration[name] } : configuration;
}
