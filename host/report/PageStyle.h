#pragma once

#include <string_view>

namespace host::report {

/// How the page of a report looks: on a phone and on a desk, by day and by night.
inline constexpr std::string_view pageStyle = R"css(
:root {
  color-scheme: light dark;
  --paper: #faf9f6; --card: #ffffff; --ink: #23262d; --quiet: #5a6170; --line: #dfdcd4;
  --good: #1b6a3d; --good-paper: #e4f2e8; --bad: #ab2119; --bad-paper: #fbe7e4; --link: #1d5fa8;
}
@media (prefers-color-scheme: dark) {
  :root {
    --paper: #15171b; --card: #1d2025; --ink: #e7e4dd; --quiet: #a4aab5; --line: #33373f;
    --good: #86d6a3; --good-paper: #1d3326; --bad: #ff9f94; --bad-paper: #40211e; --link: #8dbdf0;
  }
}
* { box-sizing: border-box; }
html { -webkit-text-size-adjust: 100%; scroll-behavior: smooth; }
body {
  margin: 0 auto; padding: 2rem 1rem 4rem; max-width: 72rem; background: var(--paper); color: var(--ink);
  font: 1rem/1.5 system-ui, -apple-system, "Segoe UI", Roboto, "Helvetica Neue", Arial, sans-serif;
  overflow-wrap: anywhere;
}
h1 { margin: 0; font-size: 1.6rem; line-height: 1.2; font-weight: 650; letter-spacing: -.01em; }
p { margin: .4rem 0; }
a { color: var(--link); text-underline-offset: .15em; }
a:focus-visible, summary:focus-visible { outline: 2px solid var(--link); outline-offset: 2px; border-radius: 6px; }
.quiet { color: var(--quiet); font-size: .9rem; }
.totals { display: flex; flex-wrap: wrap; gap: .5rem 2rem; margin: 1.25rem 0 1.5rem; padding: 0; list-style: none; }
.totals b { display: block; font-size: 1.7rem; line-height: 1.2; font-weight: 600; font-variant-numeric: tabular-nums; }
.totals span { color: var(--quiet); font-size: .9rem; }
.totals .good b { color: var(--good); }
.totals .bad b { color: var(--bad); }
.fallen { margin: 0 0 1.5rem; padding: .75rem 1rem; border-radius: 10px; background: var(--bad-paper); }
.fallen ul { margin: .25rem 0; padding-left: 1.2rem; }
details.file { margin: 0 0 .5rem; border: 1px solid var(--line); border-radius: 10px; background: var(--card); }
summary { cursor: pointer; list-style: none; }
summary::-webkit-details-marker { display: none; }
summary h2, summary h3 { margin: 0; font: inherit; }
.number::before, h3::before {
  content: "▸"; content: "▸" / ""; display: inline-block; width: 1.1rem; color: var(--quiet); font-weight: 400;
}
[open] > summary .number::before, [open] > summary h3::before { content: "▾"; content: "▾" / ""; }
.file > summary {
  display: grid; grid-template-columns: minmax(0, 1fr) minmax(0, 18rem) 8rem; gap: .25rem 1rem;
  align-items: center; padding: .7rem 1rem;
}
.file > summary h2 { display: grid; grid-template-columns: 5.5rem minmax(0, 1fr); gap: .25rem 1rem; align-items: center; }
.number { font-weight: 650; font-variant-numeric: tabular-nums; }
.count { justify-self: end; font-size: .9rem; font-variant-numeric: tabular-nums; white-space: nowrap; }
.good { color: var(--good); }
.bad { color: var(--bad); }
.letters { display: flex; flex-wrap: wrap; gap: .25rem; }
.letter {
  display: inline-block; min-width: 1.6rem; padding: 0 .35rem; border-radius: 6px; text-align: center;
  font-size: .85rem; line-height: 1.5rem; font-weight: 600; background: var(--good-paper); color: var(--good);
}
.letter.general { background: var(--paper); color: var(--quiet); box-shadow: inset 0 0 0 1px var(--line); }
.letter.missed {
  background: none; color: var(--quiet); border: 1px dashed var(--quiet); line-height: calc(1.5rem - 2px);
  font-weight: 400;
}
.inside { padding: .25rem 1rem 1rem; border-top: 1px solid var(--line); }
.reach { display: grid; grid-template-columns: auto minmax(0, 1fr); gap: .35rem .75rem; margin: .75rem 0 1rem; }
.reach dt, .reach dd { margin: 0; }
.reach dd { font-size: .9rem; }
details.scenario { border-top: 1px solid var(--line); }
.scenario > summary { display: flex; flex-wrap: wrap; gap: .1rem .6rem; padding: .6rem 0; }
.scenario > summary h3 { flex: 1 1 16rem; min-width: 0; }
.verdict { font-size: .9rem; }
.attempt { display: grid; gap: .75rem 1.5rem; margin: .25rem 0 1.25rem; }
.moves { margin: 0; padding: .5rem .75rem; border-radius: 8px; background: var(--paper); list-style: none; }
.moves li { display: grid; grid-template-columns: 2.2rem minmax(0, 1fr); gap: .6rem; }
.moves i { color: var(--quiet); font-style: normal; text-align: right; font-size: .85rem; line-height: 1.55rem; }
code { font: .86rem/1.55 ui-monospace, "SF Mono", Menlo, Consolas, monospace; white-space: pre-wrap; }
.reading { margin: .5rem 0 0; font-size: .9rem; }
.why { display: block; color: var(--ink); }
.seen { display: grid; gap: .6rem; align-self: start; }
.slides { display: grid; grid-template-columns: repeat(2, minmax(0, 1fr)); gap: .6rem; align-self: start; }
figure { margin: 0; }
figure svg {
  display: block; width: 100%; height: auto; border: 1px solid var(--line); border-radius: 4px; background: #fff;
}
.mark {
  font: 700 24px "Segoe UI", Arial, sans-serif; fill: #a3005c; paint-order: stroke; stroke: #fff; stroke-width: 5px;
}
.group { fill: none; stroke: #a3005c; stroke-width: 2px; stroke-dasharray: 8 5; }
figcaption { margin-top: .2rem; color: var(--quiet); font-size: .85rem; }
.gallery { position: absolute; width: 0; height: 0; overflow: hidden; }
@media (min-width: 60rem) { .attempt { grid-template-columns: minmax(0, 1fr) minmax(0, 30rem); } }
@media (max-width: 46rem) {
  .file > summary { grid-template-columns: minmax(0, 1fr) auto; }
  .file > summary h2, .file > summary .letters { grid-column: 1 / -1; }
  .file > summary h2 { grid-row: 1; grid-template-columns: minmax(0, 1fr); }
  .file > summary .count { grid-row: 1; grid-column: 2; align-self: start; }
}
@media print { details.file { break-inside: avoid; } }
)css";

} // namespace host::report
