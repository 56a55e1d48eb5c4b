// SPDX-License-Identifier: MIT

// An attribute list is for a person to pick from: an element's own attributes come first, the
// most used ones on top, then a short selection of the common ones and of the events.

// Entries with this first character are headings; choosing one inserts nothing.
export const headingMark = '·';
export const headings = {
  common: '·Allgemein',
  events: '·Ereignisse',
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
  html: ['xmlns', 'xml:lang'],
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
  nextid: ['n'],
  script: ['event', 'for'],
  spacer: ['align', 'height', 'size', 'type', 'width'],
  table: ['background', 'bordercolor', 'bordercolordark', 'bordercolorlight', 'height'],
  td: ['background', 'bordercolor', 'bordercolordark', 'bordercolorlight'],
  th: ['background', 'bordercolor', 'bordercolordark', 'bordercolorlight'],
  tr: ['bordercolor', 'height'],
  xml: ['src'],
};

// Present in the standards' tables but of no use to a person who picks from a list.
export const omissions = {
  a: ['ping'],
  area: ['ping'],
  button: ['command', 'commandfor'],
  input: ['alpha', 'colorspace', 'dirname', 'ismap'],
  iframe: ['allowpaymentrequest', 'allowusermedia'],
  script: ['blocking'],
  style: ['blocking'],
  link: ['blocking'],
  template: ['shadowrootcustomelementregistry'],
};

