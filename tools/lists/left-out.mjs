// SPDX-License-Identifier: MIT

// The one place that tells what the standards have and the lists leave out on purpose, and why.
// `names` are words or patterns; the check tells which of them leave out nothing any more.

const words = (text) => text.trim().split(/\s+/);

/** `elements`: those the entry holds for; without it, it holds for all. */
export const attributes = {
  html: [
    { why: 'ARIA allows neither a role nor states on elements that are not shown',
      elements: words(`base basefont bgsound col colgroup frame frameset head html isindex link meta
        nextid noframes noscript param script server slot source style template title track xml`),
      names: [/^aria-/, 'role'] },
    { why: 'withdrawn in ARIA 1.1', names: ['aria-dropeffect', 'aria-grabbed'] },
    { why: 'withdrawn before browsers agreed on them', elements: ['iframe'],
      names: ['allowpaymentrequest', 'allowusermedia'] },
    { why: 'only a slip for "img" in HTML; the block of that name is SVG\'s',
      elements: ['image'], names: [/./] },
    { why: 'doors to SVG and MathML, whose tables they follow', elements: ['svg', 'math'],
      names: [/./] },
  ],
  svg: [
    { why: 'metadata for programs that annotate graphics',
      names: words('about content datatype property rel resource rev typeof') },
    { why: 'of SVG for small phones alone, which no browser shows', names: [/^nav-/,
      ...words(`externalResourcesRequired focusHighlight focusable requiredFonts requiredFormats
        playbackorder playbackOrder timelinebegin timelineBegin snapshotTime syncBehaviorDefault
        syncToleranceDefault baseProfile contentScriptType contentStyleType editable`)] },
    { why: 'withdrawn between SVG 1.1 and SVG 2', names: words(`enable-background kerning clip
      color-profile glyph-orientation-horizontal glyph-orientation-vertical color-rendering`) },
    { why: 'HTML has an element of that name, and its block offers HTML\'s attributes',
      elements: words('a audio canvas font iframe script style textArea title video'),
      names: [/./] },
  ],
};

export const handlers = [
  { why: 'old vendor names of standard events', names: [/^onwebkit/] },
  { why: 'the editor takes 100 names, and those of the HTML standard and of WML come first',
    names: words(`onpointerover onpointerenter onpointerrawupdate onpointercancel onpointerout
      onpointerleave ongotpointercapture onlostpointercapture ontouchstart ontouchend ontouchmove
      ontouchcancel onanimationstart onanimationiteration onanimationend onanimationcancel
      ontransitionrun ontransitionstart ontransitioncancel onfullscreenchange onfullscreenerror
      onselectstart onselectionchange`) },
];

/** `modules`: whole modules by the last part of their address. */
export const properties = [
  { why: 'drafts beyond the snapshot of the style sheet standards', modules: words(`animation-triggers-1
    pointer-animations-1 css-rhythm-1 css-round-display-1 css-line-grid-1 css-gcpm-3 css-gcpm-4
    css-regions-1 css-exclusions-1 css-spatial-nav-1 css-image-animation-1 css-link-params-1
    css-color-hdr-1 css-values-5 css-size-adjust-1 css-text-5 css-position-4 css-forms-1
    css-images-5 css-grid-3 css-overflow-5 css-scroll-snap-2 css-scroll-anchoring-1 css-viewport
    strokes`) },
  { why: 'younger than that snapshot', modules: words(`scroll-animations-1
    css-anchor-position-1 css-view-transitions-2`) },
  { why: 'speech output, which no browser offers', modules: ['css-speech-1'] },
  { why: 'of drawings and formulas, offered there as attributes', modules: words(`geometry.html
    paths.html pservers.html text.html coords.html mathml-core`) },
  { why: 'draft parts of older modules', names: [
    /^corner-/, /^box-shadow-/, /^background-(tbd|position-(block|inline)|repeat-(x|y|block|inline))$/,
    /^border-(top|right|bottom|left|block-start|block-end|inline-start|inline-end)-radius$/,
    /^(min-|max-)?size$/, /^border-(.*-)?clip$/, /^overflow-clip-margin/, /^mask-border/, /^(row-rule|rule)/,
    /^column-rule-(break|inset|visibility)/, /^text-decoration-(skip-(box|self|spaces)|inset|skip$)/,
    /^(fill|stroke)-(break|color|image|origin|position|repeat|size|align|dash-corner|dash-justify)$/,
    ...words(`animation-delay-end animation-delay-start block-ellipsis
      bookmark-label bookmark-level bookmark-state border-limit border-shape corner
      caret-animation caret-shape interactivity interest-delay interest-delay-end
      interest-delay-start window-drag initial-letter-align initial-letter-wrap inline-sizing
      line-fit-edge text-box text-box-edge text-box-trim alignment-baseline baseline-shift
      baseline-source dominant-baseline frame-sizing min-intrinsic-sizing
      continue max-lines string-set column-height column-wrap float-defer
      float-offset float-reference marker-side margin-break margin-trim mask-type clip-rule
      color-adjust flex-line-count reading-flow reading-order
      hyphenate-limit-last hyphenate-limit-lines hyphenate-limit-zone line-padding text-align-all
      text-autospace text-group-align text-spacing text-spacing-trim white-space-trim
      word-space-transform wrap-after wrap-before wrap-inside font-variant-emoji
      font-synthesis-position font-width image-resolution offset-position shape-inside shape-padding
      text-emphasis-skip ruby-merge ruby-overhang animation-composition animation-timeline
      transition-behavior glyph-orientation-vertical
      nav-down nav-left nav-right nav-up color-interpolation-filters flood-color flood-opacity
      lighting-color color-interpolation marker marker-end marker-mid marker-start paint-order
      shape-rendering text-rendering fill-opacity fill-rule`)] },
];

