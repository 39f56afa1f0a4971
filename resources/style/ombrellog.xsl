<?xml version="1.0" encoding="UTF-8"?>
<!-- Makes an XML chat log a page to read and search in a browser. Everything is in here; nothing is fetched. The program
     ombrel-log takes its pages from this file too: the lines stand where the templates are applied. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:output method="html" encoding="UTF-8" indent="no"/>

  <xsl:template match="/">
    <html lang="en">
      <head>
        <meta charset="UTF-8"/>
        <meta name="viewport" content="width=device-width, initial-scale=1"/>
        <title>Chat log</title>
        <style><![CDATA[
:root { color-scheme: dark; --back: #15120e; --panel: #211c15; --edge: #4a3d27; --gold: #d9b25f; --dim: #8f8571; }
* { box-sizing: border-box; }
body { margin: 0; background: var(--back); color: #d2d2c7; font: 15px/1.45 "Segoe UI", "Liberation Sans", sans-serif; }
header { position: sticky; top: 0; z-index: 1; padding: 12px 20px 10px; background: var(--panel);
    border-bottom: 1px solid var(--edge); box-shadow: 0 2px 12px #0009; }
h1 { display: inline; margin: 0 16px 0 0; color: var(--gold); font: 600 20px Georgia, "Liberation Serif", serif; }
.find { display: inline-flex; flex-wrap: wrap; gap: 8px; align-items: center; }
input, select, button { padding: 5px 10px; border: 1px solid var(--edge); border-radius: 4px; background: var(--back);
    color: inherit; font: inherit; }
input { width: 22em; max-width: 90vw; }
input:focus-visible, select:focus-visible, button:focus-visible { outline: 1px solid var(--gold); }
#count { color: var(--dim); padding-left: 6px; }
#classes { display: flex; flex-wrap: wrap; gap: 6px; margin-top: 8px; }
#classes:empty { display: none; }
button { padding: 1px 10px; border-radius: 11px; font-size: 13px; cursor: pointer; }
button small { color: var(--dim); }
button:hover { border-color: var(--gold); }
button[aria-pressed="true"] { border-color: var(--gold); background: #4a3d27; color: #fff; }
ol { margin: 0; padding: 8px 20px 40px; list-style: none; }
li { display: grid; grid-template-columns: 6.4em 1fr; gap: 10px; padding: 1px 6px; border-radius: 3px;
    content-visibility: auto; contain-intrinsic-size: auto 24px; }
li:hover { background: #ffffff0c; }
li[hidden] { display: none; }
li span { white-space: pre-wrap; overflow-wrap: anywhere; text-shadow: 0 1px 1px #000; }
time { color: var(--dim); font-size: 12.5px; line-height: 1.75; text-align: right; font-variant-numeric: tabular-nums; }
li.day { display: block; margin: 14px 0 6px; padding: 0 6px 3px; border-bottom: 1px solid var(--edge); border-radius: 0;
    color: var(--gold); font: 600 15px Georgia, "Liberation Serif", serif; }
li.day[hidden] { display: none; }
#none { padding: 30px; text-align: center; color: var(--dim); }
::highlight(found) { background: #7a5c12; color: #fff; }
@media print { header { display: none; } }
]]></style>
      </head>
      <body>
        <header>
          <h1>Chat log</h1>
          <div class="find">
            <input id="search" type="search" placeholder="Find: word, this+that, this|that" aria-label="Find"/>
            <select id="day" aria-label="Day"><option value="">All days</option></select>
            <output id="count"> </output>
          </div>
          <div id="classes"></div>
        </header>
        <ol id="lines"><xsl:apply-templates select="/*/Message"/></ol>
        <p id="none" hidden="hidden">No line matches.</p>
        <script><![CDATA[
(function () {
    'use strict';
    var CLASSES = ['No class', 'Open Chat', 'Tells', 'Fellowship', 'Patron/Covassal', 'Vassal', 'Allegiance', 'Channels',
        'Magic', 'Spellwords', 'Combat', 'System', 'Recalls', 'Tinkers', 'Rares', 'Stat Raises', 'Level', 'Vitae',
        'Ombrel', 'Other'];
    var search = document.getElementById('search'), daySelect = document.getElementById('day');
    var classBox = document.getElementById('classes'), none = document.getElementById('none');

    // "7/4/2024 1:05:09 PM"; at midnight the time of day is left out. "2024-07-04" is a day whose time nobody knows.
    function parseDate(text) {
        if (/^\d+-\d+-\d+$/.test(text)) return { day: text, clock: '' };
        var parts = /^(\d+)\/(\d+)\/(\d+)(?: (.*))?$/.exec(text || '');
        if (!parts) return { day: '', clock: text || '' };
        return { day: parts[3] + '-' + ('0' + parts[1]).slice(-2) + '-' + ('0' + parts[2]).slice(-2),
            clock: parts[4] || '12:00:00 AM' };
    }
    function dayName(day) {
        var date = new Date(day + 'T12:00:00');
        return date.toLocaleDateString('en-US', { weekday: 'long', year: 'numeric', month: 'long', day: 'numeric' });
    }

    // The lines, each under the heading of its day.
    var lines = [], headings = [], days = {}, counts = {};
    Array.prototype.slice.call(document.querySelectorAll('#lines > li')).forEach(function (item) {
        var date = parseDate(item.getAttribute('data-date')), tag = item.getAttribute('data-tag') || '0';
        var last = headings[headings.length - 1];
        if (!last || last.day !== date.day) {
            last = { day: date.day, item: document.createElement('li') };
            last.item.className = 'day';
            last.item.textContent = date.day ? dayName(date.day) : 'Without a date';
            headings.push(last);
            item.parentNode.insertBefore(last.item, item);
        }
        item.querySelector('time').textContent = date.clock;
        var span = item.querySelector('span');
        lines.push({ item: item, span: span, text: span.textContent.toLowerCase(), tag: tag, heading: last });
        days[date.day] = true;
        counts[tag] = (counts[tag] || 0) + 1;
    });
    if (headings.length === 1 && !headings[0].day) headings[0].item.remove();

    Object.keys(days).filter(Boolean).sort().forEach(function (day) {
        daySelect.add(new Option(dayName(day), day));
    });
    var buttons = {};
    Object.keys(counts).sort(function (a, b) { return a - b; }).forEach(function (tag) {
        var button = document.createElement('button');
        button.type = 'button';
        button.textContent = (CLASSES[tag] || 'Class ' + tag) + ' ';
        button.appendChild(document.createElement('small')).textContent = counts[tag];
        button.setAttribute('data-tag', tag);
        button.setAttribute('aria-pressed', 'false');
        button.onclick = function () {
            button.setAttribute('aria-pressed', String(button.getAttribute('aria-pressed') !== 'true'));
            show();
        };
        buttons[tag] = button;
        classBox.appendChild(button);
    });

    // "this+that" has both, "this|that" either.
    function alternatives(text) {
        return text.toLowerCase().split('|').map(function (piece) {
            return piece.split('+').map(function (term) { return term.trim(); }).filter(Boolean);
        }).filter(function (terms) { return terms.length; });
    }
    function mark(shown, wanted) {
        if (!window.Highlight || !CSS.highlights) return;
        var ranges = [], terms = [].concat.apply([], wanted);
        shown.slice(0, 2000).forEach(function (line) {
            var node = line.span.firstChild;
            if (!node || node.length !== line.text.length) return;
            terms.forEach(function (term) {
                for (var at = line.text.indexOf(term); at >= 0; at = line.text.indexOf(term, at + term.length)) {
                    var range = new Range();
                    range.setStart(node, at);
                    range.setEnd(node, at + term.length);
                    ranges.push(range);
                }
            });
        });
        var highlight = new Highlight();
        ranges.forEach(function (range) { highlight.add(range); });
        CSS.highlights.set('found', highlight);
    }
    function show() {
        var wanted = alternatives(search.value), day = daySelect.value, shown = [];
        var tags = Object.keys(buttons).filter(function (tag) {
            return buttons[tag].getAttribute('aria-pressed') === 'true';
        });
        headings.forEach(function (heading) { heading.item.hidden = true; });
        lines.forEach(function (line) {
            var hit = (!wanted.length || wanted.some(function (terms) {
                return terms.every(function (term) { return line.text.indexOf(term) >= 0; });
            })) && (!tags.length || tags.indexOf(line.tag) >= 0) && (!day || line.heading.day === day);
            line.item.hidden = !hit;
            if (!hit) return;
            line.heading.item.hidden = false;
            shown.push(line);
        });
        document.getElementById('count').textContent = (shown.length === lines.length ? '' : shown.length + ' of ') +
            lines.length + (lines.length === 1 ? ' line' : ' lines');
        none.hidden = shown.length > 0;
        mark(shown, wanted);
        return { search: search.value, 'class': tags.join(','), day: day };
    }

    // What is shown stands in the address, so that it can be kept and passed on: #search=word&class=2,3&day=2024-07-04
    function remember() {
        var state = show(), address = new URLSearchParams();
        Object.keys(state).forEach(function (key) { if (state[key]) address.set(key, state[key]); });
        try { history.replaceState(null, '', '#' + address); } catch (error) { /* the address stays as it is */ }
    }
    function recall() {
        var asked = new URLSearchParams(location.search.slice(1) + '&' + location.hash.slice(1));
        var tags = (asked.get('class') || '').split(',');
        search.value = asked.get('search') || asked.get('q') || '';
        daySelect.value = asked.get('day') || '';
        Object.keys(buttons).forEach(function (tag) {
            buttons[tag].setAttribute('aria-pressed', String(tags.indexOf(tag) >= 0));
        });
        show();
    }
    search.oninput = remember;
    daySelect.onchange = remember;
    classBox.addEventListener('click', remember);
    window.addEventListener('hashchange', recall);
    recall();
})();
]]></script>
      </body>
    </html>
  </xsl:template>

  <xsl:template match="Message">
    <li data-tag="{@tag}" data-date="{@date}" style="color:{@color}">
      <time><xsl:value-of select="@date"/></time>
      <span><xsl:value-of select="."/></span>
    </li>
  </xsl:template>
</xsl:stylesheet>
