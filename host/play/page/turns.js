// Events in their turn: what begins a gesture sees the slide as the gesture before has left it.

import { isBusy, settled } from "./server.js";

const waiting = [];

async function catchUp() {
  while (waiting.length > 0) {
    await settled();
    waiting[0]();
    waiting.shift();
  }
}

/** A listener that waits for the server's answer where there is one to come; `begins` is false for what goes on with a gesture. */
export function inTurn(listener, begins = true) {
  return (event) => {
    if (waiting.length === 0 && !(begins && isBusy())) {
      listener(event);
    } else if (waiting.push(() => listener(event)) === 1) {
      catchUp();
    }
  };
}
