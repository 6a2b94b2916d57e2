/** What the page is told of the building:
 *  floors    [{name, region}]
 *  elements  [{name, type, title, floor, facts, state?, changes?, objects: [place in objects]}]
 *  objects   [{id, element, facts, state?, changes?}], floor and group of which are found here
 *  differences  absent on a page of one project */
function readModel() {
    const model = JSON.parse(document.getElementById('model').textContent);
    model.floors.forEach((floor, place) => {
        floor.section = document.getElementById(`floor-${place}`);
        floor.plan = floor.section.querySelector('svg');
    });
    for (const group of document.querySelectorAll('.o')) {
        const object = model.objects[Number(group.dataset.o)];
        (object.groups ??= []).push(group);
    }
    return model;
}

/** What an element or object is called. */
function titleOf(element) {
    return element.name ? `${element.title} ${element.name}` : element.title;
}
