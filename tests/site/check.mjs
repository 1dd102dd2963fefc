// usage: node check.mjs <folder of package.json> <folder of the site> <folder for pictures>
import assert from 'node:assert/strict';
import {existsSync, readdirSync, readFileSync} from 'node:fs';
import {createRequire} from 'node:module';
import {join, resolve} from 'node:path';
import {pathToFileURL} from 'node:url';

const [tools, site, pictures] = process.argv.slice(2);
const puppeteer = createRequire(join(resolve(tools), 'package.json'))('puppeteer-core');
const address = file => pathToFileURL(resolve(site, file)).href;
const browser = await puppeteer.launch({executablePath: '/usr/bin/chromium', args: ['--no-sandbox']});
const errors = [];

async function open(width, file) {
    const page = await browser.newPage();
    page.on('pageerror', error => errors.push(`${file}: ${error.message}`));
    await page.setViewport({width, height: 844, isMobile: width < 500, hasTouch: width < 500});
    await page.goto(address(file));
    return page;
}

async function search(page, words) {
    await page.focus('#site-search input');
    await page.$eval('#site-search input', field => { field.value = ''; });
    await page.type('#site-search input', words);
    await page.waitForSelector('#site-search ol:not([hidden]) li a');
    return page.$$eval('#site-search li a', links => links.map(link => link.href.replace(/.*\//, '')));
}

const files = readdirSync(site).filter(file => file.endsWith('.html') && !file.endsWith('_source.html'));
const guides = files.filter(file => /^(index|md_|calls)/.test(file));
assert(guides.length > 20, 'guides are missing');

// The search finds common topics in guides and in classes.
const finder = await open(1280, 'index.html');
for (const words of ['timeout', '401', 'paging', 'certificate', 'log file']) {
    const found = await search(finder, words);
    console.log(`${words}: ${found.length} matches, starting with ${found.slice(0, 3).join(' ')}`);
    assert(found.some(file => /^(index|md_|calls)/.test(file)), `no guide for "${words}"`);
    for (const place of found) {
        const [file, anchor] = place.split('#');
        assert(!anchor || readFileSync(join(site, file), 'utf8').includes(`id="${anchor}"`), `${place} does not exist`);
    }
}
assert((await search(finder, 'timeout')).some(file => /^(class|struct)/.test(file)), 'no class for "timeout"');
await finder.screenshot({path: join(pictures, 'search.png')});
await finder.keyboard.press('Escape');
assert(await finder.$eval('#site-search ol', list => list.hidden), 'Escape does not close the search results');

for (const width of [1280, 390]) {
    const page = await open(width, 'index.html');
    const looked = width < 500 ? /^(index|md_|calls|class|struct|namespace[A-Z])/ : /^(index|md_|calls|class)/;
    for (const file of files.filter(name => looked.test(name))) {
        await page.goto(address(file));
        const seen = await page.evaluate(() => {
            const right = element => element.getBoundingClientRect().right;
            // The width of 90 characters of prose, plus some space for the last word.
            const measure = document.createElement('canvas').getContext('2d');
            measure.font = getComputedStyle(document.querySelector('.contents')).font;
            const sample = 'The host gives the library a user manager, and decides where calls wait and what is shown. ';
            const longest = measure.measureText(sample).width / sample.length * 97;
            const scrolls = element => element.closest('.fragment, pre, table, .image, .memproto, .dyncontent, .directory');
            return {
                overflow: Math.max(document.documentElement.scrollWidth, document.getElementById('doc-content').scrollWidth) >
                    innerWidth || [...document.querySelectorAll('.contents *')].some(
                    element => right(element) > innerWidth + 1 && !scrolls(element) && !element.closest('.toc')),
                long: [...document.querySelectorAll('.contents p')].filter(text => text.clientWidth > longest).length,
                broken: [...document.querySelectorAll('.contents .fragment .line, .contents pre')].filter(
                    code => getComputedStyle(code).wordBreak !== 'normal' || !/^pre$/.test(getComputedStyle(code).whiteSpace)).length,
                small: [...document.querySelectorAll('.contents .image object')].filter(
                    picture => picture.clientWidth < 600).length,
                contents: document.querySelectorAll('.toc a').length,
                sections: document.querySelectorAll('.contents h1, .contents h2').length,
                turns: document.querySelectorAll('.turn a').length,
            };
        });
        assert(!seen.overflow, `${file} is wider than ${width} pixels`);
        assert.equal(seen.long, 0, `${file} has lines that are too long at ${width} pixels`);
        assert.equal(seen.broken, 0, `${file} breaks code inside words`);
        assert.equal(seen.small, 0, `${file} has a diagram that cannot be read at ${width} pixels`);
        if (guides.includes(file)) {
            assert(seen.turns > 0, `${file} does not link to another guide`);
            assert(seen.contents > 0 || seen.sections < 2, `${file} has no list of contents`);
        }
        if (/^(index|md_docs_2?host|md_docs_2?architecture|calls_brms|classAPIModule_1_1CBRMSModule)\.html/.test(file)) {
            await page.screenshot({path: join(pictures, `${width}-${file}.png`)});
        }
    }
    await page.close();
}

// The "Next" links lead from the first guide through all others.
let place = 'index.html';
const read = new Set();
for (const page = await open(1280, place); place && !read.has(place);) {
    read.add(place);
    await page.goto(address(place));
    place = await page.$$eval('.turn', lines => lines.find(line => line.textContent.startsWith('Next'))
        ?.querySelector('a').href.replace(/.*\//, ''));
}
assert.equal(read.size, guides.length, 'the "Next" links skip a guide');

// Navigation: a tree on the desktop, a menu on the phone.
const desktop = await open(1280, guides.at(-1));
await desktop.waitForSelector('#nav-tree a[href*="calls"]');
const phone = await open(390, 'index.html');
const menuShown = () => phone.$eval('#main-menu', menu => getComputedStyle(menu).display !== 'none');
const becomes = shown => phone.waitForFunction(
    wanted => (getComputedStyle(document.getElementById('main-menu')).display !== 'none') === wanted, {timeout: 5000}, shown);
await becomes(false);
await phone.tap('.main-menu-btn');
await becomes(true);
await phone.screenshot({path: join(pictures, '390-menu.png')});
await phone.touchscreen.tap(200, 790);  // beside the menu
await becomes(false);
assert(!await menuShown());

// The page of a family: its purpose, a table of its calls, and for each call links to the contract and back.
const family = await open(1280, 'calls_ipms.html');
const calls = await family.$$eval('.contents table:first-of-type td:first-child a', links => links.map(link => link.hash.slice(1)));
assert(calls.length >= 4, 'the family has no table of its calls');
assert.equal(await family.$eval('.contents .textblock > *:not(.toc)', first => first.tagName), 'P', 'the table comes first');
const contract = readFileSync(join(site, 'contract/index.html'), 'utf8');
for (const file of guides.filter(name => /^calls_/.test(name))) {
    const html = readFileSync(join(site, file), 'utf8');
    for (const [, anchor, name] of html.matchAll(/id="(call_(\w+))"/g)) {
        const operation = name.replace('_', '.');
        assert(html.includes(`contract/index.html#operation/${operation}"`), `${operation} does not link to the contract`);
        assert(contract.includes(`../${file}#${anchor}`), `the contract does not link back to ${operation}`);
    }
}
for (const file of files.filter(name => /^classAPIModule_1_1C(BRMS|DMS|IAMS|IPMS|OBMS|OMMS)Module\.html$/.test(name))) {
    const html = readFileSync(join(site, file), 'utf8');
    assert(html.indexOf('operator=') > html.indexOf('Packet'), `${file} begins with operator=`);
}

// The target sections of links between guides exist.
const security = readFileSync(join(site, files.find(name => /^md_docs_2?security/.test(name))), 'utf8');
const sections = [...security.matchAll(/href="(md_[^"#]+)#([^"]+)"/g)];
assert(sections.length >= 4, 'the security guide has too few links to sections');
for (const [, file, anchor] of sections) {
    assert(readFileSync(join(site, file), 'utf8').includes(`id="${anchor}"`), `${file} has no section ${anchor}`);
}

// The target files of all links exist.
for (const file of files) {
    for (const [, link] of readFileSync(join(site, file), 'utf8').matchAll(/(?:href|src|data)="([^"#:?]+)["#?]/g)) {
        assert(existsSync(join(site, decodeURI(link))), `${file} has a dead link to ${link}`);
    }
}

assert.deepEqual(errors, []);
await browser.close();
