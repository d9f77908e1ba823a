// The drawings on buttons, 16 by 16, in the colour of the text around them.

import { svg } from "./slide.js";

const paths = {
  save: "M2 2h10l2 2v10H2zM5 2v4h6V2M4 14V9h8v5",
  cut: "M4 1l6 10M12 1L6 11M3.5 13a2 2 0 1 0 4 0a2 2 0 1 0-4 0M8.500 13a2 2 0 1 0 4 0a2 2 0 1 0-4 0",
  copy: "M2 2h7v9H2zM5 11v3h8V5H9",
  paste: "M3 3h9v11H3zM5.500 1.500h4v3h-4zM5 8h5M5 11h5",
  undo: "M3 6h7a4 4 0 0 1 0 8H6M6 3L3 6l3 3",
  newSlide: "M1 5h11v9H1zM12 1v6M9 4h6",
  bold: "M4 2h5a3 3 0 0 1 0 6H4zM4 8h6a3 3 0 0 1 0 6H4zM5 2v12",
  italic: "M7 2h5M4 14h5M9.500 2l-3 12",
  underline: "M4 2v6a4 4 0 0 0 8 0V2M3 14h10",
  arrow: "M4 1v12l3-3 2 5 2-1-2-5h4z",
  line: "M2 14L14 2",
  rectangle: "M2 4h12v8H2z",
  oval: "M1 8a7 4.500 0 1 0 14 0a7 4.500 0 1 0-14 0",
  freeform: "M2 13L5 4l4 4 5-6-1 11z",
  textBox: "M1 2h14v12H1zM5 5h6M8 5v6",
  wordArt: "M2 13L6 2h1l4 11M3.500 9h6M12 14l3-8",
  fill: "M7 2l6 6-5 5-6-6zM14 10v4M2 15h12",
  outline: "M3 11l8-8 2 2-8 8H3zM2 15h12",
  font: "M3 12L7 2h2l4 10M5 8h6M2 15h12",
  shadow: "M2 2h9v9H2zM5 14h9V5",
  depth: "M2 5h8v9H2zM2 5l4-3h8l-4 3M14 2v8l-4 4",
};

export function icon(name) {
  const element = svg("svg", { viewBox: "0 0 16 16", class: "icon", "aria-hidden": "true" });
  element.append(svg("path", { d: paths[name] ?? "" }));
  return element;
}
