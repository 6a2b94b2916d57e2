/** Ties the parts of the page together. */
class Page {
    constructor() {
        this.model = readModel();
        this.selected = null;
        this.details = new Details(this.model, (by) => this.stepInElement(by));
        this.layers = new Layers(this.model);
        this.floors = new Floors(this.model, (floor) => this.layers.count(floor));
        this.search = new Search(this.model, (element) => this.pick(element, element.objects[0]));
        this.differences = this.model.differences ? new Differences(this.model, (entry) => this.pickEntry(entry)) : null;
        const panels = [this.search, this.floors, this.differences, this.layers].filter((part) => part);
        document.getElementById('choices').append(...panels.map((part) => part.panel()));
        document.getElementById('plans').prepend(this.tools());
        this.listen();
        const first = this.differences?.entries[0]?.floor ?? this.model.first;
        if (this.model.floors.length > 0) {
            this.floors.show(first);
        }
        document.body.classList.add('ready');
    }

    tools() {
        const act = (action) => () => this.floors.floor && action(this.floors.floor.viewport);
        return make('div', { class: 'tools', role: 'group', 'aria-label': 'View' },
            make('button', { type: 'button', title: 'Larger', 'aria-label': 'Larger', click: act((view) => view.zoom(1.4)) }, '+'),
            make('button', { type: 'button', title: 'Smaller', 'aria-label': 'Smaller', click: act((view) => view.zoom(1 / 1.4)) }, '−'),
            make('button', { type: 'button', title: 'The whole floor', click: act((view) => view.fit()) }, 'Whole'));
    }

    listen() {
        const plans = document.getElementById('plans');
        plans.addEventListener('click', (event) => this.onClick(event));
        plans.addEventListener('keydown', (event) => this.onKey(event));
        // Paper shows whole floors, however far one has gone into them.
        window.addEventListener('beforeprint', () => this.forEachView((view) => {
            view.kept = view.box;
            view.fit();
        }));
        window.addEventListener('afterprint', () => this.forEachView((view) => view.show(view.kept)));
    }

    forEachView(visit) {
        this.model.floors.forEach((floor) => floor.viewport && visit(floor.viewport));
    }

    onClick(event) {
        if (!event.target.closest('.floor svg') || this.floors.floor.viewport.hasMoved) {
            return;
        }
        const group = Page.groupNear(event.clientX, event.clientY);
        if (group) {
            this.pickGroup(group);
        } else {
            this.clear();
        }
    }

    onKey(event) {
        const group = event.target.closest('.o');
        if (group && (event.key === 'Enter' || event.key === ' ')) {
            event.preventDefault();
            this.pickGroup(group);
        } else if (event.key === 'Escape') {
            this.clear();
        }
    }

    /** The object at a point of the screen, or so near to it that a thin line can be hit. */
    static groupNear(x, y) {
        for (const reach of [0, 3, 6]) {
            for (const [dx, dy] of [[0, 0], [reach, 0], [-reach, 0], [0, reach], [0, -reach]]) {
                const group = document.elementFromPoint(x + dx, y + dy)?.closest('.floor .o');
                if (group && (reach === 0 || dx !== 0 || dy !== 0)) {
                    return group;
                }
            }
        }
        return null;
    }

    pickGroup(group) {
        const place = Number(group.dataset.o);
        this.select(this.model.elements[this.model.objects[place].element], place);
    }

    /** Selects an object and brings it into view. */
    pick(element, place) {
        this.floors.show(element.floor);
        this.layers.turnOn(element.type);
        this.select(element, place);
        const box = Page.boxOf(this.groupsOf(place));
        if (box) {
            this.floors.floor.viewport.showAround(box);
        }
    }

    pickEntry(entry) {
        if (entry.element) {
            this.pick(entry.element, entry.object);
        } else {
            this.clear();
            this.floors.show(entry.floor);
            this.floors.floor.viewport.fit();
        }
    }

    stepInElement(by) {
        const { element, place } = this.selected;
        const at = element.objects.indexOf(place);
        this.pick(element, element.objects[(at + by + element.objects.length) % element.objects.length]);
    }

    /** @param place  in the objects; undefined for an element that is placed nowhere */
    select(element, place) {
        this.clear();
        this.selected = { element, place };
        for (const other of element.objects) {
            this.groupsOf(other).forEach((group) => group.classList.add('alike'));
        }
        this.groupsOf(place).forEach((group) => group.classList.add('selected'));
        this.details.show(element, this.model.objects[place] ?? null);
    }

    clear() {
        this.selected = null;
        document.querySelectorAll('.alike').forEach((group) => group.classList.remove('alike', 'selected'));
        this.details.clear();
    }

    groupsOf(place) {
        return this.model.objects[place]?.groups ?? [];
    }

    static boxOf(groups) {
        const boxes = groups.map((group) => group.getBBox());
        if (boxes.length === 0) {
            return null;
        }
        const x = Math.min(...boxes.map((box) => box.x));
        const y = Math.min(...boxes.map((box) => box.y));
        return {
            x,
            y,
            width: Math.max(...boxes.map((box) => box.x + box.width)) - x,
            height: Math.max(...boxes.map((box) => box.y + box.height)) - y,
        };
    }
}

new Page();
