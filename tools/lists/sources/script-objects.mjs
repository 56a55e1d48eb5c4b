// SPDX-License-Identifier: MIT

// Objects of scripts and the members that are of use behind a dot: "#" marks a property, "*" a
// method, "+" a sub-object. A name stands for all its spellings, so "string" serves the
// constructor String and a variable of that name alike.
// `is` names the interfaces or the core language objects that must know the members; `also` lists
// members that those don't tell of. The members told here come first; behind them the generator
// puts the rest of what the interfaces have by the standards: of those in `fill`, and with `whole`
// of those that they inherit from, too.

const list = (text) => text.trim().split(/\s+/);
const object = (name, is, members, also = '', { fill = is, whole = false } = {}) => ({
  name,
  is: list(is),
  members: list(members),
  also: also === '' ? [] : list(also),
  fill: list(fill).filter((item) => !item.startsWith('core:')),
  whole,
});

const node = `
  #nodeName #nodeType #nodeValue #textContent #isConnected +childNodes +firstChild +lastChild
  +nextSibling +previousSibling +parentNode +parentElement +ownerDocument
  *appendChild *insertBefore *removeChild *replaceChild *cloneNode *contains *hasChildNodes
  *compareDocumentPosition *isEqualNode *normalize
  *addEventListener *removeEventListener *dispatchEvent`;

const element = `
  #id #className #innerHTML #outerHTML #innerText #textContent #tagName #title #lang #dir #hidden
  #tabIndex #accessKey #draggable #contentEditable #offsetLeft #offsetTop #offsetWidth
  #offsetHeight #clientWidth #clientHeight #scrollLeft #scrollTop #scrollWidth #scrollHeight
  +style +classList +dataset +attributes +children +childNodes +firstChild +lastChild
  +firstElementChild +lastElementChild +nextSibling +previousSibling +nextElementSibling
  +previousElementSibling +parentNode +parentElement +offsetParent
  *getAttribute *setAttribute *removeAttribute *hasAttribute *toggleAttribute
  *querySelector *querySelectorAll *getElementsByTagName *getElementsByClassName
  *appendChild *insertBefore *removeChild *replaceChild *cloneNode *contains
  *append *prepend *before *after *replaceWith *replaceChildren *remove
  *insertAdjacentHTML *insertAdjacentElement *closest *matches *getBoundingClientRect
  *scrollIntoView *scrollTo *focus *blur *click *animate
  *addEventListener *removeEventListener *dispatchEvent`;

const eventTarget = '*addEventListener *removeEventListener *dispatchEvent';

const event = `
  #type #clientX #clientY #screenX #screenY #pageX #pageY #offsetX #offsetY #button #buttons #key
  #code #keyCode #charCode #which #altKey #ctrlKey #shiftKey #metaKey #repeat #detail #data
  #bubbles #cancelable #defaultPrevented #eventPhase #isTrusted #timeStamp #returnValue
  #cancelBubble #deltaX #deltaY +target +currentTarget +relatedTarget +srcElement +view
  +dataTransfer +clipboardData +touches +changedTouches
  *preventDefault *stopPropagation *stopImmediatePropagation *composedPath *getModifierState`;
const eventTypes = `Event UIEvent MouseEvent KeyboardEvent WheelEvent DragEvent ClipboardEvent
  TouchEvent InputEvent`;

const window = `
  #name #status #closed #length #innerWidth #innerHeight #outerWidth #outerHeight #screenX #screenY
  #scrollX #scrollY #pageXOffset #pageYOffset #devicePixelRatio #origin #isSecureContext
  +document +location +history +navigator +screen +event +parent +top +self +opener +frames
  +localStorage +sessionStorage +console +performance +crypto +visualViewport +customElements
  *alert *confirm *prompt *open *close *print *focus *blur *stop *setTimeout *clearTimeout
  *setInterval *clearInterval *requestAnimationFrame *cancelAnimationFrame *scroll *scrollTo
  *scrollBy *moveTo *moveBy *resizeTo *resizeBy *getComputedStyle *getSelection *matchMedia
  *postMessage *fetch *btoa *atob *queueMicrotask *structuredClone
  *addEventListener *removeEventListener *dispatchEvent`;

