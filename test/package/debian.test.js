'use strict';

// The Debian packages: what they need, and that what they hold works.

const fs = require('fs');
const path = require('path');
const { execFileSync } = require('child_process');
const { assert, helper, test } = require('../script/harness');
const { makeFolder } = require('./copies');

const packages = makeFolder();
const root = makeFolder();
const run = (command, args, options) => execFileSync(command, args,
  Object.assign({ encoding: 'utf8' }, options));

run('cpack', ['-B', packages], { cwd: process.env.KORVANE_BUILD });
const architecture = { x64: 'amd64', arm64: 'arm64' }[process.arch];
const file = (name) => path.join(packages, `${name}_1.0.0_${architecture}.deb`);

test('the packages are named, and name what they need', () => {
  assert.deepStrictEqual(
    fs.readdirSync(packages).filter((name) => name.endsWith('.deb')).sort(),
    ['korvane-helper', 'libkorvane-links-dev'].map(file)
      .map((name) => path.basename(name)));
  const needs = (name) => run('dpkg-deb', ['-f', file(name), 'Depends']).trim();
  assert.strictEqual(needs('korvane-helper'),
    'libc6 (>= 2.28), libgcc-s1, libstdc++6 (>= 11), libx11-6');
  assert.strictEqual(needs('libkorvane-links-dev'),
    'libc6-dev, libstdc++-dev');
});

test('the module loads from the folder of its package', () => {
  run('dpkg-deb', ['-x', file('korvane-helper'), root]);
  const loaded = run(process.execPath, ['-p',
    'Object.keys(require(process.argv[1])).length',
    path.join(root, 'usr/lib/korvane-helper')]);
  assert.strictEqual(loaded.trim(), `${Object.keys(helper).length}`);
});

test('a program builds with the library in the folders of its package', () => {
  run('dpkg-deb', ['-x', file('libkorvane-links-dev'), root]);
  const found = run('find', [root, '-name', 'korvane_links.pc']).trim();
  const flags = run('pkg-config', ['--cflags', '--libs', 'korvane_links'], {
    env: Object.assign({}, process.env,
      { PKG_CONFIG_PATH: path.dirname(found) }),
  }).trim().split(/\s+/);
  const program = path.join(root, 'uses_links');
  const source = path.join(__dirname, '../installed/uses_links.c');
  run('gcc', ['-std=c99', source, '-o', program, ...flags]);
  assert.strictEqual(run(program, []).trim(), '0 My File.zip');
});
