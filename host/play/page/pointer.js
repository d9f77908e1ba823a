// What the pointer does on the slide. A gesture is drawn here while it lasts; only what it comes to is told the server.

import { between, contains, drawn, frameOf, sized, snapped } from "./geometry.js";
import { perform } from "./server.js";
import { drawingOf, frameAround, ghost, outermost, pointOf, scale, shapeAt, slide, svg } from "./slide.js";
import { Kind, screen, selectedShapes, selectionKind, shapeOf, shownSlide } from "./state.js";
import { reframing, selecting, shapeText } from "./statements.js";
import { edit } from "./text.js";
import { pick, tool } from "./tools.js";
import { inTurn } from "./turns.js";

const stillness = 3; // pixels that a hand shakes

let gesture = null; // { move(point, event), end() }
let corners = []; // of a freeform that is being drawn

const snaps = (event) => screen().snapToGrid && !event.altKey;
const isChosen = (shape) => selectionKind() !== Kind.nothing && selectedShapes().some((each) => each.id === shape.id);
const rect = (frame, name) => svg("rect", { x: frame.left, y: frame.top, width: frame.width, height: frame.height, class: name });

/** Shapes that follow the pointer. Where it stays where it was, the press was a click. */
function dragging(shapes, start, clicked) {
  const first = shapes[0];
  let moved = null;
  return {
    move(point, event) {
      if (!moved && Math.hypot(point.x - start.x, point.y - start.y) * scale() < stillness) {
        return;
      }
      const free = { x: point.x - start.x, y: point.y - start.y };
      if (event.shiftKey) {
        free[Math.abs(free.x) < Math.abs(free.y) ? "x" : "y"] = 0;
      }
      moved = { ...frameOf(first) };
      moved.left = free.x === 0 ? first.left : snapped(first.left + free.x, snaps(event));
      moved.top = free.y === 0 ? first.top : snapped(first.top + free.y, snaps(event));
      const group = svg("g", { class: "ghost", transform: `translate(${moved.left - first.left} ${moved.top - first.top})` });
      group.append(...shapes.flatMap((shape) => [drawingOf(shape)?.cloneNode(true), frameAround(shape, "chosen", false)]).filter(Boolean));
      ghost(group);
    },
    end() {
      const statements = moved ? reframing(shapes, frameOf(first), moved) : [];
      if (statements.length > 0) {
        perform(...statements);
      } else {
        ghost();
        clicked?.();
      }
    },
  };
}

function sizing(shape, way, start) {
  let frame = frameOf(shape);
  return {
    move(point, event) {
      const angle = (-(shape.rotation ?? 0) * Math.PI) / 180;
      const [x, y] = [point.x - start.x, point.y - start.y];
      frame = sized(frameOf(shape), way, x * Math.cos(angle) - y * Math.sin(angle), x * Math.sin(angle) + y * Math.cos(angle), {
        snaps: snaps(event),
        keepsShape: event.shiftKey || shape.locked,
      });
      ghost(frameAround({ ...shape, ...frame }, "chosen", false));
    },
    end() {
      const statements = reframing([shape], frameOf(shape), frame);
      return statements.length > 0 ? perform(...statements) : ghost();
    },
  };
}

function marquee(start, others) {
  let area = between(start, start);
  return {
    move(point) {
      area = between(start, point);
      ghost(rect(area, "marquee"));
    },
    end() {
      ghost();
      const caught = shownSlide().shapes.filter((shape) => shape.visible && contains(area, shape) && !others.includes(shape));
      if (caught.length > 0) {
        perform(selecting([...others, ...caught]));
      } else if (others.length === 0 && (selectionKind() !== Kind.nothing || screen().pane !== 1)) {
        perform(screen().pane === 1 ? selecting([]) : "ActiveWindow.Panes(2).Activate");
      }
    },
  };
}

