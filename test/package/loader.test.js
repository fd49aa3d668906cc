'use strict';

// The loader in packages and checkouts that fit the runtime and that do not,
// each in a process of its own.

const fs = require('fs');
const path = require('path');
const { execFileSync } = require('child_process');
const { assert, helper, test } = require('../script/harness');
const { copyModule, edit, makeFolder, remove, replace, setMachine } =
  require('./copies');

const another = process.env.KORVANE_OTHER_RUNTIME;
const count = Object.keys(helper).length;
const here = `linux-${process.arch}`;
const otherArchitecture = process.arch === 'x64' ? 'arm64' : 'x64';
const own = `interface-${process.versions.modules}`;
const prebuilt = `prebuilds/${here}/${own}`;

const print = (code) => execFileSync(another, ['-p', code],
  { encoding: 'utf8' }).trim();
const anotherVersion = print('process.version');
const anotherInterface = `interface-${print('process.versions.modules')}`;

// A folder with the loader and, in each of `places`, the module and the host
// library; a place is a path, or [path, change] for an altered module.
function install(...places) {
  const folder = makeFolder();
  fs.copyFileSync(path.join(__dirname, '../../index.js'),
    path.join(folder, 'index.js'));
  for (const place of places) {
    const [name, change] = [].concat(place);
    copyModule(path.join(folder, name), change);
  }
  return folder;
}

// What requiring a folder gives: a count of functions, or the error's text.
function load(folder, { runtime = process.execPath, launcher = [],
  before = '', env = process.env, part = 'error.message' } = {}) {
  const code = `${before}
    let said;
    try {
      said = Object.keys(require(${JSON.stringify(folder)})).length;
    } catch (error) {
      said = ${part};
    }
    console.log(String(said));`;
  const [command, ...args] = [...launcher, runtime, '-e', code];
  return execFileSync(command, args, { encoding: 'utf8', env }).trim();
}

function says(folder, options, problem, there) {
  const { target = here, wanted = own, version = process.version,
    library = /glibc \d\.\d+/ } = options;
  const [major] = /\d+/.exec(version);
  const command = major === '8' ? 'script/bootstrap && ' +
    'cmake --preset release && cmake --build --preset release'
    : `script/test --runtime ${major}`;
  const lines = load(folder, options).split('\n');
  const library_ = lines[1].replace(/.*C library /, '');
  assert(library_.match(library), library_);
  assert.deepStrictEqual(lines, [
    `KorvaneHelper cannot be loaded: ${problem}`,
    `  wanted: ${target} ${wanted} (Node.js ${version}), ` +
      `C library ${library_}`,
    `  there is: ${there}`,
    `  to build it, in a checkout: ${command}`,
  ]);
}

const none = 'no module is built for this runtime';
const other = { runtime: another, wanted: anotherInterface,
  version: anotherVersion };

test('a prebuilt module comes before one built for the runtime, and that ' +
  'before the product\'s', () => {
  const damaged = edit(() => Buffer.alloc(0));
  const [major] = process.versions.node.split('.');
  const places = [prebuilt, `build/runtime-${major}/module`,
    'build/release/module'];
  places.forEach((place, index) => {
    const later = places.slice(index + 1).map((name) => [name, damaged]);
    assert.strictEqual(load(install(place, ...later)), `${count}`, place);
  });
});

test('without a module for the runtime, those that are there are named', () => {
  says(install(), {}, none, 'none');
  says(install(prebuilt), other, none, `${here} ${own}`);
  says(install('prebuilds/linux-arm64/interface-115', 'prebuilds/other',
    'prebuilds/linux-arm64/interface-57'), {}, none,
  'linux-arm64 interface-57, linux-arm64 interface-115');
  says(install(prebuilt), {
    target: `linux-${otherArchitecture}`,
    before: `Object.defineProperty(process, 'arch',
      { value: '${otherArchitecture}' });`,
  }, none, `${here} ${own}`);
});

test('a module that cannot be loaded is named, and why', () => {
  const cases = [
    [setMachine(process.arch === 'x64' ? 183 : 62),
      `it is built for ${otherArchitecture}`],
    [setMachine(8), 'it is built for ELF machine 8'],
    [edit((bytes) => bytes.slice(0, 19)), 'it is damaged'],
    [edit(() => Buffer.from('<html>not what was asked for</html>')),
      'it is damaged'],
    [replace('GLIBC_2.14', 'GLIBC_2.99'), 'it needs GLIBC 2.99'],
    [replace('node_module_register', 'node_module_registeR'),
      'it is built for another runtime', { LD_BIND_NOW: '1' }],
    [remove('libkorvane_host.so'),
      'the host library libkorvane_host.so is missing: ' +
      'it belongs beside the module'],
  ];
  for (const [change, problem, variables] of cases) {
    const folder = install([prebuilt, change]);
    says(folder, { env: Object.assign({}, process.env, variables) }, problem,
      path.join(folder, prebuilt, 'KorvaneHelper.node'));
  }
});

test('what else the dynamic loader says is passed on', () => {
  const folder = install([prebuilt, edit((bytes) => bytes.slice(0, 20))]);
  const file = path.join(folder, prebuilt, 'KorvaneHelper.node');
  says(folder, {}, `${file}: file too short`, file);
  assert.strictEqual(load(folder, { part: 'error.cause.message' }),
    `${file}: file too short`);
});

test('a checkout that was built for another runtime says so', () => {
  const folder = install('build/release/module');
  says(folder, other, `it is built for ${own}`,
    path.join(folder, 'build/release/module/KorvaneHelper.node'));
});

test('a missing libX11 is named, with the package that brings it', () => {
  const folder = install(prebuilt);
  const hidden = path.join(__dirname, '../support/without_library');
  says(folder, { launcher: [hidden, 'libX11'] },
    'libX11 is missing: apt-get install libx11-6',
    path.join(folder, prebuilt, 'KorvaneHelper.node'));
});

test('a C library that does not tell its version is named as far as known',
  () => {
    const folder = install();
    const bin = path.join(folder, 'bin');
    fs.mkdirSync(bin);
    const env = Object.assign({}, process.env, { PATH: bin });
    const getconf = path.join(bin, 'getconf');
    says(folder, { env, library: /^unknown$/ }, none, 'none');
    fs.writeFileSync(getconf, '#!/bin/sh\nexit 1\n', { mode: 0o644 });
    says(folder, { env, library: /^unknown$/ }, none, 'none');
    fs.chmodSync(getconf, 0o755);
    says(folder, { env, library: /^not glibc$/ }, none, 'none');
  });
