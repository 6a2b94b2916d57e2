/** Moves and zooms one plan: mouse, wheel, touch and keyboard. Boxes are in the units of the plan. */
class Viewport {
    static MOST = 200; // times larger than the whole plan

    constructor(plan) {
        this.plan = plan;
        const [x, y, width, height] = plan.getAttribute('viewBox').split(' ').map(Number);
        this.whole = { x, y, width, height };
        this.box = { ...this.whole };
        this.pointers = new Map();
        this.hasMoved = false;
        plan.addEventListener('wheel', (event) => this.onWheel(event), { passive: false });
        plan.addEventListener('pointerdown', (event) => this.onPointerDown(event));
        plan.addEventListener('pointermove', (event) => this.onPointerMove(event));
        for (const end of ['pointerup', 'pointercancel']) {
            plan.addEventListener(end, (event) => this.pointers.delete(event.pointerId));
        }
        plan.addEventListener('keydown', (event) => this.onKey(event));
    }

    show(box) {
        this.box = box;
        this.plan.setAttribute('viewBox', `${box.x} ${box.y} ${box.width} ${box.height}`);
        // Hatching is as dense on the screen however large the plan is shown.
        for (const pattern of document.querySelectorAll('pattern')) {
            const scale = box.width / this.whole.width;
            pattern.setAttribute('patternTransform', `rotate(${pattern.dataset.angle}) scale(${scale})`);
        }
    }

    fit() {
        this.show({ ...this.whole });
    }

    /** The largest view of a box that leaves as much room around it. */
    showAround(box) {
        const least = Math.max(this.whole.width, this.whole.height) / 4;
        const width = Math.max(3 * box.width, least);
        const height = Math.max(3 * box.height, least);
        const middle = { x: box.x + box.width / 2, y: box.y + box.height / 2 };
        this.show({ x: middle.x - width / 2, y: middle.y - height / 2, width, height });
    }

    /** @param point  that stays where it is; the middle without one */
    zoom(factor, point = null) {
        const size = this.box.width / factor;
        if (size < this.whole.width / Viewport.MOST || size > this.whole.width * 4) {
            return;
        }
        const { x, y } = point ?? { x: this.box.x + this.box.width / 2, y: this.box.y + this.box.height / 2 };
        this.show({
            x: x - (x - this.box.x) / factor,
            y: y - (y - this.box.y) / factor,
            width: size,
            height: this.box.height / factor,
        });
    }

    move(dx, dy) {
        this.show({ ...this.box, x: this.box.x + dx, y: this.box.y + dy });
    }

    pointAt(clientX, clientY) {
        return new DOMPoint(clientX, clientY).matrixTransform(this.plan.getScreenCTM().inverse());
    }

    onWheel(event) {
        event.preventDefault();
        const lines = event.deltaMode === WheelEvent.DOM_DELTA_LINE ? 20 : 1;
        this.zoom(Math.exp(-event.deltaY * lines * 0.002), this.pointAt(event.clientX, event.clientY));
    }

    onPointerDown(event) {
        if (this.pointers.size === 0) {
            this.hasMoved = false;
        }
        this.pointers.set(event.pointerId, { x: event.clientX, y: event.clientY });
    }

    onPointerMove(event) {
        const last = this.pointers.get(event.pointerId);
        const isNear = last && Math.hypot(event.clientX - last.x, event.clientY - last.y) < 4;
        if (!last || (isNear && !this.hasMoved)) {
            return; // a click may tremble
        }
        this.hasMoved = true;
        this.plan.setPointerCapture(event.pointerId);
        const before = this.spread();
        this.pointers.set(event.pointerId, { x: event.clientX, y: event.clientY });
        const after = this.spread();
        const from = this.pointAt(before.x, before.y);
        const to = this.pointAt(after.x, after.y);
        this.move(from.x - to.x, from.y - to.y);
        if (before.reach > 0 && after.reach > 0) {
            this.zoom(after.reach / before.reach, this.pointAt(after.x, after.y));
        }
    }

    /** The middle of all fingers, and how far they are from it. */
    spread() {
        const points = [...this.pointers.values()];
        const mean = (values) => values.reduce((sum, value) => sum + value, 0) / values.length;
        const x = mean(points.map((point) => point.x));
        const y = mean(points.map((point) => point.y));
        return { x, y, reach: mean(points.map((point) => Math.hypot(point.x - x, point.y - y))) };
    }

    onKey(event) {
        const step = this.box.width / 8;
        const actions = {
            ArrowLeft: () => this.move(-step, 0),
            ArrowRight: () => this.move(step, 0),
            ArrowUp: () => this.move(0, -step),
            ArrowDown: () => this.move(0, step),
            '+': () => this.zoom(1.4),
            '=': () => this.zoom(1.4),
            '-': () => this.zoom(1 / 1.4),
            '0': () => this.fit(),
        };
        if (actions[event.key] && !event.ctrlKey && !event.metaKey && !event.altKey) {
            event.preventDefault();
            actions[event.key]();
        }
    }
}
