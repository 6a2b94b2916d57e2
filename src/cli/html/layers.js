/** Shows and hides the objects of a type, on all floors. */
class Layers {
    constructor(model) {
        this.model = model;
        this.boxes = model.types.map(({ type, title }) => {
            const box = make('input', { type: 'checkbox', change: () => this.apply(type, box.checked) });
            box.checked = true;
            return { type, title, box, number: make('span', { class: 'number' }) };
        });
    }

    panel() {
        const rows = this.boxes.map(({ type, title, box, number }) =>
            make('label', { class: `type-${type}` }, box, make('span', { class: 'swatch' }), title, number));
        const all = (isOn) => () => this.boxes.forEach(({ type, box }) => {
            box.checked = isOn;
            this.apply(type, isOn);
        });
        const buttons = make('p', { class: 'buttons' },
            make('button', { type: 'button', click: all(true) }, 'All'),
            make('button', { type: 'button', click: all(false) }, 'None'));
        return make('fieldset', { id: 'layers' }, make('legend', {}, 'Layers'), buttons, ...rows);
    }

    /** Tells how many objects of each type a floor has. */
    count(floor) {
        for (const { type, box, number } of this.boxes) {
            const objects = floor.plan.querySelectorAll(`.type-${type} > .o`).length;
            number.textContent = objects > 0 ? String(objects) : '–';
            box.closest('label').classList.toggle('absent', objects === 0);
        }
    }

    apply(type, isOn) {
        for (const group of document.querySelectorAll(`.floor .type-${type}, .names [data-t="${type}"]`)) {
            group.classList.toggle('off', !isOn);
        }
    }

    /** Shows what is to be looked at. */
    turnOn(type) {
        const layer = this.boxes.find((each) => each.type === type);
        if (layer && !layer.box.checked) {
            layer.box.checked = true;
            this.apply(type, true);
        }
    }
}
