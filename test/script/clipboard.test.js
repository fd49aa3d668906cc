'use strict';

const { assert, check, test } = require('./harness');

test('a registration is called back at once, with the link', () => {
  const calls = [];
  let returned = false;
  const register = () => check('attachClipBoard', [function callback(...args) {
    calls.push({ receiver: this, args, returned });
    return 'ignored';
  }, 'more'], 0);
  register();
  register();
  returned = true;
  assert.strictEqual(calls.length, 2);
  for (const call of calls) {
    assert.strictEqual(call.receiver, global);
    assert.strictEqual(call.returned, false);
    assert.strictEqual(call.args.length, 2);
    assert.strictEqual(call.args[0], 1);
    assert(Array.isArray(call.args[1]));
    assert.deepStrictEqual(call.args[1], ['http://example.com/']);
  }
});

test('registered functions are kept', () => {
  const megabytes = () => {
    global.gc();
    return process.memoryUsage().heapUsed / 2 ** 20;
  };
  const before = megabytes();
  for (let i = 0; i < 20; i += 1) {
    const kept = new Array(2 ** 17).fill(i);
    check('attachClipBoard', [() => kept], 0);
  }
  assert(megabytes() - before > 15, 'functions were let go');
});

test('what the function throws is dropped', () => {
  let called = 0;
  check('attachClipBoard', [() => { called += 1; throw new Error('x'); }], 0);
  assert.strictEqual(called, 1);
});

test('anything but a function is answered without a call', () => {
  for (const args of [[], [1], ['f'], [{ call() {} }], [1, () => {
    throw new Error('called');
  }]]) {
    check('attachClipBoard', args, 0);
  }
});
