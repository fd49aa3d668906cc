'use strict';

// The completion functions, through an addon that calls them.

const { assert, test } = require('./harness');

const completions = require(process.env.KORVANE_COMPLETIONS);
const smile = 0x1f600;
const units = (text) => Array.from(text, (c) => c.codePointAt(0));

// Completes once; answers what the callback was given, and as what receiver.
function complete(name, ...results) {
  const calls = [];
  const answer = completions[name](...results, function callback(...args) {
    calls.push({ receiver: this, args });
  });
  assert.strictEqual(answer, 0);
  assert.strictEqual(calls.length, 1);
  assert.strictEqual(calls[0].receiver, global);
  return calls[0].args;
}

test('a completion calls back with its results', () => {
  const cases = [
    ['onIsSSD', [true, [1, 0, -1, 2147483647]], [true, [1, 0, -1, 2147483647]]],
    ['onIsSSD', [false, []], [false, []]],
    ['onGetDriveMediaType', [1, 4], [true, 4]],
    ['onGetDriveMediaType', [-1, -2147483648], [true, -2147483648]],
    ['onGetDriveMediaType', [0, 3], [false, 3]],
    ['onGetCpuList', [[]], [[]]],
  ];
  for (const [name, results, want] of cases) {
    assert.deepStrictEqual(complete(name, ...results), want, name);
  }
});

test('a listed text ends at its first 16-bit zero unit', () => {
  const names = [units('Core'), [], units('中文'), [smile, 0x41],
    [0x00410042, 0x00430044, 0x0045]];
  const want = ['C', '', '中', '\uf600\u0001A', 'BADCE'];
  for (const name of ['onGetCpuList', 'onGetAppList']) {
    assert.deepStrictEqual(complete(name, names), [want]);
  }
});

const everyFunction = [['onIsSSD', true, [1]], ['onGetDriveMediaType', 1, 1],
  ['onGetCpuList', [[65]]], ['onGetAppList', [[65]]]];

test('what the callback throws is dropped, without one nothing happens', () => {
  const throwing = () => { throw new Error('from the callback'); };
  for (const [name, ...results] of everyFunction) {
    for (const last of [throwing, null, 'none', 'no isolate']) {
      assert.strictEqual(completions[name](...results, last), 0);
    }
  }
});

test('a function without a name answers as its named twin does', () => {
  for (const args of [[], ['/'], [1]]) {
    assert.strictEqual(completions.queryFileExists(...args), false);
  }
});

test('the holder lets its function go', () => {
  const megabytes = () => {
    global.gc();
    return process.memoryUsage().heapUsed / 2 ** 20;
  };
  const before = megabytes();
  for (const [name, ...results] of everyFunction) {
    for (let i = 0; i < 50; i += 1) {
      const kept = new Array(2 ** 17).fill(i);
      completions[name](...results, () => kept);
    }
  }
  assert(megabytes() - before < 20, 'functions are still referenced');
});
