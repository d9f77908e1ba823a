// The strip of slides at the left.

import { perform } from "./server.js";
import { pictureOf } from "./slide.js";
import { Kind, onState, screen, selectionKind } from "./state.js";
import { slideAt } from "./statements.js";
import { finish } from "./text.js";
import { say } from "./words.js";

const strip = document.getElementById("strip");
const names = { strip: ["Diapositives", "Slides"], slide: ["Diapositive {0}", "Slide {0}"] };
const drawn = new Map(); // pictures by slide, so that what has not changed is not drawn again

async function show(index) {
  await finish();
  await perform(`${slideAt(index)}.Select`);
}

function row(slide) {
  const element = document.createElement("li");
  const isShown = slide.index === screen().slide;
  const isChosen = selectionKind() === Kind.slides && screen().selection.slides.includes(slide.index);
  Object.assign(element, { id: `slide-${slide.index}`, role: "option", ariaSelected: String(isShown), ariaLabel: say(names.slide, slide.index) });
  element.classList.toggle("chosen", isChosen);
  if (drawn.get(slide.index)?.text !== slide.picture) {
    drawn.set(slide.index, { text: slide.picture, picture: pictureOf(slide.picture) });
  }
  element.append(Object.assign(document.createElement("span"), { textContent: slide.index }), drawn.get(slide.index).picture);
  element.addEventListener("click", () => show(slide.index));
  return element;
}

function draw() {
  strip.ariaLabel = say(names.strip);
  strip.replaceChildren(...screen().slides.map(row));
  const shown = screen().slide;
  strip[shown ? "setAttribute" : "removeAttribute"]("aria-activedescendant", shown ? `slide-${shown}` : "");
  document.getElementById(`slide-${shown}`)?.scrollIntoView({ block: "nearest", inline: "nearest" });
}

strip.addEventListener("keydown", (event) => {
  const shown = screen().slide ?? 0;
  const next = { ArrowDown: shown + 1, ArrowRight: shown + 1, ArrowUp: shown - 1, ArrowLeft: shown - 1, Home: 1, End: screen().slides.length }[event.key];
  if (next !== undefined && !event.ctrlKey) {
    event.preventDefault();
    if (next >= 1 && next <= screen().slides.length && next !== shown) {
      show(next);
    }
  }
});

onState(draw);
