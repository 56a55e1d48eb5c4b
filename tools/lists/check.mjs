// SPDX-License-Identifier: MIT

// Reads the four list files as the editor does, with its three ways of reading, and fails with a
// list of faults if an entry would not be found or would be found in the wrong place.

import { readFileSync } from 'node:fs';
import { dirname, join, resolve } from 'node:path';
import { fileURLToPath } from 'node:url';
import { checkPages } from './check-pages.mjs';
import { meant } from './sources/words.mjs';

// "ß" is a delimiter here and stays what it is; it has no single capital letter.
const upper = (text) => text.split('ß').map((part) => part.toUpperCase()).join('ß');
const lower = (text) => text.toLowerCase();

/** Lines of a text whose line ends are all CR LF. */
function linesOf(text) {
  return text.replace(/\r\n$/, '').split('\r\n');
}

/**
 * Tokens of a text: each ends at a comma or a line end, leading blanks are dropped, quotes keep
 * commas. A line end straight behind a comma adds no token.
 */
function tokensOf(text) {
  const tokens = [];
  let at = 0;
  while (at < text.length) {
    while (text[at] === ' ') at += 1;
    if (text[at] === '"') {
      const close = text.indexOf('"', at + 1);
      const stop = close < 0 ? text.length : close;
      tokens.push(text.slice(at + 1, stop));
      at = stop + 1;
      while (text[at] === ' ') at += 1;
      if (text[at] === ',') at += 1;
    } else {
      let stop = at;
      while (stop < text.length && text[stop] !== ',' && text[stop] !== '\r') stop += 1;
      tokens.push(text.slice(at, stop));
      at = text[stop] === ',' ? stop + 1 : stop;
    }
    if (text.startsWith('\r\n', at)) at += 2;
  }
  return tokens;
}

/** Every line followed by one blank. */
const flat = (lines) => lines.map((line) => `${line} `).join('');

const knownTagString = (lines) => lines.map((line) => `-${line}-/${line}`).join('');
const isKnown = (known, name) => upper(known).includes(`-${upper(name)}-`);

/** The tokens between an opener and "<e-"; the last block of that opener wins. */
function tokenBlock(tokens, opener, faults) {
  let block = null;
  for (let i = 0; i < tokens.length; i += 1) {
    if (tokens[i] !== opener) continue;
    const end = tokens.indexOf('<e-', i);
    if (end < 0) {
      faults.push(`"${opener}" has no end`);
      return block ?? [];
    }
    block = tokens.slice(i + 1, end);
    i = end;
  }
  if (block === null) faults.push(`"${opener}" is missing`);
  return block ?? [];
}

/** Where the entries of a tag or a script object begin, or -1. */
function blockStart(text, name) {
  const marker = `-${upper(name)}-`;
  const at = upper(text).indexOf(marker);
  return at < 0 ? -1 : at + marker.length + 1;
}

/** Entries from a start: a comma and one further character behind each, "<e-" behind the last. */
function entriesFrom(text, start) {
  const entries = [];
  let at = start;
  for (;;) {
    const comma = text.indexOf(',', at);
    const end = text.indexOf('<e-', at);
    if (comma < 0 || (end >= 0 && end < comma)) return entries;
    entries.push(text.slice(at, comma));
    at = comma + 2;
  }
}

/** What a block says to a person who reads it, for comparison with what the lookup yields. */
function writtenEntries(text, from) {
  const end = text.indexOf('<e-', from);
  return text.slice(from, end).split(',').map((entry) => entry.trim())
    .filter((entry) => entry !== '');
}

function twice(list, fold = lower) {
  const seen = new Set();
  return list.filter((item) => seen.has(fold(item)) || !seen.add(fold(item)));
}

function checkShape(file, bytes, faults) {
  const text = bytes.toString('latin1');
  const lines = linesOf(text);
  if (!text.endsWith('\r\n')) faults.push(`${file}: no line end at its end`);
  if (/\r(?!\n)|(^|[^\r])\n/.test(text)) faults.push(`${file}: a line end that is not CR LF`);
  if (/[\x81\x8d\x8f\x90\x9d]/.test(text)) faults.push(`${file}: not Windows-1252`);
  if (text.includes('"')) faults.push(`${file}: a quotation mark`);
  lines.forEach((line, i) => {
    if (line.trim() === '') faults.push(`${file}:${i + 1}: an empty line`);
    if (line !== line.trim()) faults.push(`${file}:${i + 1}: a blank at the line's edge`);
  });
  return lines;
}

