// Places on the slide, in points.

/** PowerPoint's grid: twelve lines an inch. */
const grid = 6;
/** PowerPoint keeps eighths of a point. */
const eighth = (value) => Math.round(value * 8) / 8;

export const snapped = (value, snaps) => (snaps ? Math.round(value / grid) * grid : eighth(value));

/** How far an arrow key moves. */
export const stepOf = (snaps, fine) => (snaps && !fine ? grid : 1.5);

export const frameOf = ({ left, top, width, height }) => ({ left, top, width, height });

export function between(from, to) {
  return { left: Math.min(from.x, to.x), top: Math.min(from.y, to.y), width: Math.abs(from.x - to.x), height: Math.abs(from.y - to.y) };
}

export const contains = (outer, inner) =>
  inner.left >= outer.left && inner.top >= outer.top && inner.left + inner.width <= outer.left + outer.width && inner.top + inner.height <= outer.top + outer.height;

export const isWithin = ({ x, y }, frame, margin = 0) =>
  x >= frame.left - margin && x <= frame.left + frame.width + margin && y >= frame.top - margin && y <= frame.top + frame.height + margin;

/** The frame that a handle makes of another when it is drawn by so much: "nw", "e". */
export function sized(frame, way, dx, dy, { snaps, keepsShape }) {
  const right = frame.left + frame.width;
  const bottom = frame.top + frame.height;
  const result = { ...frame };
  if (way.includes("w")) {
    result.left = Math.min(snapped(frame.left + dx, snaps), right);
    result.width = right - result.left;
  } else if (way.includes("e")) {
    result.width = Math.max(snapped(right + dx, snaps) - frame.left, 0);
  }
  if (way.includes("n")) {
    result.top = Math.min(snapped(frame.top + dy, snaps), bottom);
    result.height = bottom - result.top;
  } else if (way.includes("s")) {
    result.height = Math.max(snapped(bottom + dy, snaps) - frame.top, 0);
  }
  if (keepsShape && way.length === 2 && frame.width > 0) {
    const height = eighth((result.width * frame.height) / frame.width);
    result.top = way.includes("n") ? bottom - height : frame.top;
    result.height = height;
  }
  return result;
}

/** The two corners of a stroke drawn with a tool; Shift makes it regular. */
export function drawn(from, to, { snaps, isRegular }) {
  const [start, end] = [from, to].map((point) => ({ x: snapped(point.x, snaps), y: snapped(point.y, snaps) }));
  if (isRegular) {
    const side = Math.max(Math.abs(end.x - start.x), Math.abs(end.y - start.y));
    end.x = start.x + Math.sign(end.x - start.x || 1) * side;
    end.y = start.y + Math.sign(end.y - start.y || 1) * side;
  }
  return [start, end];
}
