'use strict';

// The npm package: what checkers say of it, and that it works once installed.

const assert = require('assert');
const fs = require('fs');
const path = require('path');
const { test } = require('node:test');
const { makeFolder, makePackage, node, run } = require('./packages');

const project = makeFolder();
const inProject = { cwd: project };
const installed = 'node_modules/korvane-helper';
const npm = (...args) => run('npm', [...args, '--silent', '--offline'],
  inProject).trim();
const tool = (name, ...args) => run(process.execPath,
  [path.join(__dirname, '../../node_modules/.bin', name), ...args], inProject);
const runFile = (name) => run(node, [name], inProject);

const packed = npm('pack', makePackage());
fs.writeFileSync(path.join(project, 'package.json'), '{}');
npm('install', packed);
run('cp', [path.join(__dirname, 'uses_helper.mts'), project]);
const folder = path.join(project, installed);
const prints = new RegExp(
  `^163,hello\n,,,${folder}/prebuilds/.*[.]node,${folder}/include\n$`);

test('publint and attw find nothing', () => {
  tool('publint', '--strict', packed);
  tool('attw', packed);
});

test('a package of the installed files is the same', () => {
  fs.mkdirSync(path.join(project, 'again'));
  npm('pack', `./${installed}`, '--pack-destination', 'again');
  run('cmp', [packed, `again/${packed}`], inProject);
});

test('a TypeScript module imports functions by their names', () => {
  tool('tsc', '--strict', '--target', 'es2020', '--module', 'nodenext',
    'uses_helper.mts');
  const [major] = run(node, ['-p', 'process.versions.node']).split('.');
  // Node.js 8 and 10 have no modules.
  if (major >= 18) assert.match(runFile('uses_helper.mjs'), prints);
});

const bundle = (...options) => tool('esbuild', 'uses_helper.mts', '--bundle',
  '--platform=node', '--target=node8', '--outfile=dist/bundle.js',
  '--log-level=error', ...options);

test('a bundle requires what is marked external', () => {
  bundle('--external:korvane-helper');
  assert.match(runFile('dist/bundle.js'), prints);
});

test('a bundle that holds the package says what to do', () => {
  bundle();
  assert.throws(() => runFile('dist/bundle.js'),
    /part of a bundle\nTo mend this, mark it external, for esbuild by "--ext/);
});
