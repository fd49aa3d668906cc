'use strict';

const { assert, check, helper, test } = require('./harness');

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

test('a registration keeps the function', () => {
  const { heapUsed } = process.memoryUsage();
  for (let i = 0; i < 100; i += 1) {
    const kept = new Array(10000).fill(1);
    helper.attachClipBoard(() => kept);
  }
  global.gc();
  assert(process.memoryUsage().heapUsed - heapUsed > 5000000);
});

test('a function in another place is not called', () => {
  check('attachClipBoard', [1, () => assert.fail('called')], 0);
});
