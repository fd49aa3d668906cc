'use strict';

const { assert, check, helper, test } = require('./harness');
const { checked, fixed, wellFormed } = require('./answers');

// These act on the machine; their own tests call them.
const acting = new Set(['getLogicalDriveStrings', 'attachClipBoard',
  'setDefaultDPI', 'setWindowPos', 'showWindow', 'moveWindow']);

test('a function with one answer gives it to every call', () => {
  for (const [name, want] of fixed) {
    if (acting.has(name)) continue;
    for (const args of [[], [1], ['x'], ['x', 'x'], wellFormed[name] || []]) {
      check(name, args, want);
      check(name, args, want);  // the first call fills caches
    }
  }
});

test('a checked function tells a good call from another', () => {
  for (const [name, good, answer, bad, fallback] of checked) {
    for (const args of good) check(name, args, answer);
    for (const args of bad) check(name, args, fallback);
  }
});

// An object that notes when it is read as text.
function watched(notes, label) {
  return { toString() { notes.push(label); return label; } };
}

test('asyncShellExecuteAndWait reads its texts in order after its checks',
  () => {
    const callback = () => {};
    const read = (count, last) => {
      const notes = [];
      const texts = ['a', 'b', 'c'].map((label) => watched(notes, label));
      Object.assign(callback, watched(notes, 'd'));
      check('asyncShellExecuteAndWait', [...texts, last].slice(0, count), 0);
      return notes.join('');
    };
    assert.strictEqual(read(4, callback), 'abc');
    assert.strictEqual(read(4, 'no function'), '');
    assert.strictEqual(read(3, callback), '');
  });

test('other functions read no object as text', () => {
  const notes = [];
  const object = watched(notes, 'x');
  for (const name of Object.keys(wellFormed)) {
    if (name === 'asyncShellExecuteAndWait') continue;
    helper[name](object, object, object, () => {});
  }
  helper.System(object);
  helper.getDriveType(object);
  helper.getTaskTypeFromUrl(object);
  helper.compareStr(object, object);
  assert.deepStrictEqual(notes, []);
});