/** `interfaces`: those the entry holds for; without it, it holds for all. */
export const members = [
  { why: 'event handlers have a list of their own', names: [/^.on[a-z]+$/] },
  { why: 'constants, better read in a reference', names: [/^#[A-Z][A-Z0-9_]*$/] },
  { why: 'reflections of ARIA attributes, usually set by setAttribute', names: [/^.aria[A-Z]/] },
  { why: 'in drafts alone', names: [/^.convert(Point|Quad|Rect)FromNode$/, '*getBoxQuads'] },
  { why: 'kept by the standards for old pages alone and without effect', names: words(`
    *captureEvents *releaseEvents +external *clear *taintEnabled #vendorSub #oscpu
    *queryCommandEnabled *queryCommandIndeterm *queryCommandState *queryCommandSupported
    *queryCommandValue *initEvent *initUIEvent *initMouseEvent *initKeyboardEvent *initCustomEvent
    *webkitMatchesSelector *createCDATASection *detach #inputEncoding +clientInformation
    +locationbar +menubar +personalbar +scrollbars +statusbar +toolbar #screenLeft #screenTop`) },
];

/** Members of the core language. */
export const coreMembers = [
  { why: 'called by the engine or withdrawn from use', names: [/^__/, 'trimLeft', 'trimRight'] },
  { why: 'of one engine alone', names: ['captureStackTrace', 'prepareStackTrace',
    'stackTraceLimit'] },
  { why: 'younger than the engines that pages meet', names: ['dispose', 'asyncDispose', 'groupBy'] },
  { why: 'for tools, not for pages', names: ['getOwnPropertyDescriptors',
    'getOwnPropertySymbols'] },
];

const used = new Set();

/** The reason why `name` is left out, or undefined. */
export function reason(entries, name, fits = () => true) {
  for (const entry of entries.filter(fits)) {
    const word = (entry.names ?? []).find((item) => (
      item instanceof RegExp ? item.test(name) : item === name));
    if (word === undefined) continue;
    used.add(`${entry.why}: ${word}`);
    return entry.why;
  }
  return undefined;
}

/** Forgets what has been asked for. */
export const forget = () => used.clear();

/** Names and modules that have left out nothing since `forget`. */
export function stale() {
  const entries = [...attributes.html, ...attributes.svg, ...handlers, ...properties, ...members];
  return entries.flatMap((entry) => [...entry.names ?? [], ...entry.modules ?? []]
    .map((word) => `${entry.why}: ${word}`)).filter((line) => !used.has(line));
}

export const attributeReason = (kind, element, name) => reason(attributes[kind], name, (item) => (
  item.elements === undefined || item.elements.includes(element)));

export const handlerReason = (name) => reason(handlers, name);

export function propertyReason({ name, module }) {
  const entry = properties.find((item) => item.modules?.includes(module));
  if (entry === undefined) return reason(properties, name);
  used.add(`${entry.why}: ${module}`);
  return entry.why;
}

export const memberReason = (entry) => reason(members, entry);
