// The beginning: takes the seat before the exercise, and shows it.

import "./slide.js";
import "./strip.js";
import "./menus.js";
import "./panel.js";
import "./pointer.js";
import "./keys.js";
import { said } from "./panel.js";
import { sit } from "./server.js";
import { language, say } from "./words.js";

document.documentElement.lang = language;

/** A page that is loaded anew finds its own seat still warm for a moment. */
async function begin(tries) {
  try {
    await sit(location.search === "?take");
    if (location.search !== "") {
      history.replaceState(null, "", location.pathname);
    }
    document.getElementById("slide").focus();
  } catch (error) {
    if (tries > 0 && error.isTaken) {
      setTimeout(() => begin(tries - 1), 300);
    } else {
      document.body.classList.add("lost");
      said(error.message, true);
      const take = Object.assign(document.createElement("button"), { type: "button", id: "do-take", textContent: say(["Jouer ici", "Play Here"]) });
      take.addEventListener("click", () => location.assign("?take"));
      document.getElementById("said").after(take);
    }
  }
}

begin(4);