const location = `
  #href #protocol #host #hostname #port #pathname #search #hash #origin *assign *replace *reload
  *toString`;

const control = `
  #name #value #type #disabled #validationMessage #willValidate +form +labels +validity
  *focus *blur *checkValidity *reportValidity *setCustomValidity`;
const field = `${control} #required`;
const textField = `#defaultValue #readOnly #placeholder #maxLength #minLength #selectionStart
  #selectionEnd #autocomplete *select *setSelectionRange *setRangeText`;
const input = `${field} ${textField} #checked #defaultChecked #indeterminate #min #max #step #size
  #pattern #multiple #accept #valueAsNumber +files +list *click *stepUp *stepDown *showPicker`;
const form = `
  #name #action #method #target #enctype #encoding #acceptCharset #noValidate #autocomplete #length
  +elements *submit *reset *requestSubmit *checkValidity *reportValidity`;
const select = `${field} #selectedIndex #length #multiple #size +options +selectedOptions *add
  *remove *item *namedItem`;
const option = `#text #value #label #index #selected #defaultSelected #disabled +form`;
const image = `#src #alt #width #height #naturalWidth #naturalHeight #complete #border #name #align
  #hspace #vspace #isMap #useMap #srcset #sizes #loading #currentSrc *decode`;
const link = `#href #target #text #hash #host #hostname #pathname #port #protocol #search #rel #type
  #hreflang #download #name *focus *blur *click`;
const media = `#src #currentSrc #currentTime #duration #paused #ended #volume #muted #loop #autoplay
  #controls #preload #playbackRate #readyState #networkState #seeking +error +buffered +played
  +textTracks *play *pause *load *canPlayType`;
const row = `#rowIndex #sectionRowIndex #align #vAlign #bgColor +cells *insertCell *deleteCell`;
const cell = `#cellIndex #colSpan #rowSpan #headers #align #vAlign #bgColor #width #height #noWrap`;

const context2d = `
  #fillStyle #strokeStyle #lineWidth #lineCap #lineJoin #miterLimit #lineDashOffset #font
  #textAlign #textBaseline #direction #globalAlpha #globalCompositeOperation #filter #shadowBlur
  #shadowColor #shadowOffsetX #shadowOffsetY #imageSmoothingEnabled +canvas
  *beginPath *closePath *moveTo *lineTo *arc *arcTo *ellipse *rect *roundRect *quadraticCurveTo
  *bezierCurveTo *fill *stroke *clip *fillRect *strokeRect *clearRect *fillText *strokeText
  *measureText *drawImage *createLinearGradient *createRadialGradient *createConicGradient
  *createPattern *createImageData *getImageData *putImageData *save *restore *reset *translate
  *rotate *scale *transform *setTransform *resetTransform *setLineDash *getLineDash
  *isPointInPath *isPointInStroke`;

const typedArray = `
  #length #byteLength #byteOffset #BYTES_PER_ELEMENT +buffer *set *subarray *slice *fill *at
  *indexOf *lastIndexOf *includes *find *findIndex *findLast *findLastIndex *forEach *map *filter
  *reduce *reduceRight *some *every *join *reverse *sort *copyWithin *keys *values *entries
  *toReversed *toSorted *with *toString *toLocaleString *from *of`;

const xhr = `
  #readyState #status #statusText #responseText #responseType #responseXML #response #responseURL
  #timeout #withCredentials #onload #onerror #onprogress #onreadystatechange +upload
  *open *send *setRequestHeader *getResponseHeader *getAllResponseHeaders *overrideMimeType
  *abort *addEventListener *removeEventListener`;

const storage = '#length *getItem *setItem *removeItem *clear *key';

