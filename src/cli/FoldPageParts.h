// The look of a page that folds, and what it does. The page allows these texts and no others.
#pragma once

#include <string_view>

namespace tessaryn {

inline constexpr std::string_view FoldPageStyle = R"css(
:root { color-scheme: light dark; --paper: #fff; --ink: #111; --faint: #5a5a5a; --words: #000096;
  --bar: #9a9a9a; --picked: #fff0b8; --from: #dcebff; --good: #0a5c1e; --bad: #a80000; }
@media (prefers-color-scheme: dark) { :root { --paper: #15171a; --ink: #e8e8e8; --faint: #a8a8a8;
  --words: #a9b8ff; --bar: #666; --picked: #4d4200; --from: #17385f; --good: #7fd894;
  --bad: #ff9b9b; } }
* { box-sizing: border-box; }
body { margin: 0 auto; padding: 1rem 1rem 8rem; max-width: 64rem; background: var(--paper);
  color: var(--ink); font: 1rem/1.45 system-ui, sans-serif; overflow-wrap: anywhere; }
h1 { font-size: 1.4rem; }
.verdict { border-left: .3rem solid var(--bad); padding-left: .6rem; }
.verdict.accepted { border-color: var(--good); }
.words { white-space: pre-wrap; color: var(--words); margin: .8rem 0 .3rem; }
.line { display: grid; grid-template-columns: minmax(3.4em, auto) 1fr auto; gap: 0 .6rem;
  padding: .15rem .3rem; scroll-margin: 4rem 0 50vh; content-visibility: auto;
  contain-intrinsic-size: auto 1.8rem; }
.statement { white-space: pre-wrap; font-family: ui-monospace, "DejaVu Sans Mono", monospace; }
.number, .rule { color: var(--faint); }
.rule { text-align: right; font-size: .85em; cursor: pointer; }
.number { text-align: right; }
a { color: inherit; text-underline-offset: .2em; }
.number { text-decoration: none; }
.line:target, .picked { background: var(--picked); }
.from { background: var(--from); }
.from .number::before { content: "\25B8"; }
.picked .number { font-weight: bold; }
details { border-left: 2px solid var(--bar); margin-left: .6rem; padding-left: .3rem; }
summary { color: var(--faint); cursor: pointer; padding: .25rem 0; }
details[open] > summary > span { display: none; }
details:not([open]):has(.from) > summary { background: var(--from); }
button { font: inherit; padding: .3rem .8rem; margin-right: .5rem; }
#grounds { position: fixed; left: 0; right: 0; bottom: 0; max-height: 45vh; overflow: auto;
  padding: .6rem 1rem; background: var(--paper); border-top: 2px solid var(--ink); }
#grounds > * { max-width: 62rem; margin: .2rem auto; }
#grounds ul { padding-left: 1.2rem; }
@media (max-width: 40rem) {
  body { padding: .6rem .6rem 8rem; }
  .line { grid-template-columns: minmax(2.6em, auto) 1fr; }
  .rule { grid-column: 2; text-align: left; }
  details { margin-left: .15rem; }
  details details details details details { margin-left: 0; padding-left: 1px; }
}
@media print {
  :root { color-scheme: light; --paper: #fff; --ink: #000; --faint: #444; --words: #000096;
    --bar: #888; --picked: #fff; --from: #fff; --good: #000; --bad: #000; }
  body { padding: 0; max-width: none; font-size: 10pt; }
  .tools, #grounds { display: none; }
  .line { break-inside: avoid; content-visibility: visible; }
}
)css";

// Without it all is there but what a line rests on, and a link opens no block that it leads into.
inline constexpr std::string_view FoldPageScript = R"js(
'use strict';
const panel = document.getElementById('grounds');
const accepted = document.querySelector('.verdict.accepted') !== null;
const lineAt = number => document.getElementById('line' + number);
const numbersIn = text => (text || '').split(' ').filter(Boolean).map(Number);
const numberOf = line => Number(line.id.slice(4));

function open(element) {
  for (let at = element; at; at = at.parentElement) if (at.localName === 'details') at.open = true;
}

function made(name, text, ...children) {
  const element = document.createElement(name);
  element.textContent = text;
  element.append(...children);
  return element;
}

function linkTo(number) {
  const link = made('a', number);
  link.href = '#line' + number;
  return link;
}

// The lines that a line comes from, itself included.
function ancestry(line) {
  const found = new Set([line]);
  for (const at of found) {
    for (const number of numbersIn(at.dataset.from)) found.add(lineAt(number));
  }
  return [...found].sort((one, other) => numberOf(one) - numberOf(other));
}

// In words: what these rest on that was not derived. What reads alike is told once.
function groundsOf(line) {
  const number = numberOf(line);
  const grounds = new Map();
  const add = (words, at) => {
    const text = words.replace(/ in line \d+$/, '');
    if (!grounds.has(text)) grounds.set(text, at);
  };
  for (const at of ancestry(line)) {
    const until = Number(at.dataset.until || 0);
    if (at.dataset.ground && !(until && until <= number)) add(at.dataset.ground, numberOf(at));
  }
  for (const at of numbersIn(line.dataset.speaks)) add(lineAt(at).dataset.choice, at);
  return [...grounds];
}

function clear() {
  for (const line of document.querySelectorAll('.picked, .from')) {
    line.classList.remove('picked', 'from');
  }
  panel.hidden = true;
}

function tell(line) {
  clear();
  line.classList.add('picked');
  const rule = line.querySelector('.rule');
  const direct = new Set(numbersIn(line.dataset.from));
  for (const link of rule.querySelectorAll('a')) direct.add(Number(link.hash.slice(5)));
  for (const number of direct) lineAt(number).classList.add('from');
  const head = made('p', 'Line ' + numberOf(line) + ': ' + rule.textContent);
  panel.replaceChildren(head);
  const grounds = accepted ? groundsOf(line) : [];
  if (!accepted) {
    panel.append(made('p', 'What it rests on is not known, as the proof was not accepted.'));
  } else if (grounds.length === 0) {
    panel.append(made('p', 'It is proved: it rests on nothing but the rules.'));
  } else {
    const list = made('ul', '');
    for (const [text, at] of grounds) list.append(made('li', text + ' in line ', linkTo(at)));
    panel.append(made('p', 'It rests on'), list);
  }
  const close = made('button', 'Close');
  close.addEventListener('click', clear);
  panel.append(close);
  panel.hidden = false;
  line.scrollIntoView({block: 'nearest'});
}

document.addEventListener('click', event => {
  const link = event.target.closest('a[href^="#line"]');
  const line = event.target.closest('.line');
  if (link && !link.classList.contains('number')) {
    open(document.getElementById(link.hash.slice(1)));
  } else if (line && event.target.closest('.number, .rule')) {
    event.preventDefault();
    tell(line);
  }
});
document.addEventListener('keydown', event => {
  if (event.key === 'Escape') clear();
});

function goToHash() {
  const line = location.hash.startsWith('#line') && document.getElementById(location.hash.slice(1));
  if (line) {
    open(line);
    line.scrollIntoView();
  }
}
addEventListener('hashchange', goToHash);
goToHash();

for (const [id, unfold] of [['fold', false], ['unfold', true]]) {
  document.getElementById(id).addEventListener('click', () => {
    for (const block of document.querySelectorAll('details')) block.open = unfold;
  });
}
document.querySelector('.tools').hidden = false;
)js";

}  // namespace tessaryn
