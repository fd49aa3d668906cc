'use strict';

// Preloads failing_new. A function that cannot allocate returns its fallback,
// leaves nothing open, and works the next time.

const { assert, check, helper, openDescriptors, test } =
  require('../script/harness');

function fails(name, args, want) {
  const usual = helper[name](...args);
  check(name, args, usual);  // the runtime compiles, and allocates for that
  const before = openDescriptors();
  process.env.FAILING_NEW = '1';
  check(name, args, want);
  assert(!('FAILING_NEW' in process.env));
  assert.strictEqual(openDescriptors(), before);
  check(name, args, usual);
}

test('a function returns its fallback', () => {
  fails('System', ['echo x'], '');
  fails('getPeerID', [], undefined);
  fails('isPingHostValid', ['127.000000000000.0.1'], 0);
  fails('getTaskTypeFromUrl', ['http://host.example/'], undefined);
  let called = 0;
  fails('attachClipBoard', [() => { called += 1; }], 0);
  assert.strictEqual(called, 3);
});
