/** The element of the page with this id. */
export function byId<T extends HTMLElement>(id: string): T {
    return document.getElementById(id) as T;
}

/** A new element with properties and children. */
export function make<K extends keyof HTMLElementTagNameMap>(
    tag: K,
    properties: Partial<HTMLElementTagNameMap[K]> = {},
    ...children: (Node | string)[]
): HTMLElementTagNameMap[K] {
    const element = Object.assign(document.createElement(tag), properties);
    element.append(...children);
    return element;
}

/** Tells the user something for a while. */
export function toast(text: string, good = false): void {
    const element = make("div", { className: good ? "toast good" : "toast", textContent: text });
    byId("toasts").append(element);
    setTimeout(() => element.remove(), good ? 2500 : 7000);
}
