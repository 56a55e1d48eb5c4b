// SPDX-License-Identifier: MIT

// An attribute list is for a person to pick from: an element's own attributes come first, the
// most used ones on top, then a short selection of the common ones and of the events.

// Entries with this first character are headings; choosing one inserts nothing.
export const headingMark = '·';
export const headings = {
  common: '·Allgemein',
  events: '·Ereignisse',
  rare: '·Weitere',
  aria: '·ARIA',
  svg: '·SVG',
  presentation: '·Darstellung',
  wml: '·WML',
};

// Attributes in this order come before all others, which follow by the alphabet.
export const rank = [
  'href', 'xlink:href', 'src', 'action', 'method', 'http-equiv', 'name', 'content', 'rel', 'type', 'language',
  'value', 'for', 'data', 'classid', 'code', 'codebase', 'alt', 'width', 'height', 'target',
  'cols', 'rows', 'colspan', 'rowspan', 'border', 'cellpadding', 'cellspacing', 'bgcolor',
  'background', 'text', 'link', 'vlink', 'alink', 'color', 'face', 'size', 'align', 'valign',
  'x', 'y', 'x1', 'y1', 'x2', 'y2', 'cx', 'cy', 'r', 'rx', 'ry', 'fx', 'fy', 'd', 'points',
  'viewBox', 'in', 'in2', 'result', 'attributeName', 'from', 'to', 'by', 'begin', 'dur', 'end',
  'repeatCount', 'checked', 'selected', 'disabled', 'placeholder', 'required', 'readonly',
  'controls', 'autoplay', 'loop', 'muted', 'poster', 'media', 'charset', 'async', 'defer',
  'multiple', 'maxlength', 'min', 'max', 'step', 'srcset', 'sizes', 'loading',
];

// Where an element wants another order than that, these come first.
export const leading = {
  a: ['href', 'target', 'name', 'rel'],
  area: ['shape', 'coords', 'href', 'alt', 'target'],
  frame: ['src', 'name', 'scrolling', 'noresize', 'frameborder'],
  iframe: ['src', 'name', 'width', 'height', 'frameborder', 'scrolling'],
  img: ['src', 'alt', 'width', 'height', 'border', 'align'],
  input: ['type', 'name', 'value', 'size', 'maxlength', 'checked', 'src', 'alt'],
  link: ['rel', 'href', 'type', 'media'],
  marquee: ['behavior', 'direction', 'loop', 'scrollamount', 'scrolldelay'],
  svg: ['width', 'height', 'viewBox', 'xmlns'],
  table: ['border', 'cellpadding', 'cellspacing', 'width', 'align', 'bgcolor'],
  td: ['colspan', 'rowspan', 'align', 'valign', 'width', 'height', 'bgcolor'],
  th: ['colspan', 'rowspan', 'align', 'valign', 'width', 'height', 'bgcolor'],
};

// Own attributes that the standards' tables lack.
export const additions = {
  applet: ['mayscript'],
  bgsound: ['balance', 'loop', 'src', 'volume'],
  body: ['bgproperties', 'bottommargin', 'leftmargin', 'marginheight', 'marginwidth',
    'rightmargin', 'scroll', 'topmargin'],
  command: ['checked', 'disabled', 'icon', 'label', 'radiogroup', 'type'],
  embed: ['align', 'autostart', 'hidden', 'hspace', 'loop', 'name', 'palette', 'pluginspage',
    'units', 'volume', 'vspace'],
  font: ['point-size'],
  frame: ['bordercolor'],
  frameset: ['border', 'bordercolor', 'frameborder', 'framespacing'],
  hr: ['color'],
  html: ['xmlns'],
  iframe: ['allowtransparency', 'hspace', 'vspace'],
  ilayer: ['above', 'background', 'below', 'bgcolor', 'clip', 'height', 'left', 'name', 'pagex',
    'pagey', 'src', 'top', 'visibility', 'width', 'z-index'],
  img: ['dynsrc', 'lowsrc', 'start'],
  input: ['capture'],
  keygen: ['challenge', 'disabled', 'form', 'keytype', 'name'],
  layer: ['above', 'background', 'below', 'bgcolor', 'clip', 'height', 'left', 'name', 'pagex',
    'pagey', 'src', 'top', 'visibility', 'width', 'z-index'],
  marquee: ['align', 'behavior', 'bgcolor', 'direction', 'height', 'hspace', 'loop',
    'scrollamount', 'scrolldelay', 'truespeed', 'vspace', 'width'],
  menu: ['label', 'type'],
  menuitem: ['checked', 'command', 'default', 'disabled', 'icon', 'label', 'radiogroup', 'type'],
  multicol: ['cols', 'gutter', 'width'],
  pre: ['xml:space'],
  nextid: ['n'],
  script: ['event', 'for', 'xml:space'],
  style: ['xml:space'],
  spacer: ['align', 'height', 'size', 'type', 'width'],
  table: ['background', 'bordercolor', 'bordercolordark', 'bordercolorlight', 'height'],
  td: ['background', 'bordercolor', 'bordercolordark', 'bordercolorlight'],
  th: ['background', 'bordercolor', 'bordercolordark', 'bordercolorlight'],
  tr: ['bordercolor', 'height'],
  xml: ['src'],
};