// WML's own attributes of elements that HTML has too stand under a heading of their own.
export const wml = {
  access: ['domain', 'path'],
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
export const wmlCommon = ['id', 'class', 'xml:lang'];

export const common = [
  'class', 'id', 'style', 'title', 'lang', 'dir', 'tabindex', 'accesskey', 'hidden', 'role',
  'aria-label', 'contenteditable', 'draggable', 'translate',
];

// Elements that show nothing get fewer common attributes and no mouse or key events.
export const silentCommon = {
  base: ['id'],
  basefont: ['id'],
  bgsound: ['id'],
  col: ['class', 'id', 'style'],
  colgroup: ['class', 'id', 'style'],
  frame: ['class', 'id', 'style', 'title'],
  frameset: ['class', 'id', 'style', 'title'],
  head: ['id', 'lang', 'dir'],
  html: ['lang', 'dir', 'class', 'id'],
  link: ['class', 'id', 'title', 'lang', 'nonce'],
  meta: ['id', 'lang', 'dir', 'itemprop'],
  nextid: [],
  noframes: ['class', 'id', 'lang'],
  noscript: ['class', 'id', 'lang'],
  param: ['id'],
  script: ['id', 'nonce'],
  server: ['id'],
  slot: ['class', 'id'],
  source: ['id'],
  style: ['id', 'title', 'lang', 'nonce'],
  template: ['class', 'id'],
  title: ['id', 'lang', 'dir'],
  track: ['id'],
  xml: ['id'],
};

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

export const svgCommon = ['class', 'id', 'style', 'lang'];
export const svgEvents = ['onclick', 'onmouseover', 'onmouseout', 'onmousemove', 'onload'];

// The standards allow every presentation attribute on every SVG element; these are of use.
const paint = [
  'fill', 'fill-opacity', 'fill-rule', 'stroke', 'stroke-width', 'stroke-opacity',
  'stroke-dasharray', 'stroke-linecap', 'stroke-linejoin', 'opacity', 'transform', 'clip-path',
  'mask', 'filter', 'visibility', 'display',
];
const markers = ['marker-start', 'marker-mid', 'marker-end'];
const type = [
  'font-family', 'font-size', 'font-style', 'font-weight', 'text-anchor', 'text-decoration',
  'dominant-baseline', 'letter-spacing', 'word-spacing', 'writing-mode',
];
export const svgPresentation = {
  circle: paint,
  ellipse: paint,
  rect: paint,
  line: [...paint, ...markers],
  path: [...paint, ...markers],
  polygon: [...paint, ...markers],
  polyline: [...paint, ...markers],
  g: [...paint, ...type],
  svg: ['fill', 'stroke', 'stroke-width', 'opacity', 'overflow', 'font-family', 'font-size'],
  symbol: ['overflow', 'opacity'],
  use: paint,
  image: ['opacity', 'transform', 'clip-path', 'mask', 'filter', 'image-rendering'],
  text: [...paint, ...type],
  tspan: ['fill', 'stroke', ...type],
  textPath: ['fill', 'stroke', ...type],
  tref: ['fill', 'stroke', ...type],
  textArea: ['fill', 'stroke', ...type],
  stop: ['stop-color', 'stop-opacity'],
  linearGradient: [],
  feFlood: ['flood-color', 'flood-opacity'],
  feDropShadow: ['flood-color', 'flood-opacity'],
  feDiffuseLighting: ['lighting-color'],
  feSpecularLighting: ['lighting-color'],
  marker: ['overflow', 'opacity'],
  clipPath: ['clip-rule', 'transform'],
  foreignObject: ['transform', 'opacity', 'overflow'],
  switch: ['transform', 'opacity'],
};

// Attributes of tiny phones' SVG and of content types are left out everywhere.
export const svgNoise = [
  'about', 'content', 'datatype', 'property', 'rel', 'resource', 'rev', 'typeof',
  'externalResourcesRequired', 'enable-background', 'focusHighlight', 'focusable', 'nav-down',
  'nav-down-left', 'nav-down-right', 'nav-left', 'nav-next', 'nav-prev', 'nav-right', 'nav-up',
  'nav-up-left', 'nav-up-right', 'requiredFonts', 'requiredFormats', 'playbackorder',
  'timelinebegin', 'timelineBegin', 'playbackOrder', 'snapshotTime', 'syncBehaviorDefault',
  'syncToleranceDefault', 'baseProfile', 'contentScriptType', 'contentStyleType', 'kerning', 'clip', 'color-profile', 'tabindex',
];
// Where the element's own meaning wants an attribute that is noise elsewhere.
export const svgAdditions = {
  svg: ['xmlns', 'xmlns:xlink', 'tabindex'],
  image: ['href', 'xlink:href', 'x', 'y', 'width', 'height', 'preserveAspectRatio'],
  use: ['href', 'xlink:href', 'x', 'y', 'width', 'height'],
  feImage: ['href'],
  linearGradient: ['href'],
  radialGradient: ['href'],
  pattern: ['href'],
  textPath: ['href'],
  mpath: ['href'],
};

export const mathCommon = ['class', 'id', 'style', 'dir', 'displaystyle', 'scriptlevel',
  'mathcolor', 'mathbackground', 'href'];
export const mathContentCommon = ['id', 'class', 'style', 'definitionURL', 'encoding', 'xref'];
export const math = {
  math: ['xmlns', 'display', 'alttext', 'altimg', 'maxwidth', 'overflow', 'mode'],
  annotation: ['encoding', 'src'],
  'annotation-xml': ['encoding', 'src'],
  semantics: ['encoding'],
  maction: ['actiontype', 'selection'],
  maligngroup: ['groupalign'],
  malignmark: ['edge'],
  menclose: ['notation'],
  mfenced: ['open', 'close', 'separators'],
  mfrac: ['linethickness', 'numalign', 'denomalign', 'bevelled'],
  mglyph: ['src', 'alt', 'width', 'height', 'valign'],
  mi: ['mathvariant', 'mathsize'],
  mlabeledtr: ['rowalign', 'columnalign', 'groupalign'],
  mlongdiv: ['longdivstyle', 'align', 'stackalign', 'charalign', 'charspacing'],
  mmultiscripts: ['subscriptshift', 'superscriptshift'],
  mn: ['mathvariant', 'mathsize'],
  mo: ['form', 'fence', 'separator', 'lspace', 'rspace', 'stretchy', 'symmetric', 'maxsize',
    'minsize', 'largeop', 'movablelimits', 'accent', 'mathvariant', 'mathsize', 'linebreak'],
  mover: ['accent', 'align'],
  mpadded: ['width', 'height', 'depth', 'lspace', 'voffset'],
  ms: ['lquote', 'rquote', 'mathvariant', 'mathsize'],
  mscarries: ['position', 'location', 'crossout', 'scriptsizemultiplier'],
  mscarry: ['location', 'crossout'],
  msgroup: ['position', 'shift'],
  msline: ['position', 'length', 'leftoverhang', 'rightoverhang', 'mslinethickness'],
  mspace: ['width', 'height', 'depth', 'linebreak'],
  msrow: ['position'],
  mstack: ['align', 'stackalign', 'charalign', 'charspacing'],
  mstyle: ['mathvariant', 'mathsize', 'scriptminsize', 'scriptsizemultiplier'],
  msub: ['subscriptshift'],
  msubsup: ['subscriptshift', 'superscriptshift'],
  msup: ['superscriptshift'],
  mtable: ['align', 'rowalign', 'columnalign', 'columnwidth', 'width', 'rowspacing',
    'columnspacing', 'rowlines', 'columnlines', 'frame', 'framespacing', 'equalrows',
    'equalcolumns', 'side'],
  mtd: ['rowspan', 'columnspan', 'rowalign', 'columnalign', 'groupalign'],
  mtext: ['mathvariant', 'mathsize'],
  mtr: ['rowalign', 'columnalign', 'groupalign'],
  munder: ['accentunder', 'align'],
  munderover: ['accent', 'accentunder', 'align'],
  apply: [],
  ci: ['type'],
  cn: ['type', 'base'],
  csymbol: ['cd'],
  cs: [],
  declare: ['type', 'scope', 'nargs', 'occurrence'],
  interval: ['closure'],
  tendsto: ['type'],
  share: ['href', 'src'],
  list: ['order'],
};
