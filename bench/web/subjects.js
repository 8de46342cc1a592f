// The same scene and the same abilities in each library: polygons that a press selects, which shows a handle on each of
// the 20 points, and that are dragged by their inside.
import { configurationOf, RuleCanvas } from "rulecanvas";
import { HEIGHT, polygons, WIDTH } from "./scene.js";

function emptyPlace() {
    const place = document.getElementById("place");
    place.replaceChildren();
    return place;
}

/** The picture that lies under the polygons. */
async function picture(place) {
    const blank = Object.assign(document.createElement("canvas"), { width: WIDTH, height: HEIGHT });
    const image = Object.assign(new Image(), { src: blank.toDataURL() });
    await image.decode();
    place.append(image);
    return image;
}

const rulecanvas = {
    async prepare() {
        const canvas = await RuleCanvas.over(await picture(emptyPlace()));
        const size = { width: WIDTH, height: HEIGHT };
        const rules = polygons.map((points, i) => ({
            type: "Polygon",
            name: `p${i}`,
            configuration: configurationOf("Polygon", `p${i}`, points, size),
        }));
        const text = JSON.stringify({ format: "rulecanvas-rules", version: 1, rules });
        return {
            load: () => canvas.load(text),
            count: () => canvas.rules.length,
            placeOf: (index) => canvas.rules[index].points[0],
            end: () => canvas.destroy(),
        };
    },
};

/** `dragLayer`: the library's own advice for many shapes, to move the dragged one to a layer of its own. */
function konva(dragLayer) {
    return {
        async prepare() {
            const { Konva } = window;
            const container = Object.assign(document.createElement("div"), { className: "above" });
            (await picture(emptyPlace())).after(container);
            const stage = new Konva.Stage({ container, width: WIDTH, height: HEIGHT });
            const layer = new Konva.Layer();
            const above = new Konva.Layer();
            stage.add(layer, above);
            const lines = [];
            const anchors = new Konva.Group();
            const select = (line) => {
                anchors.destroyChildren();
                const points = line.points();
                for (let i = 0; i < points.length; i += 2) {
                    anchors.add(
                        new Konva.Rect({
                            x: points[i] - 3,
                            y: points[i + 1] - 3,
                            width: 6,
                            height: 6,
                            stroke: "yellow",
                            strokeWidth: 2,
                            fill: "white",
                            listening: false,
                        }),
                    );
                }
                anchors.position(line.position());
                line.stroke("yellow");
                if (dragLayer) {
                    line.moveTo(above);
                }
                line.getLayer().add(anchors);
            };
            const text = JSON.stringify(polygons);
            return {
                load: () => {
                    for (const points of JSON.parse(text)) {
                        const line = new Konva.Line({
                            points: points.flat(),
                            closed: true,
                            stroke: "red",
                            strokeWidth: 2,
                            draggable: true,
                            fill: "transparent",
                        });
                        line.on("mousedown touchstart", () => select(line));
                        line.on("dragmove", () => anchors.position(line.position()));
                        layer.add(line);
                        lines.push(line);
                    }
                },
                count: () => lines.length,
                placeOf: (index) => [
                    lines[index].points()[0] + lines[index].x(),
                    lines[index].points()[1] + lines[index].y(),
                ],
                end: () => stage.destroy(),
            };
        },
    };
}

const annotorious = {
    async prepare() {
        const image = await picture(emptyPlace());
        const annotator = window.Annotorious.createImageAnnotator(image);
        const annotations = polygons.map((points, i) => {
            const [xs, ys] = [points.map((point) => point[0]), points.map((point) => point[1])];
            const bounds = {
                minX: Math.min(...xs),
                minY: Math.min(...ys),
                maxX: Math.max(...xs),
                maxY: Math.max(...ys),
            };
            return {
                id: `p${i}`,
                bodies: [],
                target: { annotation: `p${i}`, selector: { type: "POLYGON", geometry: { bounds, points } } },
            };
        });
        const text = JSON.stringify(annotations);
        return {
            load: () => annotator.setAnnotations(JSON.parse(text)),
            count: () => annotator.getAnnotations().length,
            placeOf: (index) => annotator.getAnnotationById(`p${index}`).target.selector.geometry.points[0],
            end: () => annotator.destroy(),
        };
    },
};

export const subjects = {
    RuleCanvas: rulecanvas,
    Konva: konva(false),
    "Konva, dragged on a layer of its own": konva(true),
    Annotorious: annotorious,
};
