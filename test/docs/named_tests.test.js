'use strict';

// What a page says it is shown by is there: `tests` by their names for ctest or
// the beginning of these, `GoogleTest.Names` and "titles" in the sources.

const fs = require('fs');
const path = require('path');
const { execFileSync } = require('child_process');
const { assert, test } = require('../script/harness');

const read = (...names) => fs.readFileSync(path.join(...names), 'utf8');
const known = execFileSync('ctest', ['--test-dir', process.env.KORVANE_BUILD,
  '--show-only'], { encoding: 'utf8' }).match(/#\d+: \S+/g).map(
  (line) => line.replace(/.* /, ''));
const sources = ['../script', '../system'].map((folder) => fs.readdirSync(
  path.join(__dirname, folder)).map((name) => read(__dirname, folder, name))
).join('');

function isThere(name) {
  if (name[0] === '"') {
    const title = JSON.parse(name).replace(/'/g, "\\'");
    return sources.includes(`test('${title}'`);
  }
  return known.some((one) => one.startsWith(name) &&
    /^([.<].*)?$/.test(one.slice(name.length))) ||
    sources.includes(`(${name.replace('.', ', ')})`);
}

for (const page of process.argv.slice(2)) {
  const shown = read(__dirname, '../..', page)
    .match(/^Shown by[^]*?\n(?=\n|$)/gm).join('').replace(/\s+/g, ' ');
  for (const name of shown.match(/`[^`]+`|"(\\.|[^"])*"/g)) {
    test(`${page}: ${name}`, () => (
      assert(isThere(name.replace(/`/g, '')), 'no test is called so')));
  }
}
