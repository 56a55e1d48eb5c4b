// SPDX-License-Identifier: MIT

// Writes taglist.lst, attribute.lst, wordchange.lst and styles.lst into the folder given as the
// first argument, by default the program's data folder, and checks them.

import { mkdirSync, writeFileSync } from 'node:fs';
import { dirname, join, resolve } from 'node:path';
import { fileURLToPath } from 'node:url';
import elements from '@webref/elements';
import { htmlVoidElements } from 'html-void-elements';
import { mathmlTagNames } from 'mathml-tag-names';
import { attributeReason, memberReason, propertyReason } from './left-out.mjs';
import * as attributes from './sources/attributes.mjs';
import * as names from './sources/names.mjs';
import { objects } from './sources/script-objects.mjs';
import * as styles from './sources/styles.mjs';
import * as tags from './sources/tags.mjs';
import { wordBlocks } from './sources/words.mjs';
import { checkFiles } from './check.mjs';
import { checkSources } from './check-sources.mjs';
import { checkStandards } from './check-standards.mjs';
import {
  ancestors, aria, htmlGlobals, htmlNames, htmlOwn, ownMembers, properties, svgEverywhere, svgNames,
  svgOwn,
} from './standards.mjs';

const here = dirname(fileURLToPath(import.meta.url));
const target = resolve(process.argv[2] ?? join(here, '..', '..', 'data'));
const lineWidth = 100;
const end = '<e-';

const lower = (text) => text.toLowerCase();
const byName = (a, b) => (lower(a) < lower(b) ? -1 : lower(a) > lower(b) ? 1 : 0);

const lookUp = (table, name) => (Object.hasOwn(table, name) ? table[name] : []);

/** Drops later spellings of a name that came before in any case. */
function unique(list) {
  const seen = new Set();
  return list.filter((name) => !seen.has(lower(name)) && seen.add(lower(name)));
}

async function standardTags() {
  const listed = await elements.listAll();
  const standards = ['html', 'SVG11', 'SVG2', 'filter-effects-1', 'svg-animations', 'mathml-core'];
  const missing = standards.filter((name) => !listed[name]);
  if (missing.length > 0) throw new Error(`element tables without ${missing.join(', ')}`);
  return standards.flatMap((name) => listed[name].elements.map((element) => element.name));
}

async function tagNames() {
  // HTML first: of "textarea" and SVG's "textArea" the spelling, and with it the block, is HTML's.
  const all = [
    ...htmlNames, ...svgNames, ...mathmlTagNames, ...(await standardTags()),
    ...tags.wmlTags, ...tags.periodTags, ...tags.modernTags, ...tags.declarations,
  ];
  const body = unique(all)
    .filter((name) => lower(name) !== tags.lastTag && !tags.strayTags.includes(name)).sort(byName);
  return [...body, tags.lastTag];
}

/**
 * Names without closing tag, and each element's name with the "/" of "<name/>": who looks for the
 * tag to be closed reads that as part of the name.
 */
function noCloseNames(tagList) {
  const closed = tagList.filter((name) => /^[a-z]/i.test(name)).map((name) => `${name}/`);
  const all = [
    ...htmlVoidElements, ...tags.noCloseExtra, ...tags.emptyContentMath, ...tags.declarations,
    tags.lastTag, ...closed,
  ];
  return unique(all).sort(byName);
}

function ranked(element, list) {
  const order = unique([...lookUp(attributes.leading, element), ...attributes.rank]);
  const place = (name) => {
    const at = order.indexOf(name);
    return at < 0 ? order.length : at;
  };
  return unique(list).sort((a, b) => place(a) - place(b) || byName(a, b));
}

/** Sections of attributes with their headings; what an earlier section has is left out. */
function joined(sections) {
  const result = [];
  const seen = new Set();
  for (const [heading, list] of sections) {
    const fresh = unique(list).filter((name) => !seen.has(lower(name)));
    if (fresh.length === 0) continue;
    if (result.length > 0) result.push(heading);
    for (const name of fresh) {
      seen.add(lower(name));
      result.push(name);
    }
  }
  return result;
}

function htmlAttributes(name) {
  const { headings } = attributes;
  const offered = (list) => list.filter((item) => (
    attributeReason('html', name, item) === undefined));
  const silent = attributes.silent.includes(name);
  const events = silent ? [] : attributes.events;
  const toldAloud = !silent && !attributes.silentWithEvents.includes(name);
  return joined([
    ['', ranked(name, offered([...htmlOwn(name), ...lookUp(attributes.additions, name)]))],
    [headings.wml, lookUp(attributes.wml, name)],
    [headings.svg, lookUp(attributes.svg, name)],
    [headings.common, offered(attributes.common)],
    [headings.events, [...lookUp(attributes.ownEvents, name), ...events]],
    [headings.rare, offered([...attributes.rare, ...htmlGlobals])],
    [headings.aria, toldAloud ? offered([...attributes.aria, ...aria]) : []],
  ]);
}

function svgAttributes(name) {
  const { headings } = attributes;
  const shown = lookUp(attributes.svgPresentation, name);
  const presentation = new Set([...svgEverywhere, ...Object.values(attributes.svgPresentation)
    .flat()]);
  const own = svgOwn(name).filter((item) => !presentation.has(item));
  const offered = [...own, ...lookUp(attributes.svgAdditions, name)]
    .filter((item) => attributeReason('svg', name, item) === undefined);
  return joined([
    ['', ranked(name, offered)],
    [headings.presentation, shown],
    [headings.common, attributes.svgCommon],
    [headings.events, shown.length > 0 ? attributes.svgEvents : []],
  ]);
}