// Names that the tag check meets on correct pages of each kind.
const mustBeKnown = {
  declarations: '!-- ![CDATA[* ![CDATA[*/ %-- !DOCTYPE ?xml ?xml-stylesheet ![CDATA[ !ENTITY !ELEMENT !ATTLIST ![if '
    + '![endif] ?php',
  html4: 'A ABBR ACRONYM ADDRESS APPLET AREA B BASE BASEFONT BDO BIG BLOCKQUOTE BODY BR BUTTON '
    + 'CAPTION CENTER CITE CODE COL COLGROUP DD DEL DFN DIR DIV DL DT EM FIELDSET FONT FORM FRAME '
    + 'FRAMESET H1 H2 H3 H4 H5 H6 HEAD HR HTML I IFRAME IMG INPUT INS ISINDEX KBD LABEL LEGEND LI '
    + 'LINK MAP MENU META NOFRAMES NOSCRIPT OBJECT OL OPTGROUP OPTION P PARAM PRE Q S SAMP SCRIPT '
    + 'SELECT SMALL SPAN STRIKE STRONG STYLE SUB SUP TABLE TBODY TD TEXTAREA TFOOT TH THEAD TITLE '
    + 'TR TT U UL VAR',
  wml: 'wml card template head access meta do onevent go prev noop refresh setvar postfield a '
    + 'anchor p br img table tr td b big em i small strong u select option optgroup input fieldset '
    + 'timer',
  html: 'article aside audio bdi canvas data datalist details dialog embed figcaption figure '
    + 'footer header hgroup main mark meter nav output picture progress rp rt ruby search section slot '
    + 'source summary template time track video wbr',
  svg: 'svg g defs use symbol path rect circle ellipse line polyline polygon text tspan textPath '
    + 'linearGradient radialGradient stop clipPath mask pattern filter feGaussianBlur feDropShadow '
    + 'foreignObject animate animateTransform animateMotion set marker switch desc metadata',
  mathml: 'math mi mn mo ms mtext mspace mrow mfrac msqrt mroot mstyle merror mpadded mphantom '
    + 'mfenced menclose msub msup msubsup munder mover munderover mmultiscripts mprescripts mtable '
    + 'mtr mtd maction semantics annotation annotation-xml',
  period: 'marquee blink nobr bgsound layer ilayer nolayer noembed embed spacer multicol xmp '
    + 'listing plaintext keygen',
};

// What no correct page closes; its opposite below is closed on every correct page.
const mustNotNeedClosing = '!-- br/ hr/ img/ input/ prev/ noop/ timer/ setvar/ postfield/ go/ meta/ link/ '
  + '![CDATA[* ![CDATA[*/ %-- glyph missing-glyph font-face plus sin emptyset area base basefont br col embed frame hr img input isindex link meta '
  + 'param source track wbr bgsound spacer keygen !doctype ?xml ?xml-stylesheet ![CDATA[ access '
  + 'noop postfield setvar timer path circle rect use stop mspace none mprescripts';
const mustNeedClosing = 'a p li td tr th table div span body html head title script style option '
  + 'select textarea form iframe video audio canvas svg g text math mi card wml do anchor button '
  + 'refresh altGlyphItem marker feMerge apply '
  + 'object applet marquee layer noembed noframes frameset';

function checkTags(lines, faults) {
  const known = knownTagString(lines);
  twice(lines).forEach((name) => faults.push(`taglist.lst: "${name}" stands twice`));
  lines.filter((name) => /[\s,<>]|^-|^\/|^\w.*[-/]$/.test(name))
    .forEach((name) => faults.push(`taglist.lst: "${name}" can't be looked up`));
  for (const [kind, names] of Object.entries(mustBeKnown)) {
    for (const name of names.split(' ')) {
      if (!isKnown(known, name)) faults.push(`taglist.lst: ${kind} tag "${name}" is unknown`);
    }
  }
  lines.slice(0, -1).filter((name) => !isKnown(known, `/${name}`))
    .forEach((name) => faults.push(`taglist.lst: "/${name}" is unknown`));
  // Between its delimiters "!--" makes the empty name known, so that a "<" in a script passes.
  if (!isKnown(known, '')) faults.push('taglist.lst: "a < b" in a script would be called a tag');
  // An accidental match across two entries would hide a slip of the pen.
  for (const slip of ['/', 'tabel', 'sapn', 'hrf', 'imgage', '</a', 'ahref']) {
    if (isKnown(known, slip)) faults.push(`taglist.lst: "${slip}" counts as known`);
  }
}

