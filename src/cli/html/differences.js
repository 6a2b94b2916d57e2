/** The list of what differs, to be walked through; null on a page of one project. */
class Differences {
    static SIGNS = { added: '+', gone: '−', changed: '~' };

    constructor(model, onPick) {
        this.model = model;
        this.onPick = onPick;
        this.current = -1;
        this.entries = this.collect();
        this.status = make('p', { role: 'status' });
        this.buttons = this.entries.map((entry, place) => make('button',
            { type: 'button', class: `state-${entry.state}`, click: () => this.walkTo(place) },
            make('span', { class: 'sign', 'aria-hidden': 'true' }, Differences.SIGNS[entry.state]),
            entry.title, make('span', { class: 'note' }, entry.note)));
    }

    collect() {
        const entries = this.model.floors.flatMap((floor, place) => (floor.state && floor.state !== 'same'
            ? [{ state: floor.state, title: `floor ${floor.name}`, note: Differences.summary(floor), floor: place }] : []));
        for (const element of this.model.elements) {
            const isOther = element.state && element.state !== 'same';
            if (isOther) {
                entries.push(this.entryOf(element, element, element.objects[0]));
            }
            for (const place of element.objects) {
                const object = this.model.objects[place];
                // What came or went with its element is told with that.
                if (object.state && object.state !== 'same' && object.state !== element.state) {
                    entries.push(this.entryOf(object, element, place));
                }
            }
        }
        return entries;
    }

    entryOf(thing, element, object) {
        const note = `${this.model.floors[element.floor].name}, ${Differences.summary(thing)}`;
        return { state: thing.state, title: titleOf(element), note, floor: element.floor, element, object };
    }

    static summary(thing) {
        const places = (thing.changes ?? []).map((change) => change.place.replace(/^(properties|shape)\./, ''));
        return places.length > 0 ? `${thing.state}: ${places.slice(0, 3).join(', ')}` : thing.state;
    }

    panel() {
        const fade = make('input', { type: 'checkbox',
            change: () => document.body.classList.toggle('faded', fade.checked) });
        fade.checked = true;
        document.body.classList.add('differs', 'faded');
        const last = this.entries.length - 1;
        const previous = () => this.walkTo(this.current > 0 ? this.current - 1 : last);
        const next = () => this.walkTo(this.current < last ? this.current + 1 : 0);
        const walk = this.entries.length === 0 ? [make('p', {}, 'The two projects hold the same.')] : [
            make('p', { class: 'buttons' },
                make('button', { type: 'button', id: 'previous', click: previous }, 'Previous'),
                make('button', { type: 'button', id: 'next', click: next }, 'Next')),
            this.status,
            make('ol', {}, ...this.buttons.map((button) => make('li', {}, button)))];
        return make('fieldset', { id: 'differences' }, make('legend', {}, 'Differences'),
            make('ul', { class: 'key' }, ...Object.entries(Differences.SIGNS).map(([state, sign]) =>
                make('li', { class: `state-${state}` }, make('span', { class: 'sign' }, sign), state,
                    make('span', { class: `hatch ${state}` })))),
            make('label', {}, fade, 'Fade what is the same'), ...walk);
    }

    walkTo(place) {
        this.current = place;
        this.buttons.forEach((button, other) => button.toggleAttribute('aria-current', other === place));
        this.buttons[place].scrollIntoView({ block: 'nearest' });
        this.status.textContent = `${place + 1} of ${this.entries.length}`;
        this.onPick(this.entries[place]);
    }
}
