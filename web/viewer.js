// The viewer's page: moves a file's bytes into the WebAssembly module and
// its texts out. Everything the page shows is made by the module (the tool's
// own C++): the SVG of render, the findings of check, the bill of bom and
// the record tree of dump --tree. Texts of the file reach the page as text
// (textContent), never as markup; the one piece of markup is the SVG, which
// render writes with every text of the file escaped, and which is parsed as
// SVG (not HTML) and checked to hold no script before it is shown.
'use strict';

(function () {
    const $ = (id) => document.getElementById(id);
    let viewer = null;   // the module, once it has started
    let lines = [];      // the file's lines, for the findings
    let shown = 0;       // files shown so far; a newer one stops an older one's work

    function text(pointer) {
        const length = viewer._utw_length();
        return new TextDecoder('utf-8').decode(viewer.HEAPU8.subarray(pointer, pointer + length));
    }

    function status(message, fine) {
        const p = $('status');
        p.textContent = message;
        p.className = fine ? 'fine' : '';
        p.hidden = message === '';
    }

    function clear(node) {
        while (node.firstChild) {
            node.removeChild(node.firstChild);
        }
    }

    function element(tag, className, content) {
        const node = document.createElement(tag);
        if (className) {
            node.className = className;
        }
        if (content !== undefined) {
            node.textContent = content;
        }
        return node;
    }

    // Resolves once the browser has painted what the page holds now.
    function painted() {
        return new Promise((resolve) => requestAnimationFrame(() => setTimeout(resolve, 0)));
    }

    // The SVG of render, parsed as SVG: no script, no element from outside.
    function showDrawing(svgText) {
        const holder = $('drawing');
        clear(holder);
        if (svgText === '') {
            holder.appendChild(element('p', '', 'The file holds no element to draw.'));
            return;
        }
        const parsed = new DOMParser().parseFromString(svgText, 'image/svg+xml');
        const root = parsed.documentElement;
        if (root.nodeName !== 'svg' || parsed.getElementsByTagName('parsererror').length > 0) {
            holder.appendChild(element('p', '', 'The drawing could not be shown.'));
            return;
        }
        for (const bad of Array.from(root.querySelectorAll('script, foreignObject, iframe, image, use, a'))) {
            bad.remove();
        }
        // Attributes of render's own elements; none of them calls or links.
        const walker = parsed.createTreeWalker(root, NodeFilter.SHOW_ELEMENT);
        for (let node = root; node; node = walker.nextNode()) {
            for (let i = node.attributes.length - 1; i >= 0; --i) {
                const name = node.attributes[i].name;
                if (/^on/i.test(name) || /href$/i.test(name)) {
                    node.removeAttribute(name);
                }
            }
        }
        holder.appendChild(document.adoptNode(root));
    }

    function showLine(number) {
        const pre = $('file-line');
        const at = number - 1;
        const shownLines = [];
        for (let i = Math.max(0, at - 2); i <= Math.min(lines.length - 1, at + 2); ++i) {
            shownLines.push((i === at ? '> ' : '  ') + String(i + 1).padStart(6) + ' | ' + lines[i]);
        }
        pre.textContent = shownLines.length > 0 ? shownLines.join('\n') : 'Line ' + number + ' is not in the file.';
        pre.hidden = false;
    }

    function showFindings(json) {
        const list = $('findings');
        clear(list);
        $('file-line').hidden = true;
        let findings = [];
        try {
            findings = json === '' ? [] : JSON.parse(json);
        } catch (e) {
            findings = [];
        }
        $('finding-count').textContent = '(' + findings.length + ')';
        if (findings.length === 0) {
            list.appendChild(element('li', '', 'Nothing found.'));
            return;
        }
        // The first ones at once; a file with thousands of findings shows
        // the rest when asked, so that it does not hold the page up.
        const addFindings = (from, to) => {
            const items = document.createDocumentFragment();
            for (const finding of findings.slice(from, to)) {
                const item = element('li');
                const button = element('button');
                button.type = 'button';
                button.appendChild(element('span', 'place', 'line ' + finding.line + ':' + finding.column + ' '));
                button.appendChild(element('span', 'code', finding.code + ' ' + finding.name));
                button.appendChild(element('span', '', ' ' + finding.message));
                button.addEventListener('click', () => showLine(finding.line));
                item.appendChild(button);
                items.appendChild(item);
            }
            list.appendChild(items);
        };
        const first = 500;
        addFindings(0, first);
        if (findings.length > first) {
            const more = element('li', 'more');
            const button = element('button', '', 'Show the other ' + (findings.length - first) + ' findings');
            button.type = 'button';
            button.addEventListener('click', () => {
                more.remove();
                addFindings(first, findings.length);
            });
            more.appendChild(button);
            list.appendChild(more);
        }
    }

    // dump --tree: one line a record, indented by nesting. A record with
    // records in it folds; its records are made when it is first unfolded,
    // so that a file of many thousand records shows at once.
    function showTree(treeText) {
        const holder = $('tree');
        clear(holder);
        const rows = treeText.split('\n').filter((line) => line !== '');
        const depths = rows.map((line) => line.length - line.replace(/^ +/, '').length);
        // ends[i]: the first row after row i that is not inside it.
        const ends = new Array(rows.length).fill(rows.length);
        const open = [];
        depths.forEach((depth, i) => {
            while (open.length > 0 && depths[open[open.length - 1]] >= depth) {
                ends[open.pop()] = i;
            }
            open.push(i);
        });
        const addRows = (parent, from, to, unfolded) => {
            const made = document.createDocumentFragment();
            for (let i = from; i < to; i = ends[i]) {
                if (ends[i] > i + 1) {
                    const details = element('details');
                    details.appendChild(element('summary', '', rows[i].trim()));
                    const inside = { from: i + 1, to: ends[i] };
                    details.addEventListener('toggle', () => {
                        if (details.open && inside.from < inside.to) {
                            addRows(details, inside.from, inside.to, false);
                            inside.from = inside.to;
                        }
                    });
                    details.open = unfolded;
                    made.appendChild(details);
                } else {
                    made.appendChild(element('div', 'leaf', rows[i].trim()));
                }
            }
            parent.appendChild(made);
        };
        addRows(holder, 0, rows.length, true);
    }

    function showElement(order, elementIndex) {
        showDrawing(text(viewer._utw_svg(order, elementIndex)));
    }

    function open(bytes, name) {
        if (!viewer) {
            status('The viewer is still starting.', false);
            return;
        }
        const started = performance.now();
        const at = viewer._malloc(bytes.length || 1);
        viewer.HEAPU8.set(bytes, at);
        const read = viewer._utw_open(at, bytes.length);
        viewer._free(at);
        show(read, bytes, name, started);
    }

    // The example slab, built by the module from its call script.
    function openExample() {
        if (!viewer) {
            status('The viewer is still starting.', false);
            return;
        }
        const started = performance.now();
        const read = viewer._utw_example();
        const pointer = viewer._utw_bytes();
        show(read, viewer.HEAPU8.slice(pointer, pointer + viewer._utw_length()), 'slab.uni', started);
    }

    // Shows the file just read: the drawing first, then, once it is on the
    // screen, the findings, the bill and the tree. The body's data-drawn-ms
    // and data-shown-ms tell how long each took from the bytes in hand, and
    // data-shown counts the files shown (the browser tests and the speed
    // benchmark wait for it).
    function show(read, bytes, name, started) {
        const turn = ++shown;
        $('file-name').textContent = name;
        lines = new TextDecoder('latin1').decode(bytes).split(/\r?\n/);

        if (read === 0) {
            status('', true);
        } else if (read === 1) {
            const stop = JSON.parse(text(viewer._utw_stop()));
            status(name + ':' + stop.line + ':' + stop.column + ': ' + stop.message +
                   ' (what was read before is shown)', false);
        } else {
            status(name + ': the file could not be read.', false);
        }

        const places = JSON.parse(text(viewer._utw_elements()) || '[]');
        const select = $('element');
        clear(select);
        places.forEach((place, i) => {
            const option = element('option', '', place.heading);
            option.value = String(i);
            select.appendChild(option);
        });
        $('element-label').hidden = places.length < 2;
        select.onchange = () => {
            const place = places[Number(select.value)];
            showElement(place.order, place.element);
        };
        if (places.length > 0) {
            showElement(places[0].order, places[0].element);
        } else {
            showDrawing('');
        }
        $('findings').replaceChildren(element('li', '', 'Checking…'));
        $('finding-count').textContent = '';
        $('file-line').hidden = true;
        $('bill').textContent = '';
        clear($('tree'));
        $('content').hidden = false;

        const body = document.body;
        painted().then(() => {
            if (turn !== shown) {
                return;
            }
            body.dataset.drawnMs = String(Math.round(performance.now() - started));
            const nameBytes = new TextEncoder().encode(name + '\0');
            const namePointer = viewer._malloc(nameBytes.length);
            viewer.HEAPU8.set(nameBytes, namePointer);
            showFindings(text(viewer._utw_check_json(namePointer)));
            viewer._free(namePointer);
            $('bill').textContent = text(viewer._utw_bom_text());
            showTree(text(viewer._utw_tree()));
            return painted();
        }).then(() => {
            if (turn !== shown) {
                return;
            }
            body.dataset.shownMs = String(Math.round(performance.now() - started));
            body.dataset.shown = String(turn);
        });
    }

    function openFile(file) {
        file.arrayBuffer().then(
            (buffer) => open(new Uint8Array(buffer), file.name),
            () => status(file.name + ': the file could not be read.', false));
    }

    $('file-input').addEventListener('change', (event) => {
        const file = event.target.files[0];
        if (file) {
            openFile(file);
        }
        event.target.value = '';
    });
    document.addEventListener('dragover', (event) => {
        event.preventDefault();
        document.body.classList.add('dropping');
    });
    document.addEventListener('dragleave', () => document.body.classList.remove('dropping'));
    document.addEventListener('drop', (event) => {
        event.preventDefault();
        document.body.classList.remove('dropping');
        const file = event.dataTransfer.files[0];
        if (file) {
            openFile(file);
        }
    });
    $('example').addEventListener('click', openExample);

    status('Starting…', true);
    UnitechnikViewer().then((module) => {
        viewer = module;
        status('', true);
        const query = new URLSearchParams(window.location.search);
        // index.html#example (or ?example): the example at once, which also
        // works for the page opened from disk.
        if (window.location.hash === '#example' || query.has('example')) {
            openExample();
            return;
        }
        // ?file=NAME: a file beside the page, from the same server.
        const wanted = query.get('file');
        if (wanted) {
            const url = new URL(wanted, window.location.href);
            if (url.origin !== window.location.origin) {
                status('?file= must name a file on this server.', false);
                return;
            }
            fetch(url).then((response) => {
                if (!response.ok) {
                    throw new Error(String(response.status));
                }
                return response.arrayBuffer();
            }).then((buffer) => open(new Uint8Array(buffer), url.pathname.split('/').pop()),
                (error) => status(wanted + ': could not be fetched (' + error.message + ')', false));
        }
    }, (error) => status('The viewer could not start: ' + error, false));
}());
