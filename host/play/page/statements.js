// The statements of the scenario language in which gestures are told.

import { screen } from "./state.js";

/** A number as a statement has it: eighths of a point are exact in three digits. */
export const number = (value) => String(Math.round(value * 1000) / 1000);

const breaks = { "\r": "vbCr", "\v": "vbVerticalTab", "\t": "vbTab", "\n": "vbLf" };

/** A text as a statement has it: in quotes, with what breaks lines beside them. */
export function literal(text) {
  const pieces = text.split(/([\r\n\v\t])/).filter((piece) => piece !== "");
  return pieces.map((piece) => breaks[piece] ?? `"${piece.replaceAll('"', '""')}"`).join(" & ") || '""';
}

/** A colour that the browser writes as #rrggbb. */
export const rgb = (hex) => `RGB(${[1, 3, 5].map((place) => parseInt(hex.slice(place, place + 2), 16)).join(", ")})`;

/** The same from a number that PowerPoint gives. */
export const hexOf = (color) => `#${[0, 8, 16].map((shift) => ((color >> shift) & 255).toString(16).padStart(2, "0")).join("")}`;

export const slideAt = (index) => `ActivePresentation.Slides(${index})`;
export const shownSlideText = () => slideAt(screen().slide);
export const shapesText = () => `${shownSlideText()}.Shapes`;

/** A shape by the way to it: its place on the slide, then in groups. */
export const shapeText = (shape, slide = screen().slide) =>
  `${slideAt(slide)}.Shapes(${shape.path[0]})${shape.path.slice(1).map((place) => `.GroupItems(${place})`).join("")}`;

export const selection = "ActiveWindow.Selection.ShapeRange";

/** The selection where it may lie within a group. */
export const selectionOf = (shapes) => (shapes.some((shape) => shape.path.length > 1) ? "ActiveWindow.Selection.ChildShapeRange" : selection);

/** Selects shapes of the slide shown and nothing else. */
export function selecting(shapes) {
  if (shapes.length === 0) {
    return "ActiveWindow.Selection.Unselect";
  }
  return shapes.length === 1 ? `${shapeText(shapes[0])}.Select` : `${shapesText()}.Range(Array(${shapes.map((shape) => shape.path[0]).join(", ")})).Select`;
}

/** Gives a shape, or several alike, another place or size: a statement for each side that differs. */
export function reframing(shapes, before, after) {
  const several = shapes.length > 1;
  const target = selectionOf(shapes);
  return [["left", "Left"], ["top", "Top"], ["width", "Width"], ["height", "Height"]]
    .filter(([side]) => before[side] !== after[side])
    .map(([side, name]) => several && (side === "left" || side === "top")
      ? `${target}.Increment${name} ${number(after[side] - before[side])}`
      : `${target}.${name} = ${number(after[side])}`);
}

/** Types, deletes or overwrites characters of a text: what stood there is `length` long. */
export function typing(shape, whole, start, length, text) {
  const range = `${shapeText(shape)}.TextFrame.TextRange`;
  if (whole === "" || length === whole.length) {
    return `${range}.Text = ${literal(text)}`;
  }
  if (text === "") {
    return `${range}.Characters(${start + 1}, ${length}).Delete`;
  }
  if (length > 0) {
    return `${range}.Characters(${start + 1}, ${length}).Text = ${literal(text)}`;
  }
  return start === 0 ? `${range}.InsertBefore ${literal(text)}` : `${range}.Characters(${start}, 1).InsertAfter ${literal(text)}`;
}
