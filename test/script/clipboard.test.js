'use strict';

const { assert, check, test } = require('./harness');

test('a registration is called back at once, with the link', () => {
  const calls = [];
  for (let count = 1; count < 3; count += 1) {
    check('attachClipBoard', [function callback(...args) {
      calls.push([this === global, ...args]);
      throw new Error('dropped');
    }], 0);
    assert.strictEqual(calls.length, count);
  }
  assert.deepStrictEqual(calls[1], [true, 1, ['http://example.com/']]);
});

test('a function in another place is not called', () => {
  check('attachClipBoard', [1, () => assert.fail('called')], 0);
});
