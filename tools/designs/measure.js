// SPDX-License-Identifier: MIT
// Measures the page: the contrast of every text with the ground behind it, in every state a link or a control can
// have, and whether the page is wider than its window. The sheet's state selectors have been turned into classes
// ("a:hover" into "a.is-hover") because a page cannot put itself into these states, nor see what ":visited" and
// "::placeholder" paint.
(() => {
    const parse = (color) => {
        const [r, g, b, a = 1] = color.match(/[\d.]+/g).map(Number);
        return { r, g, b, a };
    };
    const over = (front, back) => {
        const mix = (name) => front[name] * front.a + back[name] * (1 - front.a);
        return { r: mix('r'), g: mix('g'), b: mix('b'), a: 1 };
    };
    const luminance = ({ r, g, b }) => {
        const linear = [r, g, b].map((value) => {
            const part = value / 255;
            return part <= 0.04045 ? part / 12.92 : ((part + 0.055) / 1.055) ** 2.4;
        });
        return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2];
    };
    const contrast = (one, other) => {
        const [light, dark] = [luminance(one), luminance(other)].sort((a, b) => b - a);
        return (light + 0.05) / (dark + 0.05);
    };

    // All grounds that may lie behind an element: one, or every stop of a gradient.
    const grounds = (element) => {
        if (!element) return [{ r: 255, g: 255, b: 255, a: 1 }];
        const style = getComputedStyle(element);
        const stops = style.backgroundImage === 'none' ? [] : style.backgroundImage.match(/rgba?\([^)]*\)/g);
        if (!stops) throw new Error('a picture lies behind ' + element.tagName);
        const colors = (stops.length ? stops : [style.backgroundColor]).map(parse);
        if (colors.every((color) => color.a === 1)) return colors;
        return colors.flatMap((color) => grounds(element.parentElement).map((back) => over(color, back)));
    };

    const report = { texts: 0, least: Infinity, place: '', faults: [] };
    const place = (element, what) => {
        const path = [];
        for (let at = element; at && at !== document.body; at = at.parentElement) {
            path.unshift(at.tagName.toLowerCase() + (at.className ? '.' + at.className.replace(/ /g, '.') : ''));
        }
        return path.join(' ') + what;
    };
    const measure = (element, pseudo = null) => {
        const color = parse(getComputedStyle(element, pseudo).color);
        for (const ground of grounds(element)) {
            const value = contrast(over(color, ground), ground);
            report.texts += 1;
            if (value < report.least) {
                report.least = value;
                report.place = place(element, pseudo || '');
            }
            if (value < 4.5) report.faults.push(`${value.toFixed(2)} ${place(element, pseudo || '')}`);
        }
    };
    const measureWithin = (root) => {
        const walker = document.createTreeWalker(root, NodeFilter.SHOW_TEXT);
        while (walker.nextNode()) {
            const element = walker.currentNode.parentElement;
            if (walker.currentNode.data.trim() && element.getClientRects().length) measure(element);
        }
        if (root.matches && root.matches('input,textarea,select')) measure(root);
    };

    const links = document.querySelectorAll('a[href]');
    const controls = document.querySelectorAll('input:not([type=radio]):not([type=checkbox]),textarea,select,button');
    links.forEach((link) => link.classList.add('is-link'));
    measureWithin(document.body);
    document.querySelectorAll('li').forEach((item) => measure(item, '::marker'));

    const underStates = (element, states) => {
        for (const classes of states) {
            element.classList.add(...classes);
            measureWithin(element);
            if (classes.includes('is-focus') && !element.disabled) {
                const { outlineStyle, outlineWidth } = getComputedStyle(element);
                const shown = outlineStyle !== 'none' && parseFloat(outlineWidth) >= 2;
                if (!shown) report.faults.push('no outline: ' + place(element, ''));
            }
            element.classList.remove(...classes);
        }
    };
    const states = [['is-hover'], ['is-focus'], ['is-hover', 'is-focus', 'is-active']];
    links.forEach((link) => {
        underStates(link, states);
        link.classList.replace('is-link', 'is-visited');
        underStates(link, [[], ...states]);
        link.classList.replace('is-visited', 'is-link');
    });
    controls.forEach((control) => {
        underStates(control, [[], ...states]);
        if (control.placeholder) underStates(control, [['is-placeholder']]);
    });

    const wide = document.documentElement.scrollWidth - window.innerWidth;
    if (wide > 0) report.faults.push(`${wide} pixels wider than the window`);
    report.width = window.innerWidth;
    report.linkCount = links.length;
    return JSON.stringify(report);
})()
