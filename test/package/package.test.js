'use strict';

// The npm package: what checkers say of it, and that it works once installed.

const assert = require('assert');
const fs = require('fs');
const path = require('path');
const { test } = require('node:test');
const { makeFolder, makePackage, node, run } = require('./packages');

const cwd = makeFolder();
const npm = (...args) => run('npm', [...args, '--silent', '--offline'],
  { cwd }).trim();
const tool = (name, ...args) => run(process.execPath,
  [path.join(__dirname, '../../node_modules/.bin', name), ...args], { cwd });
const runFile = (name) => run(node, [name], { cwd });

const packed = npm('pack', makePackage());
fs.writeFileSync(path.join(cwd, 'package.json'), '{}');
npm('install', packed);
run('cp', [path.join(__dirname, 'uses_helper.mts'), cwd]);
const folder = path.join(cwd, 'node_modules/korvane-helper');
const prints = new RegExp(
  `^163,hello\n,,,${folder}/prebuilds/.*[.]node,${folder}/include\n$`);

test('publint and attw find nothing', () => {
  tool('publint', '--strict', packed);
  tool('attw', packed);
});

test('a TypeScript module imports functions by their names', () => {
  tool('tsc', '--strict', '--target', 'es2020', '--module', 'nodenext',
    'uses_helper.mts');
  const [major] = run(node, ['-p', 'process.versions.node']).split('.');
  // Node.js 8 and 10 have no modules.
  if (major >= 18) assert.match(runFile('uses_helper.mjs'), prints);
});

test('a bundle requires the package, or says how to mark it external', () => {
  const bundle = (...options) => tool('esbuild', 'uses_helper.mts', '--bundle',
    '--platform=node', '--target=node8', '--outfile=bundle.js',
    '--log-level=error', ...options);
  bundle('--external:korvane-helper');
  assert.match(runFile('bundle.js'), prints);
  bundle();
  assert.throws(() => runFile('bundle.js'),
    /part of a bundle\nTo mend this, mark it external, for esbuild by "--ext/);
});
