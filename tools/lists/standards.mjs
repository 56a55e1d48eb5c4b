// SPDX-License-Identifier: MIT

// What the public standards list: elements and their attributes, event handlers, style properties
// and the members of script interfaces. The generator fills the lists from here, and the check
// compares the finished files with it. For WML 1.1 and MathML 3 there is no package: their tables
// stand in sources/attributes.mjs, element by element as in the DTD and the Recommendation.

import css from '@webref/css';
import idl from '@webref/idl';
import { ariaAttributes } from 'aria-attributes';
import { htmlElementAttributes } from 'html-element-attributes';
import { htmlTagNames } from 'html-tag-names';
import { svgElementAttributes } from 'svg-element-attributes';
import { svgTagNames } from 'svg-tag-names';

const of = (table, name) => (Object.hasOwn(table, name) ? table[name] : []);

export const htmlGlobals = htmlElementAttributes['*'];
export const aria = ['role', ...ariaAttributes.filter((name) => name !== 'role')];
export const htmlOwn = (element) => of(htmlElementAttributes, element);
export const htmlNames = htmlTagNames;

export const svgEverywhere = svgElementAttributes['*'];
export const svgOwn = (element) => of(svgElementAttributes, element);
export const svgNames = svgTagNames;

// Standards whose members a page's script meets; drafts that stand beside them don't count.
const scriptStandards = [
  'html', 'dom', 'cssom', 'cssom-view', 'css-animations', 'css-transitions', 'uievents',
  'pointerevents', 'touch-events', 'input-events', 'clipboard-apis', 'fullscreen', 'fetch', 'xhr',
  'url', 'FileAPI', 'websockets', 'selection-api', 'wai-aria', 'IndexedDB', 'web-animations',
  'intersection-observer', 'resize-observer', 'performance-timeline', 'user-timing', 'hr-time',
  'resource-timing', 'navigation-timing', 'geolocation', 'storage', 'console', 'encoding',
  'screen-orientation', 'service-workers', 'webcrypto', 'requestidlecallback', 'pointerlock',
  'notifications', 'permissions', 'mediacapture-streams', 'beacon', 'vibration',
  'web-share', 'css-font-loading', 'streams',
];

const publications = await idl.parseAll();
const interfaces = new Map();
const kindsOfType = new Map();

function typeEntry(name) {
  if (!interfaces.has(name)) interfaces.set(name, { members: [], parent: null, mixins: [] });
  return interfaces.get(name);
}

for (const [publication, definitions] of Object.entries(publications)) {
  for (const definition of definitions) {
    if (['enum', 'typedef', 'interface', 'dictionary'].includes(definition.type)) {
      kindsOfType.set(definition.name, definition);
    }
    if (definition.type === 'includes') {
      typeEntry(definition.target).mixins.push(definition.includes);
    } else if (['interface', 'interface mixin', 'namespace'].includes(definition.type)) {
      const entry = typeEntry(definition.name);
      entry.parent = definition.inheritance ?? entry.parent;
      for (const member of definition.members ?? []) {
        if (member.name) entry.members.push({ ...plain(member), publication });
      }
    }
  }
}

function plain(member) {
  return { name: member.name, type: member.type, idlType: member.idlType };
}

function isObject(type) {
  if (type === undefined || type.union || type.generic) return type?.generic !== undefined;
  const definition = kindsOfType.get(type.idlType);
  if (definition?.type === 'typedef') return isObject(definition.idlType);
  return definition?.type === 'interface';
}

/** The entry of a member: "#" property, "*" method, "+" object. */
function entryOf(member) {
  if (member.type === 'operation') return `*${member.name}`;
  return `${member.type === 'attribute' && isObject(member.idlType) ? '+' : '#'}${member.name}`;
}

/** Entries that an interface itself has by the standards above, its mixins included. */
export function ownMembers(name) {
  const type = interfaces.get(name);
  if (type === undefined) return [];
  const own = type.members
    .filter((member) => scriptStandards.includes(member.publication)
      && ['attribute', 'operation', 'const'].includes(member.type))
    .map(entryOf);
  return [...new Set([...own, ...type.mixins.flatMap(ownMembers)])];
}

/** The interfaces that an interface inherits from, nearest first. */
export function ancestors(name) {
  const parent = interfaces.get(name)?.parent;
  return parent ? [parent, ...ancestors(parent)] : [];
}

const handlersIn = (publication, targets) => publications[publication]
  .filter((definition) => targets.includes(definition.name))
  .flatMap((definition) => definition.members ?? [])
  .filter((member) => member.type === 'attribute' && /^on[a-z]+$/.test(member.name))
  .map((member) => member.name);

const pageTargets = ['GlobalEventHandlers', 'WindowEventHandlers', 'Document'];
const unique = (list) => [...new Set(list)];

/** Event handlers of the HTML standard, then those that other standards add to all elements. */
export const htmlHandlers = unique(handlersIn('html', pageTargets));
export const otherHandlers = unique(['pointerevents', 'touch-events', 'css-animations',
  'css-transitions', 'fullscreen', 'selection-api'].flatMap((name) => (
  handlersIn(name, [...pageTargets, 'Element'])))).filter((name) => !htmlHandlers.includes(name));

const listed = await css.listAll();

/** Style properties with the short name of the module that defines them, without old aliases. */
export const properties = listed.properties
  .filter((property) => !property.legacyAliasOf && !property.name.startsWith('-'))
  .map((property) => ({
    name: property.name,
    module: property.href.replace(/#.*$/, '').replace(/\/$/, '').replace(/^.*\//, ''),
  }));

/** Names of the core language that the running engine knows for a global object. */
export function coreMembers(name) {
  const base = globalThis[name];
  if (base === undefined) return [];
  const names = [base, base.prototype].filter(Boolean).flatMap(Object.getOwnPropertyNames);
  return unique(names).filter((member) => /^[A-Za-z]\w*$/.test(member)
    && !['constructor', 'prototype', 'length', 'name', 'arguments', 'caller'].includes(member));
}
