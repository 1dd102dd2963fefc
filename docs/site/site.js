// The search of the site, a menu that closes itself, and line breaks in code. Pages may be opened from a local folder, where
// a page can load only scripts.
'use strict';

(() => {
    let search;
    let field;
    let list;

    // Loads the index when the field is first used.
    function load(done) {
        if (window.searchIndex) {
            search = search ?? MiniSearch.loadJSON(searchIndex.index, {...searchIndex.options, ...searchWords});
            done();
            return;
        }
        const script = document.createElement('script');
        script.src = 'search-index.js';
        script.onload = () => load(done);
        document.head.append(script);
    }

    // The words around the first match.
    function excerpt({text, terms}) {
        const lower = text.toLowerCase();
        const at = Math.max(0, Math.min(...terms.map(term => lower.indexOf(term)).filter(place => place >= 0)));
        const begin = Number.isFinite(at) && at > 60 ? text.indexOf(' ', at - 60) + 1 : 0;
        return (begin ? '… ' : '') + text.slice(begin, begin + 160);
    }

    function show() {
        const found = field.value.trim() ? search.search(field.value).slice(0, 30) : [];
        list.replaceChildren(...found.map(result => {
            const item = document.createElement('li');
            const link = document.createElement('a');
            const where = document.createElement('span');
            const words = document.createElement('p');
            link.href = result.id;
            link.append(result.title);
            where.append(result.title === result.page ? '' : ` ${result.page}`);
            words.append(excerpt(result));
            item.append(link, where, words);
            return item;
        }));
        if (field.value.trim() && !found.length) {
            list.append('No results.');
        }
        list.hidden = !field.value.trim();
    }

    function addSearch() {
        const form = document.createElement('form');
        form.id = 'site-search';
        form.role = 'search';
        field = document.createElement('input');
        field.type = 'search';
        field.placeholder = 'Search';
        field.ariaLabel = 'Search guides and reference';
        list = document.createElement('ol');
        list.hidden = true;
        form.append(field, list);
        document.getElementById('titlearea').after(form);
        field.addEventListener('focus', () => load(() => {}));
        field.addEventListener('input', () => load(show));
        form.addEventListener('submit', event => {
            event.preventDefault();
            load(() => { show(); list.querySelector('a')?.click(); });
        });
        document.addEventListener('keydown', event => {
            if (event.key === 'Escape') {
                list.hidden = true;
            } else if (event.key === '/' && !/INPUT|TEXTAREA/.test(document.activeElement.tagName)) {
                event.preventDefault();
                field.focus();
            }
        });
        document.addEventListener('click', event => {
            if (!form.contains(event.target) || event.target.tagName === 'A') {
                list.hidden = true;
            }
        });
    }

    // On a phone the menu covers the page, so it closes after a choice and on a tap outside it.
    function closeMenu() {
        const menu = document.getElementById('main-menu-state');
        document.addEventListener('click', event => {
            if (menu?.checked && (event.target.closest('#main-menu a[href]:not(.has-submenu)') || !event.target.closest('.sm-dox'))) {
                menu.click();
            }
        });
    }

    // Allows long names and paths to wrap after a separator.
    function allowBreaks() {
        for (const code of document.querySelectorAll('.contents code')) {
            for (const text of [...code.childNodes, ...code.querySelectorAll('a')].flatMap(node => node.nodeType === 3 ? node : [...node.childNodes])) {
                if (text.nodeType === 3) {
                    const pieces = text.data.split(/(?<=[/:.,(=&?_-])(?![/:.,(=&?_-])/);
                    text.replaceWith(...pieces.flatMap((piece, at) => at ? [document.createElement('wbr'), piece] : [piece]));
                }
            }
        }
    }

    document.addEventListener('DOMContentLoaded', () => {
        addSearch();
        allowBreaks();
        window.jQuery ? jQuery(closeMenu) : closeMenu();
    });
})();
