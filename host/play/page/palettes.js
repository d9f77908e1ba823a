// Commands that come in rows: kinds of shapes, colours, shadows, 3-D styles, layouts.

import { perform } from "./server.js";
import { screen, selectedShapes, shownSlide } from "./state.js";
import { rgb, selectionOf, shapeText, shownSlideText } from "./statements.js";
import { give, isEditing } from "./text.js";
import { autoShape, pick } from "./tools.js";

const hasShapes = () => selectedShapes().length > 0;
const hasSlide = () => Boolean(shownSlide());
const on = (words, member) => ({ words, needs: hasShapes, make: () => `${selectionOf(selectedShapes())}.${member}` });

const kinds = {
  Rectangle: "Rectangle", RoundedRectangle: "Rectangle à coins arrondis", Oval: "Ellipse", Diamond: "Losange", IsoscelesTriangle: "Triangle isocèle",
  RightTriangle: "Triangle rectangle", Parallelogram: "Parallélogramme", Trapezoid: "Trapèze", Hexagon: "Hexagone", Cross: "Croix", Cube: "Cube", Can: "Cylindre",
  Sun: "Soleil", Moon: "Lune", Heart: "Cœur", SmileyFace: "Visage souriant", RightBrace: "Accolade fermante", RightArrow: "Flèche droite", LeftArrow: "Flèche gauche",
  UpArrow: "Flèche vers le haut", DownArrow: "Flèche vers le bas", "5pointStar": "Étoile à 5 branches", FlowchartProcess: "Organigramme : processus",
  FlowchartDecision: "Organigramme : décision", RectangularCallout: "Bulle rectangulaire",
};
const spaced = (name) => name.replace("5point", "5-point ").replace(/([a-z])([A-Z])/g, "$1 $2");

export const shapes = Object.entries(kinds).map(([name, french]) => {
  const tool = autoShape(`msoShape${name}`);
  return { words: [french, spaced(name)], needs: hasSlide, act: () => pick(tool), tool };
});

const hues = [
  ["Noir", "Black", "#000000"], ["Blanc", "White", "#ffffff"], ["Rouge", "Red", "#ff0000"], ["Orange", "Orange", "#ff9900"], ["Jaune", "Yellow", "#ffff00"],
  ["Vert", "Green", "#008000"], ["Vert clair", "Lime", "#00ff00"], ["Turquoise", "Turquoise", "#00ffff"], ["Bleu", "Blue", "#0000ff"], ["Violet", "Violet", "#800080"],
  ["Rose", "Pink", "#ff99cc"], ["Gris moyen", "Mid Grey", "#808080"],
];
const schemes = [
  ["Arrière-plan", "Background"], ["Texte et lignes", "Text and Lines"], ["Ombres", "Shadows"], ["Titre", "Title Text"], ["Remplissages", "Fills"], ["Accentuation", "Accent 1"],
];
const schemeNames = ["ppBackground", "ppForeground", "ppShadow", "ppTitle", "ppFill", "ppAccent1"];

/** Colours of a member as RGB, then those of the presentation's scheme. */
const colorsOf = (member) => [
  ...hues.map(([french, english, hex]) => ({ ...on([french, english], `${member}.RGB = ${rgb(hex)}`), color: hex })),
  ...schemes.map((words, place) => on(words.map((word, at) => (at === 0 ? `Jeu : ${word}` : `Scheme: ${word}`)), `${member}.SchemeColor = ${schemeNames[place]}`)),
];

export const fills = [
  on(["Aucun remplissage", "No Fill"], "Fill.Visible = msoFalse"),
  ...colorsOf("Fill.ForeColor"),
  on(["Opaque", "Opaque"], "Fill.Transparency = 0"),
  on(["À moitié transparent", "Half transparent"], "Fill.Transparency = 0.5"),
  on(["Uni", "Solid"], "Fill.Solid"),
  on(["Dégradé de deux couleurs", "Two-colour gradient"], "Fill.TwoColorGradient msoGradientHorizontal, 1"),
  on(["Motif", "Pattern"], "Fill.Patterned msoPattern50Percent"),
];

export const lines = [on(["Aucun trait", "No Line"], "Line.Visible = msoFalse"), ...colorsOf("Line.ForeColor")];

/** The colour of the characters chosen, else of all text of the shapes chosen. */
export const fontColors = hues.map(([french, english, hex]) => ({
  words: [french, english],
  color: hex,
  keepsTyping: true,
  needs: () => isEditing() || selectedShapes().some((shape) => shape.text),
  act: () => isEditing()
    ? give(`Font.Color.RGB = ${rgb(hex)}`)
    : perform(...selectedShapes().filter((shape) => shape.text).map((shape) => `${shapeText(shape)}.TextFrame.TextRange.Font.Color.RGB = ${rgb(hex)}`)),
}));

const numbered = (count, words, member) => Array.from({ length: count }, (_, place) => on(words.map((word) => `${word} ${place + 1}`), member(place + 1)));

export const shadows = [on(["Sans ombre", "No Shadow"], "Shadow.Visible = msoFalse"), ...numbered(20, ["Style ombre", "Shadow Style"], (style) => `Shadow.Type = msoShadow${style}`)];
export const depths = [on(["Sans 3D", "No 3-D"], "ThreeD.Visible = msoFalse"), ...numbered(20, ["Style 3D", "3-D Style"], (style) => `ThreeD.SetThreeDFormat msoThreeD${style}`)];

export const layouts = [
  ["Diapositive de titre", "Title Slide", "Title"], ["Titre seul", "Title Only", "TitleOnly"], ["Titre et texte", "Title and Text", "Text"],
  ["Titre et deux contenus", "Two Columns", "TwoColumnText"], ["Vide", "Blank", "Blank"],
].map(([french, english, name]) => ({ words: [french, english], needs: hasSlide, make: () => `${shownSlideText()}.Layout = ppLayout${name}` }));

/** The presentations that are open; the one picked comes to the front. */
export const windows = () => (screen()?.presentations ?? []).map((name, place) => ({
  words: [name, name], needs: () => true, make: () => `Presentations(${place + 1}).Windows(1).Activate`,
}));
