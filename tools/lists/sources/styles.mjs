// SPDX-License-Identifier: MIT

// Objects of the style dialog and the properties that are of use for each, beside the common ones
// of "default". The block of "#" is for every object whose name begins with it. What "default" has
// is dropped from the others.

const list = (text) => text.trim().split(/\s+/);

// Properties of one kind of object; all others are in "default".
const text = `text-align text-align-last text-indent text-justify text-wrap text-wrap-mode
  text-wrap-style hanging-punctuation initial-letter hyphens hyphenate-character
  hyphenate-limit-chars tab-size line-break`;
const flex = `flex-flow flex-direction flex-wrap justify-content align-items align-content
  place-content gap row-gap column-gap`;
const grid = `grid grid-template grid-template-columns grid-template-rows grid-template-areas
  grid-auto-columns grid-auto-rows grid-auto-flow justify-items place-items`;
const columns = `columns column-count column-width column-rule column-rule-width
  column-rule-style column-rule-color column-fill`;
const breaks = `page-break-before page-break-after page-break-inside break-before break-after
  break-inside orphans widows`;
const snap = `scroll-snap-type scroll-padding scroll-padding-top scroll-padding-right
  scroll-padding-bottom scroll-padding-left scroll-padding-block scroll-padding-block-start
  scroll-padding-block-end scroll-padding-inline scroll-padding-inline-start
  scroll-padding-inline-end`;
const container = `${flex} ${grid} ${columns} ${snap}`;
const tables = 'border-collapse border-spacing table-layout caption-side empty-cells';
const lists = 'list-style list-style-type list-style-position list-style-image';
const replaced = 'object-fit object-position image-rendering image-orientation';
const field = 'accent-color caret caret-color resize appearance';
const generated = 'content quotes';
const ruby = 'ruby-align ruby-position';
const drawn = `fill stroke stroke-width stroke-opacity stroke-dasharray stroke-dashoffset
  stroke-linecap stroke-linejoin stroke-miterlimit`;
const align = 'vertical-align';

export const special = list(`${text} ${container} ${breaks} ${tables} ${lists} ${replaced} ${field}
  ${generated} ${ruby} ${drawn} ${align}`);

// Not properties of elements: what describes a font or a page.
export const descriptors = ['src', 'unicode-range', 'font-display', 'font-stretch',
  'ascent-override', 'descent-override', 'line-gap-override', 'size-adjust', 'size', 'marks',
  'bleed', 'page-orientation'];

const paragraph = `${text} ${breaks}`;
const link = align;
const cells = `${text} ${align}`;

