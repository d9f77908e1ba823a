// The exercise around the slide: its task, the verdict, and the statements that the gestures have made.

import { ask } from "./dialogs.js";
import { bar } from "./menus.js";
import { listen, order } from "./server.js";
import { onState, screen, state } from "./state.js";
import { finish } from "./text.js";
import { say } from "./words.js";

const words = {
  judging: ["Verdict", "Verdict"],
  check: ["Vérifier", "Check"],
  reset: ["Recommencer", "Start Over"],
  next: ["Question suivante", "Next Question"],
  moves: ["Gestes", "Moves"],
  line: ["Instruction, ou ? et une valeur", "A statement, or ? and a value"],
  keeping: ["Scénario", "Scenario"],
  undo: ["Annuler le dernier", "Undo Last"],
  save: ["Enregistrer comme scénario…", "Save as a Scenario…"],
  file: ["Fichier", "File"],
  title: ["Ce que fait l'apprenant", "What the learner does"],
  passed: ["Réussi", "Passed"],
  failed: ["À revoir", "Not yet"],
  question: ["Question {0} :", "Question {0}:"],
  lost: ["exercise-host ne répond plus : relancez-le et rouvrez la page.", "exercise-host does not answer any more: start it again and open its page."],
  elsewhere: ["L'exercice se joue dans un autre onglet.", "The exercise is being played in another tab."],
  take: ["Jouer ici", "Play Here"],
  views: { 9: ["Normal", "Normal"], 7: ["Trieuse", "Slide Sorter"], 1: ["Diapositive", "Slide"] },
  panes: { 1: ["volet Diapositive", "slide pane"], 11: ["volet Plan", "outline pane"], 3: ["volet Commentaires", "notes pane"] },
  chosen: ["{0} sélectionné(s)", "{0} selected"],
  text: ["texte sélectionné", "text selected"],
  dialogs: ["boîte de dialogue ouverte", "a dialog is open"],
  grid: ["grille", "grid"],
};

const element = (id) => document.getElementById(id);

function button(name, act) {
  const made = Object.assign(document.createElement("button"), { type: "button", textContent: say(words[name]), id: `do-${name}` });
  made.addEventListener("click", act);
  return made;
}

async function save() {
  const number = state().question.number;
  const answer = await ask(words.save, { file: { words: words.file, value: `question-${number}.scn` }, title: { words: words.title } });
  if (answer) {
    await order("save", answer);
  }
}

const after = (act) => async () => {
  await finish();
  await act();
};

bar(element("judging"), words.judging, [
  button("check", after(() => order("check"))),
  button("reset", after(() => order("reset").then(() => element("slide").focus()))),
  button("next", after(() => order("open", { question: state().question.next }).then(() => element("slide").focus()))),
]);
bar(element("keeping"), words.keeping, [button("undo", after(() => order("undo"))), button("save", after(save))]);
element("moves").textContent = say(words.moves);
element("statements").ariaLabel = say(words.moves);
document.querySelector("label[for=line]").textContent = say(words.line);

const typed = []; // lines typed earlier, to be had back with the arrows
let place = 0;
const line = element("line");

element("typing").addEventListener("submit", async (event) => {
  event.preventDefault();
  const text = line.value.trim();
  if (text !== "") {
    typed.push(text);
    place = typed.length;
    if (text === "check" ? await order("check") : await order("say", { line: text })) {
      line.value = "";
    }
  }
});
line.addEventListener("keydown", (event) => {
  const step = { ArrowUp: -1, ArrowDown: 1 }[event.key];
  if (step && typed.length > 0) {
    event.preventDefault();
    place = Math.min(Math.max(place + step, 0), typed.length);
    line.value = typed[place] ?? "";
  }
});

export function said(text, isWrong) {
  element("said").textContent = text;
  element("said").classList.toggle("wrong", isWrong);
}

/** Says that the page plays no longer, and how it could again. */
function lost(error) {
  document.body.classList.add("lost");
  said(say(error.isTaken ? words.elsewhere : words.lost), true);
  if (error.isTaken && !element("do-take")) {
    element("said").after(button("take", () => location.assign("?take")));
  }
}

listen(said, lost);

function tellVerdict(verdict) {
  const box = element("verdict");
  box.hidden = !verdict;
  if (!verdict) {
    box.replaceChildren();
    return;
  }
  box.className = verdict.passed ? "passed" : "failed";
  const part = (name, className, text) => Object.assign(document.createElement(name), { className, textContent: text });
  box.replaceChildren(
    part("strong", "outcome", say(verdict.passed ? words.passed : words.failed)),
    ...(verdict.letter ? [part("b", "letter", verdict.letter)] : []),
    part("span", "meaning", verdict.meaning || (verdict.passed ? "" : verdict.reads)),
    part("span", "why", verdict.reason),
  );
}

function windowState() {
  const { running, view, pane, selection, dialogs, snapToGrid, presentation } = screen();
  const count = (selection?.shapes.length ?? 0) + (selection?.slides.length ?? 0);
  return !running ? "" : [
    presentation?.split("\\").at(-1),
    words.views[view] && say(words.views[view]),
    view === 9 && words.panes[pane] && say(words.panes[pane]),
    selection?.kind === 3 ? say(words.text) : count > 0 && say(words.chosen, count),
    snapToGrid && say(words.grid),
    dialogs > 0 && say(words.dialogs),
  ].filter(Boolean).join(" · ");
}

/** A statement, which is broken before a member where the line is too short for it. */
function row(statement) {
  const item = Object.assign(document.createElement("li"), { className: /^(check|expect)\b/i.test(statement) ? "check" : "" });
  item.append(...statement.split(/(?=\.[A-Z])/).flatMap((piece) => [document.createElement("wbr"), piece]));
  return item;
}

onState(({ question, statements, verdict }) => {
  document.title = `${question.number} – exercise-host`;
  element("number").textContent = say(words.question, question.number);
  element("task").textContent = question.task;
  element("do-next").hidden = !question.next;
  element("do-undo").disabled = statements.length === 0;
  const list = element("statements");
  list.replaceChildren(...statements.map(row));
  list.scrollTop = list.scrollHeight;
  tellVerdict(verdict);
  element("status").textContent = windowState();
});
