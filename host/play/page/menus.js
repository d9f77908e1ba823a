// Menus and toolbars, as PowerPoint 2003 has those of the exercises.

import { commands, run } from "./commands.js";
import { icon } from "./icons.js";
import * as palettes from "./palettes.js";
import { onState } from "./state.js";
import { onTool, tool } from "./tools.js";
import { language, say } from "./words.js";

const c = commands;
const rule = null;

const menus = [
  [["Fichier", "File"], [c.save, c.saveAs, rule, c.close, c.exit]],
  [["Edition", "Edit"], [c.undo, rule, c.cut, c.copy, c.paste, c.duplicate, c.erase, c.selectAll, rule, c.replace, rule, c.eraseSlide, c.slideUp, c.slideDown]],
  [["Affichage", "View"], [c.normal, c.sorter]],
  [["Insertion", "Insert"], [c.newSlide, rule, c.textBox, c.wordArt, rule, c.rectangle, c.oval, c.line, c.freeform]],
  [["Format", "Format"], [c.editText, c.bold, c.italic, c.underline, rule, c.size, rule, ...palettes.layouts]],
  [["Fenêtre", "Window"], palettes.windows],
];
const standard = [c.save, rule, c.cut, c.copy, c.paste, rule, c.undo, rule, c.newSlide, rule, c.bold, c.italic, c.underline];
const drawing = [
  [["Dessin", "Draw"], [c.group, c.ungroup, rule, c.toFront, c.toBack, c.forward, c.backward, rule, c.grid, c.size]],
  c.arrow,
  [["Formes automatiques", "AutoShapes"], [c.line, c.freeform, rule, ...palettes.shapes]],
  c.line, c.rectangle, c.oval, c.freeform, c.textBox, c.wordArt, rule,
  [["Couleur de remplissage", "Fill Color"], palettes.fills, "fill"],
  [["Couleur du contour", "Line Color"], palettes.lines, "outline"],
  [["Couleur de police", "Font Color"], palettes.fontColors, "font"],
  [["Style ombre", "Shadow Style"], palettes.shadows, "shadow"],
  [["Style 3D", "3-D Style"], palettes.depths, "depth"],
];

const shortcut = (keys) => (language === "fr" ? keys.replace("Shift", "Maj").replace("Delete", "Suppr") : keys);
const nameOf = (command) => commandNames.get(command) ?? "";
const commandNames = new Map(Object.entries(commands).map(([name, command]) => [command, name]));
const buttons = []; // [button, command], to be enabled and pressed as the state says

function hold(button) {
  // What is being typed keeps its cursor: a press here takes no focus.
  button.addEventListener("pointerdown", (event) => event.preventDefault());
  button.addEventListener("mousedown", (event) => event.preventDefault());
  return button;
}

function button(command, isIcon) {
  const element = hold(document.createElement("button"));
  const name = nameOf(command);
  const title = say(command.words) + (command.keys ? ` (${shortcut(command.keys)})` : "");
  element.type = "button";
  element.dataset.command = name;
  if (isIcon) {
    element.ariaLabel = say(command.words);
    element.title = title;
    element.append(icon(name));
  } else {
    element.textContent = say(command.words);
  }
  element.addEventListener("click", () => run(command));
  buttons.push([element, command]);
  return element;
}

let open = null; // { button, popup }

export function closeMenu(returnsFocus) {
  if (open) {
    open.button.ariaExpanded = "false";
    open.popup.remove();
    if (returnsFocus) {
      open.button.focus();
    }
    open = null;
  }
}

function item(command) {
  if (command === rule) {
    return Object.assign(document.createElement("hr"), { role: "separator" });
  }
  const element = hold(document.createElement("button"));
  Object.assign(element, { type: "button", role: "menuitem", disabled: !command.needs(), tabIndex: -1 });
  if (command.color) {
    const swatch = element.appendChild(document.createElement("span"));
    swatch.className = "swatch";
    swatch.style.backgroundColor = command.color;
  }
  element.append(Object.assign(document.createElement("span"), { textContent: say(command.words) }));
  if (command.keys) {
    element.append(Object.assign(document.createElement("kbd"), { textContent: shortcut(command.keys) }));
  }
  element.addEventListener("click", () => {
    closeMenu();
    if (!command.keepsTyping) {
      document.getElementById("slide").focus();
    }
    run(command);
  });
  return element;
}

