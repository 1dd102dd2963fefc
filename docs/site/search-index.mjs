// Writes the search index of the site: the sections of its pages with their texts.
// usage: node search-index.mjs <folder of node modules> <folder of the site> <file>
import {readdirSync, readFileSync, writeFileSync} from 'node:fs';
import {createRequire} from 'node:module';
import {join} from 'node:path';
import './search-words.js';

const [modules, folder, output] = process.argv.slice(2);
const require = createRequire(join(modules, 'package.json'));
const {parse} = require('node-html-parser');
const MiniSearch = require('minisearch');

// Source listings, lists of names and pages about folders only repeat the content of other pages.
const skipped = /_source\.html$|-members\.html$|^(annotated|classes|files|functions|globals|hierarchy|inherits|namespace(s|members)|pages|dir_)/;
const sections = [];

function sectionsOf(file) {
    const page = parse(readFileSync(join(folder, file), 'utf8'));
    const contents = page.querySelector('div.contents');
    const title = page.querySelector('title').text.replace(/^APIModule: /, '').trim();
    if (!contents) {
        return;
    }
    contents.querySelectorAll('div.toc, div.turn, script').forEach(node => node.remove());
    let section = {id: file, page: title, title, text: ''};
    const pieces = [section];
    let anchor = '';
    (function walk(node) {
        for (const child of node.childNodes) {
            if (child.nodeType === 3) {
                section.text += child.text;
                continue;
            }
            if (child.tagName === 'A' && child.id) {
                anchor = child.id;  // of the next member
            }
            if (/^H[1-6]$/.test(child.tagName ?? '')) {
                anchor = child.querySelector('a.anchor')?.id ?? (child.classList.contains('memtitle') ? anchor : '');
                const heading = child.text.replace(/^\s*◆\s*/, '').replace(/\s+/g, ' ').trim();
                if (anchor) {
                    section = {id: `${file}#${anchor}`, page: title, title: heading, text: ''};
                    pieces.push(section);
                } else {
                    section.text += ` ${heading} `;
                }
                continue;
            }
            walk(child);
            section.text += ' ';
        }
    })(contents);
    for (const piece of pieces) {
        piece.text = piece.text.replace(/\s+/g, ' ').trim();
        if (piece.text || piece.title !== title) {
            sections.push(piece);
        }
    }
}

readdirSync(folder).filter(file => file.endsWith('.html') && !skipped.test(file)).forEach(sectionsOf);
const ids = new Set();
const options = {
    fields: ['title', 'text'],
    storeFields: ['page', 'title', 'text'],
    searchOptions: {boost: {title: 3}, prefix: true, combineWith: 'AND'},
};
const search = new MiniSearch({...options, ...globalThis.searchWords});
search.addAll(sections.filter(({id}) => !ids.has(id) && ids.add(id)));
// A script, because a page opened from a local folder can load nothing else.
writeFileSync(output, `window.searchIndex = ${JSON.stringify({options, index: JSON.stringify(search)})};\n`);
