'use strict';

// index.d.ts and docs/script-api.md against the module.

const assert = require('assert');
const fs = require('fs');
const path = require('path');
const { execFileSync } = require('child_process');
const { test } = require('node:test');
const ts = require('typescript');

const read = (name) => fs.readFileSync(
  path.join(__dirname, '../..', name), 'utf8');
const source = ts.createSourceFile('index.d.ts', read('index.d.ts'),
  ts.ScriptTarget.Latest, true);
const functions = source.statements.filter(ts.isFunctionDeclaration).map(
  (node) => ({ name: node.name.text, type: node.type.getText(),
    says: ts.getJSDocDeprecatedTag(node)?.comment }));
const placeholders = functions.filter(({ says }) => says);

// The module's names, and what its placeholders return.
const called = JSON.stringify(placeholders.map(({ name }) => name));
const [names, values] = JSON.parse(execFileSync(process.env.KORVANE_NODE,
  ['-p', `const helper = require(process.env.KORVANE_MODULE);
    JSON.stringify([Object.keys(helper), ${called}.map((name) => (
      JSON.stringify(helper[name]('file')) || 'undefined'))]);`]));

test('the types and the page have the names of the module', () => {
  assert.deepStrictEqual(functions.map(({ name }) => name).sort(),
    names.sort());
  const page = read('docs/script-api.md');
  assert.deepStrictEqual(
    names.filter((name) => !page.match(new RegExp(`\\b${name}\\b`))), []);
});

test('placeholders return what their comments say', () => {
  placeholders.forEach(({ name, says, type }, index) => {
    const [, value = 'undefined'] = /[rR]eturns `(.*?)`/.exec(says) || [];
    assert.strictEqual(values[index], value, name);
    const kind = value === 'undefined' ? value : typeof JSON.parse(value);
    assert(type.startsWith(kind), name);
  });
});

test('the counts are right', () => {
  const nothing = placeholders.filter(({ says }) => /^Does nothing/.test(says));
  const constants = placeholders.length - nothing.length;
  const says = /(\d+) functions do something here, (\d+).*?(\d+) do nothing/s;
  const [, ...counts] = says.exec(source.text);
  assert.deepStrictEqual(counts.map(Number),
    [names.length - placeholders.length, constants, nothing.length]);
});
