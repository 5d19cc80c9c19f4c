// The viewer's WebAssembly module against the native tool: for every golden
// file and for generated scripts' files, the module's dump --tree, bom
// --json, check --json and the SVG of render must be the same bytes as what
// `unitechnik dump --tree F`, `unitechnik bom F --json`, `unitechnik check F
// --json` and `unitechnik render F` print; and the example slab the module
// builds is the file `unitechnik build examples/slab.json` writes. The two are independent builds of
// the same source (emscripten's clang and libc++ against the native
// compiler and its library); neither writes the other's expected output.
//
// node same_as_native.mjs --module unitechnik_viewer.js --tool unitechnik
//   --generator generate_scripts --golden DIR --scratch DIR [--count N] [--seed S]
//   [--example examples/slab.json]
import { spawnSync } from 'node:child_process';
import { createRequire } from 'node:module';
import fs from 'node:fs';
import path from 'node:path';

const require = createRequire(import.meta.url);

function options() {
    const out = { count: '300', seed: '20261125' };
    const args = process.argv.slice(2);
    for (let i = 0; i < args.length; i += 2) {
        if (!args[i].startsWith('--') || i + 1 >= args.length) {
            throw new Error(`bad argument "${args[i]}"`);
        }
        out[args[i].slice(2)] = args[i + 1];
    }
    for (const name of ['module', 'tool', 'generator', 'golden', 'scratch']) {
        if (!out[name]) {
            throw new Error(`--${name} is missing`);
        }
    }
    return out;
}

function filesUnder(folder, ending) {
    const found = [];
    for (const entry of fs.readdirSync(folder, { withFileTypes: true })) {
        const full = path.join(folder, entry.name);
        if (entry.isDirectory()) {
            found.push(...filesUnder(full, ending));
        } else if (entry.name.endsWith(ending)) {
            found.push(full);
        }
    }
    return found.sort();
}

// The native tool's standard output, whatever its exit code; null when it
// does not finish within the time given (the module, which runs the same
// code, is then not asked, and the file counts as a failure).
const nativeSeconds = 5;

function native(tool, args) {
    const run = spawnSync(tool, args, { maxBuffer: 1 << 30, timeout: nativeSeconds * 1000 });
    if (run.error && run.error.code === 'ETIMEDOUT') {
        return null;
    }
    if (run.error) {
        throw run.error;
    }
    return run.stdout;
}

class Viewer {
    constructor(module) {
        this.m = module;
    }

    text(pointer) {
        const length = this.m._utw_length();
        return Buffer.from(this.m.HEAPU8.subarray(pointer, pointer + length));
    }

    open(bytes) {
        const at = this.m._malloc(bytes.length || 1);
        this.m.HEAPU8.set(bytes, at);
        const status = this.m._utw_open(at, bytes.length);
        this.m._free(at);
        return status;
    }

    tree() { return this.text(this.m._utw_tree()); }
    bom() { return this.text(this.m._utw_bom_json()); }
    svg(order, element) { return this.text(this.m._utw_svg(order, element)); }

    check(name) {
        const bytes = Buffer.from(name + '\0', 'utf8');
        const at = this.m._malloc(bytes.length);
        this.m.HEAPU8.set(bytes, at);
        const out = this.text(this.m._utw_check_json(at));
        this.m._free(at);
        return out;
    }
}

function firstDifference(a, b) {
    const length = Math.min(a.length, b.length);
    let i = 0;
    while (i < length && a[i] === b[i]) {
        ++i;
    }
    const around = (x) => JSON.stringify(x.subarray(Math.max(0, i - 40), i + 40).toString('utf8'));
    return `at byte ${i} (native ${b.length} bytes, wasm ${a.length}): native ${around(b)}, wasm ${around(a)}`;
}

const opts = options();
fs.rmSync(opts.scratch, { recursive: true, force: true });
const factory = require(path.resolve(opts.module));
const viewer = new Viewer(await factory());

let compared = 0;
const failures = [];

function compareFile(file) {
    try {
        compareOutputs(file);
    } catch (error) {
        failures.push(`${file}: ${String(error).slice(0, 300)}`);
    }
}

function compareOutputs(file) {
    const bytes = fs.readFileSync(file);
    viewer.open(bytes);
    const pairs = [
        ['dump --tree', () => viewer.tree(), ['dump', '--tree', file]],
        ['bom --json', () => viewer.bom(), ['bom', file, '--json']],
        ['render', () => viewer.svg(1, 1), ['render', file]],
        ['check --json', () => viewer.check(file), ['check', file, '--json']],
    ];
    for (const [what, wasmOutput, args] of pairs) {
        const tool = native(opts.tool, args);
        if (tool === null) {
            failures.push(`${file}: the native ${what} did not finish within ${nativeSeconds} s`);
            continue;
        }
        const wasm = wasmOutput();
        ++compared;
        if (!wasm.equals(tool)) {
            failures.push(`${file}: ${what} differs ${firstDifference(wasm, tool)}`);
        }
    }
}

// The golden files.
const golden = filesUnder(opts.golden, '.txt');
if (golden.length === 0) {
    throw new Error(`no golden files under ${opts.golden}`);
}
for (const file of golden) {
    compareFile(file);
}
console.log(`golden files: ${golden.length}`);

// The example slab the page's "Example" button opens: built by the module
// from its call script, and by the native tool from examples/slab.json.
if (opts.example) {
    fs.mkdirSync(opts.scratch, { recursive: true });
    const file = path.join(opts.scratch, 'example-slab.uni');
    const run = spawnSync(opts.tool, ['build', opts.example, '-o', file], { encoding: 'utf8' });
    const status = viewer.m._utw_example();
    const pointer = viewer.m._utw_bytes();
    const wasm = viewer.text(pointer);
    ++compared;
    if (run.status !== 0 || status !== 0 || !wasm.equals(fs.readFileSync(file))) {
        failures.push(`the example slab differs from ${opts.example} built by the native tool`);
    }
    console.log('example slab: compared');
}

// Generated scripts, each built to a file by the native tool.
const scripts = path.join(opts.scratch, 'scripts');
const files = path.join(opts.scratch, 'files');
fs.mkdirSync(files, { recursive: true });
const generated = spawnSync(opts.generator, [scripts, opts.seed, opts.count], { encoding: 'utf8' });
if (generated.status !== 0) {
    throw new Error(`${opts.generator} failed: ${generated.stderr}`);
}
let built = 0;
for (const script of filesUnder(scripts, '.json')) {
    const file = path.join(files, path.basename(script, '.json') + '.uni');
    const run = spawnSync(opts.tool, ['build', script, '-o', file], { encoding: 'utf8' });
    if (run.status !== 0 || !fs.existsSync(file)) {
        failures.push(`${script}: unitechnik build failed: ${run.stderr}`);
        continue;
    }
    ++built;
    compareFile(file);
}
console.log(`generated files: ${built} of ${opts.count} scripts`);
if (built < Number(opts.count)) {
    failures.push(`only ${built} of ${opts.count} generated scripts were built`);
}

console.log(`${compared} outputs compared, ${failures.length} failures`);
for (const failure of failures.slice(0, 40)) {
    console.log(failure);
}
process.exit(failures.length === 0 ? 0 : 1);
