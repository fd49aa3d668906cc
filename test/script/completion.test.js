'use strict';

// The completion functions, through an addon that calls them.

const { assert, test } = require('./harness');
const { complete, queryFileExists } = require(process.env.KORVANE_ADDON);

const rows = [  // what the addon's rows call back with
  [true, [1, 0, -1, 2147483647]],
  [true, -2147483648],
  [false, 3],
  [['C', '', '中', '\uf600\u0001A', 'BADCE']],
  [[]],
];

test('a completion calls back once with its results', () => {
  rows.forEach((want, row) => {
    const calls = [];
    assert.strictEqual(complete(row, function callback(...args) {
      assert.strictEqual(this, global);
      calls.push(args);
      throw new Error('dropped');
    }), 0);
    assert.deepStrictEqual(calls, [want], `row ${row}`);
  });
});

test('without a holder, an isolate or a function nothing happens', () => {
  rows.forEach((want, row) => {
    assert.strictEqual(complete(row, 'no holder'), 0);
    assert.strictEqual(complete(row, 'no isolate'), 0);
    assert.strictEqual(complete(row, 'no function'), 0);
  });
});

test('a function without a name returns what its named twin does', () => {
  assert.strictEqual(queryFileExists('/'), false);
});