const style = `
  #cssText #cssFloat #length #background #backgroundAttachment #backgroundColor #backgroundImage
  #backgroundPosition #backgroundRepeat #backgroundSize #border #borderBottom #borderBottomColor
  #borderBottomStyle #borderBottomWidth #borderCollapse #borderColor #borderLeft #borderLeftColor
  #borderLeftStyle #borderLeftWidth #borderRadius #borderRight #borderRightColor #borderRightStyle
  #borderRightWidth #borderSpacing #borderStyle #borderTop #borderTopColor #borderTopStyle
  #borderTopWidth #borderWidth #bottom #boxShadow #boxSizing #captionSide #clear #clip #color
  #content #cursor #direction #display #emptyCells #filter #flex #flexDirection #flexWrap #float
  #font #fontFamily #fontSize #fontStyle #fontVariant #fontWeight #gap #gridTemplateColumns
  #gridTemplateRows #height #justifyContent #alignItems #left #letterSpacing #lineHeight #listStyle
  #listStyleImage #listStylePosition #listStyleType #margin #marginBottom #marginLeft #marginRight
  #marginTop #maxHeight #maxWidth #minHeight #minWidth #objectFit #opacity #order #outline
  #outlineColor #outlineStyle #outlineWidth #overflow #overflowX #overflowY #padding #paddingBottom
  #paddingLeft #paddingRight #paddingTop #pageBreakAfter #pageBreakBefore #pointerEvents #position
  #quotes #right #tableLayout #textAlign #textDecoration #textIndent #textOverflow #textShadow
  #textTransform #top #transform #transformOrigin #transition #userSelect #verticalAlign
  #visibility #whiteSpace #width #wordSpacing #wordWrap #zIndex
  *getPropertyValue *setProperty *removeProperty *getPropertyPriority *item`;

