'use strict';

// compareStr: the second text against the first, each read as the bytes of its
// UTF-16 up to the first zero byte, in the locale of the environment.

const { assert, check, helper, test } = require('./harness');

const rows = [
  ['C', 'apple', 'banana', 1],  // only the first character below U+0100 counts
  ['C', 'apple', 'avocado', 0],
  ['C', '\0a', '', 0],
  ['C', '\u4142', 'B', -1],     // from there its two bytes count: "BA", "B"
  ['C', '\u4142\u4344', '\u4142', -1],  // and what follows: "BADC", "BA"
  ['C', '\u4e00b', 'a', 1],     // the first byte is zero
  ['C', 'a', 'B', -1],
  ['en_US.UTF-8', 'a', 'B', 1],
  ['C', '\ubbd2', '\ua1d8', 1],
  ['zh_CN.GBK', '\ubbd2', '\ua1d8', -1],  // two characters, in pinyin
];

test('the locale decides, on every call', () => {
  for (const [locale, first, second, want] of rows) {
    process.env.LC_ALL = locale;
    const compare = (a, b) => Math.sign(helper.compareStr(a, b));
    assert.strictEqual(compare(first, second), want, first);
    assert.strictEqual(compare(second, first), 0 - want, first);
  }
});

test('the result is a distance, or 0 for other arguments', () => {
  process.env.LC_ALL = 'C';
  // On other architectures the C library gives a sign.
  if (process.arch === 'x64') check('compareStr', ['a', 'd'], 3);
  for (const args of [['b'], ['b', 'a', 'c'], [1, 'a'], ['b', 1]]) {
    check('compareStr', args, 0);
  }
});
