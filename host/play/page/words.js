// The page's own texts, after the browser's language.

const isFrench = (navigator.languages ?? [navigator.language]).map((each) => each.slice(0, 2)).find((each) => each === "fr" || each === "en") === "fr";

export const language = isFrench ? "fr" : "en";

/** Picks of a pair the text in the browser's language, and puts values in the places of {0}, {1}. */
export function say([french, english], ...values) {
  return (isFrench ? french : english).replace(/\{(\d)\}/g, (_, place) => values[place]);
}

/** A length as it is typed and read: centimetres, with the comma or point of the language. */
export function centimetres(points) {
  const text = String(Math.round((points / pointsPerCentimetre) * 100) / 100);
  return (isFrench ? text.replace(".", ",") : text) + " cm";
}

/** A length that was typed, in points: centimetres where no unit stands behind it. PowerPoint keeps whole eighths of a point. */
export function pointsOf(text) {
  const [, digits, unit] = text.trim().match(/^(-?\d+(?:[.,]\d+)?)\s*(cm|mm|pt|in|")?$/i) ?? [];
  const value = Number(digits?.replace(",", "."));
  const points = value * ({ mm: pointsPerCentimetre / 10, pt: 1, in: 72, '"': 72 }[unit?.toLowerCase()] ?? pointsPerCentimetre);
  return Number.isFinite(points) ? Math.floor(points * 8 + 1e-6) / 8 : null;
}

const pointsPerCentimetre = 72 / 2.54;
