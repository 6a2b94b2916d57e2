/** The properties of what is selected. */
class Details {
    constructor(model, onStep) {
        this.model = model;
        this.onStep = onStep;
        this.place = document.getElementById('details');
        this.title = make('h2', { 'aria-live': 'polite' });
        this.body = make('div');
        this.place.replaceChildren(this.title, this.body);
        this.clear();
    }

    clear() {
        this.title.textContent = 'Nothing selected';
        this.body.replaceChildren(make('p', {}, 'Click an object of the plan, or reach it with Tab and press Enter.'));
    }

    /** @param object  null for an element that is placed nowhere */
    show(element, object) {
        this.title.textContent = titleOf(element);
        const parts = [make('p', {}, this.whereabouts(element, object))];
        if (element.objects.length > 1) {
            parts.push(make('p', { class: 'buttons' },
                make('button', { type: 'button', click: () => this.onStep(-1) }, 'Previous of it'),
                make('button', { type: 'button', click: () => this.onStep(1) }, 'Next of it')));
        }
        parts.push(...this.changes(element, 'What changed of the element'));
        if (object) {
            parts.push(...this.changes(object, 'What changed of the object'));
            parts.push(Details.table('Object', { id: object.id, ...object.facts }));
        }
        parts.push(Details.table('Element', element.facts));
        this.body.replaceChildren(...parts);
    }

    whereabouts(element, object) {
        const floor = this.model.floors[element.floor].name;
        const states = [element.state, object?.state].filter((state) => state && state !== 'same');
        const state = states.length > 0 ? `, ${states[states.length - 1]}` : '';
        if (!object) {
            return `${floor}, placed nowhere${state}`;
        }
        const place = element.objects.indexOf(this.model.objects.indexOf(object)) + 1;
        return `${floor}, ${place} of ${element.objects.length}${state}`;
    }

    changes(thing, caption) {
        if (!thing.changes?.length) {
            return [];
        }
        const rows = thing.changes.map((change) => make('tr', {}, make('th', { scope: 'row' }, change.place),
            make('td', {}, Details.shown(change.before)), make('td', {}, Details.shown(change.after))));
        const heads = ['', 'before', 'after'].map((text) => make('th', { scope: 'col' }, text));
        return [make('table', { class: 'changes' }, make('caption', {}, caption),
            make('thead', {}, make('tr', {}, ...heads)), make('tbody', {}, ...rows))];
    }

    static table(caption, facts) {
        const rows = Details.rows(facts).map(([name, value]) =>
            make('tr', {}, make('th', { scope: 'row' }, name), make('td', {}, value)));
        return make('table', {}, make('caption', {}, caption), make('tbody', {}, ...rows));
    }

    /** Names and values, those of objects within objects by the names on the way. */
    static rows(facts, path = '') {
        return Object.entries(facts).flatMap(([name, value]) =>
            value !== null && typeof value === 'object' && !Array.isArray(value)
                ? Details.rows(value, ['shape', 'properties'].includes(name) ? path : `${path}${name}.`)
                : [[path + name, Details.shown(value)]]);
    }

    static shown(value) {
        if (value === undefined || value === null) {
            return '–';
        }
        return typeof value === 'object' ? JSON.stringify(value) : String(value);
    }
}