// WML's own attributes of elements that HTML has too stand under a heading of their own.
export const wml = {
  access: ['domain', 'path'],
  a: ['title', 'accesskey'],
  anchor: ['title', 'accesskey'],
  card: ['title', 'newcontext', 'ordered', 'onenterforward', 'onenterbackward', 'ontimer'],
  do: ['type', 'label', 'name', 'optional'],
  fieldset: ['title'],
  go: ['href', 'method', 'sendreferer', 'accept-charset'],
  img: ['localsrc'],
  input: ['emptyok', 'format'],
  meta: ['forua'],
  noop: [],
  onevent: ['type'],
  optgroup: ['title'],
  option: ['onpick'],
  p: ['mode'],
  postfield: ['name', 'value'],
  prev: [],
  refresh: [],
  select: ['iname', 'ivalue', 'value'],
  setvar: ['name', 'value'],
  table: ['columns'],
  template: ['onenterforward', 'onenterbackward', 'ontimer'],
  timer: ['name', 'value'],
  wml: [],
};
// SVG's own attributes of elements that HTML has too, likewise.
export const svg = {
  a: ['xlink:href', 'transform', 'fill', 'stroke'],
  font: ['horiz-adv-x', 'horiz-origin-x', 'horiz-origin-y', 'vert-adv-y', 'vert-origin-x',
    'vert-origin-y'],
  script: ['xlink:href'],
};
export const wmlCommon = ['id', 'class', 'xml:lang'];

// The common attributes of every day, above the events.
export const common = [
  'class', 'id', 'style', 'title', 'lang', 'dir', 'tabindex', 'accesskey', 'hidden',
  'contenteditable', 'draggable', 'translate', 'spellcheck',
];

// Those of rarer use, below the events; what else the standard adds to all elements follows.
export const rare = [
  'autofocus', 'popover', 'inert', 'inputmode', 'enterkeyhint', 'autocapitalize', 'autocorrect',
  'itemscope', 'itemtype', 'itemprop', 'itemid', 'itemref', 'is', 'slot', 'part', 'exportparts',
  'nonce', 'writingsuggestions', 'xml:lang',
];

// The order of the attributes for reading programs.
export const aria = [
  'role', 'aria-label', 'aria-labelledby', 'aria-describedby', 'aria-hidden', 'aria-expanded',
  'aria-controls', 'aria-current', 'aria-live', 'aria-haspopup', 'aria-checked', 'aria-pressed',
  'aria-selected', 'aria-disabled', 'aria-required', 'aria-invalid',
];

// Elements that show nothing have no mouse or key events and nothing to tell a reading program;
// those of HTML 4.01 that had the events keep them.
export const silent = [
  'base', 'basefont', 'bgsound', 'frame', 'frameset', 'head', 'html', 'isindex', 'meta', 'nextid',
  'param', 'script', 'server', 'slot', 'source', 'style', 'template', 'title', 'track', 'xml',
];
export const silentWithEvents = ['col', 'colgroup', 'link', 'noframes', 'noscript'];

export const events = [
  'onclick', 'ondblclick', 'onmousedown', 'onmouseup', 'onmouseover', 'onmousemove', 'onmouseout',
  'onkeypress', 'onkeydown', 'onkeyup',
];

const focusEvents = ['onfocus', 'onblur'];
const fieldEvents = [...focusEvents, 'onchange', 'oninput', 'onselect', 'oninvalid'];
const mediaEvents = [
  'onplay', 'onpause', 'onended', 'ontimeupdate', 'onvolumechange', 'onloadedmetadata',
  'oncanplay', 'onerror',
];

