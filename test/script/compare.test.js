'use strict';

// compareStr in the locale of the environment: the second text against the
// first, each read as the bytes of its UTF-16 up to the first zero byte.

const { assert, check, helper, test } = require('./harness');

const locale = process.env.LC_ALL;

function sign(first, second, want) {
  assert.strictEqual(Math.sign(helper.compareStr(first, second)), want);
  assert.strictEqual(Math.sign(helper.compareStr(second, first)), 0 - want);
}

test('only the first character below U+0100 counts', () => {
  sign('apple', 'banana', 1);
  sign('apple', 'avocado', 0);
  sign('', '', 0);
  sign('', 'a', 1);
  sign('\0a', '', 0);
});

test('a character from U+0100 counts as its two bytes and what follows', () => {
  sign('\u4142', 'B', -1);              // "BA", "B"
  sign('\u4142\u4344', '\u4142', -1);   // "BADC", "BA"
  sign('\u4e00b', 'a', 1);              // the first byte is zero
});

test('the environment decides, on every call', () => {
  sign('a', 'B', locale === 'C' ? -1 : 1);
  // Bytes of two GBK characters, in the order of pinyin and otherwise.
  if (locale !== 'en_US.UTF-8') {
    sign('\ubbd2', '\ua1d8', locale === 'C' ? 1 : -1);
  }
  process.env.LC_ALL = locale === 'C' ? 'en_US.UTF-8' : 'C';
  sign('a', 'B', locale === 'C' ? 1 : -1);
  process.env.LC_ALL = locale;
});

test('the result is the distance that the C library gives', () => {
  // On other architectures it gives a sign.
  if (locale === 'C' && process.arch === 'x64') {
    check('compareStr', ['a', 'd'], 3);
    check('compareStr', ['d', 'a'], -3);
  }
});

test('other arguments return 0', () => {
  check('compareStr', ['b'], 0);
  check('compareStr', ['b', 'a', 'c'], 0);
  check('compareStr', [1, 'a'], 0);
  check('compareStr', ['b', 1], 0);
});
