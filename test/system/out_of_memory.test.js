'use strict';

// Preloads failing_new. A function that cannot allocate returns its fallback,
// leaves nothing open, and works the next time.

const { assert, check, helper, openDescriptors, test } =
  require('../script/harness');

const rows = [
  ['System', ['echo x'], ''],
  ['getPeerID', [], undefined],
  ['isPingHostValid', ['127.000000000000.0.1'], 0],
  ['getTaskTypeFromUrl', ['http://host.example/'], undefined],
  ['attachClipBoard', [() => {}], 0],
];

for (const [name, args, want] of rows) {
  test(name, () => {
    const usual = helper[name](...args);
    check(name, args, usual);  // the runtime compiles, and allocates for that
    const before = openDescriptors();
    process.env.FAILING_NEW = '1';
    check(name, args, want);
    assert(!('FAILING_NEW' in process.env));
    assert.strictEqual(openDescriptors(), before);
    check(name, args, usual);
  });
}
