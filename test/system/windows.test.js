'use strict';

// The window functions on a real display of two screens, bare and, at the end,
// under a window manager. The addon has what the module drops or does not bind.

const { execFileSync } = require('child_process');
const { assert, check, helper, openDescriptors, test } =
  require('../script/harness');
const { createWindow, maximise, successes } =
  require(process.env.KORVANE_ADDON);

const { DISPLAY } = process.env;
const gone = 0x7654321;  // no client has used it
const window = createWindow(10, 20, 100, 80);
const other = createWindow(10, 20, 100, 80);
const descriptors = openDescriptors();
const print = (command) => execFileSync('sh', ['-c', command],
  { encoding: 'utf8' });
const isShown = () => /IsViewable/.test(print(`xwininfo -id ${window}`));
const isAt = (id, x, y, width, height) => check('getWindowRect', [id, 7],
  { x, y, width, height });

function withDisplay(name, body) {
  process.env.DISPLAY = name;
  body();
  process.env.DISPLAY = DISPLAY;
}

test('a mistyped call returns its fallback and does nothing', () => {
  const rows = [  // done, most would terminate the process
    ['setWindowPos', [gone, 0, 1, 2, 3, 4, 0], false],
    ['showWindow', [gone, 5], false],
    ['isWindowHandle', [gone], false],
    ['bringWindowToTop', [gone], false],
    ['getKeyState', [65], 0],
  ];
  for (const [name, args, want] of rows) {
    check(name, args.slice(1), want);
    check(name, [...args, 5], want);
    args.forEach((number, i) => check(name,
      Object.assign([...args], { [i]: '1' }), want));
  }
  for (const args of [[gone], ['1', true], [0, true], [2 ** 32, true]]) {
    check('enableWindow', args, undefined);
  }
  check('moveWindow', [gone, 1, 2, 3, 4], undefined);
  check('moveWindow', [gone, 1, 2, 3, 4, true, 7], undefined);
  check('getWindowRect', [], undefined);
  isAt('1', 0, 0, 0, 0);
});

test('numbers are truncated to 32 bits, and a position counts twice', () => {
  const moves = (args, ...want) => {
    check('moveWindow', [...args, true], undefined);
    isAt(window, ...want);
    check('moveWindow', [window, 9, 9, 9, 9, true], undefined);
    check('setWindowPos', [args[0], 0, ...args.slice(1), 0], false);
    isAt(window, ...want);
  };
  moves([window + 0.9, -5.9, 5.9, 7.9, 8.9], -10, 10, 7, 8);
  moves([window + 2 ** 32, 2 ** 32 + 5, -(2 ** 32) - 6, 2 ** 33 + 7, 65535],
    10, -12, 7, 65535);
  moves([window - 2 ** 32, NaN, -Infinity, 3, 4], 0, 0, 3, 4);
  check('moveWindow', [window, '1', null, 5, 6, 'x'], undefined);
  for (const id of [window + 0.9, window + 2 ** 32, window - 2 ** 32]) {
    check('isWindowHandle', [id], true);
    check('enableWindow', [id, 'x', 7], false);
    check('bringWindowToTop', [id], true);
    isAt(id, 0, 0, 5, 6);
  }
});

test('setWindowPos obeys its flags, showWindow its commands', () => {
  const rows = [  // flags; where the window is, and whether it is shown
    [0x01, [-60, 80, 100, 80], true],
    [0x81, [-60, 80, 100, 80], false],
    [0xc2, [20, 40, 150, 160], true],
    [0x83 + 2 ** 32, [20, 40, 100, 80], false],
    [0xffffff7f, [20, 40, 100, 80], true],
    [0xffffff3c, [-60, 80, 150, 160], true],
  ];
  for (const [flags, place, shown] of rows) {
    helper.moveWindow(window, 10, 20, 100, 80, true);
    check('setWindowPos', [window, 0, -30, 40, 150, 160, flags], false);
    isAt(window, ...place);
    assert.strictEqual(isShown(), shown, flags);
  }
  for (const command of [2 ** 32 + 0.9, -1, 1, 2, 3, 4, 5.9, 6, 9]) {
    check('showWindow', [window, command], false);
    assert.strictEqual(isShown(), command > 5 && command < 10, command);
  }
});

