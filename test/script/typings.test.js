'use strict';

// index.d.ts against the module and the table of answers.

const fs = require('fs');
const path = require('path');
const { assert, helper, test } = require('./harness');
const { checked, fixed, names, wellFormed } = require('./answers');
const { read } = require('../../tools/typings');

const { functions } = read();
const byName = new Map(functions.map((entry) => [entry.name, entry]));
const show = (value) => (
  value === undefined ? 'undefined' : JSON.stringify(value));

test('the types name the functions of the module, in their order', () => {
  const typed = functions.map(({ name }) => name);
  assert.deepStrictEqual(typed, names);
  assert.deepStrictEqual(Object.keys(helper), typed);
});

test('a function with one answer has that type, and its comment says it',
  () => {
    for (const [name, answer] of fixed) {
      const entry = byName.get(name);
      assert.strictEqual(entry.answer, typeof answer, name);
      const [, said] = /^`(.*?)`/.exec(entry.returns || '') || [];
      if (said !== undefined) assert.strictEqual(said, show(answer), name);
    }
  });

test('a checked function has the type of its answer', () => {
  for (const [name, , answer, , fallback] of checked) {
    const entry = byName.get(name);
    assert.strictEqual(entry.answer, typeof answer, name);
    assert(entry.fallback.includes(show(fallback)), name);
  }
});

test('parameters have the types that the functions test for', () => {
  const kinds = { string: 'string', number: 'number', NeverCalled: 'function' };
  for (const name of Object.keys(wellFormed)) {
    const { list } = byName.get(name);
    assert.deepStrictEqual(list.map(({ type }) => kinds[type]),
      wellFormed[name].map((argument) => typeof argument), name);
  }
});

test('every comment says something, of every parameter too', () => {
  for (const { name, text, list, params } of functions) {
    assert(/^[A-Z].*\.$/.test(text.replace(/\s+/g, ' ')), name);
    const needed = list.map((param) => param.name.replace('?', ''))
      .filter((param) => !param.startsWith('...'));
    assert.deepStrictEqual(Object.keys(params), needed, name);
  }
});

test('a function with an empty body is said to do nothing, and no other',
  () => {
    const source = (name) => fs.readFileSync(
      path.join(__dirname, '../../src/script', name), 'utf8');
    const empty = source('korvane_helper.h').split('do nothing')[1]
      .match(/\w+(?=\(const Call&\) \{\})/g);
    const rows = source('korvane_helper.cc').match(/\{"\w+", \w+\}/g)
      .map((row) => row.match(/\w+/g));
    assert.deepStrictEqual(
      functions.filter(({ text }) => text === 'Does nothing.')
        .map(({ name }) => name),
      rows.filter((row) => empty.includes(row[1])).map(([name]) => name));
  });
