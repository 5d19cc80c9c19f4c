// The viewer's page in headless Chromium, served by a server of the test's
// own on 127.0.0.1 (or opened from disk), checked through its DOM and a
// screenshot. Each case is a test of its own:
//   example        the example button: the drawing's ids, the bill as written
//                  out by hand in tests/tools/expected/bom/slab.txt, and a
//                  screenshot whose opening is white and whose slab is not
//   golden         a golden file through ?file=: drawing, bill and the whole
//                  record tree, unfolded, as the native tool prints them
//   findings       a file with planted defects: its findings (codes, lines,
//                  columns) as tests/tools/expected/check/file.json holds
//                  them, a finding's line shown on a click, and its tree as
//                  tests/tools/expected/reinforced-600.tree.txt
//   broken         files the reading stops in show where, with line and
//                  column, and a good file chosen after them is drawn
//   markup         texts holding markup stay text, and no script of theirs runs
//   from_disk      index.html#example opened as file:// draws the example
//
// node browser_test.mjs --case NAME --viewer DIR --tool unitechnik
//   --golden tests/functional/expected --expected tests/tools/expected
//   --inputs tests/tools/check/inputs --example examples/slab.json
//   --scratch DIR [--screenshot PNG]
import { spawnSync } from 'node:child_process';
import fs from 'node:fs';
import path from 'node:path';
import { launchChromium, readPng, startServer } from './browser.mjs';

function options() {
    const out = {};
    const args = process.argv.slice(2);
    for (let i = 0; i < args.length; i += 2) {
        if (!args[i].startsWith('--') || i + 1 >= args.length) {
            throw new Error(`bad argument "${args[i]}"`);
        }
        out[args[i].slice(2)] = args[i + 1];
    }
    for (const name of ['case', 'viewer', 'tool', 'golden', 'expected', 'inputs', 'example', 'scratch']) {
        if (!out[name]) {
            throw new Error(`--${name} is missing`);
        }
    }
    return out;
}

const opts = options();
let checks = 0;

function check(condition, what) {
    if (!condition) {
        throw new Error(`failed: ${what}`);
    }
    ++checks;
}

function same(actual, expected, what) {
    const a = JSON.stringify(actual);
    const e = JSON.stringify(expected);
    if (a !== e) {
        throw new Error(`failed: ${what}\n  expected ${e.slice(0, 2000)}\n  found    ${a.slice(0, 2000)}`);
    }
    ++checks;
}

// The native tool's standard output; it must succeed (or find, for check).
function tool(args, codes = [0]) {
    const run = spawnSync(opts.tool, args, { encoding: 'utf8', maxBuffer: 1 << 28 });
    if (run.error || !codes.includes(run.status)) {
        throw new Error(`unitechnik ${args.join(' ')}: ${run.error || run.stderr}`);
    }
    return run.stdout;
}

const scratch = path.resolve(opts.scratch, opts.case);
const files = path.join(scratch, 'files');
fs.rmSync(scratch, { recursive: true, force: true });
fs.mkdirSync(files, { recursive: true });

function fileFrom(source, name = path.basename(source)) {
    const target = path.join(files, name);
    fs.copyFileSync(source, target);
    return target;
}

// The example slab as `unitechnik build examples/slab.json` writes it.
function exampleFile(name = 'slab.uni', change = (script) => script) {
    const script = path.join(scratch, name + '.json');
    fs.writeFileSync(script, JSON.stringify(change(JSON.parse(fs.readFileSync(opts.example, 'utf8')))));
    const target = path.join(files, name);
    tool(['build', script, '-o', target]);
    return target;
}

// The ids of the elements of an SVG text, in their order.
function svgIds(svg) {
    return Array.from(svg.matchAll(/ id="([^"]*)"/g), (match) => match[1]);
}

// Page helpers.
const started = `document.getElementById('status').textContent !== 'Starting…'`;

async function shownAfter(page, action) {
    const before = Number(await page.evaluate(`document.body.dataset.shown || 0`));
    await action();
    await page.waitFor(`Number(document.body.dataset.shown || 0) > ${before}`, 60);
}

const drawingIds = `Array.from(document.querySelectorAll('#drawing svg [id]'), (node) => node.id)`;

