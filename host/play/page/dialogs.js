// Dialogs that ask for what a gesture needs.

import { perform } from "./server.js";
import { screen, selectedShapes, textOf } from "./state.js";
import { literal, number, selectionOf, shapesText, shapeText } from "./statements.js";
import { centimetres, pointsOf, say } from "./words.js";

const words = { ok: ["OK", "OK"], cancel: ["Annuler", "Cancel"], length: ["Une longueur s'écrit « 2 cm » ou « 56,5 pt ».", "A length is written as 2 cm or 56.5 pt."] };

function control({ kind, value, choices }) {
  if (choices) {
    const select = document.createElement("select");
    select.append(...choices.map(([text, choice]) => new Option(say(text), choice, choice === value, choice === value)));
    return select;
  }
  const input = document.createElement("input");
  input.type = kind === "check" ? "checkbox" : "text";
  input.checked = kind === "check" && value;
  input.value = kind === "check" ? "on" : kind === "length" ? centimetres(value) : (value ?? "");
  return input;
}

/** What stands in a field; a length is left as it was where its text was not touched. */
function answerOf({ kind, value }, input) {
  if (kind === "check") {
    return input.checked;
  }
  return kind === "length" ? (input.value === input.defaultText ? value : pointsOf(input.value)) : input.value;
}

/** Asks with fields `{name: {words, kind: "text" | "length" | "check", value, choices}}`; answers with the values, or with null. */
export function ask(title, fields) {
  const dialog = document.createElement("dialog");
  const form = document.createElement("form");
  const heading = document.createElement("h2");
  heading.textContent = say(title);
  heading.id = "dialog-title";
  dialog.setAttribute("aria-labelledby", heading.id);
  const inputs = Object.entries(fields).map(([name, field]) => {
    const label = document.createElement("label");
    const input = control(field);
    input.name = name;
    input.defaultText = input.value;
    label.append(Object.assign(document.createElement("span"), { textContent: say(field.words) }), input);
    label.className = field.kind ?? "text";
    form.append(label);
    return input;
  });
  const buttons = document.createElement("div");
  buttons.className = "buttons";
  buttons.append(...["ok", "cancel"].map((name) => Object.assign(document.createElement("button"), { textContent: say(words[name]), value: name, type: name === "ok" ? "submit" : "button" })));
  form.append(buttons);
  dialog.append(heading, form);
  document.body.append(dialog);
  dialog.showModal();
  inputs[0].select?.();
  return new Promise((resolve) => {
    const leave = (answer) => {
      dialog.remove();
      document.getElementById("slide").focus();
      resolve(answer);
    };
    buttons.lastChild.addEventListener("click", () => leave(null));
    dialog.addEventListener("cancel", () => leave(null));
    form.addEventListener("submit", (event) => {
      event.preventDefault();
      const answers = inputs.map((input) => answerOf(fields[input.name], input));
      const wrong = inputs.find((input, place) => answers[place] === null);
      wrong?.setCustomValidity(say(words.length));
      wrong?.reportValidity();
      wrong?.addEventListener("input", () => wrong.setCustomValidity(""), { once: true });
      if (!wrong) {
        leave(Object.fromEntries(inputs.map((input, place) => [input.name, answers[place]])));
      }
    });
  });
}

export async function saveAs() {
  const answer = await ask(["Enregistrer sous", "Save As"], {
    name: { words: ["Nom de fichier", "File name"], value: screen().presentation.split("\\").at(-1).replace(/\.\w+$/, "") },
    type: {
      words: ["Type de fichier", "Save as type"],
      value: "ppt",
      choices: [[["Présentation (*.ppt)", "Presentation (*.ppt)"], "ppt"], [["Plan / RTF (*.rtf)", "Outline/RTF (*.rtf)"], "rtf"], [["Modèle (*.pot)", "Template (*.pot)"], "pot"]],
    },
  });
  const constants = { ppt: "ppSaveAsPresentation", rtf: "ppSaveAsRTF", pot: "ppSaveAsTemplate" };
  if (answer?.name) {
    const name = answer.name.toLowerCase().endsWith(`.${answer.type}`) ? answer.name : `${answer.name}.${answer.type}`;
    await perform(`ActivePresentation.SaveAs Host.Folder & ${literal(name)}, ${constants[answer.type]}`);
  }
}

