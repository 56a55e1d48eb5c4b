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
// marks of server-side scripts. The sections stand once for each way to hide them from older
// browsers; a "/" at the end of a name is dropped when a blank follows it, so those have two forms.
// "!doctype" is the last line of the file and is added there.
export const declarations = [
  '!--', '!attlist', '![cdata[', '![cdata[*', '![cdata[*/', '![cdata[/', '!]]', '!element',
  '![endif]', '!entity', '![if', '!notation',
  '%', '%--', '%=', '%@', '?', '?=', '?import', '?php', '?xml', '?xml-stylesheet',
];

// Names in the packages that no standard knows, most of them slips of the pen.
export const strayTags = [
  'encoding', 'function', 'malign', 'malignscope', 'mfraction', 'piecewice',
];

// The closing form of the last line is never found, so it has to be a name that nobody closes.
export const lastTag = '!doctype';

// Elements that stand without a closing tag besides the void elements of HTML: what has no
// content by its definition, and what is written as "<name ... />" nearly always although it may
// have content: go and prev of WML, shapes and the like of SVG. Those that usually hold others
// (altGlyphItem, marker, feMerge, refresh ...) are not among them.
export const noCloseExtra = [
  // HTML of earlier times
  'isindex', 'nextid', 'plaintext', 'spacer',
  // WML 1.1
  'access', 'go', 'noop', 'postfield', 'prev', 'setvar', 'timer',
  // SVG
  'animate', 'animateColor', 'animateMotion', 'animateTransform', 'circle',
  'color-profile', 'cursor', 'discard', 'ellipse', 'feBlend', 'feColorMatrix', 'feComposite',
  'feConvolveMatrix', 'feDisplacementMap', 'feDistantLight', 'feDropShadow', 'feFlood', 'feFuncA',
  'feFuncB', 'feFuncG', 'feFuncR', 'feGaussianBlur', 'feImage', 'feMergeNode', 'feMorphology',
  'feOffset', 'fePointLight', 'feSpotLight', 'feTile', 'feTurbulence', 'font-face',
  'font-face-format', 'font-face-name', 'font-face-uri', 'glyph', 'glyphRef', 'hkern', 'line',
  'missing-glyph', 'mpath', 'path', 'polygon', 'polyline', 'rect', 'set', 'stop', 'tbreak', 'use',
  'view', 'vkern',
  // MathML, presentation
  'maligngroup', 'malignmark', 'mglyph', 'mprescripts', 'msline', 'mspace', 'none',
];

// Content MathML: operators, functions, constants and sets, all of them empty. "card" is missing,
// because WML's card has to be closed.
export const emptyContentMath = `
  abs and approx arccos arccosh arccot arccoth arccsc arccsch arcsec arcsech arcsin arcsinh arctan
  arctanh arg cartesianproduct ceiling codomain complexes compose conjugate cos cosh cot coth
  csc csch curl determinant diff divergence divide domain emptyset eq equivalent eulergamma exists
  exp exponentiale factorial factorof false floor forall gcd geq grad gt ident image imaginary
  imaginaryi implies in infinity int integers intersect inverse laplacian lcm leq limit ln log lt
  max mean median min minus mode moment naturalnumbers neq not notanumber notin notprsubset
  notsubset or outerproduct partialdiff pi plus power primes product prsubset quotient rationals
  real reals rem root scalarproduct sdev sec sech selector sep setdiff share sin sinh subset sum tan
  tanh tendsto times transpose true union variance vectorproduct xor`.trim().split(/\s+/);