function checkNoClose(tokens, tagLines, faults) {
  const names = tokenBlock(tokens, '<n-noclosetags-', faults);
  const noClose = upper(names.map((name) => `ß${name}ß`).join(''));
  const known = knownTagString(tagLines);
  const free = (name) => noClose.includes(`ß${upper(name)}ß`);
  const tags = new Set(tagLines.map(lower));
  twice(names).forEach((name) => faults.push(`no-close: "${name}" stands twice`));
  names.filter((name) => !tags.has(lower(name)) && !tags.has(lower(name).replace(/\/$/, '')))
    .forEach((name) => faults.push(`no-close: "${name}" is no known tag`));
  mustNotNeedClosing.split(' ').filter((name) => !free(name))
    .forEach((name) => faults.push(`no-close: "${name}" is missing`));
  mustNeedClosing.split(' ').filter(free)
    .forEach((name) => faults.push(`no-close: "${name}" has to be closed`));
  checkPages((name) => isKnown(known, name), free, faults);
  const last = tagLines[tagLines.length - 1];
  if (!free(last)) faults.push(`taglist.lst: last line "${last}" may be closed on a page`);
}

function checkNames(tokens, faults) {
  const events = tokenBlock(tokens, '<s-events-', faults);
  if (events.length === 0 || events.length > 100) faults.push(`events: ${events.length} of 100`);
  events.filter((name) => !/^on[a-z]+$/.test(name))
    .forEach((name) => faults.push(`events: "${name}" is no event name`));
  twice(events).forEach((name) => faults.push(`events: "${name}" stands twice`));
  const metas = tokenBlock(tokens, '<m-metatags-', faults);
  metas.filter((name) => !/^[A-Za-z][\w.-]*$/.test(name))
    .forEach((name) => faults.push(`metas: "${name}" can't be a name`));
  twice(metas).forEach((name) => faults.push(`metas: "${name}" stands twice`));
  if (metas.length === 0) faults.push('metas: none');
}

/** Each known tag finds its own block or none, and the entries there are those written. */
function checkTagBlocks(lines, tagLines, faults) {
  const text = flat(lines);
  const openers = lines.map((line) => /^<t-([^ ]+?)-(?: |$)/.exec(line)).filter(Boolean);
  const withBlock = new Set(openers.map((match) => lower(match[1])));
  twice(openers.map((match) => match[1]))
    .forEach((name) => faults.push(`attributes: "${name}" has two blocks`));
  for (const name of tagLines) {
    const start = blockStart(text, name);
    if (!withBlock.has(lower(name))) {
      if (start >= 0) faults.push(`attributes: "${name}" finds a strange block`);
      if (!/^[!?%]/.test(name)) faults.push(`attributes: "${name}" has no block`);
      continue;
    }
    const own = `<t-${name}- `;
    if (text.slice(start - own.length, start) !== own) {
      const found = text.slice(Math.max(0, start - own.length), start);
      faults.push(`attributes: "${name}" finds "${found}"`);
      continue;
    }
    const entries = entriesFrom(text, start);
    if (entries.join() !== writtenEntries(text, start).join()) {
      faults.push(`attributes: the block of "${name}" reads as ${entries.join('|')}`);
    }
    entries.filter((entry) => !/^·\S+$|^[A-Za-z][\w:-]*$/.test(entry))
      .forEach((entry) => faults.push(`attributes: "${entry}" of "${name}"`));
    twice(entries).forEach((entry) => faults.push(`attributes: "${entry}" twice in "${name}"`));
    if (entries.length > 140) faults.push(`attributes: ${entries.length} in "${name}"`);
    const last = entries[entries.length - 1] ?? '';
    if (last.startsWith('·')) faults.push(`attributes: "${name}" ends with a heading`);
  }
  for (const name of withBlock) {
    if (!tagLines.some((tag) => lower(tag) === name)) {
      faults.push(`attributes: "${name}" is no known tag`);
    }
  }
  // A click on "< " looks for the empty name; what it finds must hold nothing.
  const empty = blockStart(text, '');
  if (empty >= 0 && entriesFrom(text, empty).length > 0) {
    faults.push('attributes: the empty name finds entries');
  }
}

