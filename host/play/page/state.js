// What the server says of the exercise; the page keeps nothing of its own about it.

const watchers = [];
let current = null;

export const state = () => current;
export const screen = () => current?.screen;

export function onState(watcher) {
  watchers.push(watcher);
}

export function setState(next) {
  current = next;
  for (const watcher of watchers) {
    watcher(next);
  }
}

/** The slide that is shown, or undefined. */
export const shownSlide = () => screen()?.slides.find((slide) => slide.index === screen().slide);

/** A shape of the slide shown with those in groups, by its id. */
export function shapeOf(id, shapes = shownSlide()?.shapes ?? []) {
  for (const shape of shapes) {
    const found = shape.id === id ? shape : shapeOf(id, shape.items ?? []);
    if (found) {
      return found;
    }
  }
  return undefined;
}

/** The shapes selected, in the order of selection. */
export const selectedShapes = () => (screen()?.selection?.shapes ?? []).map((id) => shapeOf(id)).filter(Boolean);

export const Kind = { nothing: 0, slides: 1, shapes: 2, text: 3 };
export const selectionKind = () => screen()?.selection?.kind ?? Kind.nothing;

export const textOf = (shape) => (shape.text?.runs ?? []).map((run) => run.text).join("");