// Events that matter for single elements; they come before the common ones.
export const ownEvents = {
  a: focusEvents,
  area: focusEvents,
  audio: mediaEvents,
  body: ['onload', 'onunload', 'onbeforeunload', 'onresize', 'onscroll', 'onhashchange',
    'onpageshow', 'onpagehide', 'onbeforeprint', 'onafterprint', 'ononline', 'onoffline',
    'onstorage', 'onmessage', ...focusEvents],
  button: focusEvents,
  details: ['ontoggle'],
  dialog: ['oncancel', 'onclose'],
  embed: ['onload'],
  form: ['onsubmit', 'onreset'],
  frame: ['onload'],
  frameset: ['onload', 'onunload'],
  iframe: ['onload'],
  img: ['onload', 'onerror', 'onabort'],
  input: fieldEvents,
  label: focusEvents,
  layer: ['onload', ...focusEvents],
  link: ['onload', 'onerror'],
  marquee: ['onstart', 'onbounce', 'onfinish'],
  object: ['onload', 'onerror'],
  script: ['onload', 'onerror'],
  select: ['onfocus', 'onblur', 'onchange', 'oninput'],
  style: ['onload', 'onerror'],
  textarea: fieldEvents,
  track: ['oncuechange'],
  video: mediaEvents,
};

export const declarations = {
  '?xml': ['version', 'encoding', 'standalone'],
  '?xml-stylesheet': ['href', 'type', 'title', 'media', 'charset', 'alternate'],
  '?import': ['namespace', 'implementation'],
};

export const svgCommon = ['class', 'id', 'style', 'tabindex', 'lang', 'xml:lang', 'xml:space',
  'role', 'aria-label', 'aria-labelledby', 'aria-describedby', 'aria-hidden'];
export const svgEvents = ['onclick', 'onmouseover', 'onmouseout', 'onmousemove', 'onload'];

// The standards allow every presentation attribute on every SVG element; here each stands with the
// elements that it acts on.
const seen = ['opacity', 'visibility', 'display', 'transform', 'clip-path', 'mask', 'filter',
  'pointer-events', 'cursor'];
const paint = [
  'fill', 'fill-opacity', 'fill-rule', 'stroke', 'stroke-width', 'stroke-opacity',
  'stroke-dasharray', 'stroke-dashoffset', 'stroke-linecap', 'stroke-linejoin',
  'stroke-miterlimit', 'paint-order', 'vector-effect', 'color', 'color-interpolation', ...seen,
];
const shape = [...paint, 'shape-rendering', 'clip-rule'];
const markers = ['marker-start', 'marker-mid', 'marker-end'];
const face = ['font-family', 'font-size', 'font-style', 'font-weight', 'font-variant',
  'font-stretch', 'font-size-adjust'];
const line = [
  'text-anchor', 'text-decoration', 'dominant-baseline', 'alignment-baseline', 'baseline-shift',
  'letter-spacing', 'word-spacing', 'writing-mode', 'direction', 'unicode-bidi', 'text-rendering',
];
const type = [...face, ...line];
const span = [...paint, ...type];
const filterArea = ['color-interpolation-filters'];
const shapes = { circle: shape, ellipse: shape, rect: shape };
for (const name of ['line', 'path', 'polygon', 'polyline']) shapes[name] = [...shape, ...markers];
for (const name of ['filter', 'feBlend', 'feColorMatrix', 'feComponentTransfer', 'feComposite',
  'feConvolveMatrix', 'feDisplacementMap', 'feGaussianBlur', 'feImage', 'feMerge', 'feMorphology',
  'feOffset', 'feTile', 'feTurbulence']) shapes[name] = filterArea;

export const svgPresentation = {
  ...shapes,
  svg: [...shape, 'overflow', ...markers, ...type],
  g: [...shape, ...markers, ...type],
  symbol: [...paint, 'overflow', ...type],
  switch: seen,
  defs: paint,
  use: [...shape, ...type],
  image: [...seen, 'overflow', 'image-rendering'],
  foreignObject: [...seen, 'overflow'],
  marker: [...paint, 'overflow'],
  pattern: [...paint, 'overflow'],
  mask: [...paint, 'overflow'],
  clipPath: ['clip-rule', ...seen],
  text: [...span, 'white-space', 'text-overflow'],
  tspan: span,
  textPath: span,
  tref: span,
  altGlyph: span,
  glyph: paint,
  'missing-glyph': paint,
  stop: ['stop-color', 'stop-opacity', 'color'],
  linearGradient: ['color-interpolation'],
  radialGradient: ['color-interpolation'],
  feFlood: ['flood-color', 'flood-opacity', ...filterArea],
  feDropShadow: ['flood-color', 'flood-opacity', ...filterArea],
  feDiffuseLighting: ['lighting-color', ...filterArea],
  feSpecularLighting: ['lighting-color', ...filterArea],
};