test('native callers learn what succeeds', () => {
  assert.strictEqual(successes(window),
    'place move resize hide show find screen move back ');
  withDisplay(':65000', () => assert.strictEqual(successes(window), ''));
});

test('a window is raised, or put directly above insertAfter', () => {
  const puts = (top, insertAfter) => {
    helper.bringWindowToTop(other);
    check('setWindowPos', [window, insertAfter, 0, 0, 0, 0, 3], false);
    assert.strictEqual(Number(print('xwininfo -root -children')
      .match(/0x\w+(?= "test)/)[0]), top);
  };
  puts(window, other + 2 ** 32);
  puts(other, 2 ** 32);
  // A window without properties is none.
  print(`xprop -id ${other} -remove WM_NAME`);
  check('isWindowHandle', [other], false);
});

test('the screen is that of the display, a window may be on any', () => {
  const outer = createWindow(100, 200, 90, 90, 1);
  const inner = createWindow(20, 30, 60, 50, 2, outer);
  check('getCursorPos', [1], { x: 640, y: 512 });
  check('getKeyState', [1], 1);
  check('getDisplayWindowRect', [1], { width: 1280, height: 1024 });
  withDisplay(`${DISPLAY}.1`, () => {
    check('getDisplayWindowRect', [1], { width: 800, height: 600 });
    isAt(outer, 201, 401, 90, 90);
    isAt(inner, 143, 263, 60, 50);
  });
});

test('the window with the focus may cover the default screen', () => {
  const covers = (want, ...place) => {
    const focus = place.length === 1 ? place[0] : createWindow(...place);
    print(`xdotool windowfocus ${focus}`);
    assert.strictEqual(/cover/.test(successes(window)), want, place.join());
  };
  covers(true, 0, 0, 1280, 1024);
  covers(true, -5, -5, 1281, 1025);
  covers(false, 0, 0, 1279, 1024);
  covers(false, 0, 0, 1280, 1023);
  // The border counts once, the position twice: x 1, y -1, and x -1, y 1.
  covers(false, 0, -1, 1280, 1024, 1);
  covers(false, -1, 0, 1280, 1024, 1);
  covers(false, 0);  // no window, and the one under the pointer
  covers(false, 1);
  withDisplay(`${DISPLAY}.1`, () => covers(true, 0, 0, 800, 600));
});

test('maximising sends a message to who watches the root', () => {
  assert.strictEqual(maximise(gone), `33 ${gone} 32 _NET_WM_STATE 1 ` +
    '_NET_WM_STATE_MAXIMIZED_HORZ _NET_WM_STATE_MAXIMIZED_VERT 0 0');
});

test('no call leaves its connection open', () => {
  assert.strictEqual(openDescriptors(), descriptors);
});

test('what the server refuses terminates the process', () => {
  const refuses = (error, call) => assert(print(`! ${process.execPath} -e \
    'require(process.env.KORVANE_MODULE).${call}' 2>&1`).includes(error));
  refuses('BadWindow', `isWindowHandle(${gone})`);
  refuses('BadValue', `moveWindow(${window}, 1, 2, 3, 65536, true)`);
  refuses('BadWindow', `setWindowPos(${window}, -1, 1, 2, 3, 4, 3)`);
});

test('a managed window moves with its frame and is not maximised', () => {
  // It ends with the display.
  print(`openbox --sm-disable >/dev/null 2>&1 &
    until xprop -root _NET_SUPPORTING_WM_CHECK | grep 0x; do :; done`);
  const id = createWindow(200, 200, 300, 250);
  const [, left, top] = print(`until xprop -id ${id} _NET_FRAME_EXTENTS |
    grep =; do :; done`).match(/= (\d+), \d+, (\d+)/);
  // The manager takes requests in order: behind the move it has seen both.
  check('showWindow', [id, 3], false);
  check('setWindowPos', [id, 0, 60, 70, 320, 260, 0], false);
  while (helper.getWindowRect(id).width !== 320);
  isAt(id, 60 + 2 * left, 70 + 2 * top, 320, 260);
});
