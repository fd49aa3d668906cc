'use strict';

const { assert, check, test } = require('./harness');

test('a registration is called back at once, with the link', () => {
  const calls = [];
  check('attachClipBoard', [function callback(...args) {
    calls.push([this === global, ...args]);
    throw new Error('dropped');
  }], 0);
  assert.deepStrictEqual(calls, [[true, 1, ['http://example.com/']]]);
  check('attachClipBoard', [1, () => assert.fail('another place')], 0);
});
