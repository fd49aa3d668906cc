'use strict';

// Loads the module that was built for this runtime: the prebuilt one of a
// package, or what a checkout has built. Where none loads, one error says what
// was wanted, what there is and what to do. Runs in every runtime from Node.js
// 8 on.

const fs = require('fs');
const path = require('path');
const { execFileSync } = require('child_process');

const NAME = 'KorvaneHelper.node';
const target = `${process.platform}-${process.arch}`;
const wanted = `interface-${process.versions.modules}`;
const prebuilds = path.join(__dirname, 'prebuilds');

const [major] = process.versions.node.split('.');

const candidates = [
  path.join(prebuilds, target, wanted, NAME),
  path.join(__dirname, 'build', `runtime-${major}`, 'module', NAME),
  path.join(__dirname, 'build', 'release', 'module', NAME),
];

function listFolder(folder) {
  try {
    return fs.readdirSync(folder)
      .sort((a, b) => a.localeCompare(b, 'en', { numeric: true }));
  } catch (error) {
    return [];
  }
}

// What stands in prebuilds/: ["linux-x64 interface-57", ...].
function listPrebuilds() {
  const has = (folder) => fs.existsSync(path.join(prebuilds, folder, NAME));
  return [].concat(...listFolder(prebuilds).map((platform) => (
    listFolder(path.join(prebuilds, platform))
      .filter((name) => has(path.join(platform, name)))
      .map((name) => `${platform} ${name}`))));
}

// The architecture of an ELF file by the runtime's name for it; nothing for
// other files.
function architecture(file) {
  const header = fs.readFileSync(file).slice(0, 20);
  if (header.length < 20 || header.toString('latin1', 1, 4) !== 'ELF') {
    return undefined;
  }
  const machine = header.readUInt16LE(18);
  return { 62: 'x64', 183: 'arm64' }[machine] || `ELF machine ${machine}`;
}

function cLibrary() {
  try {
    return execFileSync('getconf', ['GNU_LIBC_VERSION'],
      { encoding: 'utf8', stdio: ['ignore', 'pipe', 'ignore'] }).trim();
  } catch (error) {
    return error.status ? 'not glibc' : 'unknown';
  }
}

// Why the dynamic loader or the runtime refused a file; the first that fits.
const refusals = [
  [/NODE_MODULE_VERSION (\d+)/, 'it is built for interface-$1'],
  [/libkorvane_host\.so/, 'the host library libkorvane_host.so is missing: ' +
    'it belongs beside the module'],
  [/libX11\.so/, 'libX11 is missing: apt-get install libx11-6'],
  [/version `(\w+)_([\d.]+)' not found/, 'it needs $1 $2'],
  [/undefined symbol/, 'it is built for another runtime'],
];

function explain(file, message) {
  const machine = architecture(file);
  if (!machine) return 'it is damaged';
  if (machine !== process.arch) return `it is built for ${machine}`;
  for (const [pattern, reason] of refusals) {
    const found = pattern.exec(message);
    if (found) return reason.replace(/\$(\d)/g, (_, group) => found[group]);
  }
  return message;
}

const command = major === '8'
  ? 'script/bootstrap && cmake --preset release && ' +
    'cmake --build --preset release'
  : `script/test --runtime ${major}`;

function failure(problem, there, cause) {
  const error = new Error([
    `KorvaneHelper cannot be loaded: ${problem}`,
    `  wanted: ${target} ${wanted} (Node.js ${process.version}), ` +
      `C library ${cLibrary()}`,
    `  there is: ${there}`,
    `  to build it, in a checkout: ${command}`,
  ].join('\n'));
  return Object.assign(error, { cause });
}

function load() {
  const file = candidates.find((candidate) => fs.existsSync(candidate));
  if (!file) {
    throw failure('no module is built for this runtime',
      listPrebuilds().join(', ') || 'none');
  }
  try {
    return require(file);
  } catch (error) {
    throw failure(explain(file, error.message), file, error);
  }
}

module.exports = load();
