// The slide shown: the server's picture of it, and over it frames, handles and what a gesture draws before it is made.

import { isWithin } from "./geometry.js";
import { Kind, onState, screen, selectedShapes, selectionKind, shapeOf, shownSlide, state, textOf } from "./state.js";
import { say } from "./words.js";

const svgNames = "http://www.w3.org/2000/svg";
const ways = ["nw", "n", "ne", "e", "se", "s", "sw", "w"];
const handleSide = 9;

export const slide = document.getElementById("slide");
const picture = slide.appendChild(document.createElement("div"));
const options = slide.appendChild(document.createElement("div"));
const overlay = slide.appendChild(svg("svg", { class: "overlay", "aria-hidden": "true" }));
const marks = overlay.appendChild(svg("g"));
const ghosts = overlay.appendChild(svg("g", { class: "ghosts" }));
picture.className = "picture";
options.className = "options";

export function svg(name, attributes = {}) {
  const element = document.createElementNS(svgNames, name);
  for (const [attribute, value] of Object.entries(attributes)) {
    element.setAttribute(attribute, value);
  }
  return element;
}

/** A picture of the server's as an element, without the marks of what is selected: those are the page's own. */
export function pictureOf(text) {
  const element = new DOMParser().parseFromString(text, "image/svg+xml").documentElement;
  element.removeAttribute("width");
  element.removeAttribute("height");
  [...element.children].filter((each) => each.tagName === "g" && each.firstElementChild?.tagName !== "title").forEach((each) => each.remove());
  return element;
}

/** Says in the picture which shape each drawing is of. */
function label(element, shapes) {
  const drawings = [...element.children].filter((each) => each.tagName === "g" && each.firstElementChild?.tagName === "title");
  shapes.filter((shape) => shape.visible).forEach((shape, place) => {
    if (drawings[place]) {
      drawings[place].dataset.id = shape.id;
      label(drawings[place], shape.items ?? []);
    }
  });
}

/** The drawing of a shape. */
export const drawingOf = (shape) => picture.querySelector(`g[data-id="${shape.id}"]`);

/** Pixels a point. */
export const scale = () => slide.clientWidth / (screen()?.width ?? 720);

export function pointOf(event) {
  const frame = slide.getBoundingClientRect();
  return { x: (event.clientX - frame.left - slide.clientLeft) / scale(), y: (event.clientY - frame.top - slide.clientTop) / scale() };
}

/** The shape under the pointer, the innermost of a group; one that is not filled counts where it could hold text. */
export function shapeAt(event) {
  const reach = 3;
  for (const [dx, dy] of [[0, 0], [reach, 0], [-reach, 0], [0, reach], [0, -reach]]) {
    const hit = document.elementsFromPoint(event.clientX + dx, event.clientY + dy).map((each) => each.closest("#slide .picture g[data-id]")).find(Boolean);
    if (hit) {
      return shapeOf(Number(hit.dataset.id));
    }
  }
  const point = pointOf(event);
  return (shownSlide()?.shapes ?? []).findLast((shape) => shape.visible && shape.text && isWithin(point, shape));
}

/** The shape of the slide that another one is, or lies in. */
export const outermost = (shape) => shownSlide().shapes[shape.path[0] - 1];

const names = {
  shape: ["{0}, de {1} à {2} points du bord gauche, {3} à {4} du haut", "{0}, {1} to {2} points from the left, {3} to {4} from the top"],
  slide: ["Diapositive {0}", "Slide {0}"],
  gone: ["PowerPoint ne tourne pas.", "PowerPoint does not run."],
  dialog: ["Une boîte de dialogue de PowerPoint est ouverte.", "A dialog of PowerPoint's is open."],
  busy: ["PowerPoint ne répond pas.", "PowerPoint does not answer."],
  hidden: ["PowerPoint est caché.", "PowerPoint is hidden."],
  closed: ["La présentation est fermée.", "The presentation is closed."],
  empty: ["La présentation n'a pas de diapositive.", "The presentation has no slide."],
};

export const nameOf = (shape) => [shape.mark, shape.name, (shape.wordArt ?? textOf(shape)).slice(0, 40)].filter(Boolean).join(", ");

