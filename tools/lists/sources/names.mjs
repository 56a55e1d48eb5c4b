// SPDX-License-Identifier: MIT

// Script events, the most used ones first within each group. The reader takes 100: all handlers of
// the HTML standard, those of WML, and of pointers and transitions as many as there is room for.
export const events = [
  // mouse and pointer
  'onclick', 'ondblclick', 'onmouseover', 'onmouseout', 'onmousedown', 'onmouseup', 'onmousemove',
  'onmouseenter', 'onmouseleave', 'onwheel', 'oncontextmenu', 'onauxclick', 'onpointerdown',
  'onpointerup', 'onpointermove',
  // keyboard
  'onkeydown', 'onkeyup', 'onkeypress',
  // page
  'onload', 'onunload', 'onbeforeunload', 'onresize', 'onscroll', 'onscrollend', 'onerror',
  'onabort', 'onhashchange', 'onpopstate', 'onpageshow', 'onpagehide', 'onpagereveal',
  'onpageswap', 'onbeforeprint', 'onafterprint', 'ononline', 'onoffline', 'onstorage',
  'onmessage', 'onmessageerror', 'onlanguagechange', 'onvisibilitychange', 'onreadystatechange',
  'onunhandledrejection', 'onrejectionhandled', 'onsecuritypolicyviolation',
  // forms
  'onsubmit', 'onreset', 'onchange', 'oninput', 'onbeforeinput', 'onselect', 'onfocus', 'onblur',
  'oninvalid', 'onformdata',
  // clipboard and dragging
  'oncopy', 'oncut', 'onpaste', 'ondrag', 'ondragstart', 'ondragend', 'ondragenter',
  'ondragleave', 'ondragover', 'ondrop',
  // sound and film
  'onplay', 'onplaying', 'onpause', 'onended', 'ontimeupdate', 'onvolumechange', 'oncanplay',
  'oncanplaythrough', 'onloadstart', 'onloadedmetadata', 'onloadeddata', 'ondurationchange',
  'onseeking', 'onseeked', 'onwaiting', 'onstalled', 'onsuspend', 'onemptied', 'onratechange',
  'onprogress', 'oncuechange',
  // dialogs, open parts of the page and canvas
  'ontoggle', 'onbeforetoggle', 'onclose', 'oncancel', 'oncommand', 'onbeforematch',
  'onslotchange', 'oncontextlost', 'oncontextrestored',
  // movement
  'ontransitionend',
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