/** Where a text stands in others, how often. */
function countIn(text, { what, matchCase, wholeWords }) {
  const sign = what.replace(/[.*+?^${}()|[\]\\]/g, "\\$&");
  const edge = wholeWords ? ["(?<![\\p{L}\\p{N}_])", "(?![\\p{L}\\p{N}_])"] : ["", ""];
  return [...text.matchAll(new RegExp(edge[0] + sign + edge[1], matchCase ? "gu" : "giu"))].length;
}

export async function replace() {
  const answer = await ask(["Remplacer tout", "Replace All"], {
    what: { words: ["Rechercher", "Find what"] },
    by: { words: ["Remplacer par", "Replace with"] },
    matchCase: { words: ["Respecter la casse", "Match case"], kind: "check" },
    wholeWords: { words: ["Mot entier", "Find whole words only"], kind: "check" },
  });
  if (!answer?.what) {
    return;
  }
  const options = answer.wholeWords ? `, , ${answer.matchCase ? "msoTrue" : "msoFalse"}, msoTrue` : answer.matchCase ? ", , msoTrue" : "";
  const flat = (shapes) => shapes.flatMap((shape) => [shape, ...flat(shape.items ?? [])]);
  const statements = screen().slides.flatMap((slide) => flat(slide.shapes).filter((shape) => shape.text).flatMap((shape) =>
    Array(countIn(textOf(shape), answer)).fill(`${shapeText(shape, slide.index)}.TextFrame.TextRange.Replace ${literal(answer.what)}, ${literal(answer.by)}${options}`)));
  if (statements.length > 0) {
    await perform(...statements);
  } else {
    await ask(["Le texte n'a pas été trouvé.", "The text was not found."], { what: { words: ["Rechercher", "Find what"], value: answer.what } });
  }
}

export async function wordArt() {
  const answer = await ask(["WordArt", "WordArt"], {
    text: { words: ["Texte", "Text"], value: say(["Votre texte", "Your text"]) },
    style: { words: ["Style", "Style"], value: "1", choices: Array.from({ length: 30 }, (_, place) => [["Style {0}", "Style {0}"].map((word) => word.replace("{0}", place + 1)), String(place + 1)]) },
    size: { words: ["Taille (points)", "Size (points)"], value: "36" },
  });
  if (answer?.text) {
    await perform(`${shapesText()}.AddTextEffect(msoTextEffect${answer.style}, ${literal(answer.text)}, "Arial Black", ${Number(answer.size) || 36}, msoFalse, msoFalse, 100, 40).Select`);
  }
}

export async function size() {
  const [first] = selectedShapes();
  const sides = [["height", "Height", ["Hauteur", "Height"]], ["width", "Width", ["Largeur", "Width"]], ["left", "Left", ["Horizontal", "Horizontal"]], ["top", "Top", ["Vertical", "Vertical"]]];
  const answer = await ask(["Taille et position", "Size and Position"], Object.fromEntries(sides.map(([side, , text]) => [side, { words: text, kind: "length", value: first[side] }])));
  const statements = answer ? sides.filter(([side]) => answer[side] !== first[side]).map(([side, member]) => `${selectionOf(selectedShapes())}.${member} = ${number(answer[side])}`) : [];
  if (statements.length > 0) {
    await perform(...statements);
  }
}

export async function grid() {
  const answer = await ask(["Grille et repères", "Grid and Guides"], {
    snaps: { words: ["Aligner les objets sur la grille", "Snap objects to grid"], kind: "check", value: screen().snapToGrid },
  });
  if (answer && answer.snaps !== screen().snapToGrid) {
    await perform(`ActivePresentation.SnapToGrid = ${answer.snaps ? "msoTrue" : "msoFalse"}`);
  }
}
