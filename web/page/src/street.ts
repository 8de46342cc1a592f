/** A street seen by a camera, for a page without a video. */

const WIDTH = 1280;
const HEIGHT = 720;
const HORIZON = 250;

interface Car {
    readonly lane: number;
    readonly speed: number;
    readonly paint: string;
    along: number;
}

const CARS: Car[] = [
    { lane: -0.5, speed: 0.00011, paint: "#c8453b", along: 0.1 },
    { lane: -0.5, speed: 0.00009, paint: "#e3e5e8", along: 0.62 },
    { lane: 0.5, speed: -0.0001, paint: "#2d64a8", along: 0.35 },
    { lane: 0.5, speed: -0.00012, paint: "#d9a32c", along: 0.85 },
];

/** Half the width of the road at a height of the picture. */
function halfRoad(y: number): number {
    return 40 + ((y - HORIZON) / (HEIGHT - HORIZON)) * 430;
}

function polygon(g: CanvasRenderingContext2D, paint: string, ...points: [number, number][]): void {
    g.fillStyle = paint;
    g.beginPath();
    points.forEach(([x, y]) => g.lineTo(x, y));
    g.fill();
}

function drawHouses(g: CanvasRenderingContext2D): void {
    const sky = g.createLinearGradient(0, 0, 0, HORIZON);
    sky.addColorStop(0, "#7f9bb8");
    sky.addColorStop(1, "#c9d3da");
    g.fillStyle = sky;
    g.fillRect(0, 0, WIDTH, HORIZON + 10);
    const houses: [number, number, number, string][] = [
        [0, 190, 330, "#7d6a5c"],
        [190, 150, 250, "#96897b"],
        [340, 130, 180, "#6f7883"],
        [470, 110, 130, "#8b8177"],
        [700, 120, 150, "#77808a"],
        [820, 150, 215, "#8d7763"],
        [970, 140, 260, "#a39787"],
        [1110, 170, 340, "#72665e"],
    ];
    for (const [x, width, height, paint] of houses) {
        const top = HORIZON + 20 - height * 0.72;
        g.fillStyle = paint;
        g.fillRect(x, top, width, HORIZON + 20 - top);
        g.fillStyle = "#2f3a47aa";
        for (let wx = x + 14; wx < x + width - 24; wx += 32) {
            for (let wy = top + 16; wy < HORIZON - 22; wy += 36) {
                g.fillRect(wx, wy, 16, 21);
            }
        }
    }
}

function drawRoad(g: CanvasRenderingContext2D): void {
    const middle = WIDTH / 2;
    g.fillStyle = "#8f9387";
    g.fillRect(0, HORIZON + 8, WIDTH, HEIGHT);
    polygon(
        g,
        "#a9a79e",
        [middle - 90, HORIZON + 8],
        [middle + 90, HORIZON + 8],
        [WIDTH + 160, HEIGHT],
        [-160, HEIGHT],
    );
    polygon(
        g,
        "#4b4f55",
        [middle - 40, HORIZON + 8],
        [middle + 40, HORIZON + 8],
        [middle + 470, HEIGHT],
        [middle - 470, HEIGHT],
    );
    for (let i = 0; i < 12; ++i) {
        const near = HORIZON + 14 + (HEIGHT - HORIZON) * ((i + 0.5) / 12) ** 2;
        const far = HORIZON + 14 + (HEIGHT - HORIZON) * (i / 12) ** 2;
        const thick = halfRoad(near) / 60;
        polygon(
            g,
            "#d9d9d2",
            [middle - thick / 2, far],
            [middle + thick / 2, far],
            [middle + thick, near],
            [middle - thick, near],
        );
    }
    for (let i = -7; i < 7; ++i) {
        const [top, bottom] = [468, 540];
        const at = (x: number, y: number): [number, number] => [middle + (x / 7) * halfRoad(y), y];
        polygon(g, "#dcdcd4", at(i + 0.1, top), at(i + 0.6, top), at(i + 0.6, bottom), at(i + 0.1, bottom));
    }
}

function drawTree(g: CanvasRenderingContext2D, x: number, y: number, size: number): void {
    g.fillStyle = "#4c3d31";
    g.fillRect(x - size * 0.06, y - size * 0.5, size * 0.12, size * 0.5);
    for (const [dx, dy, r, paint] of [
        [-0.2, -0.62, 0.3, "#3f5f3c"],
        [0.2, -0.66, 0.3, "#47693f"],
        [0, -0.88, 0.34, "#557a48"],
    ] as const) {
        g.fillStyle = paint;
        g.beginPath();
        g.arc(x + dx * size, y + dy * size, r * size, 0, 7);
        g.fill();
    }
}

function drawCar(g: CanvasRenderingContext2D, { lane, along, paint }: Car): void {
    const y = HORIZON + 25 + (HEIGHT - HORIZON + 60) * along ** 2;
    const half = halfRoad(y);
    const x = WIDTH / 2 + lane * half;
    const width = half * 0.5;
    const height = width * 0.72;
    g.fillStyle = "#0005";
    g.beginPath();
    g.ellipse(x, y, width * 0.62, height * 0.14, 0, 0, 7);
    g.fill();
    g.fillStyle = paint;
    g.beginPath();
    g.roundRect(x - width / 2, y - height * 0.62, width, height * 0.6, width * 0.1);
    g.roundRect(x - width * 0.37, y - height, width * 0.74, height * 0.5, width * 0.12);
    g.fill();
    g.fillStyle = "#26323f";
    g.fillRect(x - width * 0.31, y - height * 0.92, width * 0.62, height * 0.28);
    g.fillStyle = lane < 0 ? "#ff6a5e" : "#fff3c4";
    g.fillRect(x - width * 0.45, y - height * 0.45, width * 0.14, height * 0.13);
    g.fillRect(x + width * 0.31, y - height * 0.45, width * 0.14, height * 0.13);
}

/** Starts the street on a canvas; stops when the canvas leaves the page. */
export function startStreet(): HTMLCanvasElement {
    const canvas = document.createElement("canvas");
    canvas.width = WIDTH;
    canvas.height = HEIGHT;
    const still = new OffscreenCanvas(WIDTH, HEIGHT);
    const ground = still.getContext("2d") as unknown as CanvasRenderingContext2D;
    drawHouses(ground);
    drawRoad(ground);
    [
        [120, 520, 190],
        [250, 380, 110],
        [1150, 540, 200],
        [1010, 390, 115],
    ].forEach(([x, y, size]) => drawTree(ground, x!, y!, size!));
    const g = canvas.getContext("2d")!;
    let before = performance.now();
    const draw = (now: number): void => {
        g.drawImage(still, 0, 0);
        for (const car of CARS) {
            car.along = (car.along + car.speed * (now - before) + 1) % 1;
        }
        [...CARS].sort((a, b) => a.along - b.along).forEach((car) => drawCar(g, car));
        before = now;
        if (canvas.isConnected) {
            requestAnimationFrame(draw);
        }
    };
    requestAnimationFrame(draw);
    return canvas;
}
