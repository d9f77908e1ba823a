// The tool that the pointer is: an arrow that selects, or what draws the next shape.

import { number, shapesText } from "./statements.js";

let current = null;
const watchers = [];

export const tool = () => current;

/** Picks a tool; null for the arrow. */
export function pick(next) {
  current = next;
  document.getElementById("slide").classList.toggle("drawing", Boolean(next));
  for (const watcher of watchers) {
    watcher(next);
  }
}

export const onTool = (watcher) => watchers.push(watcher);

const usual = 72;

/** Where a stroke of the pointer has only been a click, a shape has its usual size. */
function framed([start, end]) {
  const isClick = start.x === end.x && start.y === end.y;
  const [width, height] = isClick ? [usual, usual] : [Math.abs(end.x - start.x), Math.abs(end.y - start.y)];
  return [Math.min(start.x, end.x), Math.min(start.y, end.y), width, height].map(number).join(", ");
}

/** An AutoShape by PowerPoint's constant. */
export const autoShape = (constant) => ({ name: constant, statement: (stroke) => `${shapesText()}.AddShape(${constant}, ${framed(stroke)}).Select` });

export const line = {
  name: "line",
  isLine: true,
  statement: ([start, end]) => `${shapesText()}.AddLine(${[start.x, start.y, end.x, end.y].map(number).join(", ")}).Select`,
};

export const textBox = {
  name: "textBox",
  writes: true,
  statement: ([start, end]) => {
    const width = Math.max(Math.abs(end.x - start.x), 2 * usual);
    const height = Math.max(Math.abs(end.y - start.y), 28.875);
    const place = [Math.min(start.x, end.x), Math.min(start.y, end.y), width, height].map(number).join(", ");
    return `${shapesText()}.AddTextbox(msoTextOrientationHorizontal, ${place}).TextFrame.TextRange.Select`;
  },
};

export const freeform = {
  name: "freeform",
  isFreeform: true,
  statement: (points) => `${shapesText()}.AddPolyline(Array(${points.map(({ x, y }) => `Array(${number(x)}, ${number(y)})`).join(", ")})).Select`,
};