// Where the element's own meaning wants an attribute that is presentation or common elsewhere.
const links = ['href', 'xlink:href'];
export const svgAdditions = {
  svg: ['xmlns', 'xmlns:xlink'],
  'font-face': face,
  cursor: ['x', 'y'],
};
for (const name of ['animate', 'animateColor', 'animateMotion', 'animateTransform', 'set']) {
  svgAdditions[name] = ['fill', ...links];
}
for (const name of ['altGlyph', 'animation', 'color-profile', 'cursor', 'discard', 'feImage',
  'filter', 'font-face-uri', 'glyphRef', 'handler', 'image', 'linearGradient', 'mpath', 'pattern',
  'prefetch', 'radialGradient', 'textPath', 'tref', 'use']) {
  svgAdditions[name] = [...(svgAdditions[name] ?? []), ...links];
}

export const mathCommon = ['class', 'id', 'style', 'dir', 'displaystyle', 'scriptlevel', 'mathsize',
  'mathcolor', 'mathbackground', 'href', 'xref', 'tabindex', 'autofocus', 'nonce'];
export const mathContentCommon = ['id', 'class', 'style', 'definitionURL', 'encoding', 'href',
  'xref'];
const indents = ['indentalign', 'indentshift', 'indenttarget', 'indentalignfirst',
  'indentshiftfirst', 'indentalignlast', 'indentshiftlast'];
const annotation = ['encoding', 'cd', 'name', 'definitionURL', 'src'];
export const math = {
  math: ['xmlns', 'display', 'alttext', 'altimg', 'altimg-width', 'altimg-height',
    'altimg-valign', 'maxwidth', 'overflow', 'cdgroup', 'mode'],
  annotation,
  'annotation-xml': annotation,
  semantics: ['encoding', 'cd', 'name', 'definitionURL'],
  maction: ['actiontype', 'selection'],
  maligngroup: ['groupalign'],
  malignmark: ['edge'],
  menclose: ['notation'],
  mfenced: ['open', 'close', 'separators'],
  mfrac: ['linethickness', 'numalign', 'denomalign', 'bevelled'],
  mglyph: ['src', 'alt', 'width', 'height', 'valign'],
  mi: ['mathvariant'],
  mlabeledtr: ['rowalign', 'columnalign', 'groupalign'],
  mlongdiv: ['longdivstyle', 'align', 'stackalign', 'charalign', 'charspacing'],
  mmultiscripts: ['subscriptshift', 'superscriptshift'],
  mn: ['mathvariant'],
  mo: ['form', 'fence', 'separator', 'lspace', 'rspace', 'stretchy', 'symmetric', 'maxsize',
    'minsize', 'largeop', 'movablelimits', 'accent', 'mathvariant', 'linebreak', 'lineleading',
    'linebreakstyle', 'linebreakmultchar', ...indents],
  mover: ['accent', 'align'],
  mpadded: ['width', 'height', 'depth', 'lspace', 'voffset'],
  ms: ['lquote', 'rquote', 'mathvariant'],
  mscarries: ['position', 'location', 'crossout', 'scriptsizemultiplier'],
  mscarry: ['location', 'crossout'],
  msgroup: ['position', 'shift'],
  msline: ['position', 'length', 'leftoverhang', 'rightoverhang', 'mslinethickness'],
  mspace: ['width', 'height', 'depth', 'linebreak', ...indents],
  msrow: ['position'],
  mstack: ['align', 'stackalign', 'charalign', 'charspacing'],
  mstyle: ['mathvariant', 'scriptminsize', 'scriptsizemultiplier', 'infixlinebreakstyle',
    'decimalpoint'],
  msub: ['subscriptshift'],
  msubsup: ['subscriptshift', 'superscriptshift'],
  msup: ['superscriptshift'],
  mtable: ['align', 'rowalign', 'columnalign', 'groupalign', 'alignmentscope', 'columnwidth',
    'width', 'rowspacing', 'columnspacing', 'rowlines', 'columnlines', 'frame', 'framespacing',
    'equalrows', 'equalcolumns', 'side', 'minlabelspacing'],
  mtd: ['rowspan', 'columnspan', 'rowalign', 'columnalign', 'groupalign'],
  mtext: ['mathvariant'],
  mtr: ['rowalign', 'columnalign', 'groupalign'],
  munder: ['accentunder', 'align'],
  munderover: ['accent', 'accentunder', 'align'],
  ci: ['type'],
  cn: ['type', 'base'],
  csymbol: ['cd', 'type'],
  declare: ['type', 'scope', 'nargs', 'occurrence'],
  fn: ['cd'],
  interval: ['closure'],
  tendsto: ['type'],
  share: ['src'],
  list: ['order'],
};
