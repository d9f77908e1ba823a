// Text typed in place: a layer over the shape with its runs. What is typed in one stretch is told the server in one statement.

import { perform } from "./server.js";
import { drawingOf, scale, slide } from "./slide.js";
import { onState, screen, shapeOf, textOf } from "./state.js";
import { hexOf, shapeText, typing } from "./statements.js";
import { say } from "./words.js";

const names = { editor: ["Texte de {0}", "Text of {0}"] };
const alignments = { 2: "center", 3: "right", 4: "justify" };
const anchors = { 3: "center", 4: "flex-end" };

let session = null; // { shape, slide, editor, stored, typed, cursor, pending: { start, length, text } }

export const isEditing = () => Boolean(session);

/** The paragraphs of an editor as PowerPoint has them: a mark between two, a line break within one. */
function read(editor) {
  const paragraphs = [];
  const add = (node, isFirst) => {
    if (isFirst || paragraphs.length === 0) {
      paragraphs.push("");
    }
    const walk = (each) => {
      if (each.nodeType === Node.TEXT_NODE) {
        paragraphs[paragraphs.length - 1] += each.data.replaceAll("\u00a0", " ").replaceAll("\n", "\v");
      } else if (each.tagName === "BR") {
        paragraphs[paragraphs.length - 1] += each.nextSibling ? "\v" : "";
      } else {
        each.childNodes.forEach(walk);
      }
    };
    walk(node);
  };
  let wasBlock = true;
  for (const node of editor.childNodes) {
    const isBlock = node.tagName === "DIV";
    add(node, isBlock || wasBlock);
    wasBlock = isBlock;
  }
  return paragraphs.join("\r");
}

function look(span, run, size) {
  Object.assign(span.style, {
    color: hexOf(run.color),
    fontSize: `${run.size * size}px`,
    fontFamily: `"${run.font}", Arial, "Liberation Sans", sans-serif`,
    fontWeight: run.bold ? "bold" : "normal",
    fontStyle: run.italic ? "italic" : "normal",
    textDecoration: run.underline ? "underline" : "none",
  });
}

/** Fills an editor with a shape's runs, a block for each paragraph. */
function fill(editor, shape, size) {
  const blocks = [document.createElement("div")];
  for (const run of shape.text.runs) {
    run.text.split("\r").forEach((piece, place) => {
      if (place > 0) {
        blocks.push(document.createElement("div"));
      }
      if (piece !== "") {
        const span = document.createElement("span");
        span.textContent = piece.replaceAll("\v", "\n");
        look(span, run, size);
        blocks.at(-1).append(span);
      }
    });
  }
  blocks.filter((block) => !block.hasChildNodes()).forEach((block) => block.append(document.createElement("br")));
  look(editor, shape.text.runs[0], size);
  editor.replaceChildren(...blocks);
}

/** How a place in the text and one in the editor belong together; a mark counts as a character. */
function placeIn(editor, offset) {
  let left = offset;
  for (const block of editor.children) {
    const walker = document.createTreeWalker(block, NodeFilter.SHOW_TEXT);
    for (let node = walker.nextNode(); node; node = walker.nextNode()) {
      if (left <= node.length) {
        return [node, left];
      }
      left -= node.length;
    }
    if (left === 0) {
      return [block, 0];
    }
    left -= 1;
  }
  return [editor, editor.childNodes.length];
}

function offsetOf(editor, node, offset) {
  const before = document.createRange();
  before.setStart(editor, 0);
  before.setEnd(node, offset);
  const copy = document.createElement("div");
  copy.append(before.cloneContents());
  return read(copy).length;
}

/** The characters selected in the editor: where they begin, and how many. */
function chosen() {
  const range = getSelection().rangeCount > 0 ? getSelection().getRangeAt(0) : null;
  if (!range || !session.editor.contains(range.startContainer)) {
    return { start: 0, length: textOf(session.shape).length };
  }
  const start = offsetOf(session.editor, range.startContainer, range.startOffset);
  return { start, length: offsetOf(session.editor, range.endContainer, range.endOffset) - start };
}

function choose(start, length) {
  getSelection().setBaseAndExtent(...placeIn(session.editor, start), ...placeIn(session.editor, start + length));
}

/** What one text has in the place of what another had. */
function difference(before, after) {
  let start = 0;
  while (start < Math.min(before.length, after.length) && before[start] === after[start]) {
    start += 1;
  }
  let end = 0;
  while (end < Math.min(before.length, after.length) - start && before.at(-1 - end) === after.at(-1 - end)) {
    end += 1;
  }
  return { start, length: before.length - start - end, text: after.slice(start, after.length - end) };
}

/** The same, where the cursor tells it: what stands behind it was there before, and what stood before it where it was. */
function changeAt(cursor, from, before, after) {
  const start = Math.min(from, cursor);
  const length = before.length - (after.length - cursor) - start;
  const fits = length >= 0 && before.slice(0, start) === after.slice(0, start) && before.slice(start + length) === after.slice(cursor);
  return fits ? { start, length, text: after.slice(start, cursor) } : difference(before, after);
}