function whyNothing(shown) {
  const { running, visible, dialogs, presentation, slide: index } = shown;
  const wrong = !running ? "gone" : visible === undefined ? (dialogs > 0 ? "dialog" : "busy") : !visible ? "hidden" : !presentation ? "closed" : index ? null : "empty";
  return wrong && say(names[wrong]);
}

function drawOptions(shapes) {
  const chosen = new Set(screen().selection?.shapes ?? []);
  options.replaceChildren(...shapes.map((shape) => {
    const option = document.createElement("div");
    option.role = "option";
    option.id = `shape-${shape.id}`;
    option.dataset.mark = shape.mark;
    option.dataset.path = shape.path.join(".");
    option.ariaSelected = String(chosen.has(shape.id));
    option.ariaLabel = say(names.shape, nameOf(shape), shape.left, shape.left + shape.width, shape.top, shape.top + shape.height);
    Object.assign(option.style, { left: `${shape.left * scale()}px`, top: `${shape.top * scale()}px`, width: `${shape.width * scale()}px`, height: `${shape.height * scale()}px` });
    return option;
  }));
  const active = selectedShapes().at(-1);
  slide[active ? "setAttribute" : "removeAttribute"]("aria-activedescendant", active ? `shape-${active.id}` : "");
}

/** The frame of a shape, with handles where it can be drawn to another size. */
export function frameAround(shape, className, hasHandles) {
  const { left, top, width, height, rotation } = shape;
  const group = svg("g", { class: className, transform: `rotate(${rotation ?? 0} ${left + width / 2} ${top + height / 2})` });
  group.append(svg("rect", { x: left, y: top, width, height, class: "frame" }));
  const side = handleSide / scale();
  for (const way of hasHandles ? ways : []) {
    const x = left + width * (way.includes("w") ? 0 : way.includes("e") ? 1 : 0.5);
    const y = top + height * (way.includes("n") ? 0 : way.includes("s") ? 1 : 0.5);
    group.append(svg("rect", { x: x - side / 2, y: y - side / 2, width: side, height: side, class: "handle", "data-way": way, "data-id": shape.id }));
  }
  return group;
}

const around = (shape, margin) => ({ ...shape, left: shape.left - margin, top: shape.top - margin, width: shape.width + 2 * margin, height: shape.height + 2 * margin });

/** The shapes of the slide shown that have decided the verdict: those that its reason names, else those that its meaning does. */
function decisive() {
  const { shapes, meaning } = state().verdict ?? { shapes: [], meaning: "" };
  const marks = shapes.length > 0 ? [] : (meaning.match(/ZOR\d+/g) ?? []);
  return shownSlide().shapes.filter((shape) => marks.includes(shape.mark) || shapes.some((lit) => lit.slide === screen().slide && lit.shape === shape.path[0]));
}

function drawMarks() {
  const isText = selectionKind() === Kind.text;
  const chosen = selectedShapes().map((shape) => frameAround(shape, isText ? "chosen text" : "chosen", !isText));
  marks.replaceChildren(...decisive().map((shape) => frameAround(around(shape, 7 / scale()), "lit", false)), ...chosen);
}

/** Shows what a gesture is about to draw, until the server has answered. */
export function ghost(...elements) {
  ghosts.replaceChildren(...elements);
}

let drawn = "";

function draw() {
  const shown = shownSlide();
  const nothing = whyNothing(screen());
  document.getElementById("closed").textContent = nothing ?? "";
  document.getElementById("closed").hidden = !nothing;
  slide.hidden = Boolean(nothing);
  ghost();
  if (nothing) {
    drawn = "";
    return;
  }
  slide.ariaLabel = say(names.slide, screen().slide);
  slide.style.aspectRatio = `${screen().width} / ${screen().height}`;
  slide.style.setProperty("--ratio", screen().width / screen().height);
  overlay.setAttribute("viewBox", `0 0 ${screen().width} ${screen().height}`);
  const next = pictureOf(shown.picture);
  if (drawn !== next.outerHTML) {
    drawn = next.outerHTML;
    picture.replaceChildren(next);
  }
  label(picture.firstElementChild, shown.shapes);
  drawOptions(shown.shapes);
  drawMarks();
}

onState(draw);
new ResizeObserver(() => screen() && !slide.hidden && (drawOptions(shownSlide().shapes), drawMarks())).observe(slide);
