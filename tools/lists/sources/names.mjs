// SPDX-License-Identifier: MIT

// Script events, the most used ones first within each group; the reader takes 100 at most.
export const events = [
  // mouse
  'onclick', 'ondblclick', 'onmouseover', 'onmouseout', 'onmousedown', 'onmouseup', 'onmousemove',
  'onmouseenter', 'onmouseleave', 'onwheel', 'oncontextmenu', 'onauxclick',
  // keyboard
  'onkeydown', 'onkeyup', 'onkeypress',
  // page
  'onload', 'onunload', 'onbeforeunload', 'onresize', 'onscroll', 'onerror', 'onabort',
  'onhashchange', 'onpopstate', 'onpageshow', 'onpagehide', 'onbeforeprint', 'onafterprint',
  'ononline', 'onoffline', 'onstorage', 'onmessage', 'onmessageerror', 'onlanguagechange',
  'onvisibilitychange', 'onreadystatechange', 'onfullscreenchange', 'onunhandledrejection',
  // forms
  'onsubmit', 'onreset', 'onchange', 'oninput', 'onbeforeinput', 'onselect', 'onfocus', 'onblur',
  'oninvalid', 'onformdata', 'onselectstart', 'onselectionchange',
  // clipboard and dragging
  'oncopy', 'oncut', 'onpaste', 'ondrag', 'ondragstart', 'ondragend', 'ondragenter',
  'ondragleave', 'ondragover', 'ondrop',
  // touch and pointer
  'ontouchstart', 'ontouchmove', 'ontouchend', 'ontouchcancel', 'onpointerdown', 'onpointerup',
  'onpointermove', 'onpointerover', 'onpointerout', 'onpointerenter', 'onpointerleave',
  'onpointercancel',
  // sound and film
  'onplay', 'onplaying', 'onpause', 'onended', 'ontimeupdate', 'onvolumechange', 'oncanplay',
  'onloadedmetadata', 'onloadeddata', 'onseeking', 'onseeked', 'onwaiting', 'onratechange',
  'onprogress',
  // dialogs and open parts of the page
  'ontoggle', 'onclose', 'oncancel',
  // movement
  'ontransitionend', 'onanimationstart', 'onanimationiteration', 'onanimationend',
  // decks of cards
  'onenterforward', 'onenterbackward', 'ontimer', 'onpick',
];

// Of the events above, those that only WML knows.
export const wmlEvents = ['onenterforward', 'onenterbackward', 'ontimer', 'onpick'];

// Names of meta tags, those that most pages carry first. A ":" would end the name in the dialog.
export const metas = [
  'author', 'description', 'keywords', 'generator', 'robots', 'viewport', 'copyright', 'date',
  'language', 'publisher', 'revisit-after', 'audience', 'page-topic', 'page-type', 'rating',
  'distribution', 'abstract', 'classification', 'reply-to', 'owner', 'resource-type', 'expires',
  'application-name', 'theme-color', 'color-scheme', 'referrer', 'creator', 'format-detection',
  'mobile-web-app-capable', 'supported-color-schemes', 'HandheldFriendly', 'MobileOptimized',
  'geo.region', 'geo.placename', 'geo.position', 'ICBM', 'DC.title', 'DC.creator', 'DC.subject',
  'DC.description', 'DC.publisher', 'DC.contributor', 'DC.date', 'DC.type', 'DC.format',
  'DC.identifier', 'DC.source', 'DC.language', 'DC.relation', 'DC.coverage', 'DC.rights',
];