/** Takes what was typed; where it goes on from what has been typed before it is one stretch with it. */
function take() {
  const typed = read(session.editor);
  const change = changeAt(chosen().start, session.cursor, session.typed, typed);
  const { pending } = session;
  const end = change.start + change.length;
  if (pending && change.start <= pending.start + pending.text.length && end >= pending.start) {
    const start = Math.min(pending.start, change.start);
    const last = Math.max(pending.start + pending.text.length, end);
    const stood = last - pending.text.length + pending.length - start;
    session.pending = { start, length: stood, text: typed.slice(start, last + change.text.length - change.length) };
  } else {
    flush();
    session.pending = change;
  }
  session.typed = typed;
}

/** Tells the server what has been typed so far. */
function flush() {
  const { pending, shape, slide: index, stored } = session;
  session.pending = null;
  if (pending && (pending.length > 0 || pending.text !== "")) {
    session.stored = session.typed;
    const statement = typing(shape, stored, pending.start, pending.length, pending.text);
    return perform(index === screen().slide ? statement : statement.replace(/Slides\(\d+\)/, `Slides(${index})`));
  }
  return Promise.resolve(true);
}

/** Puts the editor over the shape, as large as its text is drawn. */
function place() {
  const { editor, shape } = session;
  const drawn = [...(drawingOf(shape)?.querySelectorAll("text") ?? [])];
  const shrunk = drawn.length > 0 ? Number(drawn[0].getAttribute("font-size")) / shape.text.runs[0].size : 1;
  const left = shape.text.alignment === 1 && drawn.length > 0 ? Math.max(...drawn.map((row) => Number(row.getAttribute("x")))) - shape.left : shape.text.margins[0];
  Object.assign(editor.style, {
    left: `${shape.left * scale()}px`,
    top: `${shape.top * scale()}px`,
    width: `${shape.width * scale()}px`,
    minHeight: `${shape.height * scale()}px`,
    padding: `${shape.text.margins[1] * scale()}px ${shape.text.margins[0] * scale()}px ${shape.text.margins[1] * scale()}px ${left * scale()}px`,
    textAlign: alignments[shape.text.alignment] ?? "left",
    justifyContent: anchors[shape.text.anchor] ?? "flex-start",
    transform: `rotate(${shape.rotation}deg)`,
  });
  return shrunk * scale();
}

function hideDrawing() {
  drawingOf(session.shape)?.querySelectorAll("text").forEach((row) => (row.style.visibility = "hidden"));
}

/** Ends typing; what was typed is told the server. */
export function finish() {
  if (session) {
    const done = flush();
    const { editor, shape } = session;
    session = null; // taking the editor away makes it lose the focus
    editor.remove();
    drawingOf(shape)?.querySelectorAll("text").forEach((row) => (row.style.visibility = ""));
    return done;
  }
  return Promise.resolve(true);
}

/** Opens the text of a shape: all of it chosen, or the word under the pointer. */
export function edit(shape, event) {
  finish();
  const editor = document.createElement("div");
  session = { shape, slide: screen().slide, editor, stored: textOf(shape), typed: textOf(shape), pending: null };
  Object.assign(editor, { className: "editor", contentEditable: "true", role: "textbox", ariaMultiLine: "true", ariaLabel: say(names.editor, shape.mark || shape.name), spellcheck: false });
  fill(editor, shape, place());
  slide.append(editor);
  hideDrawing();
  editor.focus({ preventScroll: true });
  choose(0, session.stored.length);
  const range = event && document.caretRangeFromPoint?.(event.clientX, event.clientY);
  if (range && editor.contains(range.startContainer)) {
    getSelection().collapse(range.startContainer, range.startOffset);
    getSelection().modify("move", "backward", "word");
    getSelection().modify("extend", "forward", "word");
  }
  const { start, length } = chosen();
  const isWhole = start === 0 && length === session.stored.length;
  perform(`${shapeText(shape)}.TextFrame.TextRange${isWhole ? "" : `.Characters(${start + 1}, ${length})`}.Select`);
  editor.addEventListener("beforeinput", () => (session.cursor = chosen().start));
  editor.addEventListener("input", take);
  editor.addEventListener("keydown", obey);
  editor.addEventListener("paste", pastePlain);
  editor.addEventListener("blur", () => session?.editor === editor && finish());
}

function obey(event) {
  event.stopPropagation();
  if (event.key === "Escape" || event.key === "F2") {
    const { shape } = session;
    finish();
    slide.focus();
    perform(`${shapeText(shape)}.Select`);
    event.preventDefault();
  }
}

function pastePlain(event) {
  event.preventDefault();
  document.execCommand("insertText", false, event.clipboardData.getData("text/plain"));
}

/** Gives the characters chosen, where there are any, a look, by a member of their range: "Font.Bold = msoTrue". */
export async function give(change) {
  const { start, length } = chosen();
  if (length === 0) {
    return;
  }
  await flush();
  await perform(`${shapeText(session.shape)}.TextFrame.TextRange.Characters(${start + 1}, ${length}).${change}`);
  fill(session.editor, session.shape, place());
  hideDrawing();
  session.editor.focus({ preventScroll: true });
  choose(start, length);
}

/** The look of the first character chosen. */
export function lookThere() {
  let left = chosen().start;
  return session.shape.text.runs.find((run) => (left -= run.text.length) < 0) ?? session.shape.text.runs.at(-1);
}

onState(() => {
  if (!session) {
    return;
  }
  const shape = screen().slide === session.slide && shapeOf(session.shape.id);
  if (!shape?.text) {
    session.pending = null;
    finish();
    return;
  }
  session.shape = shape;
  place();
  hideDrawing();
});
