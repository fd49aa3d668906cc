'use strict';

const { assert, check, test } = require('./harness');

test('a registration is called back at once, with the link', () => {
  const calls = [];
  const register = () => check('attachClipBoard', [function callback(...args) {
    calls.push([this, args]);
    throw new Error('dropped');
  }], 0);
  register();
  register();
  assert.strictEqual(calls.length, 2);
  for (const [receiver, args] of calls) {
    assert.strictEqual(receiver, global);
    assert.deepStrictEqual(args, [1, ['http://example.com/']]);
  }
});

test('a function in another place is not called', () => {
  check('attachClipBoard', [1, () => assert.fail('called')], 0);
});
