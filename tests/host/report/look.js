// Looks at a page as a person would, at what is not folded away, and answers with what is wrong, in words.
// Arguments: the least contrast between a text and what is behind it; which boxes scroll, of which only what shows counts; what
// lies on top where something does.
const [leastContrast, scrolling, top = "body"] = arguments;
const wrong = [];
const say = (what, element) => wrong.push(what + ": " + (element.textContent || element.tagName).trim().slice(0, 60));

const channel = (value) => (value <= 0.04045 ? value / 12.92 : ((value + 0.055) / 1.055) ** 2.4);
const luminance = (color) => {
  const [red, green, blue] = color.map((value) => channel(value / 255));
  return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
};
const parsed = (text) => text.match(/[\d.]+/g).map(Number);
const backgroundOf = (element) => {
  for (let at = element; at; at = at.parentElement) {
    const color = parsed(getComputedStyle(at).backgroundColor);
    if (color.length < 4 || color[3] > 0) return color.slice(0, 3);
  }
  return [255, 255, 255];
};
const contrast = (first, second) => {
  const [light, dark] = [luminance(first), luminance(second)].sort((a, b) => b - a);
  return (light + 0.05) / (dark + 0.05);
};

const folded = "details:not([open]) > :not(summary)";
const unseen = `svg, style, ${folded}`;

// Every line of every text that is shown, with its place.
const lines = [];
const walker = document.createTreeWalker(document.querySelector(top), NodeFilter.SHOW_TEXT);
while (walker.nextNode()) {
  const element = walker.currentNode.parentElement;
  if (!walker.currentNode.data.trim() || element.closest(unseen)) continue;
  const range = document.createRange();
  range.selectNodeContents(walker.currentNode);
  const box = element.closest(scrolling)?.getBoundingClientRect();
  const isIn = ({ left, right, top, bottom }) => !box || (left >= box.left && right <= box.right && top >= box.top && bottom <= box.bottom);
  const places = [...range.getClientRects()].filter((place) => place.width > 0.5 && place.height > 0.5);
  if (places.length === 0) say("a text is not to be seen", element);
  for (const { left, right, top, bottom } of places.filter(isIn)) lines.push({ element, left, right, top, bottom });
  const style = getComputedStyle(element);
  const found = contrast(parsed(style.color).slice(0, 3), backgroundOf(element));
  if (found < leastContrast) say(`contrast ${found.toFixed(2)}`, element);
  if (parseFloat(style.fontSize) < 12) say("a text is small", element);
}

// A tenth of a line may reach into its neighbour: that is leading, not ink.
lines.sort((a, b) => a.top - b.top);
for (let i = 0; i < lines.length; ++i) {
  const one = lines[i];
  const slack = (one.bottom - one.top) / 10 + 1;
  for (let j = i + 1; j < lines.length && lines[j].top < one.bottom - slack; ++j) {
    const other = lines[j];
    if (other.left < one.right - 1 && one.left < other.right - 1) say("two texts overlap", other.element);
  }
}

// Nothing reaches beyond the window, or beyond a box that cuts.
const width = document.documentElement.clientWidth;
if (document.documentElement.scrollWidth > width) wrong.push(`the page is ${document.documentElement.scrollWidth} wide`);
for (const line of lines) {
  if (line.left < 0 || line.right > width + 0.5) say("a text is cut by the window", line.element);
}
for (const element of document.body.querySelectorAll(`*:not(svg *, ${scrolling})`)) {
  if (element.closest(folded)) continue;
  const cuts = getComputedStyle(element).overflowX !== "visible" && !(element instanceof SVGElement);
  if (cuts && (element.scrollWidth > element.clientWidth + 1 || element.scrollHeight > element.clientHeight + 1)) {
    say("a box cuts what it holds", element);
  }
}

// Every picture shows something, undistorted.
for (const picture of document.querySelectorAll("figure svg")) {
  if (picture.closest(folded)) continue;
  const { width: across, height: down } = picture.getBoundingClientRect();
  if (across < 100 || Math.abs(across / down - 4 / 3) > 0.05) say("a picture is out of shape", picture.parentElement);
  const shown = document.querySelector(picture.querySelector("use").getAttribute("href"));
  if (!shown || !shown.querySelector("path")) say("a picture is empty", picture.parentElement);
}
return { wrong: wrong.slice(0, 20), texts: lines.length };
