// SPDX-License-Identifier: MIT

// Holds the hand-written sources against the interface definitions of the standards, the running
// core language and the property tables, and fails with a list of the names that none of them has.

import idl from '@webref/idl';
import { htmlEventAttributes } from 'html-event-attributes';
import { all as cssProperties } from 'known-css-properties';
import * as names from './sources/names.mjs';
import { objects } from './sources/script-objects.mjs';
import * as styles from './sources/styles.mjs';

const own = (type) => [...type.members ?? []];

/** For each interface: its own members by name and kind, its parent and its mixins. */
async function interfaces() {
  const types = new Map();
  const of = (name) => {
    if (!types.has(name)) types.set(name, { members: new Map(), parent: null, mixins: [] });
    return types.get(name);
  };
  const add = (members, name, kind) => (
    members.set(name, (members.get(name) ?? new Set()).add(kind)));
  for (const definitions of Object.values(await idl.parseAll())) {
    for (const definition of definitions) {
      if (definition.type === 'includes') of(definition.target).mixins.push(definition.includes);
      if (!['interface', 'interface mixin', 'namespace'].includes(definition.type)) continue;
      const type = of(definition.name);
      type.parent = definition.inheritance ?? type.parent;
      for (const member of own(definition)) {
        if (member.type === 'attribute') {
          add(type.members, member.name, '#');
          add(type.members, member.name, '+');
        }
        if (member.type === 'const') add(type.members, member.name, '#');
        if (member.type === 'operation' && member.name) add(type.members, member.name, '*');
        if (member.special === 'stringifier') add(type.members, 'toString', '*');
        if (member.type === 'iterable') {
          for (const name of ['keys', 'values', 'entries', 'forEach']) add(type.members, name, '*');
        }
      }
    }
  }
  return types;
}

function memberKinds(types, name, member) {
  const type = types.get(name);
  if (type === undefined) return new Set();
  const kinds = new Set(type.members.get(member));
  for (const next of [type.parent, ...type.mixins].filter(Boolean)) {
    for (const kind of memberKinds(types, next, member)) kinds.add(kind);
  }
  return kinds;
}

/** Kinds of a member of a core object itself or of what it constructs. */
function coreKinds(name, member) {
  const kinds = new Set();
  const base = globalThis[name];
  for (const holder of [base, base.prototype].filter(Boolean)) {
    for (let at = holder; at; at = Object.getPrototypeOf(at)) {
      const found = Object.getOwnPropertyDescriptor(at, member);
      if (!found) continue;
      if (typeof found.value === 'function') kinds.add('*').add('+');
      else kinds.add('#').add('+');
    }
  }
  return kinds;
}

const camelCase = (name) => name.replace(/-([a-z])/g, (match, letter) => letter.toUpperCase());

function checkObjects(types, faults) {
  const properties = new Set(cssProperties.map(camelCase));
  for (const { name, is, members, also } of objects) {
    for (const source of is.filter((item) => !item.startsWith('core:') && !types.has(item))) {
      faults.push(`${name}: there is no interface ${source}`);
    }
    for (const entry of members) {
      const [kind, member] = [entry[0], entry.slice(1)];
      const kinds = new Set(is.flatMap((source) => (source.startsWith('core:')
        ? [...coreKinds(source.slice(5), member)] : [...memberKinds(types, source, member)])));
      const isStyle = is.includes('CSSStyleDeclaration') && kind === '#' && properties.has(member);
      if (!kinds.has(kind) && !isStyle && !also.includes(entry)) {
        faults.push(`${name}: "${entry}" is ${kinds.size > 0 ? [...kinds].join('') : 'unknown'}`);
      }
      if (kinds.has(kind) && also.includes(entry)) faults.push(`${name}: "${entry}" is no extra`);
    }
  }
}

function checkEvents(types, faults) {
  const handlers = new Set(htmlEventAttributes);
  for (const { members } of types.values()) {
    for (const name of members.keys()) if (/^on[a-z]+$/.test(name)) handlers.add(name);
  }
  names.events.filter((name) => !handlers.has(name) && !names.wmlEvents.includes(name))
    .forEach((name) => faults.push(`events: "${name}" is in no standard`));
}

function checkProperties(faults) {
  const known = new Set([...cssProperties, ...styles.descriptors]);
  for (const [object, properties] of styles.blocks) {
    properties.filter((name) => !known.has(name))
      .forEach((name) => faults.push(`styles: "${name}" of "${object}" is no property`));
  }
}

/** Throws with all faults found. */
export async function checkSources() {
  const faults = [];
  const types = await interfaces();
  checkObjects(types, faults);
  checkEvents(types, faults);
  checkProperties(faults);
  if (faults.length > 0) throw new Error(`${faults.length} faults:\n${faults.join('\n')}`);
}