function drawing(chosen, start) {
  let stroke = drawn(start, start, { snaps: false });
  return {
    move(point, event) {
      stroke = drawn(start, point, { snaps: snaps(event), isRegular: event.shiftKey });
      const [from, to] = stroke;
      ghost(chosen.isLine ? svg("line", { x1: from.x, y1: from.y, x2: to.x, y2: to.y, class: "marquee" }) : rect(between(from, to), "marquee"));
    },
    async end() {
      const count = shownSlide().shapes.length;
      pick(null);
      if ((await perform(chosen.statement(stroke))) && chosen.writes && shownSlide().shapes.length > count) {
        edit(shownSlide().shapes.at(-1));
      }
    },
  };
}

function drawCorners(point) {
  const all = point ? [...corners, point] : corners;
  ghost(svg("polyline", { points: all.map(({ x, y }) => `${x},${y}`).join(" "), class: "marquee" }));
}

/** Ends a freeform; a single corner is none. */
export function finishFreeform() {
  const points = corners;
  corners = [];
  ghost();
  if (tool()?.isFreeform) {
    const chosen = tool();
    pick(null);
    return points.length > 1 ? perform(chosen.statement(points)) : undefined;
  }
  return undefined;
}

/** A click puts a corner; one near the first closes the freeform. */
function putCorner(event) {
  const point = pointOf(event);
  const corner = { x: snapped(point.x, snaps(event)), y: snapped(point.y, snaps(event)) };
  const [first] = corners;
  const last = corners.at(-1);
  if (corners.length > 2 && Math.hypot(point.x - first.x, point.y - first.y) * scale() < 4 * stillness) {
    corners.push({ ...first });
    finishFreeform();
  } else if (!last || last.x !== corner.x || last.y !== corner.y) {
    corners.push(corner);
    drawCorners();
  }
}

/** Gives up what is being drawn or dragged. */
export function cancel() {
  gesture = null;
  corners = [];
  pick(null);
  ghost();
}

function press(hit, start, event) {
  const shape = outermost(hit);
  const chosen = selectedShapes();
  if (event.shiftKey || event.ctrlKey) {
    const rest = chosen.filter((each) => each.id !== shape.id);
    perform(isChosen(shape) ? selecting(rest) : chosen.length > 0 ? `${shapeText(shape)}.Select msoFalse` : selecting([shape]));
    return null;
  }
  const child = chosen.find((each) => each.path.length > 1 && each.id === hit.id);
  if (child) {
    return dragging([child], start);
  }
  if (!isChosen(shape)) {
    perform(selecting([shape]));
    return dragging([shape], start);
  }
  const narrower = chosen.length > 1 ? shape : hit !== shape ? hit : selectionKind() === Kind.text ? shape : null;
  return dragging(chosen, start, narrower && (() => perform(selecting([narrower]))));
}

function begin(event) {
  const start = pointOf(event);
  if (tool()?.isFreeform) {
    putCorner(event);
    return null;
  }
  if (tool()) {
    return drawing(tool(), start);
  }
  const handle = event.target.closest?.(".handle");
  if (handle) {
    return sizing(shapeOf(Number(handle.dataset.id)), handle.dataset.way, start);
  }
  const hit = shapeAt(event);
  return hit ? press(hit, start, event) : marquee(start, event.shiftKey ? selectedShapes() : []);
}

function down(event) {
  gesture = begin(event);
}

function move(event) {
  if (gesture) {
    gesture.move(pointOf(event), event);
  } else if (corners.length > 0) {
    drawCorners(pointOf(event));
  }
}

function up() {
  const ended = gesture;
  gesture = null;
  ended?.end();
}

function double(event) {
  if (tool()?.isFreeform) {
    finishFreeform();
    return;
  }
  const shape = shapeAt(event);
  if (shape?.text) {
    edit(shape, event);
  }
}

const begun = inTurn(down);
const doubled = inTurn(double);

slide.addEventListener("pointerdown", (event) => {
  if (event.button === 0 && !event.target.closest(".editor")) {
    slide.focus({ preventScroll: true });
    slide.setPointerCapture(event.pointerId);
    event.preventDefault();
    begun(event);
  }
});
slide.addEventListener("pointermove", inTurn(move, false));
slide.addEventListener("pointerup", inTurn(up, false));
slide.addEventListener("pointercancel", inTurn(cancel, false));
slide.addEventListener("dblclick", (event) => !event.target.closest(".editor") && doubled(event));
