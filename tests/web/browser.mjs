// What the viewer's browser tests and its speed benchmark share: a static
// HTTP server on 127.0.0.1, headless Chromium driven over its DevTools
// protocol (through a pipe, so that no WebSocket client is needed), and a
// reader of the PNG screenshots it takes.
import { spawn } from 'node:child_process';
import fs from 'node:fs';
import http from 'node:http';
import os from 'node:os';
import path from 'node:path';
import zlib from 'node:zlib';

const types = {
    '.html': 'text/html; charset=utf-8',
    '.js': 'text/javascript; charset=utf-8',
    '.mjs': 'text/javascript; charset=utf-8',
    '.css': 'text/css; charset=utf-8',
    '.svg': 'image/svg+xml',
    '.png': 'image/png',
};

// Serves files on a free port of 127.0.0.1: MOUNTS maps the start of a path
// ("/", "/files/") to the folder that holds what is under it, and nothing
// above that folder is served. Resolves to { url, close() }.
export function startServer(mounts) {
    const folders = Object.entries(mounts).map(([prefix, folder]) => [prefix, path.resolve(folder)])
        .sort((a, b) => b[0].length - a[0].length);
    const server = http.createServer((request, response) => {
        const wanted = decodeURIComponent(new URL(request.url, 'http://127.0.0.1').pathname);
        const mount = folders.find(([prefix]) => wanted.startsWith(prefix));
        const top = mount ? mount[1] : '';
        const file = mount ? path.resolve(top, '.' + wanted.slice(mount[0].length - 1)) : '';
        if (!mount || (file !== top && !file.startsWith(top + path.sep)) || !fs.existsSync(file) ||
            !fs.statSync(file).isFile()) {
            response.writeHead(404, { 'Content-Type': 'text/plain' });
            response.end('not found');
            return;
        }
        const type = types[path.extname(file)] || 'application/octet-stream';
        response.writeHead(200, { 'Content-Type': type, 'Cache-Control': 'no-store' });
        fs.createReadStream(file).pipe(response);
    });
    return new Promise((resolve, reject) => {
        server.on('error', reject);
        server.listen(0, '127.0.0.1', () => {
            const { port } = server.address();
            resolve({
                url: `http://127.0.0.1:${port}/`,
                close: () => new Promise((done) => {
                    server.closeAllConnections();
                    server.close(() => done());
                }),
            });
        });
    });
}

// Headless Chromium with a profile of its own, nothing fetched from the
// network (no host name resolves) and its log in LOG.
export async function launchChromium(log) {
    const profile = fs.mkdtempSync(path.join(os.tmpdir(), 'viewer-chromium-'));
    const child = spawn(process.env.CHROMIUM || 'chromium', [
        '--headless', '--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking',
        '--disable-component-update', '--disable-sync', '--disable-extensions', '--disable-default-apps',
        '--hide-scrollbars', '--force-device-scale-factor=1', '--host-resolver-rules=MAP * ~NOTFOUND, EXCLUDE 127.0.0.1',
        '--allow-file-access-from-files', '--remote-debugging-pipe', `--user-data-dir=${profile}`, 'about:blank',
    ], { stdio: ['ignore', 'ignore', fs.openSync(log, 'w'), 'pipe', 'pipe'] });
    const browser = new Browser(child, profile);
    await browser.send('Browser.getVersion');
    return browser;
}

class Browser {
    constructor(child, profile) {
        this.child = child;
        this.profile = profile;
        this.next = 0;
        this.waiting = new Map();
        this.listeners = [];
        this.exited = new Promise((resolve) => child.on('exit', resolve));
        let pending = '';
        child.stdio[4].on('data', (chunk) => {
            pending += chunk.toString('utf8');
            for (let end = pending.indexOf('\0'); end >= 0; end = pending.indexOf('\0')) {
                const message = JSON.parse(pending.slice(0, end));
                pending = pending.slice(end + 1);
                this.receive(message);
            }
        });
        child.on('exit', () => {
            for (const { reject } of this.waiting.values()) {
                reject(new Error('chromium ended'));
            }
            this.waiting.clear();
        });
    }

    receive(message) {
        if (message.id !== undefined && this.waiting.has(message.id)) {
            const { resolve, reject, method } = this.waiting.get(message.id);
            this.waiting.delete(message.id);
            if (message.error) {
                reject(new Error(`${method}: ${message.error.message}`));
            } else {
                resolve(message.result);
            }
            return;
        }
        for (const listener of this.listeners) {
            listener(message);
        }
    }

    send(method, params = {}, sessionId = undefined) {
        const id = ++this.next;
        const message = { id, method, params };
        if (sessionId) {
            message.sessionId = sessionId;
        }
        return new Promise((resolve, reject) => {
            this.waiting.set(id, { resolve, reject, method });
            this.child.stdio[3].write(JSON.stringify(message) + '\0');
        });
    }

    // A new tab of WIDTH x HEIGHT pixels.
    async newPage(width, height) {
        const { targetId } = await this.send('Target.createTarget', { url: 'about:blank' });
        const { sessionId } = await this.send('Target.attachToTarget', { targetId, flatten: true });
        const page = new Page(this, sessionId);
        await page.send('Page.enable');
        await page.send('Runtime.enable');
        await page.send('Emulation.setDeviceMetricsOverride',
            { width, height, deviceScaleFactor: 1, mobile: false });
        return page;
    }

