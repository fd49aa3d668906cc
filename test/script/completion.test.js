'use strict';

// The completion functions, through an addon that calls them all.

const { assert, test } = require('./harness');
const { complete } = require(process.env.KORVANE_ADDON);

test('a completion calls back once with its results', () => {
  const calls = [];
  assert.strictEqual(complete(function callback(...args) {
    calls.push([this === global, ...args]);
    throw new Error('dropped');
  }), 0);
  assert.deepStrictEqual(calls, [
    [true, true, [1, 0, -1, 2147483647]],
    [true, true, -2147483648],
    [true, false, 3],
    [true, ['C', '', '中', '\uf600\u0001A', 'BADCE']],
    [true, []],
  ]);
});

test('without a holder, an isolate or a function nothing happens', () => {
  for (const callback of ['no holder', 'no isolate', 'no function']) {
    assert.strictEqual(complete(callback), 0);
  }
});
