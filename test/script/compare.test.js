'use strict';

// compareStr in the locale of the environment: the second text against the
// first, each read as the bytes of its 16-bit units up to the first zero byte.

const { assert, check, helper, test } = require('./harness');

const locale = process.env.LC_ALL;

function checkSign(first, second, want) {
  const got = Math.sign(helper.compareStr(first, second));
  assert.strictEqual(got, want,
    `compareStr(${JSON.stringify([first, second])}) in ${locale}`);
  assert.strictEqual(Math.sign(helper.compareStr(second, first)), 0 - want);
}

test('only the first character below U+0100 takes part', () => {
  checkSign('apple', 'banana', 1);
  checkSign('apple', 'avocado', 0);
  checkSign('', '', 0);
  checkSign('', 'a', 1);
  checkSign('\0a', '', 0);
});

test('a character from U+0100 gives its two bytes and what follows', () => {
  checkSign('\u4142', 'B', -1);          // "BA", "B"
  checkSign('\u4142\u4344', '\u4142', -1);  // "BADC", "BA"
  checkSign('\u4e00', '', 0);            // its first byte is zero
  checkSign('\u4e00b', 'a', 1);
});

test('the locale of the environment decides', () => {
  const inEnglish = locale === 'en_US.UTF-8';
  const inChinese = locale === 'zh_CN.GBK';
  checkSign('a', 'B', locale === 'C' ? -1 : 1);
  // The bytes of two GBK characters: by pinyin the second comes first.
  if (!inEnglish) checkSign('\ubbd2', '\ua1d8', inChinese ? -1 : 1);
});

test('the result is the distance that the locale gives', () => {
  // The C library tells a distance on this architecture, elsewhere a sign.
  if (locale !== 'C' || process.arch !== 'x64') return;
  check('compareStr', ['a', 'd'], 3);
  check('compareStr', ['d', 'a'], -3);
});

test('the environment is read on every call', () => {
  process.env.LC_ALL = locale === 'C' ? 'en_US.UTF-8' : 'C';
  assert.strictEqual(Math.sign(helper.compareStr('a', 'B')),
    locale === 'C' ? 1 : -1);
  process.env.LC_ALL = locale;
  checkSign('a', 'B', locale === 'C' ? -1 : 1);
});

test('other arguments give 0', () => {
  for (const args of [[], ['b'], ['b', 'a', 'c'], [1, 'a'], ['b', 1], [2, 1],
    [new String('b'), 'a']]) {
    check('compareStr', args, 0);
  }
});
