'use strict';

// What require('korvane-helper') says where no module can be loaded.

const assert = require('assert');
const fs = require('fs');
const path = require('path');
const { test } = require('node:test');
const { makeFolder, makePackage, node, run } = require('./packages');

const { arch } = process;
const made = makePackage();
const builds = `prebuilds/linux-${arch}`;
const [own] = fs.readdirSync(path.join(made, builds));
const file = `./${builds}/${own}/KorvaneHelper.node`;

const noBuild = (abi) => (
  `no build for ABI ${abi} in ./${builds}, which holds ${own}`);
const asNode = (version, modules) => (
  { versions: { node: version, modules } });
const again = 'install the package again';
const noFile = 'cannot open shared object file: No such file or directory';

// What is done to the package and to the process; the problem; what helps.
const rows = [
  ['', { platform: 'darwin' }, `this is darwin on ${arch}`,
    'use linux on x64 or arm64'],
  ['', { arch: 'riscv64' }, 'this is linux on riscv64',
    'use linux on x64 or arm64'],
  ['', { versions: { electron: '30.0.1', modules: '123' } },
    `this is Electron 30.0.1, ${noBuild(123)}`,
    'load it in a Node.js process that Electron starts'],
  ['', asNode('21.0.0', '120'), `this is Node.js 21.0.0, ${noBuild(120)}`,
    'use Node.js 8, 10, 18, 20, 22, 24, 26'],
  ['', asNode('22.9.0', '0'), noBuild(0),
    `run "script/package --arch ${arch} 22" in a checkout and ${again}`],
  ['rm -r prebuilds', asNode('8.17.0', '57'),
    `no build for ABI 57 in ./${builds} (ENOENT)`,
    `run "script/package --arch ${arch} 8" in a checkout and ${again}`],
  ['mkdir script; touch script/test', asNode('22.9.0', '0'), noBuild(0),
    'run "script/test --runtime 22"'],
  ['mkdir script; touch script/test', asNode('8.17.0', '0'), noBuild(0),
    'run "script/demo"'],
  [`truncate -s 3 ${file}`, {}, `${file}: file too short`, again],
  [`chmod 0 ${file}`, {},
    `${file}: cannot open shared object file: Permission denied`,
    'change its permissions'],
  [`rm ${builds}/*/libkorvane_host.so`, {}, `libkorvane_host.so: ${noFile}`,
    again],
  [`sed -i s/libX11.so.6/libX11.so.9/ ${file}`, {}, `libX11.so.9: ${noFile}`,
    'run "apt-get install libx11-6"'],
  [`sed -i s/GLIBC_2.14/GLIBC_2.99/ ${file}`, {},
    "libc.so.6: version `GLIBC_2.99' not found",
    'use Debian 12 or a newer system with glibc'],
];

// Loads the package, not as root, who can read any file.
function load(folder, changes) {
  return run(node, ['-e', `
    if (process.getuid() === 0) process.setuid(65534);
    const changes = ${JSON.stringify(changes)};
    changes.versions = Object.assign({}, process.versions, changes.versions);
    for (const name of Object.keys(changes)) {
      Object.defineProperty(process, name, { value: changes[name] });
    }
    try {
      require('${folder}');
    } catch (error) {
      console.log(error.message, Boolean(error.cause));
    }`]).replaceAll(folder, '.').trim();
}

for (const [change, changes, problem, advice] of rows) {
  test(problem, () => {
    const folder = makeFolder();
    run('sh', ['-c', `cp -r ${made}/* . && ${change || true}`],
      { cwd: folder });
    const [first, second] = load(folder, changes).split('\n');
    assert(first.startsWith('KorvaneHelper cannot be loaded: '), first);
    assert(first.includes(problem), first);
    const loadsFile = Object.keys(changes).length === 0;
    assert.strictEqual(second, `To mend this, ${advice}. ${loadsFile}`);
  });
}
