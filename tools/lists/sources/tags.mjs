// SPDX-License-Identifier: MIT

// Elements of WML 1.1. Those that HTML has too are joined with the HTML ones.
export const wmlTags = [
  'wml', 'card', 'template', 'head', 'access', 'meta', 'do', 'onevent', 'go', 'prev', 'noop',
  'refresh', 'setvar', 'postfield', 'a', 'anchor', 'p', 'br', 'img', 'table', 'tr', 'td', 'b',
  'big', 'em', 'i', 'small', 'strong', 'u', 'select', 'option', 'optgroup', 'input', 'fieldset',
  'timer',
];

// Never standardised or long gone, but met on real pages of the time.
export const periodTags = [
  'basefont', 'bgsound', 'blink', 'comment', 'embed', 'ilayer', 'isindex', 'keygen', 'layer',
  'listing', 'marquee', 'multicol', 'nextid', 'nobr', 'noembed', 'nolayer', 'plaintext', 'server',
  'spacer', 'wbr', 'xml', 'xmp',
];

// Newer than the name packages.
export const modernTags = ['search', 'selectedcontent'];

// What a scan for "<" takes for a tag: declarations, processing instructions, sections and the
// marks of server-side scripts. "!--" must stay out: next to the list's "-" delimiters it would
// make the empty name a known tag. "!doctype" is the last line of the file and is added there.
export const declarations = [
  '!attlist', '![cdata[', '!element', '![endif]', '!entity', '![if', '!notation',
  '%', '%=', '%@', '?', '?=', '?import', '?php', '?xml', '?xml-stylesheet',
];

// The closing form of the last line is never found, so it has to be a name that nobody closes.
export const lastTag = '!doctype';

// Elements that stand without a closing tag besides the void elements of HTML: what has no
// content by its definition, and what is written as "<name ... />" nearly always.
export const noCloseExtra = [
  // HTML of earlier times
  'isindex', 'nextid', 'plaintext', 'spacer',
  // WML 1.1
  'access', 'go', 'noop', 'postfield', 'prev', 'setvar', 'timer',
  // SVG
  'altGlyphItem', 'animate', 'animateColor', 'animateMotion', 'animateTransform', 'circle',
  'color-profile', 'cursor', 'discard', 'ellipse', 'feBlend', 'feColorMatrix', 'feComposite',
  'feConvolveMatrix', 'feDisplacementMap', 'feDistantLight', 'feDropShadow', 'feFlood', 'feFuncA',
  'feFuncB', 'feFuncG', 'feFuncR', 'feGaussianBlur', 'feImage', 'feMergeNode', 'feMorphology',
  'feOffset', 'fePointLight', 'feSpotLight', 'feTile', 'feTurbulence', 'font-face-format',
  'font-face-name', 'font-face-uri', 'glyphRef', 'hkern', 'line', 'mpath', 'path', 'polygon',
  'polyline', 'rect', 'set', 'stop', 'tbreak', 'use', 'view', 'vkern',
  // MathML
  'maligngroup', 'malignmark', 'mglyph', 'mprescripts', 'msline', 'mspace', 'none',
];
