// The viewer's speed in headless Chromium (a benchmark, not a test): each
// file is chosen in the page's file input RUNS times, and the page's own
// clock tells how long it took from its bytes in hand until the drawing was
// on the screen (read and drawn) and until the findings, the bill and the
// tree were too (everything shown). Prints the median and the fastest.
//
// node speed.mjs --viewer DIR --scratch DIR [--runs N] FILE...
import fs from 'node:fs';
import path from 'node:path';
import { launchChromium, startServer } from './browser.mjs';

const args = process.argv.slice(2);
const opts = { runs: '5' };
const files = [];
for (let i = 0; i < args.length; ++i) {
    if (args[i].startsWith('--')) {
        opts[args[i].slice(2)] = args[++i];
    } else {
        files.push(path.resolve(args[i]));
    }
}
if (!opts.viewer || !opts.scratch || files.length === 0) {
    throw new Error('usage: node speed.mjs --viewer DIR --scratch DIR [--runs N] FILE...');
}
fs.mkdirSync(opts.scratch, { recursive: true });

const median = (values) => [...values].sort((a, b) => a - b)[Math.floor(values.length / 2)];
const server = await startServer({ '/': opts.viewer });
const browser = await launchChromium(path.join(opts.scratch, 'chromium.log'));
try {
    const page = await browser.newPage(1280, 860);
    await page.go(server.url + 'index.html');
    await page.waitFor(`document.getElementById('status').textContent !== 'Starting…'`);
    const version = await browser.send('Browser.getVersion');
    console.log(`${version.product}, ${Number(opts.runs)} runs a file`);
    for (const file of files) {
        const drawn = [];
        const shown = [];
        let svgBytes = 0;
        for (let run = 0; run < Number(opts.runs); ++run) {
            const before = Number(await page.evaluate(`document.body.dataset.shown || 0`));
            await page.chooseFiles('#file-input', [file]);
            await page.waitFor(`Number(document.body.dataset.shown || 0) > ${before}`, 300);
            drawn.push(Number(await page.evaluate(`document.body.dataset.drawnMs`)));
            shown.push(Number(await page.evaluate(`document.body.dataset.shownMs`)));
            svgBytes = await page.evaluate(`new XMLSerializer().serializeToString(
                document.querySelector('#drawing svg') || document.createElement('p')).length`);
        }
        const size = fs.statSync(file).size;
        console.log(`${path.basename(file)}: ${(size / 1e6).toFixed(2)} MB, drawing ${(svgBytes / 1e6).toFixed(1)} MB ` +
            `of SVG; read and drawn: median ${median(drawn)} ms, fastest ${Math.min(...drawn)} ms; ` +
            `everything shown: median ${median(shown)} ms, fastest ${Math.min(...shown)} ms`);
    }
} finally {
    await browser.close();
    await server.close();
}