// The tree with every record unfolded: one line a record, indented two
// blanks a level as dump --tree prints it.
async function unfoldedTree(page) {
    for (let round = 0; round < 100; ++round) {
        const opened = await page.evaluate(`(() => {
            const closed = Array.from(document.querySelectorAll('#tree details:not([open])'));
            closed.forEach((details) => { details.open = true; });
            return closed.length;
        })()`);
        // A record's records are made on its toggle event, which comes after.
        await page.evaluate(`new Promise((resolve) => setTimeout(resolve, 0))`);
        if (opened === 0) {
            break;
        }
    }
    return page.evaluate(`Array.from(document.querySelectorAll('#tree summary, #tree .leaf'), (node) => {
        let depth = 0;
        for (let up = node.parentElement; up && up.id !== 'tree'; up = up.parentElement) {
            depth += up.tagName === 'DETAILS' ? 1 : 0;
        }
        return '  '.repeat(node.tagName === 'SUMMARY' ? depth - 1 : depth) + node.textContent;
    })`);
}

function treeLines(text) {
    return text.split('\n').filter((line) => line !== '');
}

// Points of the screen inside SELECTOR's shape, five pixels or more from its
// edge, where nothing else lies over it for two pixels each way (a stroke
// drawn over it colours a pixel or so beside it): at most COUNT of them.
function clearPoints(selector, count) {
    return `(() => {
        const shape = document.querySelector(${JSON.stringify(selector)});
        if (!shape) { return []; }
        const box = shape.getBoundingClientRect();
        const found = [];
        const step = 3;
        for (let y = Math.ceil(box.top) + 5; y < box.bottom - 5 && found.length < ${count}; y += step) {
            for (let x = Math.ceil(box.left) + 5; x < box.right - 5 && found.length < ${count}; x += step) {
                if (x >= innerWidth || y >= innerHeight) { continue; }
                let clear = true;
                for (let dy = -2; dy <= 2 && clear; ++dy) {
                    for (let dx = -2; dx <= 2 && clear; ++dx) {
                        clear = document.elementFromPoint(x + dx, y + dy) === shape;
                    }
                }
                if (clear) { found.push([x, y]); }
            }
        }
        return found;
    })()`;
}