export const objects = [
  // the page and its window
  ...['document', 'contentDocument', 'ownerDocument'].map((name) => object(name, 'Document', `
    #title #cookie #URL #domain #referrer #lastModified #readyState #characterSet #charset
    #compatMode #contentType #dir #designMode #hidden #visibilityState #bgColor #fgColor
    #linkColor #alinkColor #vlinkColor
    +body +head +documentElement +forms +images +links +anchors +embeds +scripts +all +applets
    +styleSheets +activeElement +defaultView +doctype +implementation +location +children
    +currentScript +fonts +layers
    *write *writeln *open *close *getElementById *getElementsByName *getElementsByTagName
    *getElementsByClassName *querySelector *querySelectorAll *createElement *createElementNS
    *createTextNode *createComment *createDocumentFragment *createAttribute *createEvent
    *createRange *createTreeWalker *importNode *adoptNode *elementFromPoint *execCommand
    *getSelection *hasFocus *appendChild *addEventListener *removeEventListener *dispatchEvent`,
  '+layers')),
  object('window', 'Window', window, '+console'),
  object('self', 'Window', window, '+console'),
  object('parent', 'Window', window, '+console'),
  object('top', 'Window', window, '+console'),
  object('opener', 'Window', window, '+console'),
  object('frames', 'Window', window, '+console'),
  object('location', 'Location', location),
  object('history', 'History', `#length #state #scrollRestoration *back *forward *go *pushState
    *replaceState`),
  object('navigator', 'Navigator', `
    #appName #appCodeName #appVersion #userAgent #platform #language #languages #cookieEnabled
    #onLine #product #productSub #vendor #hardwareConcurrency #maxTouchPoints #webdriver
    #doNotTrack +plugins +mimeTypes +geolocation +clipboard +serviceWorker +mediaDevices
    +permissions +storage *javaEnabled *sendBeacon *vibrate *share *registerProtocolHandler`,
  '#doNotTrack'),
  object('screen', 'Screen', `#width #height #availWidth #availHeight
    #colorDepth #pixelDepth +orientation`),
  object('plugins', 'PluginArray Plugin', `#length *item *namedItem *refresh #name #description
    #filename`),
  object('mimeTypes', 'MimeTypeArray MimeType', `#length *item *namedItem #type #description
    #suffixes +enabledPlugin`),
  object('geolocation', 'Geolocation', '*getCurrentPosition *watchPosition *clearWatch'),
  object('clipboard', 'Clipboard', `*readText *writeText *read *write ${eventTarget}`),
  object('visualViewport', 'VisualViewport', `#width #height #offsetLeft #offsetTop #pageLeft
    #pageTop #scale ${eventTarget}`),
  object('performance', 'Performance', `#timeOrigin +timing +navigation *now *mark *measure
    *clearMarks *clearMeasures *getEntries *getEntriesByName *getEntriesByType *toJSON`),
  object('crypto', 'Crypto', '+subtle *getRandomValues *randomUUID'),
  object('customElements', 'CustomElementRegistry', '*define *get *getName *whenDefined *upgrade'),
  object('mediaDevices', 'MediaDevices', '*getUserMedia *enumerateDevices *getDisplayMedia'),
  object('permissions', 'Permissions', '*query'),
  object('serviceWorker', 'ServiceWorkerContainer', `+controller +ready *register *getRegistration
    *getRegistrations`),
  object('contentWindow', 'Window', window, '+console'),
  object('defaultView', 'Window', window, '+console'),
  object('console', 'console', `*log *info *warn *error *debug *assert *clear *count *countReset
    *dir *dirxml *group *groupCollapsed *groupEnd *table *time *timeEnd *timeLog *trace`),
  object('localStorage', 'Storage', storage),
  object('sessionStorage', 'Storage', storage),

  // nodes and elements
  object('node', 'Node', node, '', { whole: true }),
  ...['parentNode', 'firstChild', 'lastChild', 'nextSibling', 'previousSibling', 'element', 'el',
    'parentElement', 'firstElementChild', 'lastElementChild', 'nextElementSibling',
    'previousElementSibling', 'offsetParent', 'documentElement', 'head', 'frameElement', 'shadowRoot',
  ].map((name) => object(name, name === 'shadowRoot' ? 'ShadowRoot HTMLElement' : 'HTMLElement',
    element, '', { fill: name === 'shadowRoot' ? 'ShadowRoot' : 'HTMLElement', whole: true })),
  // What a script most likely has before it there: an element, often one of a form.
  ...['this', 'target', 'currentTarget', 'srcElement', 'relatedTarget', 'activeElement']
    .map((name) => object(name, `HTMLElement HTMLInputElement HTMLSelectElement HTMLAnchorElement
      HTMLImageElement`, `#value #name #type #checked #disabled #selectedIndex +form +options #href
      #src ${element} *select`, '', { fill: 'HTMLElement', whole: true })),
  object('body', 'HTMLBodyElement', `#bgColor #background #text #link #vLink #aLink ${element}`),
  object('attributes', 'NamedNodeMap Attr', `#length #name #value *item *getNamedItem *setNamedItem
    *removeNamedItem`),
  object('childNodes', 'NodeList Node', `#length #nodeName #nodeType #nodeValue *item *forEach
    *keys *values *entries`),
  object('children', 'HTMLCollection', '#length *item *namedItem'),
  object('NodeList', 'NodeList', '#length *item *forEach *keys *values *entries'),
  object('HTMLCollection', 'HTMLCollection', '#length *item *namedItem'),
  object('classList', 'DOMTokenList', `#length #value *add *remove *toggle *contains *replace *item
    *forEach *supports`),
  object('style', 'CSSStyleDeclaration', style, '#cssFloat'),
  object('styleSheets', 'StyleSheetList CSSStyleSheet', `#length *item #href #title #type #disabled
    +media +ownerNode +cssRules *insertRule *deleteRule`),
  object('cssRules', 'CSSRuleList CSSStyleRule', `#length *item #cssText #selectorText +style
    +parentRule +parentStyleSheet`),
  object('selection', 'Selection', `#rangeCount #isCollapsed #type #anchorOffset #focusOffset
    +anchorNode +focusNode *getRangeAt *addRange *removeRange *removeAllRanges *collapse
    *collapseToStart *collapseToEnd *extend *selectAllChildren *containsNode *deleteFromDocument
    *modify *toString`),
  object('range', 'Range', `#collapsed #startOffset #endOffset +startContainer +endContainer
    +commonAncestorContainer *setStart *setEnd *setStartBefore *setStartAfter *setEndBefore
    *setEndAfter *selectNode *selectNodeContents *collapse *cloneContents *deleteContents
    *extractContents *insertNode *surroundContents *cloneRange *createContextualFragment
    *getBoundingClientRect *toString`),

  // forms; the name of a collection also serves its elements, as in forms[0]
  object('form', 'HTMLFormElement', form),
  object('forms', 'HTMLCollection HTMLFormElement', `${form} *item *namedItem`),
  object('elements', 'HTMLFormControlsCollection HTMLInputElement HTMLSelectElement',
    `#length *item *namedItem ${field} #checked #defaultValue #readOnly #selectedIndex +options
    *select *click`),
  object('input', 'HTMLInputElement', input),
  object('checkbox', 'HTMLInputElement', `${field} #checked #defaultChecked #indeterminate *click`),
  object('radio', 'HTMLInputElement', `${field} #checked #defaultChecked *click`),
  object('textarea', 'HTMLTextAreaElement', `${field} ${textField} #cols #rows #wrap #textLength`),
  object('button', 'HTMLButtonElement', `${control} *click`),
  object('select', 'HTMLSelectElement', select),
  object('options', 'HTMLOptionsCollection HTMLOptionElement', `#length #selectedIndex *add *remove
    *item *namedItem ${option}`),
  object('option', 'HTMLOptionElement', option),
  object('validity', 'ValidityState', `#valid #valueMissing #typeMismatch #patternMismatch #tooLong
    #tooShort #rangeUnderflow #rangeOverflow #stepMismatch #badInput #customError`),
  object('FormData', 'FormData', `*append *delete *get *getAll *has *set *keys *values *entries
    *forEach`),

  // parts of the page
  object('image', 'HTMLImageElement', image),
  object('img', 'HTMLImageElement', image),
  object('images', 'HTMLCollection HTMLImageElement', `#length *item *namedItem ${image}`),
  object('link', 'HTMLAnchorElement', link),
  object('links', 'HTMLCollection HTMLAnchorElement', `#length *item *namedItem ${link}`),
  object('anchor', 'HTMLAnchorElement', link),
  object('anchors', 'HTMLCollection HTMLAnchorElement', `#length *item *namedItem #name #text #href`),
  object('table', 'HTMLTableElement', `#border #cellPadding #cellSpacing #width #align #bgColor
    #frame #rules #summary +caption +tHead +tFoot +tBodies +rows *insertRow *deleteRow
    *createCaption *deleteCaption *createTHead *deleteTHead *createTFoot *deleteTFoot
    *createTBody`),
  object('row', 'HTMLTableRowElement', row),
  object('rows', 'HTMLCollection HTMLTableRowElement', `#length *item *namedItem ${row}`),
  object('cell', 'HTMLTableCellElement', cell),
  object('cells', 'HTMLCollection HTMLTableCellElement', `#length *item *namedItem ${cell}
    #innerHTML +style`),
  object('iframe', 'HTMLIFrameElement', `#src #srcdoc #name #width #height #scrolling #frameBorder
    #loading #allow #allowFullscreen +contentWindow +contentDocument +sandbox`),
  object('audio', 'HTMLAudioElement', media),
  object('video', 'HTMLVideoElement', `${media} #width #height #videoWidth #videoHeight #poster
    #playsInline *requestPictureInPicture *requestFullscreen`),
  object('canvas', 'HTMLCanvasElement', `#width #height *getContext *toDataURL *toBlob
    *captureStream *getBoundingClientRect ${eventTarget}`),
  object('context', 'CanvasRenderingContext2D', context2d),
  object('ctx', 'CanvasRenderingContext2D', context2d),
  object('dialog', 'HTMLDialogElement', '#open #returnValue *show *showModal *close'),

  // events
  object('event', eventTypes, event),
  object('evt', eventTypes, event),
  object('e', eventTypes, event),
  object('dataTransfer', 'DataTransfer', `#dropEffect #effectAllowed #types +files +items *getData
    *setData *clearData *setDragImage`),
  object('touches', 'TouchList Touch', `#length *item #clientX #clientY #pageX #pageY #screenX
    #screenY #identifier #force +target`),
  object('CustomEvent', 'CustomEvent', `#detail #type #bubbles #cancelable +target *preventDefault
    *stopPropagation`),
  object('MutationObserver', 'MutationObserver', '*observe *disconnect *takeRecords'),
  object('IntersectionObserver', 'IntersectionObserver', `#rootMargin #thresholds +root *observe
    *unobserve *disconnect *takeRecords`),
  object('ResizeObserver', 'ResizeObserver', '*observe *unobserve *disconnect'),

  // the core language
  object('Math', 'core:Math', `#PI #E #LN2 #LN10 #LOG2E #LOG10E #SQRT2 #SQRT1_2 *abs *ceil *floor
    *round *trunc *sign *min *max *random *pow *sqrt *cbrt *exp *expm1 *log *log10 *log1p *log2
    *sin *cos *tan *asin *acos *atan *atan2 *sinh *cosh *tanh *asinh *acosh *atanh *hypot *fround
    *imul *clz32`),
  object('Date', 'core:Date', `*getDate *getDay *getFullYear *getYear *getMonth *getHours
    *getMinutes *getSeconds *getMilliseconds *getTime *getTimezoneOffset *setDate *setFullYear
    *setYear *setMonth *setHours *setMinutes *setSeconds *setMilliseconds *setTime *getUTCDate
    *getUTCDay *getUTCFullYear *getUTCMonth *getUTCHours *getUTCMinutes *getUTCSeconds
    *getUTCMilliseconds *setUTCDate *setUTCFullYear *setUTCMonth *setUTCHours *setUTCMinutes
    *setUTCSeconds *setUTCMilliseconds *toString *toDateString *toTimeString *toLocaleString
    *toLocaleDateString *toLocaleTimeString *toUTCString *toGMTString *toISOString *toJSON
    *valueOf *now *parse *UTC`),
  object('String', 'core:String', `#length *charAt *charCodeAt *codePointAt *at *indexOf
    *lastIndexOf *includes *startsWith *endsWith *substring *substr *slice *split *concat *repeat
    *padStart *padEnd *trim *trimStart *trimEnd *toLowerCase *toUpperCase *toLocaleLowerCase
    *toLocaleUpperCase *localeCompare *match *matchAll *search *replace *replaceAll *normalize
    *anchor *big *blink *bold *fixed *fontcolor *fontsize *italics *link *small *strike *sub *sup
    *isWellFormed *toWellFormed *toString *valueOf *fromCharCode *fromCodePoint *raw`),
  object('Array', 'core:Array', `#length *push *pop *shift *unshift *splice *slice *concat *join
    *reverse *sort *indexOf *lastIndexOf *includes *find *findIndex *findLast *findLastIndex
    *forEach *map *filter *reduce *reduceRight *some *every *flat *flatMap *fill *copyWithin *at
    *keys *values *entries *toReversed *toSorted *toSpliced *with *toString *toLocaleString
    *isArray *from *of`),
  object('RegExp', 'core:RegExp', `#source #flags #global #ignoreCase #multiline #sticky #unicode
    #dotAll #hasIndices #unicodeSets #lastIndex *test *exec *compile *toString #$1 #$2 #$3 #$4 #$5 #$6 #$7 #$8
    #$9 #input #lastMatch #lastParen #leftContext #rightContext`, '#lastIndex'),
  object('Number', 'core:Number', `#MAX_VALUE #MIN_VALUE #MAX_SAFE_INTEGER #MIN_SAFE_INTEGER
    #EPSILON #NaN #POSITIVE_INFINITY #NEGATIVE_INFINITY *toFixed *toPrecision *toExponential
    *toString *toLocaleString *valueOf *isInteger *isSafeInteger *isFinite *isNaN *parseFloat
    *parseInt`),
  object('Boolean', 'core:Boolean', '*toString *valueOf +prototype'),
  object('BigInt', 'core:BigInt', '*toString *toLocaleString *valueOf *asIntN *asUintN'),
  object('Object', 'core:Object', `+prototype +constructor *assign *create *keys *values *entries
    *fromEntries *freeze *isFrozen *seal *isSealed *preventExtensions *isExtensible
    *defineProperty *defineProperties *getOwnPropertyNames *getOwnPropertyDescriptor
    *getPrototypeOf *setPrototypeOf *is *hasOwn *hasOwnProperty *isPrototypeOf
    *propertyIsEnumerable *toString *toLocaleString *valueOf`),
  object('Function', 'core:Function', `#length #name #arguments #caller +prototype *apply *bind
    *call *toString`),
  ...['Error', 'EvalError', 'RangeError', 'ReferenceError', 'SyntaxError', 'TypeError', 'URIError']
    .map((name) => object(name, 'core:Error', '#name #message #stack #cause *toString',
      '#stack #cause')),
  object('AggregateError', 'core:AggregateError', `#name #message #errors #stack #cause *toString`,
    '#stack #cause #errors'),
  object('DOMException', 'DOMException', '#name #message #code'),
  object('Symbol', 'core:Symbol', `#description #iterator #asyncIterator #hasInstance #toPrimitive
    #toStringTag #isConcatSpreadable #match #matchAll #replace #search #species #split #unscopables
    *for *keyFor *toString *valueOf`),
  object('JSON', 'core:JSON', '*parse *stringify'),
  object('Promise', 'core:Promise', `*then *catch *finally *all *allSettled *any *race *resolve
    *reject`),
  object('Proxy', 'core:Proxy', '*revocable'),
  object('ArrayBuffer', 'core:ArrayBuffer', `#byteLength #maxByteLength #resizable *slice *resize
    *isView`),
  object('SharedArrayBuffer', 'core:SharedArrayBuffer', `#byteLength #maxByteLength #growable *slice
    *grow`),
  object('DataView', 'core:DataView', `+buffer #byteLength #byteOffset *getInt8 *getUint8 *getInt16
    *getUint16 *getInt32 *getUint32 *getFloat32 *getFloat64 *getBigInt64 *getBigUint64 *setInt8
    *setUint8 *setInt16 *setUint16 *setInt32 *setUint32 *setFloat32 *setFloat64 *setBigInt64
    *setBigUint64`),
  ...['Int8Array', 'Uint8Array', 'Uint8ClampedArray', 'Int16Array', 'Uint16Array', 'Int32Array',
    'Uint32Array', 'Float32Array', 'Float64Array', 'BigInt64Array', 'BigUint64Array',
  ].map((name) => object(name, `core:${name}`, typedArray)),
  object('Atomics', 'core:Atomics', `*add *and *compareExchange *exchange *isLockFree *load *notify
    *or *store *sub *wait *waitAsync *xor`),
  object('WeakRef', 'core:WeakRef', '*deref'),
  object('FinalizationRegistry', 'core:FinalizationRegistry', '*register *unregister'),
  object('Map', 'core:Map', `#size *get *set *has *delete *clear *forEach *keys *values *entries`),
  object('Set', 'core:Set', '#size *add *has *delete *clear *forEach *keys *values *entries'),
  object('WeakMap', 'core:WeakMap', '*get *set *has *delete'),
  object('WeakSet', 'core:WeakSet', '*add *has *delete'),
  object('Reflect', 'core:Reflect', `*apply *construct *defineProperty *deleteProperty *get
    *getOwnPropertyDescriptor *getPrototypeOf *has *isExtensible *ownKeys *preventExtensions *set
    *setPrototypeOf`),
  object('Intl', 'core:Intl', `+Collator +DateTimeFormat +DisplayNames +ListFormat +Locale
    +NumberFormat +PluralRules +RelativeTimeFormat +Segmenter *getCanonicalLocales
    *supportedValuesOf`),

  // requests, files and connections
  object('XMLHttpRequest', 'XMLHttpRequest', xhr),
  object('xhr', 'XMLHttpRequest', xhr),
  object('response', 'Response', `#ok #status #statusText #type #url #redirected #bodyUsed +headers
    +body *text *json *blob *arrayBuffer *formData *clone *error *redirect`),
  object('request', 'Request', `#method #url #mode #credentials #cache #redirect #referrer
    #integrity +headers +signal *text *json *blob *arrayBuffer *formData *clone`),
  object('headers', 'Headers', `*append *delete *get *getSetCookie *has *set *keys *values *entries
    *forEach`),
  object('AbortController', 'AbortController', '+signal *abort'),
  object('URL', 'URL', `#href #protocol #host #hostname #port #pathname #search #hash #origin
    #username #password +searchParams *toString *toJSON *createObjectURL *revokeObjectURL
    *canParse`),
  object('URLSearchParams', 'URLSearchParams', `#size *append *delete *get *getAll *has *set *sort
    *keys *values *entries *forEach *toString`),
  object('Blob', 'Blob', '#size #type *slice *text *arrayBuffer *stream'),
  object('File', 'File', `#name #size #type #lastModified #webkitRelativePath *slice *text
    *arrayBuffer *stream`),
  object('files', 'FileList File', '#length *item #name #size #type #lastModified *text *slice'),
  object('FileReader', 'FileReader', `#readyState #result #onload #onerror #onprogress +error
    *readAsText *readAsDataURL *readAsArrayBuffer *abort ${eventTarget}`),
  object('WebSocket', 'WebSocket', `#url #readyState #protocol #bufferedAmount #binaryType #onopen
    #onmessage #onerror #onclose *send *close ${eventTarget}`),
  object('Worker', 'Worker', `#onmessage #onerror *postMessage *terminate ${eventTarget}`),
  object('DOMParser', 'DOMParser', '*parseFromString'),
  object('XMLSerializer', 'XMLSerializer', '*serializeToString'),
  object('EventSource', 'EventSource', `#url #readyState #onopen #onmessage #onerror *close
    ${eventTarget}`),
  object('BroadcastChannel', 'BroadcastChannel', `#name #onmessage *postMessage *close
    ${eventTarget}`),
  object('MessageChannel', 'MessageChannel', '+port1 +port2'),
  object('TextEncoder', 'TextEncoder', '#encoding *encode *encodeInto'),
  object('TextDecoder', 'TextDecoder', '#encoding #fatal #ignoreBOM *decode'),
  object('Notification', 'Notification', `#title #body #permission *requestPermission *close
    ${eventTarget}`),
  object('caches', 'CacheStorage', '*open *has *delete *keys *match'),

  // a browser's own store
  object('indexedDB', 'IDBFactory', '*open *deleteDatabase *databases *cmp'),
  object('db', 'IDBDatabase', `#name #version +objectStoreNames *createObjectStore
    *deleteObjectStore *transaction *close`),
  object('transaction', 'IDBTransaction', '#mode +db +error *objectStore *commit *abort'),
  object('objectStore', 'IDBObjectStore', `#name #keyPath #autoIncrement +indexNames *add *put *get
    *getAll *delete *clear *count *openCursor *index *createIndex *deleteIndex`),
  object('cursor', 'IDBCursorWithValue IDBCursor', `#key #primaryKey #value #direction *continue
    *advance *update *delete`),
];
