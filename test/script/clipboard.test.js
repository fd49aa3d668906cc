'use strict';

const { assert, check, helper, test } = require('./harness');

test('a registration is called back at once, with the link', () => {
  const calls = [];
  check('attachClipBoard', [function callback(...args) {
    calls.push([this === global, ...args]);
    throw new Error('dropped');
  }], 0);
  assert.deepStrictEqual(calls, [[true, 1, ['http://example.com/']]]);
  check('attachClipBoard', [1, () => assert.fail('another place')], 0);
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