const objects = {
  body: `${text} ${container}`,
  html: `${text} ${snap}`,
  h1: paragraph,
  h2: paragraph,
  h3: paragraph,
  h4: paragraph,
  h5: paragraph,
  h6: paragraph,
  p: `${paragraph} ${columns}`,
  div: `${text} ${container} ${breaks}`,
  span: align,
  a: link,
  'a:link': link,
  'a:visited': link,
  'a:hover': link,
  'a:active': link,
  'a:focus': link,
  'a:focus-visible': link,
  b: align,
  strong: align,
  i: align,
  em: align,
  small: align,
  sub: align,
  sup: align,
  pre: text,
  code: `tab-size ${align}`,
  blockquote: `${paragraph} quotes`,
  q: 'quotes',
  cite: 'quotes',
  address: text,
  hr: 'text-align',
  ul: `${lists} ${text} ${container}`,
  ol: `${lists} ${text} ${container}`,
  li: `${lists} ${paragraph}`,
  dl: `${text} ${container}`,
  dt: paragraph,
  dd: paragraph,
  table: `${tables} text-align ${breaks}`,
  caption: `caption-side ${cells}`,
  thead: cells,
  tbody: cells,
  tfoot: cells,
  tr: `${cells} ${breaks}`,
  'tr:nth-child(even)': cells,
  'tr:nth-child(odd)': cells,
  th: `empty-cells ${cells}`,
  td: `empty-cells ${cells}`,
  col: cells,
  ruby,
  rt: ruby,
  img: `${replaced} ${align}`,
  iframe: align,
  object: `${replaced} ${align}`,
  embed: `${replaced} ${align}`,
  video: `${replaced} ${align}`,
  canvas: `${replaced} ${align}`,
  svg: `${drawn} ${align}`,
  form: `${text} ${container}`,
  fieldset: `${text} ${container}`,
  legend: 'text-align',
  label: align,
  input: `text-align ${field} field-sizing ${align}`,
  'input:focus': field,
  'input:checked': field,
  'input:disabled': field,
  'input:required': field,
  'input:invalid': field,
  'input:valid': field,
  'input:read-only': field,
  'input:placeholder-shown': field,
  select: `text-align ${field} ${align}`,
  textarea: `${text} ${field} ${align}`,
  button: `text-align ${field} ${align}`,
  header: `${text} ${container}`,
  nav: `${text} ${container}`,
  main: `${text} ${container}`,
  section: `${text} ${container} ${breaks}`,
  article: `${text} ${container} ${breaks}`,
  aside: `${text} ${container}`,
  footer: `${text} ${container}`,
  figure: `${text} ${container} ${breaks}`,
  figcaption: text,
  details: text,
  summary: `${lists} ${text}`,
  dialog: `${text} ${container}`,
  marquee: 'text-align',
  '.klasse': special.join(' '),
  '*': 'text-align',
  ':before': `${generated} ${align}`,
  ':after': `${generated} ${align}`,
  '::before': `${generated} ${align}`,
  '::after': `${generated} ${align}`,
  '::marker': 'content',
  '::placeholder': 'text-align',
  '::selection': '',
  '::backdrop': '',
  '::first-letter': `initial-letter ${align}`,
  '::first-line': align,
  'p:first-letter': `initial-letter ${align}`,
  'p:first-line': align,
  'p:first-child': paragraph,
  'p:first-of-type': paragraph,
  'p:last-of-type': paragraph,
  'p:nth-of-type(2)': paragraph,
  'li:first-child': lists,
  'li:last-child': lists,
  'li:nth-child(2n)': lists,
  'li:only-child': lists,
  'td:first-child': cells,
  'td:empty': `empty-cells ${cells}`,
  'p:not(.klasse)': paragraph,
  'div:has(img)': container,
  'q:lang(de)': generated,
  ':root': text,
  ':target': text,
  ':hover': '',
  ':active': '',
  ':focus': '',
  ':focus-visible': '',
  ':focus-within': '',
  ':is(h1)': paragraph,
  ':where(h1)': paragraph,
  ':checked': field,
  ':disabled': field,
  ':enabled': field,
  '#': special.join(' '),
  '#kopf': '',
  '#inhalt': '',
  '#navigation': '',
  '#fuss': '',
  '@page': 'size marks bleed page-orientation',
  '@font-face': `src unicode-range font-display font-stretch ascent-override descent-override
    line-gap-override size-adjust`,
};

// Last, so that an object's own properties stand above them in the dialog's list; the most used
// ones first, and behind them the rest of the standard.
export const everywhere = list(`color background background-color background-image
  background-repeat background-position background-attachment background-size font font-family
  font-size font-style font-weight font-variant line-height letter-spacing word-spacing
  text-decoration text-transform text-shadow white-space margin margin-top margin-right
  margin-bottom margin-left padding padding-top padding-right padding-bottom padding-left border
  border-top border-right border-bottom border-left border-width border-style border-color
  border-radius width height min-width max-width min-height max-height box-sizing display position
  top right bottom left z-index float clear overflow visibility opacity cursor outline box-shadow
  transform transition animation filter`);

export const blocks = Object.entries(objects)
  .map(([name, properties]) => [name, properties === '' ? [] : list(properties)]);
