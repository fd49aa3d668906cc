'use strict';

// The npm package: what checkers say of it, and that it works once installed.

const assert = require('assert');
const path = require('path');
const { test } = require('node:test');
const { makeFolder, makePackage, node, run } = require('./packages');

const cwd = makeFolder();
const tools = path.join(__dirname, '../../node_modules/.bin');
const env = { ...process.env, PATH: `${tools}:${process.env.PATH}` };
const shell = (command) => run('sh', ['-ec', command], { cwd, env });

const packed = shell(`npm pack --silent --offline ${makePackage()}`).trim();
shell(`echo {} >package.json; npm install --silent --offline ./${packed}
  cp ${__dirname}/uses_helper.mts .`);
const folder = path.join(cwd, 'node_modules/korvane-helper');
const prints = new RegExp(
  `^163,hello\n,,,${folder}/prebuilds/.*[.]node,${folder}/include\n$`);

test('publint and attw find nothing', () => {
  shell(`publint --strict ${packed}; attw ${packed}`);
});

test('a TypeScript module imports functions by their names', () => {
  shell('tsc --strict --target es2020 --module nodenext uses_helper.mts');
  const [major] = run(node, ['-p', 'process.versions.node']).split('.');
  // Node.js 8 and 10 have no modules.
  if (major >= 18) assert.match(shell(`${node} uses_helper.mjs`), prints);
});

test('a bundle requires the package, or says how to mark it external', () => {
  const bundled = (options) => shell(`esbuild uses_helper.mts --bundle \
    --platform=node --target=node8 ${options} | ${node}`);
  assert.match(bundled('--external:korvane-helper'), prints);
  assert.throws(() => bundled(''),
    /part of a bundle\nTo mend this, mark it external, for esbuild by "--ext/);
});
