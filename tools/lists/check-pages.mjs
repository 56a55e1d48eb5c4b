// SPDX-License-Identifier: MIT

// Small correct pages of each kind, and one with faults, scanned as the editor's tag check does.

const head = '<title>x</title>';
const pages = [
  ['HTML 4.01', `<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01 Frameset//EN">
<HTML><HEAD><TITLE>x</TITLE><META name="a" content="b"></HEAD><FRAMESET cols="1,2"><FRAME src="a">
<NOFRAMES><BODY><P>a<BR>b</P><APPLET code="x"><PARAM name="a"></APPLET><MARQUEE>x</MARQUEE>
<LAYER><NOBR>x</NOBR></LAYER><SPACER type="block"></BODY></NOFRAMES></FRAMESET></HTML>`, []],
  ['XHTML 1.0', `<?xml version="1.0" encoding="utf-8"?>
<?xml-stylesheet href="a.css" type="text/css"?>
<!DOCTYPE html
  PUBLIC "-//W3C//DTD XHTML 1.0 Strict//EN" "x">
<html xmlns="x">
<head>${head}<script type="text/javascript">
//<![CDATA[
var a;
//]]>
</script><script type="text/javascript">/*<![CDATA[*/ if (a < b) c(); /*]]>*/</script>
<style type="text/css">/*<![CDATA[*/
p { color: red }
/*]]>*/</style><script type="text/javascript"><!--//--><![CDATA[//><!--
var d;
//--><!]]></script></head><body><p>a<br/>b<hr
/></p><!-- <none> --></body></html>`, []],
  ['WML 1.1', `<?xml version="1.0"?>
<!DOCTYPE wml PUBLIC "-//WAPFORUM//DTD WML 1.1//EN" "x">
<wml><template><do type="prev"><prev/></do></template><card id="a">
<onevent type="ontimer"><go href="#b"/></onevent><timer value="10"/>
<p><anchor>x<refresh><setvar name="a" value="b"/></refresh></anchor><input name="n"/>
<select name="x"><option value="1">1</option></select></p></card></wml>`, []],
  ['HTML', `<!doctype html>
<html lang="de"><head><meta charset="utf-8">${head}<link rel="x"></head><body>
<header><nav><ul><li>a</li></ul></nav></header><main><picture><source srcset="x"><img src="x">
</picture><svg viewBox="0"><defs><linearGradient id="a"><stop offset="0"/></linearGradient></defs>
<path d="M0"/><foreignObject><p>x</p></foreignObject></svg><math><mrow><mi>x</mi><mo>=</mo>
<mfrac><mn>1</mn><mn>2</mn></mfrac><mspace/></mrow></math><dialog open>x</dialog>
<details><summary>x</summary></details></main></body></html>`, []],
  ['server pages', '<%@ page %><%-- x --%><% a(); %><%= b %><?php c(); ?><p>x</p>', []],
  ['faults', '<html><bdoy><p>x</html></br><img src="x"></img><>', [
    'unknown bdoy', 'not open /br', 'needless /br', 'needless /img', 'not closed bdoy', 'not closed p',
  ]],
];

/** Name of the tag at a "<", without the "/" at its end, and the place behind it; or null. */
function tagAt(text, at) {
  const gt = text.indexOf('>', at);
  const blank = text.indexOf(' ', at);
  const end = gt < 0 || (blank >= 0 && blank < gt) ? blank : gt;
  if (end < 0) return null;
  let name = text.slice(at + 1, end).replace(/\/$/, '');
  for (const stop of ['\r\n', '\t']) {
    const cut = name.indexOf(stop);
    if (cut > 0) name = name.slice(0, cut);
  }
  return { name, end };
}

function scan(text, isKnown, needsNoClosing) {
  const found = [];
  const open = [];
  let at = text.indexOf('<');
  while (at >= 0) {
    if (text.startsWith('<!--', at)) {
      at = text.indexOf('<', text.indexOf('-->', at));
      continue;
    }
    const tag = tagAt(text, at);
    if (tag === null) break;
    const { name } = tag;
    if (name.startsWith('/')) {
      const row = open.findIndex((entry) => entry.toLowerCase() === name.slice(1).toLowerCase());
      if (row < 0) found.push(`not open ${name}`);
      else open.splice(row, 1);
      if (needsNoClosing(name.slice(1))) found.push(`needless ${name}`);
    } else {
      open.push(name);
    }
    if (!isKnown(name)) found.push(`unknown ${name}`);
    at = text.indexOf('<', tag.end);
  }
  const left = open.filter((name) => !needsNoClosing(name)).map((name) => `not closed ${name}`);
  return [...found, ...left];
}

/** Adds a fault for each page on which the lists lead to other findings than they should. */
export function checkPages(isKnown, needsNoClosing, faults) {
  for (const [title, page, expected] of pages) {
    const found = scan(page.replaceAll('\n', '\r\n'), isKnown, needsNoClosing);
    if (found.join('|') !== expected.join('|')) {
      faults.push(`pages: ${title} yields ${found.join(', ') || 'nothing'}`);
    }
  }
}
