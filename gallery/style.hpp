// The page's style sheet: quiet, legible, light or dark as the reader's system is.
#pragma once

namespace gallery {

inline constexpr char style[] = R"css(
:root {
  color-scheme: light dark;
  --page: #f6f5f2; --card: #fff; --text: #24262b; --quiet: #6b6f78; --line: #e2e0da; --accent: #0b6e75;
  --code: #f1f0ec; --check: #dcdad4;
  --c0: #0b6e75; --c1: #c2571a; --c2: #5b57b8; --c3: #9a7d0a; --c4: #b03060; --c5: #4a8a2c;
}
@media (prefers-color-scheme: dark) {
  :root {
    --page: #16181c; --card: #1f2227; --text: #e4e3df; --quiet: #989ca6; --line: #31353c; --accent: #5cc4cb;
    --code: #181b1f; --check: #3a3e46;
    --c0: #5cc4cb; --c1: #f0955a; --c2: #a6a2ff; --c3: #e0c250; --c4: #f07fa8; --c5: #95d072;
  }
}
* { box-sizing: border-box; }
html { scroll-behavior: smooth; }
body { margin: 0; background: var(--page); color: var(--text); font: 16px/1.55 system-ui, sans-serif; }
a { color: var(--accent); text-decoration: none; }
nav { position: sticky; top: 0; z-index: 1; padding: .6rem 1.2rem; background: var(--page);
      border-bottom: 1px solid var(--line); overflow-x: auto; white-space: nowrap; }
nav .home { font-weight: 650; letter-spacing: .02em; margin-right: 1.2rem; }
nav ol { display: inline; list-style: none; margin: 0; padding: 0; }
nav li { display: inline; margin-right: 1.1rem; font-size: .9rem; }
nav li a { color: var(--quiet); }
nav a:hover { color: var(--accent); }
main { max-width: 1500px; margin: 0 auto; padding: 2rem 1.5rem 6rem; }
h1 { font-size: 2.6rem; letter-spacing: -.02em; margin: 0 0 .3rem; line-height: 1.1; }
h2 { font-size: 1.55rem; letter-spacing: -.01em; margin: 4rem 0 .3rem; padding-top: .4rem; scroll-margin-top: 3rem; }
section { scroll-margin-top: 1.5rem; }
h3 { font-size: 1rem; margin: 0 0 .4rem; }
.lead { max-width: 46rem; color: var(--quiet); margin: 0 0 1.4rem; }
.facts { color: var(--quiet); font-size: .82rem; margin: 0; font-variant-numeric: tabular-nums; }
.facts b { color: var(--accent); font-weight: 600; }
.photos { display: grid; grid-template-columns: repeat(auto-fit, minmax(160px, 1fr)); gap: 1rem; max-width: 64rem;
          margin-bottom: 1rem; }
.photos img { width: 100%; aspect-ratio: 3 / 2; object-fit: cover; border-radius: 8px; }
.grid { display: grid; grid-template-columns: repeat(auto-fill, minmax(320px, 1fr)); gap: 1.4rem; align-items: start;
        grid-auto-flow: dense; }
figure { margin: 0; background: var(--card); border: 1px solid var(--line); border-radius: 10px; overflow: hidden; }
figure.wide { grid-column: 1 / -1; }
figure.double { grid-column: span 2; }
figure > a { display: grid; place-items: center; background: var(--code); }
figure img { display: block; max-width: 100%; height: auto; }
img.pixels { image-rendering: pixelated; }
img.alpha { background: repeating-conic-gradient(var(--check) 0 25%, transparent 0 50%) 0 0 / 16px 16px; }
figcaption { padding: .9rem 1.1rem 1rem; }
figcaption p { margin: 0 0 .6rem; font-size: .92rem; }
figcaption .facts { margin: 0; font-size: .82rem; }
pre { margin: 0 0 .7rem; padding: .55rem .7rem; background: var(--code); border-radius: 6px; overflow-x: auto;
      font-size: .8rem; line-height: 1.45; white-space: pre-wrap; overflow-wrap: anywhere; }
code { font-family: ui-monospace, "SF Mono", Consolas, "DejaVu Sans Mono", monospace; }
code b { color: var(--accent); font-weight: 600; }
audio { display: block; width: calc(100% - 2.2rem); margin: .9rem 1.1rem 0; height: 36px; }
svg { display: block; width: 100%; }
svg.wave { height: 150px; background: var(--code); }
svg.wave path { stroke-width: 1; fill: none; vector-effect: non-scaling-stroke; }
svg.plot { max-width: 1100px; margin: 1rem auto 0; font: 11px system-ui, sans-serif; }
svg text { fill: var(--quiet); } svg text.y { text-anchor: end; } svg text.x { text-anchor: middle; }
svg .grid { stroke: var(--line); } svg .mark { stroke: var(--quiet); stroke-dasharray: 3 4; } svg .line { fill: none; stroke-width: 1.6; stroke-linejoin: round; }
svg .c0 { stroke: var(--c0); } svg .c1 { stroke: var(--c1); } svg .c2 { stroke: var(--c2); }
svg .c3 { stroke: var(--c3); } svg .c4 { stroke: var(--c4); } svg .c5 { stroke: var(--c5); }
.legend { text-align: center; margin: .3rem 0 0; font-size: .85rem; }
.legend span { margin: 0 .7rem; } .legend span::before { content: "━ "; }
.legend .c0::before { color: var(--c0); } .legend .c1::before { color: var(--c1); } .legend .c2::before { color: var(--c2); }
.legend .c3::before { color: var(--c3); } .legend .c4::before { color: var(--c4); } .legend .c5::before { color: var(--c5); }
.table { overflow-x: auto; padding: 1rem 1.1rem 0; }
table { border-collapse: collapse; font-size: .88rem; font-variant-numeric: tabular-nums; }
th, td { text-align: right; padding: .35rem .9rem; border-bottom: 1px solid var(--line); }
th:first-child, td:first-child { text-align: left; padding-left: 0; }
th { color: var(--quiet); font-weight: 600; }
@media (min-width: 1100px) {
  body { display: grid; grid-template-columns: 230px 1fr; }
  nav { position: sticky; height: 100vh; border-bottom: 0; border-right: 1px solid var(--line); padding: 2rem 1.4rem;
        overflow-y: auto; white-space: normal; }
  nav .home { display: block; font-size: 1.15rem; margin: 0 0 1rem; }
  nav ol { display: block; } nav li { display: block; margin: 0 0 .45rem; }
  main { width: 100%; padding: 2.5rem 2.5rem 6rem; }
}
@media (max-width: 700px) { .grid { grid-template-columns: 1fr; }
  figure.double { grid-column: auto; } main { padding: 1.2rem 1rem 4rem; } }
)css";

}  // namespace gallery