/** Opens a menu below its button, or above it where there is no room. */
function openMenu(opener, items, takesFocus) {
  closeMenu();
  const popup = document.createElement("div");
  popup.role = "menu";
  popup.className = "menu";
  popup.setAttribute("aria-label", opener.ariaLabel ?? opener.textContent);
  popup.append(...(typeof items === "function" ? items() : items).map(item));
  document.body.append(popup);
  const place = opener.getBoundingClientRect();
  const size = popup.getBoundingClientRect();
  const below = innerHeight - place.bottom;
  const goesUp = size.height > below && place.top > below;
  popup.style.maxHeight = `${Math.max(goesUp ? place.top : below, 80) - 8}px`;
  popup.style.left = `${Math.max(0, Math.min(place.left, innerWidth - size.width - 4))}px`;
  popup.style[goesUp ? "bottom" : "top"] = `${goesUp ? innerHeight - place.top : place.bottom}px`;
  opener.ariaExpanded = "true";
  open = { button: opener, popup };
  popup.addEventListener("keydown", walk);
  if (takesFocus) {
    popup.querySelector("[role=menuitem]:enabled")?.focus();
  }
}

function walk(event) {
  const items = [...open.popup.querySelectorAll("[role=menuitem]:enabled")];
  const place = items.indexOf(document.activeElement);
  const step = { ArrowDown: 1, ArrowUp: -1 }[event.key];
  const end = { Home: 0, End: items.length - 1 }[event.key];
  if (step || end !== undefined) {
    items.at(end ?? (place + step) % items.length)?.focus();
  } else if (event.key === "Escape" || event.key === "Tab") {
    closeMenu(true);
  } else if (event.key === "ArrowLeft" || event.key === "ArrowRight") {
    const { button: opener } = open;
    closeMenu(true);
    rove(opener.parentElement, event.key === "ArrowRight" ? 1 : -1);
    document.activeElement.ariaHasPopup && document.activeElement.click();
  } else {
    return;
  }
  event.preventDefault();
  event.stopPropagation();
}

function opener([words, items, glyph]) {
  const element = hold(document.createElement("button"));
  Object.assign(element, { type: "button", ariaHasPopup: "menu", ariaExpanded: "false" });
  if (glyph) {
    element.append(icon(glyph));
    element.ariaLabel = say(words);
    element.title = say(words);
  } else {
    element.textContent = say(words);
  }
  element.addEventListener("click", (event) => (open?.button === element ? closeMenu(true) : openMenu(element, items, event.detail === 0)));
  element.addEventListener("keydown", (event) => {
    if (event.key === "ArrowDown") {
      event.preventDefault();
      openMenu(element, items, true);
    }
  });
  return element;
}

/** Moves the focus within a toolbar, of which one button at a time is on the Tab key's way. */
function rove(bar, step) {
  const all = [...bar.querySelectorAll(":scope > button:enabled")];
  const next = all.at((all.indexOf(document.activeElement) + step) % all.length);
  all.forEach((each) => (each.tabIndex = each === next ? 0 : -1));
  next?.focus();
}

export function bar(element, label, entries) {
  element.ariaLabel = say(label);
  element.append(...entries);
  [...element.querySelectorAll("button")].forEach((each, place) => (each.tabIndex = place === 0 ? 0 : -1));
  element.addEventListener("keydown", (event) => {
    const step = { ArrowRight: 1, ArrowLeft: -1 }[event.key];
    if (step) {
      event.preventDefault();
      rove(element, step);
    }
  });
}

const ruleOf = () => Object.assign(document.createElement("span"), { className: "rule" });
const entryOf = (entry) => (entry === rule ? ruleOf() : Array.isArray(entry) ? opener(entry) : button(entry, true));

bar(document.getElementById("menus"), ["Menus", "Menus"], menus.map((menu) => Object.assign(opener(menu), { role: "menuitem" })));
const top = document.getElementById("bars").appendChild(document.createElement("div"));
top.role = "toolbar";
bar(top, ["Standard", "Standard"], standard.map(entryOf));
bar(document.getElementById("drawing"), ["Dessin", "Drawing"], drawing.map(entryOf));

addEventListener("pointerdown", (event) => open && !open.popup.contains(event.target) && !open.button.contains(event.target) && closeMenu());
addEventListener("resize", () => closeMenu());

function refresh() {
  for (const [element, command] of buttons) {
    element.disabled = !command.needs();
    if ("tool" in command) {
      element.ariaPressed = String(command.tool === tool());
    }
  }
  for (const each of document.querySelectorAll("[role=toolbar]")) {
    const all = [...each.querySelectorAll(":scope > button:enabled")];
    if (!all.some((one) => one.tabIndex === 0) && all.length > 0) {
      all[0].tabIndex = 0;
    }
  }
}

onState(refresh);
onTool(refresh);
