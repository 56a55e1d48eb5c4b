// SPDX-License-Identifier: MIT

// Compares the finished list files with the standards and tells what is missing. What stands in
// left-out.mjs is left out on purpose; anything else that is missing is a fault.
//
//     node check-standards.mjs [FOLDER]

import { readFileSync } from 'node:fs';
import { dirname, join, resolve } from 'node:path';
import { fileURLToPath } from 'node:url';
import { mathmlTagNames } from 'mathml-tag-names';
import * as leftOut from './left-out.mjs';
import * as attributes from './sources/attributes.mjs';
import { wmlEvents } from './sources/names.mjs';
import { objects } from './sources/script-objects.mjs';
import * as tags from './sources/tags.mjs';
import * as standards from './standards.mjs';

const lower = (text) => text.toLowerCase();
const readFile = (folder, file) => readFileSync(join(folder, file)).toString('latin1');

/** What stands between an opener and "<e-", or undefined. */
function block(text, opener) {
  const at = text.indexOf(opener);
  if (at < 0) return undefined;
  const start = at + opener.length;
  return text.slice(start, text.indexOf('<e-', start)).split(/,\s*/).map((item) => item.trim())
    .filter((item) => item !== '');
}

class Comparison {
  constructor(title) {
    Object.assign(this, { title, total: 0, missing: [], omitted: [] });
  }

  /** `wanted` in the spelling of the standard; a reason makes its absence one on purpose. */
  hold(where, wanted, have, reasonOf) {
    const present = new Set(have.map(lower));
    for (const item of wanted) {
      this.total += 1;
      if (present.has(lower(item))) continue;
      const place = where === '' ? item : `${where}: ${item}`;
      (reasonOf(item) === undefined ? this.missing : this.omitted).push(place);
    }
  }

  line() {
    return `${this.title}: ${this.total} in the standards, ${this.missing.length} missing, `
      + `${this.omitted.length} left out on purpose`;
  }
}

const unique = (list) => [...new Set(list)];

function compareAttributes(text) {
  const html = new Comparison('attributes of HTML');
  const svg = new Comparison('attributes of SVG');
  const math = new Comparison('attributes of MathML');
  const wml = new Comparison('attributes of WML');
  // A block under another spelling is found as well, the editor doesn't mind the case.
  const folded = text.replace(/<t-[^ ]+-/g, lower);
  const entriesOf = (name) => block(folded, `<t-${lower(name)}-`) ?? [];
  for (const name of standards.htmlNames) {
    const wanted = [...standards.htmlOwn(name), ...standards.htmlGlobals, ...standards.aria,
      'xml:lang'];
    html.hold(name, unique(wanted), entriesOf(name), (item) => (
      leftOut.attributeReason('html', name, item)));
  }
  const presentation = new Set(standards.svgEverywhere);
  for (const name of standards.svgNames) {
    const wanted = standards.svgOwn(name).filter((item) => !presentation.has(item));
    svg.hold(name, unique([...wanted, 'id', 'class', 'style', 'tabindex', 'lang',
      ...attributes.svgAdditions[name] ?? []]), entriesOf(name), (item) => (
      leftOut.attributeReason('svg', name, item)));
    // Those stand with the elements they act on; none may be left without one.
    for (const item of Object.hasOwn(attributes.svgPresentation, name)
      ? attributes.svgPresentation[name] : []) {
      svg.hold(name, [item], entriesOf(name), (one) => leftOut.attributeReason('svg', name, one));
    }
  }
  const acting = new Set(Object.values(attributes.svgPresentation).flat());
  svg.hold('presentation', [...presentation].filter((item) => !['id', 'class', 'style', 'tabindex',
    'lang'].includes(item)), [...acting], (item) => leftOut.attributeReason('svg', '*', item));
  for (const [name, own] of Object.entries(attributes.math)) {
    math.hold(name, own, entriesOf(name), () => undefined);
  }
  for (const name of mathmlTagNames.filter((item) => /^m[a-z]*$/.test(item)
    && Object.hasOwn(attributes.math, item))) {
    math.hold(name, attributes.mathCommon, entriesOf(name), () => undefined);
  }
  for (const name of tags.wmlTags) {
    const own = Object.hasOwn(attributes.wml, name) ? attributes.wml[name] : [];
    wml.hold(name, unique([...own, ...attributes.wmlCommon]), entriesOf(name), () => undefined);
  }
  return [html, svg, math, wml];
}

function compareEvents(text) {
  const result = new Comparison('events');
  const have = block(text, '<s-events-') ?? [];
  result.hold('', [...standards.htmlHandlers, ...standards.otherHandlers, ...wmlEvents],
    have, leftOut.handlerReason);
  return result;
}

function compareProperties(text) {
  const result = new Comparison('style properties');
  const have = text.split(/[,\r\n]+\s*/);
  for (const property of standards.properties) {
    result.hold('', [property.name], have, () => leftOut.propertyReason(property));
  }
  return result;
}

function compareMembers(text) {
  const result = new Comparison('members of script objects');
  const core = new Comparison('members of the core language');
  for (const object of objects) {
    const entries = block(text, `<js-${object.name}-`) ?? [];
    const have = entries.map((entry) => entry.slice(1));
    const names = object.fill.flatMap((name) => (
      object.whole ? [name, ...standards.ancestors(name)] : [name]));
    const wanted = unique(names.flatMap(standards.ownMembers));
    const seen = new Set(have);
    for (const entry of wanted) {
      result.hold(object.name, [entry], seen.has(entry.slice(1)) ? [entry] : [],
        leftOut.memberReason);
    }
    for (const name of object.is.filter((item) => item.startsWith('core:'))) {
      core.hold(object.name, standards.coreMembers(name.slice(5)), have, (item) => (
        leftOut.reason(leftOut.coreMembers, item)));
    }
  }
  return [result, core];
}

/** Compares the files in a folder; returns one comparison a kind of names. */
export function compare(folder) {
  const text = readFile(folder, 'attribute.lst');
  const [members, core] = compareMembers(text);
  return {
    pinned: [...compareAttributes(text), compareEvents(text),
      compareProperties(readFile(folder, 'styles.lst')), members],
    // The engine that runs this may be younger than the lists: its findings are told, no more.
    told: [core],
  };
}

/** Prints the counts and throws if anything is missing without a reason. */
export function checkStandards(folder) {
  leftOut.forget();
  const { pinned, told } = compare(folder);
  for (const comparison of [...pinned, ...told]) console.log(comparison.line());
  for (const comparison of told.filter((item) => item.missing.length > 0)) {
    console.log(`${comparison.title}, missing: ${comparison.missing.join(', ')}`);
  }
  const missing = pinned.flatMap((item) => item.missing);
  const stale = leftOut.stale();
  if (stale.length > 0) console.log(`Left out without need:\n${stale.join('\n')}`);
  if (missing.length > 0) throw new Error(`${missing.length} missing:\n${missing.join('\n')}`);
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
  const here = dirname(fileURLToPath(import.meta.url));
  checkStandards(resolve(process.argv[2] ?? join(here, '..', '..', 'data')));
}
