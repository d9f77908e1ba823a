// The keyboard, as in PowerPoint.

import { commands, run } from "./commands.js";
import { frameOf, stepOf } from "./geometry.js";
import { cancel, finishFreeform } from "./pointer.js";
import { perform } from "./server.js";
import { slide } from "./slide.js";
import { Kind, screen, selectedShapes, selectionKind, shownSlide } from "./state.js";
import { reframing, selecting } from "./statements.js";
import { edit, isEditing } from "./text.js";
import { tool } from "./tools.js";

const arrows = { ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1] };
const strip = document.getElementById("strip");

function keyOf(event) {
  const key = event.key.length === 1 ? event.key.toUpperCase() : event.key;
  return [(event.ctrlKey || event.metaKey) && "Ctrl", event.shiftKey && event.key.length === 1 && "Shift", key].filter(Boolean).join("+");
}

const byKey = new Map(Object.values(commands).filter((command) => command.keys).map((command) => [command.keys, command]));
byKey.set("Ctrl+Shift+H", commands.ungroup);
byKey.set("Backspace", commands.erase);

function nudge([x, y], event) {
  const shapes = selectedShapes();
  const step = stepOf(screen().snapToGrid, event.ctrlKey);
  const before = frameOf(shapes[0]);
  perform(...reframing(shapes, before, { ...before, left: before.left + x * step, top: before.top + y * step }));
}

/** Goes from shape to shape, and at the end on to what follows the slide. */
function walk(step) {
  const shapes = shownSlide().shapes.filter((shape) => shape.visible);
  const current = selectedShapes()[0];
  const place = current ? shapes.findIndex((shape) => shape.path[0] === current.path[0]) + step : step > 0 ? 0 : shapes.length - 1;
  if (place < 0 || place >= shapes.length) {
    return false;
  }
  perform(selecting([shapes[place]]));
  return true;
}

/** Keys of the slide alone; true where one was for it. */
function onSlide(event) {
  const [first] = selectedShapes();
  if (arrows[event.key] && first && selectionKind() === Kind.shapes) {
    nudge(arrows[event.key], event);
  } else if (event.key === "Tab" && shownSlide()) {
    return walk(event.shiftKey ? -1 : 1);
  } else if (event.key === "Escape") {
    const isIdle = !tool();
    cancel();
    if (isIdle && selectionKind() !== Kind.nothing) {
      perform(selecting([]));
    }
  } else if (event.key === "Enter" && tool()?.isFreeform) {
    finishFreeform();
  } else if (event.key === "Enter" && first?.text && selectedShapes().length === 1) {
    edit(first);
  } else {
    return false;
  }
  return true;
}

addEventListener("keydown", (event) => {
  const target = event.target;
  const isWritten = target.matches("input, select, textarea") || target.closest("dialog");
  if (event.defaultPrevented || isWritten || (isEditing() && !event.ctrlKey)) {
    return;
  }
  const command = byKey.get(keyOf(event));
  const isOfSlide = slide.contains(target) || target === strip || event.ctrlKey || event.key === "F2";
  if (slide === target && onSlide(event)) {
    event.preventDefault();
  } else if (command && isOfSlide && (!isEditing() || command.keepsTyping)) {
    event.preventDefault();
    run(command);
  }
});

/** The editor keeps its keys to itself, but for those of a look. */
slide.addEventListener("keydown", (event) => {
  const command = isEditing() && byKey.get(keyOf(event));
  if (command?.keepsTyping) {
    event.preventDefault();
    run(command);
  }
}, { capture: true });
