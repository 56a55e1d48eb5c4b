// SPDX-License-Identifier: MIT

// Blocks of interchangeable words, one a line; "|" parts the words. A word may stand in several
// blocks, but only the first of them is ever found by it: of such words `meant` below says which
// block that has to be, and the check fails if the order of the blocks leads them elsewhere.
// All words take over the case of the selection, so a block holds either lower case words or
// names with capitals inside, and never both; of character names with both cases the block holds
// the capitals, since a selection in lower case turns them all.

const blocks = `
left|center|right|justify
top|middle|bottom|baseline|text-top|text-bottom|sub|super
_blank|_self|_parent|_top
block|inline|inline-block|none|flex|inline-flex|grid|inline-grid|table|table-row|table-cell|list-item|contents|run-in
get|post|dialog
yes|no
true|false
on|off
normal|bold|bolder|lighter
100|200|300|400|500|600|700|800|900
italic|oblique|normal
underline|overline|line-through|none
uppercase|lowercase|capitalize|none
static|relative|absolute|fixed|sticky
both|left|right|inline-start|inline-end|none
nowrap|pre|pre-wrap|pre-line|break-spaces|normal
black|silver|gray|white|maroon|red|purple|fuchsia|green|lime|olive|yellow|navy|blue|teal|aqua
magenta|cyan|orange|brown|pink|gold|violet|turquoise|beige|ivory|khaki|indigo
darkred|firebrick|crimson|indianred|lightcoral|salmon|darksalmon|lightsalmon
orangered|tomato|coral|darkorange|orange
lightyellow|lemonchiffon|cornsilk|palegoldenrod|darkkhaki|goldenrod|darkgoldenrod|gold
darkgreen|forestgreen|seagreen|mediumseagreen|darkseagreen|lightgreen|palegreen|limegreen|lawngreen|chartreuse|springgreen|mediumspringgreen|yellowgreen|greenyellow|olivedrab|darkolivegreen
darkcyan|lightseagreen|cadetblue|darkturquoise|mediumturquoise|paleturquoise|lightcyan|aquamarine|mediumaquamarine
midnightblue|darkblue|mediumblue|royalblue|steelblue|dodgerblue|deepskyblue|cornflowerblue|skyblue|lightskyblue|lightblue|powderblue|lightsteelblue|slateblue|darkslateblue|mediumslateblue
blueviolet|darkviolet|darkorchid|mediumorchid|orchid|plum|thistle|lavender|mediumpurple|darkmagenta|rebeccapurple
hotpink|deeppink|lightpink|palevioletred|mediumvioletred|pink
saddlebrown|sienna|chocolate|peru|rosybrown|sandybrown|tan|burlywood|wheat|navajowhite|bisque|blanchedalmond
dimgray|darkgray|lightgray|gainsboro|slategray|lightslategray|darkslategray|whitesmoke
dimgrey|darkgrey|lightgrey|slategrey|lightslategrey|darkslategrey|grey
snow|ghostwhite|floralwhite|linen|antiquewhite|oldlace|seashell|mintcream|azure|aliceblue|honeydew|lavenderblush|mistyrose|papayawhip|moccasin|peachpuff|lightgoldenrodyellow
#000000|#333333|#666666|#999999|#CCCCCC|#FFFFFF
#FF0000|#FF9900|#FFFF00|#99FF00|#00FF00|#00FF99|#00FFFF|#0099FF|#0000FF|#9900FF|#FF00FF|#FF0099
transparent|currentcolor
inherit|initial|unset|revert
deg|rad|grad|turn
s|ms
dpi|dpcm|dppx
100%|90%|80%|75%|66%|60%|50%|40%|33%|30%|25%|20%|10%
xx-small|x-small|small|medium|large|x-large|xx-large|smaller|larger
thin|medium|thick
serif|sans-serif|monospace|cursive|fantasy|system-ui
Arial|Verdana|Helvetica|Tahoma|Georgia|Times|Courier|Palatino|Garamond
disc|circle|square|none
decimal|decimal-leading-zero|lower-alpha|upper-alpha|lower-latin|upper-latin|lower-roman|upper-roman|lower-greek
inside|outside
content-box|padding-box|border-box
n-resize|ne-resize|e-resize|se-resize|s-resize|sw-resize|w-resize|nw-resize|col-resize|row-resize
separate|collapse
show|hide
flex-start|flex-end|center|space-between|space-around|space-evenly|stretch|baseline
row-reverse|row|column|column-reverse
wrap|nowrap|wrap-reverse
ease|linear|ease-in|ease-out|ease-in-out|step-start|step-end
forwards|backwards|both|none
ellipsis|clip
auto|scroll|hidden|visible|clip
solid|dashed|dotted|double|groove|ridge|inset|outset|none|hidden
cover|contain|auto
always|avoid|left|right|auto
fill|contain|cover|scale-down|none
break-word|break-all|keep-all|anywhere|normal
bidi-override|embed|isolate|isolate-override|plaintext|normal
horizontal-tb|vertical-rl|vertical-lr
rotate|scale|skew|translate|matrix|perspective
blur|brightness|contrast|drop-shadow|grayscale|hue-rotate|invert|opacity|saturate|sepia
rgb|rgba|hsl|hsla
link|visited|hover|active|focus
first-child|last-child|only-child|nth-child|first-of-type|last-of-type|nth-of-type
before|after|first-line|first-letter|selection
all|screen|print|projection|handheld|speech|aural|braille|embossed|tty|tv
multiply|screen|overlay|darken|lighten|color-dodge|color-burn|hard-light|soft-light|difference|exclusion
portrait|landscape
min-width|max-width|min-height|max-height
width|height
margin|padding|border|outline
margin-top|margin-right|margin-bottom|margin-left
padding-top|padding-right|padding-bottom|padding-left
border-top|border-right|border-bottom|border-left
border-width|border-style|border-color
font-family|font-size|font-style|font-weight|font-variant
text-align|text-decoration|text-indent|text-transform|text-shadow
color|background-color|border-color|outline-color
background-image|background-repeat|background-position|background-attachment|background-size
list-style-type|list-style-position|list-style-image
void|above|below|hsides|vsides|lhs|rhs|box|border
groups|rows|cols|all|none
col|row|colgroup|rowgroup
text|password|checkbox|radio|submit|reset|button|hidden|file|image
default|pointer|crosshair|move|text|wait|help|progress|not-allowed|grab|grabbing|zoom-in|zoom-out
rect|circle|poly|default
email|url|tel|search|number|range|date|time|datetime-local|month|week|color
soft|hard|off|physical|virtual
multipart/form-data|application/x-www-form-urlencoded|text/plain
text/html|text/css|text/javascript|text/vbscript|text/xml|text/vnd.wap.wml
image/gif|image/jpeg|image/png|image/svg+xml|image/webp|image/avif|image/x-icon|image/vnd.wap.wbmp
audio/mpeg|audio/ogg|audio/wav|audio/midi|audio/aac|audio/webm
video/mp4|video/webm|video/ogg|video/mpeg|video/quicktime|video/x-msvideo
application/xhtml+xml|application/xml|application/json|application/pdf|application/zip|application/octet-stream
utf-8|iso-8859-1|iso-8859-15|windows-1252|us-ascii|utf-16
de-de|de-at|de-ch
ltr|rtl
index|noindex|follow|nofollow|noarchive|nosnippet|noimageindex
content-type|content-language|content-style-type|content-script-type|content-security-policy|refresh|expires|pragma|cache-control|set-cookie|pics-label
author|description|keywords|robots|generator|copyright|date|viewport|language|publisher|revisit-after
noopener|noreferrer|nofollow|external|sponsored|ugc
no-referrer|origin|same-origin|strict-origin|strict-origin-when-cross-origin|no-referrer-when-downgrade|unsafe-url
anonymous|use-credentials
allow-scripts|allow-forms|allow-popups|allow-same-origin|allow-modals|allow-downloads|allow-top-navigation
lazy|eager
subtitles|captions|descriptions|chapters|metadata
given-name|family-name|street-address|postal-code|country|username|current-password|new-password
up|down|left|right
sync|async
.gif|.jpg|.jpeg|.png|.webp|.svg|.avif|.ico|.wbmp
.htm|.html|.xhtml|.php|.asp|.wml|.css|.js
h1|h2|h3|h4|h5|h6
b|strong|i|em|u|ins|del|strike
big|small|sup|tt
ul|ol|dl|dir|menu
li|dt|dd
td|th
thead|tbody|tfoot|tr
de|en|fr|it|es|nl|da|sv|pl|cs|pt|tr|ru
px|pt|em|rem|ex|ch|pc|cm|mm|in|vw|vh|vmin|vmax|fr
header|footer|nav|article|section|aside|main
banner|navigation|main|complementary|contentinfo|search|form|region
div|span|p
input|select|textarea|button
object|applet|iframe
audio|video|picture|canvas
javascript|vbscript|jscript
http|https|ftp|mailto|news|javascript|file
var|let|const
code|kbd|samp|var|pre
if|else|switch|case
for|while|do
break|continue|return
try|catch|finally|throw
function|class|extends|constructor
null|undefined
typeof|instanceof|new|delete
==|!=|===|!==
&&||||??
++|--
+=|-=|*=|/=|%=
alert|confirm|prompt
presentation|img|alert|status|tooltip|tablist|tab|tabpanel|menubar|menuitem
write|writeln|open|close
getElementById|getElementsByName|getElementsByTagName|getElementsByClassName|querySelector|querySelectorAll
setTimeout|setInterval|clearTimeout|clearInterval|requestAnimationFrame
createElement|createTextNode|createComment|createDocumentFragment
appendChild|insertBefore|removeChild|replaceChild|cloneNode
innerHTML|outerHTML|innerText|textContent
parentNode|firstChild|lastChild|nextSibling|previousSibling
getAttribute|setAttribute|removeAttribute|hasAttribute
addEventListener|removeEventListener|dispatchEvent
preventDefault|stopPropagation|stopImmediatePropagation
clientX|clientY|pageX|pageY|screenX|screenY|offsetX|offsetY
offsetWidth|offsetHeight|offsetLeft|offsetTop|clientWidth|clientHeight|scrollWidth|scrollHeight
localStorage|sessionStorage
getItem|setItem|removeItem
document|window|location|history|navigator|screen
substring|substr|slice|split
indexOf|lastIndexOf|charAt|charCodeAt
toUpperCase|toLowerCase
parseInt|parseFloat
map|filter|reduce|some|every|find
forEach|findIndex|flatMap|reduceRight
floor|ceil|round|trunc
repeat|repeat-x|repeat-y|no-repeat|space|round
min|max|abs|sqrt|pow|random
sin|cos|tan|asin|acos|atan
getFullYear|getMonth|getDate|getDay|getHours|getMinutes|getSeconds|getTime
setFullYear|setMonth|setDate|setHours|setMinutes|setSeconds|setTime
String|Boolean|Array|RegExp
onclick|ondblclick|onmousedown|onmouseup|onmouseover|onmouseout|onmousemove|onmouseenter|onmouseleave
onkeydown|onkeyup|onkeypress
onload|onunload|onbeforeunload|onresize|onscroll|onerror
onfocus|onblur|onchange|oninput|onselect|onsubmit|onreset
onenterforward|onenterbackward|ontimer|onpick
butt|round|square|miter|bevel
start|middle|end
stylesheet|alternate|icon|start|next|prev|contents|glossary|copyright|chapter|section|subsection|appendix|help|bookmark|preload|canonical|license
alternate|alternate-reverse|reverse|normal
accept|prev|help|reset|options|delete|unknown
push|pop|shift|unshift|splice|reverse|sort|join|concat
line|polyline|polygon|path|ellipse
&lt;|&gt;|&amp;|&quot;|&apos;|&nbsp;
&Auml;|&Ouml;|&Uuml;|&szlig;
&copy;|&reg;|&trade;
&euro;|&cent;|&pound;|&yen;
&laquo;|&raquo;|&bdquo;|&ldquo;|&rdquo;|&lsquo;|&rsquo;
&ndash;|&mdash;|&hellip;|&middot;|&bull;
&larr;|&rarr;|&uarr;|&darr;|&harr;
&frac12;|&frac14;|&frac34;|&sup2;|&sup3;|&deg;|&plusmn;|&times;|&divide;
Montag|Dienstag|Mittwoch|Donnerstag|Freitag|Samstag|Sonntag
Januar|Februar|März|April|Mai|Juni|Juli|August|September|Oktober|November|Dezember
`;

