// What menus, buttons and keys can do. A command is a name in two languages, what must be there for it, and the statement that it
// makes, or what it does to come to one.

import * as dialogs from "./dialogs.js";
import { order, perform } from "./server.js";
import { Kind, screen, selectedShapes, selectionKind, shownSlide, state } from "./state.js";
import { selection, selectionOf, shapesText, shapeText, shownSlideText } from "./statements.js";
import { edit, finish, give, isEditing, lookThere } from "./text.js";
import { autoShape, freeform, line, pick, textBox } from "./tools.js";

const chosen = () => selectionOf(selectedShapes());
const hasShapes = () => selectedShapes().length > 0;
const hasSlide = () => Boolean(shownSlide());
const isOpen = () => Boolean(screen()?.presentation);
const on = (member) => ({ needs: hasShapes, make: () => `${chosen()}.${member}` });
const drawWith = (tool) => ({ needs: hasSlide, act: () => pick(tool), tool });

/** Bold, italic, underline: of the characters chosen, else of all text of the shapes chosen. */
function style(member) {
  const key = member.toLowerCase();
  return {
    keepsTyping: true,
    needs: () => isEditing() || selectedShapes().some((shape) => shape.text),
    async act() {
      if (isEditing()) {
        return give(`Font.${member} = ${lookThere()[key] ? "msoFalse" : "msoTrue"}`);
      }
      const written = selectedShapes().filter((shape) => shape.text);
      const value = written[0].text.runs[0][key] ? "msoFalse" : "msoTrue";
      return perform(...written.map((shape) => `${shapeText(shape)}.TextFrame.TextRange.Font.${member} = ${value}`));
    },
  };
}

/** What is in the clipboard's way depends on what is chosen; PowerPoint takes slides, shapes and text alike. */
const ofSelection = (member) => ({ needs: () => selectionKind() !== Kind.nothing, make: () => `ActiveWindow.Selection.${member}` });

function erase() {
  return selectionKind() === Kind.text ? `${chosen()}.Delete` : "ActiveWindow.Selection.Delete";
}

function duplicate() {
  return selectionKind() === Kind.slides ? "ActiveWindow.Selection.SlideRange.Duplicate" : `${selection}.Duplicate.Select`;
}

export const commands = {
  save: { words: ["Enregistrer", "Save"], keys: "Ctrl+S", needs: isOpen, make: () => "ActivePresentation.Save" },
  saveAs: { words: ["Enregistrer sous…", "Save As…"], needs: isOpen, act: dialogs.saveAs },
  close: { words: ["Fermer la présentation", "Close the presentation"], needs: isOpen, make: () => "ActivePresentation.Close" },
  exit: { words: ["Quitter PowerPoint", "Exit PowerPoint"], needs: () => screen()?.running, make: () => "PowerPoint.Close" },
  undo: { words: ["Annuler", "Undo"], keys: "Ctrl+Z", needs: () => state().statements.length > 0, act: () => order("undo") },
  cut: { words: ["Couper", "Cut"], keys: "Ctrl+X", ...ofSelection("Cut") },
  copy: { words: ["Copier", "Copy"], keys: "Ctrl+C", ...ofSelection("Copy") },
  paste: { words: ["Coller", "Paste"], keys: "Ctrl+V", needs: isOpen, make: () => "ActiveWindow.View.Paste" },
  duplicate: { words: ["Dupliquer", "Duplicate"], keys: "Ctrl+D", needs: () => hasShapes() || selectionKind() === Kind.slides, make: duplicate },
  erase: { words: ["Effacer", "Clear"], keys: "Delete", needs: () => selectionKind() !== Kind.nothing, make: erase },
  selectAll: { words: ["Sélectionner tout", "Select All"], keys: "Ctrl+A", needs: hasSlide, make: () => `${shapesText()}.SelectAll` },
  replace: { words: ["Remplacer…", "Replace…"], keys: "Ctrl+H", needs: isOpen, act: dialogs.replace },
  eraseSlide: { words: ["Supprimer la diapositive", "Delete Slide"], needs: hasSlide, make: () => `${shownSlideText()}.Delete` },
  slideUp: { words: ["Monter la diapositive", "Move Slide Up"], needs: () => screen()?.slide > 1, make: () => `${shownSlideText()}.MoveTo ${screen().slide - 1}` },
  slideDown: { words: ["Descendre la diapositive", "Move Slide Down"], needs: () => hasSlide() && screen().slide < screen().slides.length, make: () => `${shownSlideText()}.MoveTo ${screen().slide + 1}` },
  normal: { words: ["Normal", "Normal"], needs: isOpen, make: () => "ActiveWindow.ViewType = ppViewNormal" },
  sorter: { words: ["Trieuse de diapositives", "Slide Sorter"], needs: isOpen, make: () => "ActiveWindow.ViewType = ppViewSlideSorter" },
  newSlide: { words: ["Nouvelle diapositive", "New Slide"], keys: "Ctrl+M", needs: isOpen, make: () => `ActivePresentation.Slides.Add(${(screen().slide ?? 0) + 1}, ppLayoutText).Select` },
  textBox: { words: ["Zone de texte", "Text Box"], ...drawWith(textBox) },
  wordArt: { words: ["WordArt…", "WordArt…"], needs: hasSlide, act: dialogs.wordArt },
  rectangle: { words: ["Rectangle", "Rectangle"], ...drawWith(autoShape("msoShapeRectangle")) },
  oval: { words: ["Ellipse", "Oval"], ...drawWith(autoShape("msoShapeOval")) },
  line: { words: ["Trait", "Line"], ...drawWith(line) },
  freeform: { words: ["Forme libre", "Freeform"], ...drawWith(freeform) },
  arrow: { words: ["Sélectionner les objets", "Select Objects"], needs: hasSlide, act: () => pick(null), tool: null },
  editText: { words: ["Modifier le texte", "Edit Text"], keys: "F2", needs: () => selectedShapes().length === 1 && Boolean(selectedShapes()[0].text), act: () => edit(selectedShapes()[0]) },
  bold: { words: ["Gras", "Bold"], keys: "Ctrl+B", ...style("Bold") },
  italic: { words: ["Italique", "Italic"], keys: "Ctrl+I", ...style("Italic") },
  underline: { words: ["Souligné", "Underline"], keys: "Ctrl+U", ...style("Underline") },
  size: { words: ["Taille et position…", "Size and Position…"], needs: hasShapes, act: dialogs.size },
  group: { words: ["Grouper", "Group"], keys: "Ctrl+G", needs: () => selectedShapes().length > 1, make: () => `${selection}.Group.Select` },
  ungroup: { words: ["Dissocier", "Ungroup"], keys: "Ctrl+Shift+G", needs: () => selectedShapes().some((shape) => shape.items), make: () => `${selection}.Ungroup.Select` },
  toFront: { words: ["Mettre au premier plan", "Bring to Front"], ...on("ZOrder msoBringToFront") },
  toBack: { words: ["Mettre en arrière-plan", "Send to Back"], ...on("ZOrder msoSendToBack") },
  forward: { words: ["Avancer", "Bring Forward"], ...on("ZOrder msoBringForward") },
  backward: { words: ["Reculer", "Send Backward"], ...on("ZOrder msoSendBackward") },
  grid: { words: ["Grille et repères…", "Grid and Guides…"], needs: isOpen, act: dialogs.grid },
};

/** Does what a command says; what is being typed is told first, unless the command is about it. */
export async function run(command) {
  if (!command.needs()) {
    return;
  }
  if (!command.keepsTyping) {
    await finish();
  }
  await (command.act ? command.act() : perform(command.make()));
}