// Objects that people type before a dot, and a member that each of them must offer.
const mustOffer = {
  document: '*getElementById', window: '*alert', style: '#backgroundColor', Math: '*floor',
  Date: '*getFullYear', String: '*substring', Array: '*push', RegExp: '*test', form: '*submit',
  event: '#clientX', JSON: '*parse', Promise: '*then', console: '*log', history: '*back',
  location: '#href', navigator: '#userAgent', screen: '#width', localStorage: '*getItem',
  XMLHttpRequest: '*open', target: '#value', this: '#innerHTML', parentNode: '*appendChild',
  firstChild: '#nodeName', activeElement: '*blur', Uint8Array: '*set', DataView: '*getInt8',
  TypeError: '#message', customElements: '*define', indexedDB: '*open', classList: '*toggle', element: '#innerHTML', number: '*toFixed',
};

function checkScriptObjects(lines, faults) {
  const own = lines.filter((line) => line.startsWith('<js-'));
  const text = flat(own);
  const names = own.map((line) => line.slice(4, line.indexOf('-', 4)));
  twice(names).forEach((name) => faults.push(`script objects: "${name}" stands twice`));
  if (names.length < 40) faults.push(`script objects: only ${names.length}`);
  if (text.includes('--')) faults.push('script objects: the empty name finds a block');
  own.forEach((line, i) => {
    const name = names[i];
    const start = blockStart(text, name);
    const opener = `<js-${name}- `;
    if (text.slice(start - opener.length, start) !== opener) {
      faults.push(`script objects: "${name}" finds another block`);
      return;
    }
    if (!line.endsWith(', <e-')) faults.push(`script objects: the line of "${name}" has no end`);
    const entries = entriesFrom(text, start);
    if (entries.join() !== writtenEntries(text, start).join()) {
      faults.push(`script objects: "${name}" reads as ${entries.join('|')}`);
    }
    if (entries.length === 0) faults.push(`script objects: "${name}" is empty`);
    entries.filter((entry) => !/^[#*+][A-Za-z$_][\w$]*$/.test(entry))
      .forEach((entry) => faults.push(`script objects: "${entry}" of "${name}"`));
    twice(entries.map((entry) => entry.slice(1)), (entry) => entry)
      .forEach((entry) => faults.push(`script objects: "${entry}" twice in "${name}"`));
  });
  for (const [name, member] of Object.entries(mustOffer)) {
    const start = blockStart(text, name);
    const entries = start < 0 ? [] : entriesFrom(text, start);
    if (!entries.includes(member)) faults.push(`script objects: "${name}" lacks "${member}"`);
  }
}

function wordBlocksOf(tokens, faults) {
  const blocks = [];
  let block = null;
  for (const token of tokens) {
    if (token === '<w-' && block === null) block = [];
    else if (token === '<e-' && block !== null) {
      blocks.push(block);
      block = null;
    } else if (block !== null && token !== '<w-') block.push(token);
    else faults.push(`words: "${token}" outside a block`);
  }
  if (block !== null) faults.push('words: the last block has no end');
  return blocks;
}

/** The words offered for a selection, in the selection's case. */
function offeredWords(list, selection) {
  const at = lower(list).indexOf(`ß${lower(selection)}ß`);
  if (at < 0) return [];
  const from = list.lastIndexOf('<wß', at) + 3;
  const words = list.slice(from, list.indexOf('<e-', from)).split('ß').slice(0, -1);
  if (selection === upper(selection)) return words.map(upper);
  if (selection === lower(selection)) return words.map(lower);
  return words;
}

function checkWords(tokens, faults) {
  const blocks = wordBlocksOf(tokens, faults);
  const list = blocks.map((words) => `<wß${words.map((word) => `${word}ß`).join('')}<e- `).join('');
  if (blocks.length < 60) faults.push(`words: only ${blocks.length} blocks`);
  for (const words of blocks) {
    const title = words.slice(0, 3).join('/');
    if (words.length < 2) faults.push(`words: "${title}" has nothing to change to`);
    twice(words).forEach((word) => faults.push(`words: "${word}" twice in ${title}`));
    for (const word of words) {
      if (word === '' || /[ß<>]|#mns#/.test(word)) faults.push(`words: "${word}" in ${title}`);
      const offered = offeredWords(list, word);
      if (!offered.includes(word)) faults.push(`words: "${word}" isn't offered for itself`);
    }
    // The selection's case is given to all words, so names with capitals inside keep to themselves.
    const mixed = words.filter((word) => word !== lower(word) && word !== upper(word));
    const flatWords = words.filter((word) => word === lower(word) && word !== upper(word));
    const bare = words.filter((word) => upper(word) === lower(word));
    const areCharacters = words.every((word) => /^&\w+;$/.test(word));
    if (mixed.length > 0 && flatWords.length + bare.length > 0 && !areCharacters) {
      faults.push(`words: ${title} would lose the capitals of "${mixed[0]}"`);
    }
    if (bare.length > 0 && flatWords.length > 0) {
      faults.push(`words: "${bare[0]}" in ${title} would offer capitals`);
    }
    const leading = words.filter((word) => (
      offeredWords(list, word).map(lower).join() === words.map(lower).join()));
    if (leading.length < 2) faults.push(`words: ${leading.length} words lead to ${title}`);
  }
  checkMeaning(blocks, list, faults);
}

/** Words of several blocks lead to the block that they most likely stand for. */
function checkMeaning(blocks, list, faults) {
  const target = new Map(meant.flatMap(([block, words]) => (
    words.split(' ').map((word) => [word, block]))));
  for (const word of twice(blocks.flat())) {
    const block = target.get(lower(word));
    const found = offeredWords(list, word).map(lower).join('|');
    if (block === undefined) faults.push(`words: "${word}" stands for nothing told`);
    else if (!`${found}|`.startsWith(`${lower(block)}|`)) {
      faults.push(`words: "${word}" leads to ${found} and not to ${block}`);
    }
  }
}

function checkStyles(tokens, faults) {
  const blocks = [];
  let at = 0;
  while (at < tokens.length) {
    const end = tokens.indexOf('<e-', at);
    if (end < 0) {
      faults.push('styles: the last block has no end');
      break;
    }
    blocks.push([tokens[at], tokens.slice(at + 1, end)]);
    at = end + 1;
  }
  const names = blocks.map(([name]) => name);
  twice(names).forEach((name) => faults.push(`styles: "${name}" stands twice`));
  for (const name of ['default', '#', 'body', 'a:hover', 'table', ':before', ':after',
    'li:nth-child(2n)']) {
    if (!names.includes(name)) faults.push(`styles: "${name}" is missing`);
  }
  for (const object of names) {
    const offered = blocks
      .filter(([name]) => name === object || name === 'default'
        || (name === '#' && object.startsWith('#')))
      .flatMap(([, properties]) => properties);
    twice(offered).forEach((name) => faults.push(`styles: "${name}" twice for "${object}"`));
    offered.filter((name) => !/^[a-z][a-z-]*$/.test(name))
      .forEach((name) => faults.push(`styles: "${name}" of "${object}" is no property`));
  }
}

/** Reads the four files in a folder and throws with all faults found. */
export function checkFiles(folder) {
  const faults = [];
  const read = (file) => {
    const bytes = readFileSync(join(folder, file));
    const lines = checkShape(file, bytes, faults);
    return { lines, tokens: tokensOf(bytes.toString('latin1')) };
  };
  const tags = read('taglist.lst');
  const attributes = read('attribute.lst');
  checkTags(tags.lines, faults);
  checkNoClose(attributes.tokens, tags.lines, faults);
  checkNames(attributes.tokens, faults);
  checkTagBlocks(attributes.lines, tags.lines, faults);
  checkScriptObjects(attributes.lines, faults);
  checkWords(read('wordchange.lst').tokens, faults);
  checkStyles(read('styles.lst').tokens, faults);
  if (faults.length > 0) throw new Error(`${faults.length} faults:\n${faults.join('\n')}`);
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
  const here = dirname(fileURLToPath(import.meta.url));
  checkFiles(resolve(process.argv[2] ?? join(here, '..', '..', 'data')));
  console.log('The lists are in order.');
}