/** Parts a line at single bars, so that "||" stays the operator it is. */
const wordsOf = (line) => line.replaceAll('||||', '|\u0000|').split('|')
  .map((word) => word.replace('\u0000', '||'));

export const wordBlocks = blocks.trim().split('\n').map(wordsOf);

/** The words of several blocks behind the block that they most likely stand for. */
export const meant = [
  ['left|center|right', 'left center right'],
  ['top|middle|bottom', 'middle baseline'],
  ['block|inline|inline-block', 'none contents'],
  ['on|off', 'off'],
  ['auto|scroll|hidden', 'auto hidden'],
  ['ellipsis|clip', 'clip'],
  ['normal|bold|bolder', 'normal'],
  ['both|left|right', 'both'],
  ['nowrap|pre|pre-wrap', 'nowrap pre'],
  ['magenta|cyan|orange', 'orange pink gold'],
  ['saddlebrown|sienna|chocolate', 'tan'],
  ['de|en|fr', 'pt fr'],
  ['b|strong|i', 'em'],
  ['xx-small|x-small|small', 'small medium'],
  ['disc|circle|square', 'circle square'],
  ['floor|ceil|round', 'round'],
  ['cover|contain|auto', 'cover contain'],
  ['default|pointer|crosshair', 'default help'],
  ['text|password|checkbox', 'text reset button file'],
  ['row-reverse|row|column', 'row'],
  ['stylesheet|alternate|icon', 'alternate prev'],
  ['alternate|alternate-reverse|reverse', 'reverse'],
  ['all|screen|print', 'screen all'],
  ['margin|padding|border', 'border'],
  ['border-width|border-style|border-color', 'border-color'],
  ['color|background-color|border-color', 'color'],
  ['email|url|tel', 'search date'],
  ['thead|tbody|tfoot', 'tr'],
  ['index|noindex|follow', 'nofollow'],
  ['author|description|keywords', 'copyright'],
  ['start|middle|end', 'start'],
  ['header|footer|nav', 'section main'],
  ['typeof|instanceof|new', 'delete'],
  ['javascript|vbscript|jscript', 'javascript'],
  ['alert|confirm|prompt', 'alert'],
  ['var|let|const', 'var'],
];
