// Writes docs/reference/web_api.md from the declarations of the module; --check only tells whether it is up to date.
import { mkdirSync, readFileSync, writeFileSync } from "node:fs";
import { dirname, join, resolve } from "node:path";
import { fileURLToPath } from "node:url";
import ts from "typescript";

const root = resolve(dirname(fileURLToPath(import.meta.url)), "../..");
const target = join(root, "docs/reference/web_api.md");
const entry = join(root, "build/web/dist/index.d.ts");

/** In the order in which a reader needs them; what is not named comes after. */
const ORDER = [
    "RuleCanvas",
    "RuleCanvasOptions",
    "RuleCanvasEvents",
    "AddOptions",
    "RuleStyle",
    "Colour",
    "Rule",
    "RuleState",
    "RuleType",
    "RULE_TYPES",
    "RuleTypeFacts",
    "Drawing",
    "DirectionChoice",
    "History",
    "Snapshot",
    "RulesFile",
    "RuleRecord",
    "readRulesFile",
    "writeRulesFile",
    "RuleCanvasError",
    "ErrorReason",
    "RefusedRule",
    "Configuration",
    "configurationOf",
    "pointsOf",
    "GRID",
    "Point",
    "Size",
    "Rgb",
    "hexOf",
    "Library",
];

const program = ts.createProgram([entry], {
    target: ts.ScriptTarget.ES2022,
    moduleResolution: ts.ModuleResolutionKind.Bundler,
    module: ts.ModuleKind.ES2022,
    lib: ["lib.es2022.d.ts", "lib.dom.d.ts"],
    types: [],
});
const checker = program.getTypeChecker();

function commentOf(symbol) {
    return ts
        .displayPartsToString(symbol.getDocumentationComment(checker))
        .replace(/\s*\n\s*/g, " ")
        .trim();
}

function isInternal(declaration) {
    return (
        ts.getJSDocTags(declaration).some((tag) => tag.tagName.text === "internal") ||
        (ts.getCombinedModifierFlags(declaration) & (ts.ModifierFlags.Private | ts.ModifierFlags.Protected)) !== 0
    );
}

function textOf(declaration) {
    return declaration
        .getText()
        .replace(/\/\*\*[\s\S]*?\*\/\s*/g, "")
        .replace(/^(export )?(declare )?/, "")
        .replace(/\s+/g, " ")
        .replace(/;$/, "");
}

/** Members with their comments; accessors of one name are one member. */
function membersOf(symbol, type) {
    const lines = [];
    const seen = new Set();
    const statics =
        symbol.flags & ts.SymbolFlags.Class
            ? checker
                  .getTypeOfSymbol(symbol)
                  .getProperties()
                  .filter((each) => each.name !== "prototype")
            : [];
    for (const member of [...statics, ...type.getProperties()]) {
        const declarations = (member.getDeclarations() ?? []).filter(
            (each) => !isInternal(each) && each.getSourceFile().fileName.includes("/build/web/dist/"),
        );
        if (declarations.length === 0 || seen.has(member.name) || member.name.startsWith("__")) {
            continue;
        }
        seen.add(member.name);
        const [declaration] = declarations;
        const writable = declarations.some(ts.isSetAccessor);
        const text = textOf(declaration)
            .replace(/^get /, writable ? "" : "readonly ")
            .replace(/\(\): /, (found) => (ts.isAccessor(declaration) ? ": " : found));
        const comment = commentOf(member);
        lines.push(`- \`${text}\`${comment ? `: ${comment}` : ""}`);
    }
    return lines;
}

function section(symbol) {
    const resolved = symbol.flags & ts.SymbolFlags.Alias ? checker.getAliasedSymbol(symbol) : symbol;
    const declaration = resolved.getDeclarations()[0];
    const lines = [`## ${symbol.name}`, ""];
    const comment = commentOf(resolved);
    if (comment) {
        lines.push(comment, "");
    }
    if (ts.isClassDeclaration(declaration) || ts.isInterfaceDeclaration(declaration)) {
        const members = membersOf(resolved, checker.getDeclaredTypeOfSymbol(resolved));
        const base = declaration.heritageClauses?.map((clause) => clause.getText()).join(" ") ?? "";
        lines.push(
            `\`${ts.isClassDeclaration(declaration) ? "class" : "interface"} ${symbol.name}${base ? ` ${base}` : ""}\``,
            "",
            ...members,
            "",
        );
    } else if (ts.isTypeAliasDeclaration(declaration) && ts.isUnionTypeNode(declaration.type)) {
        const parts = declaration.type.types.map((part) => {
            const words = part
                .getFullText()
                .match(/\/\*\*([\s\S]*?)\*\//)?.[1]
                ?.replace(/\s*\n?\s*\*?\s+/g, " ")
                .trim();
            return `- \`${part.getText()}\`${words ? `: ${words}` : ""}`;
        });
        lines.push(...parts, "");
    } else {
        const text = ts.isVariableDeclaration(declaration) ? `const ${textOf(declaration)}` : textOf(declaration);
        lines.push("```ts", text, "```", "");
    }
    return lines;
}

const module = checker.getSymbolAtLocation(program.getSourceFile(entry));
const place = (name) => (ORDER.includes(name) ? ORDER.indexOf(name) : ORDER.length);
const symbols = checker
    .getExportsOfModule(module)
    .sort((a, b) => place(a.name) - place(b.name) || a.name.localeCompare(b.name));
const text =
    [
        "# The browser module's interface",
        "",
        "Made from the declarations of the module by `node web/tools/api-reference.mjs`; [../web.md](../web.md) tells how to use it.",
        "",
        ...symbols.flatMap(section),
    ]
        .join("\n")
        .trimEnd() + "\n";

if (process.argv.includes("--check")) {
    const isCurrent = readFileSync(target, "utf8") === text;
    console.log(isCurrent ? `${symbols.length} names` : `${target} is out of date: node web/tools/api-reference.mjs`);
    process.exitCode = isCurrent && symbols.length > 0 ? 0 : 1;
} else {
    mkdirSync(dirname(target), { recursive: true });
    writeFileSync(target, text);
}
