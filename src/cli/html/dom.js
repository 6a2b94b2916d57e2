/** A new element. Attributes that are null are left out; children are nodes or texts, and texts are never markup. */
function make(tag, attributes = {}, ...children) {
    const element = document.createElement(tag);
    for (const [name, value] of Object.entries(attributes)) {
        if (typeof value === 'function') {
            element.addEventListener(name, value);
        } else if (value !== null) {
            element.setAttribute(name, value);
        }
    }
    element.append(...children);
    return element;
}

/** "1 door", "2 doors". */
function counted(number, singular) {
    return `${number} ${singular}${number === 1 ? '' : 's'}`;
}
