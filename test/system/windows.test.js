'use strict';

// The window functions on a real display: what their arguments mean, and what
// they return. What the operations do is tested natively.

const { execFileSync, spawnSync } = require('child_process');
const { assert, check, helper, test } = require('../script/harness');
const { createWindow } = require(process.env.KORVANE_ADDON);

const window = createWindow();
const other = createWindow();
const xwininfo = (...args) => execFileSync('xwininfo', args,
  { encoding: 'utf8' });
// A window's position counts twice.
const isAt = (x, y, width, height) => check('getWindowRect', [window],
  { x: 2 * x, y: 2 * y, width, height });

const noNumbers = ['1', undefined, null, true, {}, [1], new Number(1),
  Symbol('1'), () => 1];

// Wants a result of any call without exactly `count` numbers.
function needsNumbers(name, count, want) {
  const good = new Array(count).fill(window);
  for (const args of [[], good.slice(1), [...good, 5]]) check(name, args, want);
  for (const value of noNumbers) {
    good.forEach((number, i) => check(name,
      Object.assign([...good], { [i]: value }), want));
  }
}

test('a mistyped call returns its fallback and opens no display', () => {
  needsNumbers('setWindowPos', 7, false);
  needsNumbers('showWindow', 2, false);
  needsNumbers('isWindowHandle', 1, false);
  needsNumbers('bringWindowToTop', 1, false);
  needsNumbers('getKeyState', 1, 0);
  for (const value of [...noNumbers, 0, 0.9, 2 ** 32, NaN, Infinity]) {
    check('enableWindow', [value, true], undefined);
  }
  check('enableWindow', [window], undefined);
  check('getWindowRect', [], undefined);
  check('moveWindow', [window, 2, 3, 4, 5], undefined);
  check('moveWindow', [window, 2, 3, 4, 5, true, 7], undefined);
  isAt(10, 20, 100, 80);
  if (process.env.ASAN_OPTIONS === 'detect_leaks=0') return;  // as below
  const { stderr } = spawnSync('strace', ['-f', '-qq', '-e', 'trace=connect',
    process.execPath, process.argv[1], 'mistyped'], { encoding: 'utf8',
    env: Object.assign({}, process.env, { ASAN_OPTIONS: 'detect_leaks=0' }) });
  // The addon's connection, and that of isAt().
  assert.strictEqual(stderr.match(/connect\(.*X11-unix/g).length, 2, stderr);
});

test('numbers are truncated to 32 bits', () => {
  const move = (args, ...want) => {
    check('moveWindow', [...args, true], undefined);
    isAt(...want);
    check('moveWindow', [window, 9, 9, 9, 9, true], undefined);
    check('setWindowPos', [args[0], 0, ...args.slice(1), 0], false);
    isAt(...want);
  };
  move([window + 0.9, -5.9, 5.9, 7.9, 8.9], -5, 5, 7, 8);
  move([window + 2 ** 32, 2 ** 32 + 5, -(2 ** 32) - 6, 2 ** 33 + 7, 1e10],
    5, -6, 7, 1e10 % 2 ** 16);
  move([window - 2 ** 32, NaN, -Infinity, 3, 4], 0, 0, 3, 4);
  check('moveWindow', [window, '1', null, 5, 6, 'x'], undefined);
  isAt(0, 0, 5, 6);
  for (const id of [window + 0.9, window + 2 ** 32, window - 2 ** 32]) {
    check('isWindowHandle', [id], true);
    check('enableWindow', [id, 'x', 7], false);
    check('bringWindowToTop', [id], true);
    check('getWindowRect', [id, 7], { x: 0, y: 0, width: 5, height: 6 });
  }
});

test('commands and flags have their meaning, and return false', () => {
  const leaves = (shown, name, ...args) => {
    check(name, args, false);
    assert.strictEqual(
      /IsViewable/.test(xwininfo('-id', String(window))), shown);
  };
  leaves(false, 'showWindow', window, 2 ** 32 + 0.9);
  leaves(false, 'showWindow', window, 3);
  leaves(true, 'showWindow', window, 5.9);
  leaves(false, 'setWindowPos', window, 0, 1, 2, 3, 4, 2 ** 32 + 0x83);
  isAt(0, 0, 5, 6);
  leaves(true, 'setWindowPos', window, 0, 1, 2, 3, 4, 0xc0 - 2 ** 32);
  isAt(1, 2, 3, 4);
});

test('insertAfter ends up beneath the window, 0 is none', () => {
  const puts = (top, insertAfter) => {
    helper.bringWindowToTop(other);
    check('setWindowPos', [window, insertAfter, 0, 0, 0, 0, 3], false);
    assert.strictEqual(Number(xwininfo('-root', '-children')
      .match(/0x\w+(?= "test)/)[0]), top);
  };
  puts(window, other + 2 ** 32);
  puts(other, 2 ** 32);
});

test('the screen, the pointer and keys are those of the display', () => {
  check('getDisplayWindowRect', [1], { width: 1280, height: 1024 });
  check('getCursorPos', [1], { x: 640, y: 512 });
  check('getKeyState', [1], 1);
  check('isWindowHandle', [0], false);
  check('getWindowRect', ['abc'], { x: 0, y: 0, width: 0, height: 0 });
});
