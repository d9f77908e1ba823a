// Talks with exercise-host, one request after the other: gestures are made in the order in which they came.

import { setState } from "./state.js";

let seat = "";
let last = Promise.resolve();
let waiting = 0; // orders that are not done
const listeners = { said: () => {}, lost: () => {} };

/** Says what to do with words of the server's, and with the loss of it. */
export function listen(said, lost) {
  Object.assign(listeners, { said, lost });
}

async function post(name, body = {}) {
  const answer = await fetch(name, { method: "POST", headers: { "Content-Type": "application/json" }, body: JSON.stringify({ seat, ...body }) });
  const content = await answer.json();
  if (answer.status === 409) {
    throw Object.assign(new Error(content.error), { isTaken: true });
  }
  return content;
}

/** Sits down before the exercise, in the place of another page where that is wanted. */
export async function sit(takesOver = false) {
  seat = (await post(takesOver ? "take" : "join")).seat;
  await order("state");
}

/** Has something done, and shows what has become of it. Answers with false where it could not be done. */
export function order(name, body) {
  waiting += 1;
  document.body.ariaBusy = "true";
  const done = last.then(async () => {
    try {
      const answer = await post(name, body);
      if (answer.state) {
        setState(answer.state);
      }
      listeners.said(answer.error ?? answer.said ?? "", Boolean(answer.error));
      return !answer.error;
    } catch (error) {
      listeners.lost(error);
      return false;
    } finally {
      waiting -= 1;
      document.body.ariaBusy = String(waiting > 0);
    }
  });
  last = done;
  return done;
}

/** True while an answer is awaited. */
export const isBusy = () => waiting > 0;

/** Once all that was ordered is done. */
export const settled = () => last;

/** Makes a gesture: one statement, or a few that belong together. */
export const perform = (...statements) => order("do", { statements });

const heartbeat = 30_000;
setInterval(() => seat && post("beat").catch(listeners.lost), heartbeat);

addEventListener("pagehide", () => {
  navigator.sendBeacon("leave", JSON.stringify({ seat }));
});
addEventListener("pageshow", (event) => event.persisted && location.reload());
