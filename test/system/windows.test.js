'use strict';

// The window functions on a real server: what a script does to a window is
// what another client of the display reads afterwards.

const { spawnSync } = require('child_process');
const { assert, check, helper, test } = require('../script/harness');
const ask = require('../script/ask');

const create = (place = '10 20 100 80', shown = 1) => (
  Number(ask(`create ${place} ${shown}`)));
const state = (window) => ask(`state ${window}`);
const stacking = (...windows) => (
  ask(`stacking ${windows.join(' ')}`).split(' ').map(Number));

test('a window does what the script says', () => {
  const window = create();
  const other = create();
  const cases = [
    ['setWindowPos', [window, 0, 30, 40, 300, 200, 0], false,
      '30 40 300 200 shown'],
    ['setWindowPos', [window, 0, -5.9, 4.9, 301.5, 2 ** 32 + 200, 0], false,
      '-5 4 301 200 shown'],
    ['setWindowPos', [window, 0, 1, 1, 1, 1, 0x83], false,
      '-5 4 301 200 hidden'],
    ['setWindowPos', [window, 0, 1, 1, 1, 1], false, '-5 4 301 200 hidden'],
    ['setWindowPos', [window, 0, 1, 1, 1, 1, 0, 0], false,
      '-5 4 301 200 hidden'],
    ['showWindow', [window, 5], false, '-5 4 301 200 shown'],
    ['showWindow', [window, 0], false, '-5 4 301 200 hidden'],
    ['showWindow', [window, 1], false, '-5 4 301 200 hidden'],
    ['moveWindow', [window, 60, 70, 80, 90, true], undefined,
      '60 70 80 90 hidden'],
    ['moveWindow', [window, 'a', 10, 100, 100, true], undefined,
      '0 10 100 100 hidden'],
    ['moveWindow', [window, 1, 2, 3, 4], undefined, '0 10 100 100 hidden'],
    ['isWindowHandle', [window], true, '0 10 100 100 hidden'],
    ['isWindowHandle', [String(window)], false, '0 10 100 100 hidden'],
    ['enableWindow', [window, true], false, '0 10 100 100 hidden'],
    ['IsInFullScreen', [], false, '0 10 100 100 hidden'],
  ];
  for (const [name, args, answer, want] of cases) {
    check(name, args, answer);
    const got = state(window);
    assert.strictEqual(got, want, `${name}(${args}): want ${want}, got ${got}`);
  }
  check('bringWindowToTop', [window], true);
  assert.deepStrictEqual(stacking(window, other), [other, window]);
  check('setWindowPos', [other, window, 0, 0, 0, 0, 3], false);
  assert.deepStrictEqual(stacking(window, other), [window, other]);
});

test('a window and the display are told as objects', () => {
  const window = create('11 22 33 44');
  const told = (name, args, want) => assert.strictEqual(
    JSON.stringify(helper[name](...args)), JSON.stringify(want));
  told('getWindowRect', [window], { x: 22, y: 44, width: 33, height: 44 });
  told('getWindowRect', ['abc'], { x: 0, y: 0, width: 0, height: 0 });
  told('getDisplayWindowRect', [], { width: 1280, height: 1024 });
  ask('pointer 1279 1023');
  told('getCursorPos', [], { x: 1279, y: 1023 });
});

test('another process can ask whether a window is there', () => {
  const window = create();
  const here = `xwininfo -id ${window} >/dev/null 2>&1 && echo here`;
  check('System', [here], 'here\n');
  ask(`destroy ${window}`);
  check('System', [here], '');
});

test('a window that is gone ends the process, window 0 does not', () => {
  const gone = create();
  ask(`destroy ${gone}`);
  const ends = ['isWindowHandle(gone)', 'getWindowRect(gone)',
    'enableWindow(gone, true)', 'moveWindow(gone, 1, 2, 3, 4, true)',
    'setWindowPos(gone, 0, 1, 2, 3, 4, 0)', 'showWindow(gone, 5)',
    'bringWindowToTop(gone)', 'moveWindow("a", 1, 2, 3, 4, true)'];
  const lives = ['isWindowHandle(0)', 'getWindowRect(0)',
    'enableWindow(0, true)', 'showWindow(gone, 1)', 'getWindowRect("a")'];
  const script = (call) => 'try { require(process.env.KORVANE_MODULE)' +
    `.${call.replace(/gone/, gone)}; } catch (error) { process.exit(9); }`;
  for (const [calls, status] of [[ends, 1], [lives, 0]]) {
    for (const call of calls) {
      const run = spawnSync(process.execPath, ['-e', script(call)]);
      assert.strictEqual(run.status, status, `${call}: ended with ` +
        `${run.status}, ${run.stderr}`);
      assert.strictEqual(/BadWindow/.test(run.stderr), status === 1, call);
    }
  }
});
