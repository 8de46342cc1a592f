import type { Rule } from "./rule.js";
import type { RuleState } from "./rule_types.js";

/** The events of a canvas, each with the `detail` that it carries. They are sent when the call or the input event that
 * caused them is over, in the order in which it happened. */
export interface RuleCanvasEvents {
    /** The user has drawn a rule. */
    create: { rule: Rule };
    /** The user has moved or reshaped a rule. */
    change: { rule: Rule };
    /** The user has deleted a rule or given up drawing it. */
    delete: { rule: Rule };
    /** Other rules are selected now. */
    select: { rules: readonly Rule[] };
    /** A rule went from one state to another. */
    state: { rule: Rule; from: RuleState; to: RuleState };
    /** Rules were added, removed or replaced by the program, or a member of one was set. */
    rules: { rules: readonly Rule[] };
    /** Everything that the library says, word for word: one line of JSON. */
    notify: { text: string; rule: Rule | null };
    /** The library took or gave back the mouse. */
    capture: { taken: boolean };
}

/** An event target that knows the details of its events. */
export class TypedEvents extends EventTarget {
    private readonly queue: Event[] = [];
    private readonly heard = new Set<string>();
    private depth = 0;

    /** Listens to one of the events. */
    override addEventListener<K extends keyof RuleCanvasEvents>(
        type: K,
        listener: (event: CustomEvent<RuleCanvasEvents[K]>) => void,
        options?: boolean | AddEventListenerOptions,
    ): void;
    override addEventListener(
        type: string,
        listener: EventListenerOrEventListenerObject,
        options?: boolean | AddEventListenerOptions,
    ): void;
    override addEventListener(type: string, listener: unknown, options?: boolean | AddEventListenerOptions): void {
        this.heard.add(type);
        super.addEventListener(type, listener as EventListener, options);
    }

    /** Listens; the answer ends it. */
    on<K extends keyof RuleCanvasEvents>(type: K, listener: (detail: RuleCanvasEvents[K]) => void): () => void {
        const heard = (event: CustomEvent<RuleCanvasEvents[K]>): void => listener(event.detail);
        this.addEventListener(type, heard);
        return () => this.removeEventListener(type, heard as unknown as EventListener);
    }

    /** @internal Whether anybody has ever listened to an event; nothing is made of one that nobody hears. */
    isHeard(type: keyof RuleCanvasEvents): boolean {
        return this.heard.has(type);
    }

    /** @internal Keeps an event until the outermost `whole` ends. */
    emit<K extends keyof RuleCanvasEvents>(type: K, detail: RuleCanvasEvents[K]): void {
        if (!this.isHeard(type)) {
            return;
        }
        this.queue.push(new CustomEvent(type, { detail }));
        if (this.depth === 0) {
            this.flush();
        }
    }

    /** @internal Runs a call whose events are sent when all of it is done. */
    whole<T>(call: () => T): T {
        ++this.depth;
        try {
            return call();
        } finally {
            if (--this.depth === 0) {
                this.flush();
            }
        }
    }

    private flush(): void {
        for (let event = this.queue.shift(); event !== undefined; event = this.queue.shift()) {
            this.dispatchEvent(event);
        }
    }
}