function mathAttributes(name) {
  const isContent = !/^(m|annotation|semantics)/.test(name)
    || ['max', 'min', 'mean', 'median', 'mode', 'moment', 'momentabout', 'minus', 'matrix',
      'matrixrow'].includes(name);
  return joined([
    ['', lookUp(attributes.math, name)],
    [attributes.headings.common,
      isContent ? attributes.mathContentCommon : attributes.mathCommon],
  ]);
}

function wmlAttributes(name) {
  return joined([
    ['', lookUp(attributes.wml, name)],
    [attributes.headings.common, attributes.wmlCommon],
  ]);
}

/** The attributes of a tag, or undefined for a name that takes none and so has no block. */
function attributesOf(name) {
  const html = [...htmlNames, ...tags.periodTags, ...tags.modernTags];
  if (tags.declarations.includes(name) || name === tags.lastTag) {
    return Object.hasOwn(attributes.declarations, name) ? attributes.declarations[name] : undefined;
  }
  // HTML knows "image" only as a slip for "img", and "svg" and "math" as the doors to the others.
  if (!['image', 'svg', 'math'].includes(name) && html.includes(name)) return htmlAttributes(name);
  if (Object.hasOwn(attributes.wml, name)) return wmlAttributes(name);
  if (svgNames.includes(name)) return svgAttributes(name);
  if (mathmlTagNames.includes(name)) return mathAttributes(name);
  return htmlAttributes(name);
}

/** Lines of at most lineWidth characters, each broken behind a comma and without a blank there. */
function wrapped(opener, entries) {
  const lines = [];
  let line = opener;
  for (const word of [...entries.map((entry) => `${entry},`), end]) {
    const longer = line === '' ? word : `${line} ${word}`;
    const breakable = line.endsWith(',');
    if (longer.length > lineWidth && breakable) {
      lines.push(line);
      line = word;
    } else {
      line = longer;
    }
  }
  lines.push(line);
  return lines;
}

/** A block for token readers: the opener is a token of its own. */
const tokenBlock = (opener, entries) => wrapped(`${opener},`, entries);

/** The chosen members, and behind them what else the object's interfaces have by the standards. */
function membersOf(object) {
  const interfaces = object.fill.flatMap((name) => (
    object.whole ? [name, ...ancestors(name)] : [name]));
  const all = [...object.members, ...interfaces.flatMap(ownMembers)
    .filter((entry) => memberReason(entry) === undefined).sort((a, b) => byName(a.slice(1), b.slice(1)))];
  const seen = new Set();
  return all.filter((entry) => !seen.has(entry.slice(1)) && seen.add(entry.slice(1)));
}

const scriptLine = (object) => `<js-${object.name}- ${membersOf(object)
  .map((member) => `${member}, `).join('')}${end}`;

function attributeLines(tagList) {
  // Names with hyphens last: "annotation-xml" would answer for "xml" if it came before it.
  const hyphens = (name) => name.split('-').length;
  const blocks = [...tagList].sort((a, b) => hyphens(a) - hyphens(b))
    .map((name) => [name, attributesOf(name)])
    .filter(([, list]) => list !== undefined);
  return [
    // "!--" has two hyphens in a row, and a click on "< " asks for the attributes of the empty name
    // by just that: it finds this block first, and none.
    `<t-- ${end}`,
    ...tokenBlock('<n-noclosetags-', noCloseNames(tagList)),
    ...tokenBlock('<s-events-', names.events),
    ...tokenBlock('<m-metatags-', names.metas),
    ...blocks.flatMap(([name, list]) => wrapped(`<t-${name}-`, list)),
    // Behind the tags: a tag's attributes are looked up by the first "-name-" of the whole file.
    ...objects.map(scriptLine),
  ];
}

const wordLines = () => wordBlocks.flatMap((words) => tokenBlock('<w-', words));

/** What is left of the standard's properties is offered for every object. */
function styleBlocks() {
  const standard = properties.filter((property) => propertyReason(property) === undefined)
    .map((property) => property.name).sort(byName);
  const special = new Set(styles.special);
  const common = unique([...styles.everywhere, ...standard.filter((name) => !special.has(name))]);
  const blocks = styles.blocks.map(([object, list]) => (
    [object, unique(list).filter((name) => !common.includes(name))]));
  return [...blocks, ['default', common]];
}

const styleLines = () => styleBlocks().flatMap(([object, properties]) => (
  wrapped(`${object},`, properties)));

function write(file, lines) {
  const text = lines.map((line) => `${line}\r\n`).join('');
  // The characters used here have the same codes in Latin-1 and Windows-1252.
  const outside = [...text].find((character) => character.codePointAt(0) > 0xff
    || (character.codePointAt(0) >= 0x7f && character.codePointAt(0) <= 0x9f));
  if (outside !== undefined) throw new Error(`${file}: no code for "${outside}"`);
  writeFileSync(join(target, file), Buffer.from(text, 'latin1'));
}

const tagList = await tagNames();
await checkSources();
mkdirSync(target, { recursive: true });
write('taglist.lst', tagList);
write('attribute.lst', attributeLines(tagList));
write('wordchange.lst', wordLines());
write('styles.lst', styleLines());
checkFiles(target);
await checkStandards(target);
