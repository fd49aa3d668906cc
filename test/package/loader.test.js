'use strict';

// What require('korvane-helper') says where no module can be loaded.

const assert = require('assert');
const { spawnSync } = require('child_process');
const { test } = require('node:test');
const { makeFolder, makePackage, node, run } = require('./packages');

const { arch } = process;
const made = makePackage();
const builds = `./prebuilds/linux-${arch}`;
const own = run('ls', [builds], { cwd: made }).trim();
const [major] = run(node, ['-p', 'process.versions.node']).split('.');
const file = `${builds}/${own}/KorvaneHelper.node`;
const again = 'install the package again';

// What is done to the package; what the process says that it is; the problem;
// what helps.
const rows = [
  ['', { platform: 'darwin' }, `this is darwin on ${arch}`,
    'use linux on x64 or arm64'],
  ['', { versions: { electron: '30.0.1', modules: '1', node: '20.9.0' } },
    'this is Electron 30.0.1, no build for ABI 1 in ',
    'load it in a Node.js process that Electron starts'],
  ['', { versions: { modules: '1', node: '21.0.0' } },
    `Node.js 21.0.0, no build for ABI 1 in ${builds}, which holds ${own}`,
    'use Node.js 8, 10, 18, 20, 22, 24, 26'],
  ['rm -r prebuilds', {}, `no build for ABI ${own.slice(4)} in ${builds} (`,
    `run "script/package --arch ${arch} ${major}" in a checkout and ${again}`],
  [`truncate -s 3 ${file}`, {}, `${file}: file too short`, again],
  [`sed -i s/libX11.so.6/libX11.so.9/ ${file}`, {}, 'libX11.so.9: cannot open',
    'run "apt-get install libx11-6"'],
  [`sed -i s/GLIBC_2.14/GLIBC_2.99/ ${file}`, {}, "GLIBC_2.99' not found",
    'use Debian 12 or a newer system with glibc'],
];

const load = (changes) => `
  for (const [name, value] of Object.entries(${JSON.stringify(changes)})) {
    Object.defineProperty(process, name, { value });
  }
  require(process.cwd());`;

for (const [change, changes, problem, advice] of rows) {
  test(problem, () => {
    const cwd = makeFolder();
    run('sh', ['-ec', `cp -r ${made}/* .; ${change}`], { cwd });
    const { stderr } = spawnSync(node, ['-e', load(changes)], { cwd });
    const [, first, second] = stderr.toString().replaceAll(cwd, '.')
      .match(/Error: KorvaneHelper cannot be loaded: (.*)\n(.*)/);
    assert(first.includes(problem), first);
    assert.strictEqual(second, `To mend this, ${advice}.`);
  });
}
