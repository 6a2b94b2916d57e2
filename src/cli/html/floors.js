/** Shows one floor at a time, chosen by a list of radio buttons. */
class Floors {
    constructor(model, onPick) {
        this.model = model;
        this.onPick = onPick;
        this.current = -1;
        this.buttons = model.floors.map((floor, place) =>
            make('input', { type: 'radio', name: 'floor', change: () => this.show(place) }));
    }

    panel() {
        const rows = [];
        this.model.floors.forEach((floor, place) => {
            const region = this.model.floors[place - 1]?.region;
            if (floor.region !== region) {
                rows.push(make('p', { class: 'region' }, floor.region));
            }
            const note = floor.note ? [make('span', { class: 'note' }, floor.note)] : [];
            rows.push(make('label', {}, this.buttons[place], floor.name, ...note));
        });
        return make('fieldset', { id: 'floors' }, make('legend', {}, 'Floors'), ...rows);
    }

    get floor() {
        return this.model.floors[this.current];
    }

    show(place) {
        if (place === this.current) {
            return;
        }
        this.current = place;
        this.buttons[place].checked = true;
        this.model.floors.forEach((floor, other) => {
            floor.section.hidden = other !== place;
        });
        this.floor.viewport ??= new Viewport(this.floor.plan);
        this.nameObjects();
        this.onPick(this.floor);
    }

    /** Objects of a floor can be reached by the keyboard once the floor has been shown. */
    nameObjects() {
        if (this.floor.isNamed) {
            return;
        }
        this.floor.isNamed = true;
        for (const group of this.floor.plan.querySelectorAll('.o')) {
            const object = this.model.objects[Number(group.dataset.o)];
            const state = group.dataset.d ? `, ${group.dataset.d}` : '';
            group.setAttribute('tabindex', '0');
            group.setAttribute('role', 'button');
            group.setAttribute('aria-label', titleOf(this.model.elements[object.element]) + state);
        }
    }
}
