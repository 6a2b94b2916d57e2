/** Finds elements by a part of their name. */
class Search {
    static MOST = 40;

    constructor(model, onPick) {
        this.model = model;
        this.onPick = onPick;
        this.hits = make('ul', { id: 'hits' });
        this.status = make('p', { role: 'status' });
    }

    panel() {
        const input = make('input', { type: 'search', id: 'search', autocomplete: 'off', spellcheck: 'false',
            input: () => this.find(input.value) });
        const takeFirst = (event) => {
            event.preventDefault();
            this.hits.querySelector('button')?.click();
        };
        return make('form', { role: 'search', submit: takeFirst },
            make('label', { for: 'search' }, 'Find an element by its name'), input, this.status, this.hits);
    }

    find(text) {
        const sought = text.trim().toLocaleLowerCase();
        const found = sought ? this.model.elements.filter((each) => each.name.toLocaleLowerCase().includes(sought)) : [];
        this.status.textContent = sought ? `${counted(found.length, 'element')} found` : '';
        if (found.length > Search.MOST) {
            this.status.textContent += `, the first ${Search.MOST} listed`;
        }
        this.hits.replaceChildren(...found.slice(0, Search.MOST).map((element) => {
            const where = `${this.model.floors[element.floor].name}, ${element.objects.length} placed`;
            return make('li', {}, make('button', { type: 'button', click: () => this.onPick(element) },
                titleOf(element), make('span', { class: 'note' }, where)));
        }));
    }
}
