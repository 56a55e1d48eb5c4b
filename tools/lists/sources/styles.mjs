// SPDX-License-Identifier: MIT

// Objects of the style dialog and the properties that are of use for each, beside the common ones
// of "default". The block of "#" is for every object whose name begins with it.

const list = (text) => text.trim().split(/\s+/);

const text = `text-align text-indent line-height letter-spacing word-spacing text-transform
  white-space`;
const background = `background-image background-repeat background-position background-attachment
  background-size`;
const place = 'position top right bottom left z-index';
const flow = 'float clear overflow';
const box = 'min-width max-width min-height max-height';
const flex = `flex-direction flex-wrap justify-content align-items gap`;
const tables = 'border-collapse border-spacing table-layout caption-side empty-cells';
const cells = 'text-align vertical-align white-space';
const lists = 'list-style list-style-type list-style-position list-style-image';
const link = 'cursor outline transition';
const field = `text-align cursor outline border-radius accent-color caret-color resize box-sizing`;
const breaks = 'page-break-before page-break-after page-break-inside orphans widows';

// Not properties of elements: what describes a font or a page.
export const descriptors = ['src', 'unicode-range', 'font-display', 'size', 'marks', 'bleed'];

const objects = {
  body: `${background} ${text} ${flow} scroll-behavior`,
  html: `${background} ${flow} scroll-behavior writing-mode`,
  h1: `${text} ${breaks} text-shadow`,
  h2: `${text} ${breaks} text-shadow`,
  h3: `${text} ${breaks} text-shadow`,
  h4: `${text} ${breaks} text-shadow`,
  h5: `${text} ${breaks} text-shadow`,
  h6: `${text} ${breaks} text-shadow`,
  p: `${text} ${breaks} clear hyphens`,
  div: `${text} ${background} ${place} ${flow} ${box} ${flex} ${breaks} border-radius box-shadow`,
  span: `${place} ${background} vertical-align line-height letter-spacing text-transform
    white-space`,
  a: `${link} text-transform white-space`,
  'a:link': link,
  'a:visited': link,
  'a:hover': link,
  'a:active': link,
  'a:focus': link,
  b: 'letter-spacing text-transform',
  strong: 'letter-spacing text-transform',
  i: 'letter-spacing text-transform',
  em: 'letter-spacing text-transform',
  small: 'vertical-align',
  sub: 'vertical-align line-height',
  sup: 'vertical-align line-height',
  pre: `${text} overflow tab-size`,
  code: 'white-space tab-size border-radius',
  blockquote: `${text} ${breaks} quotes`,
  q: 'quotes',
  cite: 'quotes',
  address: text,
  hr: 'text-align clear overflow border-radius',
  ul: `${lists} text-align clear`,
  ol: `${lists} text-align clear`,
  li: `${lists} text-align float clear`,
  dl: 'text-align clear',
  dt: 'text-align clear float',
  dd: 'text-align clear text-indent',
  table: `${tables} ${background} text-align float clear`,
  caption: 'caption-side text-align vertical-align',
  thead: `${cells} ${background}`,
  tbody: `${cells} ${background}`,
  tfoot: `${cells} ${background}`,
  tr: `${cells} ${background}`,
  th: `${cells} ${background} line-height`,
  td: `${cells} ${background} line-height overflow`,
  col: 'vertical-align text-align visibility',
  img: `${flow} ${box} vertical-align object-fit object-position border-radius filter opacity`,
  iframe: `${flow} ${box} border-radius`,
  object: `${flow} ${box} vertical-align`,
  video: `${flow} ${box} object-fit object-position`,
  canvas: `${flow} ${box} image-rendering`,
  svg: `${flow} ${box} fill stroke stroke-width vertical-align`,
  form: `text-align ${flow}`,
  fieldset: `text-align ${flow} border-radius`,
  legend: 'text-align text-transform',
  label: 'cursor vertical-align float clear',
  input: `${field} vertical-align`,
  'input:focus': 'outline box-shadow border-radius',
  select: `${field} vertical-align`,
  textarea: `${field} vertical-align overflow white-space`,
  button: `${field} box-shadow transition text-transform`,
  header: `${background} ${place} ${flow} ${flex} text-align`,
  nav: `${background} ${place} ${flow} ${flex} text-align`,
  main: `${background} ${flow} ${box} text-align`,
  section: `${background} ${flow} ${box} ${breaks} text-align`,
  article: `${background} ${flow} ${box} ${breaks} ${text} column-count column-gap`,
  aside: `${background} ${place} ${flow} text-align`,
  footer: `${background} ${place} ${flow} ${flex} text-align`,
  figure: `text-align ${flow}`,
  figcaption: 'text-align caption-side',
  dialog: `${background} ${place} overflow border-radius box-shadow`,
  '.klasse': `${text} ${background} ${flow} vertical-align`,
  '*': 'box-sizing',
  'p:first-letter': 'float line-height vertical-align text-transform',
  'p:first-line': 'line-height letter-spacing word-spacing text-transform',
  '::selection': 'text-shadow',
  '@page': 'size marks bleed page-break-before page-break-after',
  '@font-face': 'src unicode-range font-display font-stretch',
  marquee: 'text-align overflow line-height',
  '#': `${text} ${background} ${place} ${flow} ${box} visibility clip opacity`,
  '#kopf': flex,
  '#inhalt': 'column-count column-gap column-rule',
  '#navigation': `${lists} ${flex}`,
  '#fuss': flex,
};

// Last, so that an object's own properties stand above them in the dialog's list.
const everywhere = `color background background-color font font-family font-size font-style
  font-weight font-variant text-decoration margin margin-top margin-right margin-bottom margin-left
  padding padding-top padding-right padding-bottom padding-left border border-top border-right
  border-bottom border-left border-width border-style border-color width height display`;

export const blocks = [
  ...Object.entries(objects).map(([name, properties]) => [name, list(properties)]),
  ['default', list(everywhere)],
];
