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
import { inTurn } from "./turns.js";

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

/** The shape to which Tab leads from the one selected; null at the end, where it leads on to what follows the slide. */
function leads(event) {
  const shapes = (shownSlide()?.shapes ?? []).filter((shape) => shape.visible);
  const current = selectedShapes()[0];
  const step = event.shiftKey ? -1 : 1;
  const place = current ? shapes.findIndex((shape) => shape.path[0] === current.path[0]) + step : step > 0 ? 0 : shapes.length - 1;
  return shapes[place] ?? null;
}

const onlyOnSlide = new Set(["Tab", "Escape", "Enter"]);

/** Keys of the slide alone; true where one was for it. */
function onSlide(event) {
  const [first] = selectedShapes();
  if (arrows[event.key] && first && selectionKind() === Kind.shapes) {
    nudge(arrows[event.key], event);
  } else if (event.key === "Tab" && leads(event)) {
    perform(selecting([leads(event)]));
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

const onKey = inTurn((event) => {
  if (event.target !== slide || !onSlide(event)) {
    const command = byKey.get(keyOf(event));
    if (command) {
      run(command);
    }
  }
});

/** True for a key that the page takes for itself. */
function isTaken(event) {
  const { target } = event;
  if (event.defaultPrevented || isEditing() || target.matches("input, select, textarea") || target.closest("dialog")) {
    return false;
  }
  const isOfSlide = target === slide || target === strip;
  return byKey.has(keyOf(event)) ? isOfSlide || event.ctrlKey || event.metaKey || event.key === "F2" : target === slide && (event.key in arrows || onlyOnSlide.has(event.key));
}

addEventListener("keydown", (event) => {
  if (event.key === "F10" && !event.shiftKey) {
    event.preventDefault();
    document.querySelector("#menus button[tabindex='0']").focus();
  } else if (isTaken(event) && !(event.key === "Tab" && leads(event) === null)) {
    event.preventDefault();
    onKey(event);
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