    async close() {
        try {
            await Promise.race([this.send('Browser.close'), new Promise((resolve) => setTimeout(resolve, 5000))]);
        } catch (error) {
            // it has gone already
        }
        const ended = await Promise.race([this.exited.then(() => true),
            new Promise((resolve) => setTimeout(() => resolve(false), 5000))]);
        if (!ended) {
            this.child.kill('SIGKILL');
            await this.exited;
        }
        fs.rmSync(this.profile, { recursive: true, force: true });
    }
}

class Page {
    constructor(browser, sessionId) {
        this.browser = browser;
        this.sessionId = sessionId;
        this.errors = []; // exceptions thrown in the page, and its console errors
        browser.listeners.push((message) => {
            if (message.sessionId !== sessionId) {
                return;
            }
            if (message.method === 'Runtime.exceptionThrown') {
                const details = message.params.exceptionDetails;
                this.errors.push(details.exception ? details.exception.description : details.text);
            } else if (message.method === 'Runtime.consoleAPICalled' && message.params.type === 'error') {
                this.errors.push(message.params.args.map((arg) => arg.value ?? arg.description).join(' '));
            }
        });
    }

    send(method, params = {}) {
        return this.browser.send(method, params, this.sessionId);
    }

    // Goes to URL and waits for its load event.
    async go(url) {
        const loaded = new Promise((resolve) => {
            const listener = (message) => {
                if (message.sessionId === this.sessionId && message.method === 'Page.loadEventFired') {
                    this.browser.listeners.splice(this.browser.listeners.indexOf(listener), 1);
                    resolve();
                }
            };
            this.browser.listeners.push(listener);
        });
        const result = await this.send('Page.navigate', { url });
        if (result.errorText) {
            throw new Error(`${url}: ${result.errorText}`);
        }
        await loaded;
    }

    // The value of EXPRESSION in the page (a promise's, once it settles).
    async evaluate(expression) {
        const result = await this.send('Runtime.evaluate',
            { expression, returnByValue: true, awaitPromise: true });
        if (result.exceptionDetails) {
            const details = result.exceptionDetails;
            throw new Error(`${expression.slice(0, 80)}: ${details.exception ? details.exception.description : details.text}`);
        }
        return result.result.value;
    }

    // Waits until EXPRESSION is true in the page, at most SECONDS.
    async waitFor(expression, seconds = 30) {
        const until = Date.now() + seconds * 1000;
        for (;;) {
            if (await this.evaluate(`Boolean(${expression})`)) {
                return;
            }
            if (Date.now() > until) {
                throw new Error(`waited ${seconds} s for ${expression}`);
            }
            await new Promise((resolve) => setTimeout(resolve, 20));
        }
    }

    // Puts FILES (paths) into the file input SELECTOR, as a user choosing them does.
    async chooseFiles(selector, files) {
        const { root } = await this.send('DOM.getDocument');
        const { nodeId } = await this.send('DOM.querySelector', { nodeId: root.nodeId, selector });
        await this.send('DOM.setFileInputFiles', { nodeId, files });
    }

    // The page as a PNG, its bytes.
    async screenshot() {
        const { data } = await this.send('Page.captureScreenshot', { format: 'png' });
        return Buffer.from(data, 'base64');
    }
}

// The pixels of a PNG of 8 bits a channel (RGB or RGBA, not interlaced):
// { width, height, pixel(x, y) -> [r, g, b] }.
export function readPng(bytes) {
    if (bytes.readUInt32BE(0) !== 0x89504e47) {
        throw new Error('not a PNG');
    }
    let width = 0;
    let height = 0;
    let channels = 0;
    const data = [];
    for (let at = 8; at < bytes.length;) {
        const length = bytes.readUInt32BE(at);
        const type = bytes.toString('latin1', at + 4, at + 8);
        const chunk = bytes.subarray(at + 8, at + 8 + length);
        if (type === 'IHDR') {
            width = chunk.readUInt32BE(0);
            height = chunk.readUInt32BE(4);
            const depth = chunk[8];
            const colour = chunk[9];
            channels = { 2: 3, 6: 4 }[colour];
            if (depth !== 8 || !channels || chunk[12] !== 0) {
                throw new Error(`a PNG of depth ${depth}, colour type ${colour}, interlace ${chunk[12]}`);
            }
        } else if (type === 'IDAT') {
            data.push(chunk);
        }
        at += 12 + length;
    }
    const raw = zlib.inflateSync(Buffer.concat(data));
    const stride = width * channels;
    const pixels = Buffer.alloc(height * stride);
    for (let y = 0; y < height; ++y) {
        const filter = raw[y * (stride + 1)];
        const line = raw.subarray(y * (stride + 1) + 1, (y + 1) * (stride + 1));
        for (let x = 0; x < stride; ++x) {
            const left = x >= channels ? pixels[y * stride + x - channels] : 0;
            const up = y > 0 ? pixels[(y - 1) * stride + x] : 0;
            const upLeft = y > 0 && x >= channels ? pixels[(y - 1) * stride + x - channels] : 0;
            let value = line[x];
            if (filter === 1) {
                value += left;
            } else if (filter === 2) {
                value += up;
            } else if (filter === 3) {
                value += (left + up) >> 1;
            } else if (filter === 4) {
                const p = left + up - upLeft;
                const pa = Math.abs(p - left);
                const pb = Math.abs(p - up);
                const pc = Math.abs(p - upLeft);
                value += pa <= pb && pa <= pc ? left : pb <= pc ? up : upLeft;
            }
            pixels[y * stride + x] = value & 0xff;
        }
    }
    return {
        width,
        height,
        pixel: (x, y) => Array.from(pixels.subarray(y * stride + x * channels, y * stride + x * channels + 3)),
    };
}