const cases = {
    async example(page, server) {
        await page.go(server.url + 'index.html');
        await page.waitFor(started);
        await shownAfter(page, () => page.evaluate(`document.getElementById('example').click()`));
        same(await page.evaluate(`document.getElementById('file-name').textContent`), 'slab.uni', 'the name shown');
        const ids = await page.evaluate(drawingIds);
        for (const id of ['contour-1', 'cutout-1', 'mountingpart-1', 'rodstock-1', 'rodstock-2', 'bracedgirder-1',
            'steelmat-1', 'steelmat-1-rodstock-1', 'steelmat-1-rodstock-54']) {
            check(ids.includes(id), `the drawing has #${id}`);
        }
        same(ids, svgIds(tool(['render', exampleFile()])), 'the drawing\'s ids are those of unitechnik render');
        const bill = await page.evaluate(`document.getElementById('bill').textContent`);
        same(bill, fs.readFileSync(path.join(opts.expected, 'bom', 'slab.txt'), 'utf8'), 'the bill of materials');
        check(bill.includes('Steel 74.07 kg, concrete 1918.08 kg') &&
            bill.includes('File: steel 74.07 kg, concrete 1918.08 kg'), 'the totals of the bill');
        same(await page.evaluate(`document.getElementById('findings').textContent`), 'Nothing found.',
            'the example has no findings');
        same(await page.evaluate(`document.querySelector('#tree summary').textContent`),
            'HEADER__ version 600, order "ORD-2026-0142", 1 element', 'the tree\'s first record');

        // The opening is drawn white over the slab, which is not white.
        const opening = await page.evaluate(clearPoints('#cutout-1 path.opening', 20));
        const body = await page.evaluate(clearPoints('#contour-1 path.outline', 20));
        check(opening.length >= 5, `points inside the opening with nothing over them (${opening.length})`);
        check(body.length >= 5, `points of the slab with nothing over them (${body.length})`);
        const png = await page.screenshot();
        if (opts.screenshot) {
            fs.writeFileSync(opts.screenshot, png);
        }
        const image = readPng(png);
        same([image.width, image.height], [1280, 860], 'the screenshot\'s size');
        for (const [x, y] of opening) {
            same(image.pixel(x, y), [255, 255, 255], `the opening at (${x}, ${y}) is white`);
        }
        for (const [x, y] of body) {
            const [r, g, b] = image.pixel(x, y);
            check(r + g + b < 3 * 235, `the slab at (${x}, ${y}) is not white: ${[r, g, b]}`);
            // The concrete grey of render's legend, #d9d2c5.
            check(Math.abs(r - 0xd9) <= 6 && Math.abs(g - 0xd2) <= 6 && Math.abs(b - 0xc5) <= 6,
                `the slab at (${x}, ${y}) is concrete grey: ${[r, g, b]}`);
        }
    },

    async golden(page, server) {
        const file = fileFrom(path.join(opts.golden, 'slab', 'slab-600.txt'));
        await shownAfter(page, () => page.go(server.url + 'index.html?file=files/slab-600.txt'));
        same(await page.evaluate(`document.getElementById('file-name').textContent`), 'slab-600.txt',
            'the name shown');
        same(await page.evaluate(`document.getElementById('status').hidden`), true, 'no message');
        const ids = await page.evaluate(drawingIds);
        check(ids.includes('contour-1'), 'the drawing has #contour-1');
        same(ids, svgIds(tool(['render', file])), 'the drawing\'s ids are those of unitechnik render');
        same(await page.evaluate(`document.getElementById('bill').textContent`), tool(['bom', file]),
            'the bill is unitechnik bom\'s');
        const tree = await unfoldedTree(page);
        check(tree.length > 20, `the tree has its records (${tree.length})`);
        same(tree, treeLines(tool(['dump', '--tree', file])), 'the tree unfolded is unitechnik dump --tree');
    },

    async findings(page, server) {
        const file = fileFrom(path.join(opts.golden, 'reinforced', 'reinforced-600.txt'));
        await shownAfter(page, () => page.go(server.url + 'index.html?file=files/reinforced-600.txt'));
        const expected = JSON.parse(fs.readFileSync(path.join(opts.expected, 'check', 'file.json'), 'utf8'));
        check(expected.length >= 5, 'the planted defects');
        same(await page.evaluate(`document.getElementById('finding-count').textContent`), `(${expected.length})`,
            'the count of findings');
        same(await page.evaluate(`Array.from(document.querySelectorAll('#findings li'), (item) => item.textContent)`),
            expected.map((f) => `line ${f.line}:${f.column} ${f.code} ${f.name} ${f.message}`),
            'each finding with its line, column, code and name');
        // A click shows the finding's line with the two on each side.
        const lines = fs.readFileSync(file, 'latin1').split(/\r?\n/);
        const second = expected[1];
        await page.evaluate(`document.querySelectorAll('#findings li button')[1].click()`);
        const shownLine = await page.evaluate(`document.getElementById('file-line').textContent`);
        same(await page.evaluate(`document.getElementById('file-line').hidden`), false, 'the line is shown');
        same(shownLine.split('\n').length, 5, 'five lines around the finding');
        check(shownLine.includes('> ' + String(second.line).padStart(6) + ' | ' + lines[second.line - 1]),
            `the line of the finding, ${second.line}, marked`);
        const tree = await unfoldedTree(page);
        same(tree, treeLines(fs.readFileSync(path.join(opts.expected, 'reinforced-600.tree.txt'), 'utf8')),
            'the tree unfolded as tests/tools/expected/reinforced-600.tree.txt');
        same(await page.evaluate(`document.getElementById('bill').textContent`), tool(['bom', file]),
            'the bill is unitechnik bom\'s');
    },

    async broken(page, server) {
        await page.go(server.url + 'index.html');
        await page.waitFor(started);
        // Where the reading stops, as tests/tools/expected/check/NAME.txt has it.
        for (const name of ['unreadable-line.txt', 'cut-off.txt']) {
            const file = fileFrom(path.join(opts.inputs, name));
            const stop = fs.readFileSync(path.join(opts.expected, 'check', name), 'utf8').trim();
            const [, line, column] = stop.match(/^[^:]+:(\d+):(\d+): /);
            await shownAfter(page, () => page.chooseFiles('#file-input', [file]));
            const message = await page.evaluate(`document.getElementById('status').textContent`);
            same(await page.evaluate(`document.getElementById('status').hidden`), false, `${name}: a message`);
            check(message.startsWith(`${name}:${line}:${column}: `), `${name}: the message names line ${line} ` +
                `and column ${column}: ${message}`);
            check(message.includes('(what was read before is shown)'), `${name}: what was read is shown`);
            const findings = await page.evaluate(`document.getElementById('findings').textContent`);
            check(findings.includes(`line ${line}:${column} `), `${name}: a finding at line ${line}`);
        }
        const good = fileFrom(path.join(opts.golden, 'slab', 'slab-600.txt'));
        await shownAfter(page, () => page.chooseFiles('#file-input', [good]));
        same(await page.evaluate(`document.getElementById('status').hidden`), true, 'the good file: no message');
        same(await page.evaluate(`document.getElementById('file-name').textContent`), 'slab-600.txt',
            'the good file\'s name');
        same(await page.evaluate(drawingIds), svgIds(tool(['render', good])), 'the good file is drawn');
        same(page.errors, [], 'nothing thrown in the page');
    },

    async markup(page, server) {
        const elementText = '<img src=x onerror=top.pwn=1>';
        const partName = '</text><script>top.pwn=2</script>';
        const file = exampleFile('markup.uni', (script) => {
            for (const call of script.calls) {
                if (call.call === 'startOrder') {
                    call.elementTextArg = elementText;
                }
                if (call.setName === 'Socket box') {
                    call.setName = partName;
                }
            }
            return script;
        });
        const written = fs.readFileSync(file, 'latin1');
        check(written.includes(elementText) && written.includes(partName), 'the file holds both texts whole');
        await page.go(server.url + 'index.html');
        await page.waitFor(started);
        await shownAfter(page, () => page.chooseFiles('#file-input', [file]));
        // Time for an image's error, were there one.
        await page.evaluate(`new Promise((resolve) => setTimeout(resolve, 500))`);
        same(await page.evaluate(`typeof window.pwn`), 'undefined', 'no script of the file ran');
        same(await page.evaluate(`document.title`), 'Unitechnik viewer', 'the title is the page\'s');
        same(await page.evaluate(`document.querySelectorAll('img').length`), 0, 'no img element');
        same(await page.evaluate(`Array.from(document.scripts, (script) => script.src.split('/').pop())`),
            ['unitechnik_viewer.js', 'viewer.js'], 'the page\'s scripts alone');
        same(await page.evaluate(`document.querySelectorAll('#drawing text, #drawing svg title').length > 0`), true,
            'the drawing has its texts');
        same(await page.evaluate(`document.querySelector('#drawing svg > title').textContent`),
            `Order ORD-2026-0142, element 101: ${elementText}`, 'the drawing\'s title, literally');
        check(await page.evaluate(`Array.from(document.querySelectorAll('#drawing text.part-name'), (node) =>
            node.textContent).includes(${JSON.stringify(partName + ', height 60 mm')})`), 'the part\'s name, literally');
        const bill = await page.evaluate(`document.getElementById('bill').textContent`);
        same(bill, tool(['bom', file]), 'the bill, literally');
        check(bill.includes(elementText) && bill.includes(partName), 'the bill holds both texts');
        const tree = await unfoldedTree(page);
        same(tree, treeLines(tool(['dump', '--tree', file])), 'the tree, literally');
        check(tree.some((line) => line.includes(partName)), 'the tree holds the part\'s name');
        same(page.errors, [], 'nothing thrown in the page');
    },

    async from_disk(page) {
        const url = 'file://' + path.resolve(opts.viewer, 'index.html') + '#example';
        await shownAfter(page, () => page.go(url));
        same(await page.evaluate(`location.protocol`), 'file:', 'opened from disk');
        same(await page.evaluate(`document.getElementById('file-name').textContent`), 'slab.uni', 'the example');
        const ids = await page.evaluate(drawingIds);
        check(ids.includes('contour-1') && ids.includes('cutout-1'), 'the example is drawn');
        same(page.errors, [], 'nothing thrown in the page');
    },
};

const run = cases[opts.case];
if (!run) {
    throw new Error(`no case "${opts.case}": ${Object.keys(cases).join(', ')}`);
}
const server = await startServer({ '/': opts.viewer, '/files/': files });
const browser = await launchChromium(path.join(scratch, 'chromium.log'));
let failed = false;
try {
    const page = await browser.newPage(1280, 860);
    await run(page, server);
    console.log(`${opts.case}: ${checks} checks passed`);
} catch (error) {
    failed = true;
    console.log(`${opts.case}: ${error.message}`);
} finally {
    await browser.close();
    await server.close();
}
process.exit(failed ? 1 : 0);
