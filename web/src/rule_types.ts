/** The types of rules, by the names that the library registers them under and that rules files carry. */
export type RuleType =
    | "Rect"
    | "OvalShape"
    | "Polygon"
    | "VirablePolygon"
    | "PixelCountShape"
    | "LineShape"
    | "VerticalLineShape"
    | "HorizontalLineShape"
    | "ArrowLineShape"
    | "DashLineShape"
    | "BrokenLine"
    | "XLineShape"
    | "CrossShape"
    | "BigCrossShape"
    | "SpotShape";

/** What a rule is doing. */
export type RuleState =
    /** The user deleted it. */
    | "deleted"
    /** It waits for the first press. */
    | "waiting"
    /** It is being drawn. */
    | "drawing"
    /** It can be selected and edited. */
    | "complete"
    /** It is being moved. */
    | "moving"
    /** One of its points is being dragged. */
    | "reshaping";

/** The states by the numbers of the library's notifications. */
export const RULE_STATES: readonly RuleState[] = ["deleted", "waiting", "drawing", "complete", "moving", "reshaping"];

/** How the user draws a type. */
export type Drawing =
    /** Press, drag, release. */
    | "drag"
    /** The same, or two clicks. */
    | "line"
    /** Clicks, ended by the right button. */
    | "path"
    /** A fixed number of clicks. */
    | "marks";

/** A direction that a type can show. */
export interface DirectionChoice {
    readonly value: number;
    readonly title: string;
}

/** What a page has to know about a type. */
export interface RuleTypeFacts {
    readonly type: RuleType;
    /** For the user. */
    readonly title: string;
    readonly drawing: Drawing;
    /** Points that its geometry has: fewest and most. */
    readonly points: readonly [number, number];
    /** Mode words that it understands; "count" stands for the number of its marks. */
    readonly modes: readonly string[];
    /** Whether it reads a style. The others are coloured by `colours`. */
    readonly styled: boolean;
    /** Directions that it can show; empty when it shows none. */
    readonly directions: readonly DirectionChoice[];
}

const ALONG: readonly DirectionChoice[] = [
    { value: -1, title: "None" },
    { value: 0, title: "One way" },
    { value: 1, title: "Other way" },
    { value: 2, title: "Both ways" },
];
const SIDES: readonly DirectionChoice[] = [
    { value: -1, title: "None" },
    { value: 0, title: "A to B" },
    { value: 1, title: "B to A" },
    { value: 2, title: "Both ways" },
];
const BORDER: readonly DirectionChoice[] = [
    { value: -1, title: "None" },
    { value: 0, title: "Inwards" },
    { value: 1, title: "Outwards" },
    { value: 2, title: "Both ways" },
];
const HEADS: readonly DirectionChoice[] = [
    { value: -1, title: "No head" },
    { value: 3, title: "Upper end" },
    { value: 4, title: "Lower end" },
    { value: 5, title: "Second point" },
];
const LINE_MODES = ["Horizon", "MovedHLine"];
const PATH_MODES = ["Convex", "EnableRBtnDelete"];

/** Every type, in the order in which a tool bar may offer them. */
export const RULE_TYPES: readonly RuleTypeFacts[] = [
    {
        type: "Rect",
        title: "Rectangle",
        drawing: "drag",
        points: [2, 2],
        modes: ["TextOnly", "EnableRBtnDelete"],
        styled: true,
        directions: [],
    },
    {
        type: "Polygon",
        title: "Polygon",
        drawing: "path",
        points: [3, 20],
        modes: PATH_MODES,
        styled: true,
        directions: BORDER,
    },
    {
        type: "VirablePolygon",
        title: "Variable polygon",
        drawing: "path",
        points: [3, 20],
        modes: PATH_MODES,
        styled: true,
        directions: BORDER,
    },
    { type: "OvalShape", title: "Oval", drawing: "drag", points: [2, 2], modes: [], styled: false, directions: [] },
    {
        type: "LineShape",
        title: "Line",
        drawing: "line",
        points: [2, 2],
        modes: LINE_MODES,
        styled: true,
        directions: ALONG,
    },
    {
        type: "VerticalLineShape",
        title: "Vertical line",
        drawing: "line",
        points: [2, 2],
        modes: LINE_MODES,
        styled: true,
        directions: ALONG,
    },
    {
        type: "HorizontalLineShape",
        title: "Horizontal line",
        drawing: "line",
        points: [2, 2],
        modes: LINE_MODES,
        styled: true,
        directions: ALONG,
    },
    {
        type: "DashLineShape",
        title: "Dashed line",
        drawing: "line",
        points: [2, 2],
        modes: LINE_MODES,
        styled: true,
        directions: [],
    },
    {
        type: "ArrowLineShape",
        title: "Arrow",
        drawing: "line",
        points: [2, 20],
        modes: [],
        styled: true,
        directions: HEADS,
    },
    {
        type: "XLineShape",
        title: "Tripwire A-B",
        drawing: "path",
        points: [2, 20],
        modes: [],
        styled: true,
        directions: SIDES,
    },
    {
        type: "BrokenLine",
        title: "Broken line",
        drawing: "path",
        points: [3, 20],
        modes: PATH_MODES,
        styled: true,
        directions: [],
    },
    {
        type: "PixelCountShape",
        title: "Pixel counter",
        drawing: "drag",
        points: [2, 2],
        modes: [],
        styled: true,
        directions: [],
    },
    {
        type: "CrossShape",
        title: "Crosses",
        drawing: "marks",
        points: [1, 100],
        modes: ["count"],
        styled: false,
        directions: [],
    },
    {
        type: "BigCrossShape",
        title: "Cross-hairs",
        drawing: "marks",
        points: [2, 2],
        modes: [],
        styled: false,
        directions: [],
    },
    {
        type: "SpotShape",
        title: "Spot",
        drawing: "marks",
        points: [1, 1],
        modes: ["solid"],
        styled: false,
        directions: [],
    },
];

const FACTS = new Map<string, RuleTypeFacts>(RULE_TYPES.map((facts) => [facts.type, facts]));

/** What is known about a type; undefined when the library has no such type. */
export function factsOf(type: string): RuleTypeFacts | undefined {
    return FACTS.get(type);
}
