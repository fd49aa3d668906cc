'use strict';

// The window functions against a display of the tests' own, which tells the
// requests of every connection: checks, conversions, answers, and that a
// failed check reaches no display.

const { inspect } = require('util');
const { assert, helper, test } = require('./harness');
const ask = require('./ask');

// Objects are compared key by key, in order; -0 and NaN are no 0 and no null.
const same = (got, want) => (Object(got) !== got ? Object.is(got, want)
  : String(Object.keys(got)) === String(Object.keys(want)) &&
    Object.keys(want).every((key) => Object.is(got[key], want[key])));

// Calls a function; wants its answer and the requests of each connection.
function check(name, args, want, connections) {
  const got = helper[name](...args);
  helper.bringWindowToTop(0xbeef);  // marks the end of the call's connections
  const requests = [];
  while (!/beef/.test(requests[requests.length - 1])) requests.push(ask('next'));
  requests.pop();
  if (same(got, want) && inspect(requests) === inspect(connections)) return;
  assert.fail(`${name}(${inspect(args)}): want ${inspect(want)} ` +
    `${inspect(connections)}, got ${inspect(got)} ${inspect(requests)}`);
}

const notANumber = ['1', 'x', undefined, null, true, {}, [1], new Number(1),
  Symbol('1'), () => 1];
const zeroRectangle = { x: 0, y: 0, width: 0, height: 0 };
const pointer = 'QueryPointer 100';
const attributes = (id) => `GetWindowAttributes ${id}; GetGeometry ${id}`;
const keymap =
  'GetKeyboardMapping 40f808; GetModifierMapping; QueryKeymap';

test('a call with other arguments than it takes reaches no display', () => {
  const numbers = { setWindowPos: 7, showWindow: 2, isWindowHandle: 1,
    bringWindowToTop: 1, getKeyState: 1 };
  for (const [name, count] of Object.entries(numbers)) {
    const good = new Array(count).fill(5);
    const want = name === 'getKeyState' ? 0 : false;
    check(name, [], want, []);
    check(name, good.slice(1), want, []);
    check(name, [...good, 5], want, []);
    for (let i = 0; i < count; i += 1) {
      for (const value of notANumber) {
        check(name, Object.assign([...good], { [i]: value }), want, []);
      }
    }
  }
  for (const args of [[], [1, 2, 3, 4, 5], [1, 2, 3, 4, 5, 6, 7]]) {
    check('moveWindow', args, undefined, []);
  }
  for (const args of [[], [5], [0, true], [0.9, true], [2 ** 32, true],
    [NaN, true], [Infinity, true]]) {
    check('enableWindow', args, undefined, []);
  }
  for (const value of notANumber) {
    check('enableWindow', [value, true], undefined, []);
  }
  check('getWindowRect', [], undefined, []);
});

test('numbers are cut to 32 bits wherever they stand', () => {
  const cases = [
    [0, '0'], [0.9, '0'], [-0.9, '0'], [5.9, '5'], [-5.9, 'fffffffb'],
    [-1, 'ffffffff'], [2 ** 31 - 1, '7fffffff'], [2 ** 31, '80000000'],
    [-(2 ** 31), '80000000'], [-(2 ** 31) - 1, '7fffffff'],
    [2 ** 32 - 1, 'ffffffff'], [2 ** 32, '0'], [2 ** 32 + 5, '5'],
    [2 ** 53 - 1, 'ffffffff'], [2 ** 53, '0'], [1e300, '0'], [NaN, '0'],
    [Infinity, '0'], [-Infinity, '0'],
  ];
  for (const [number, hex] of cases) {
    const none = hex === '0';
    check('showWindow', [number, 5], false, [`MapWindow ${hex}`]);
    check('bringWindowToTop', [number], true, [`ConfigureWindow ${hex} 40 0`]);
    check('isWindowHandle', [number], !none,
      [none ? '' : `ListProperties ${hex}`]);
    check('getWindowRect', [number],
      none ? zeroRectangle : Object.assign({}, zeroRectangle,
        { width: 1, height: 1 }),
      [none ? '' : `${attributes(hex)}; TranslateCoordinates ${hex} 100 0`]);
    if (!none) {
      check('enableWindow', [number, true], false,
        [`ListProperties ${hex}`, '']);
    }
    for (let i = 0; i < 5; i += 1) {
      const at = (value) => Object.assign(['7', '1', '2', '3', '4'],
        { [i]: value });
      const args = Object.assign([7, 1, 2, 3, 4], { [i]: number });
      const [id, ...place] = at(hex);
      const request = `ConfigureWindow ${id} f ${place.join(' ')}`;
      check('moveWindow', [...args, true], undefined, [request]);
      const [window, ...rest] = args;
      check('setWindowPos', [window, 0, ...rest, 0], false, [request]);
    }
    check('setWindowPos', [7, number, 0, 0, 0, 0, 3], false,
      [none ? '' : `ConfigureWindow ${hex} 60 7 1`]);
    const place = 'ConfigureWindow 7 f 1 2 3 4';
    const byFlags = { 0: place, 80000000: place, 5: 'ConfigureWindow 7 3 1 2' };
    check('setWindowPos', [7, 0, 1, 2, 3, 4, number], false,
      [byFlags[hex] || 'MapWindow 7']);
    const byCommand = { 0: 'UnmapWindow 7', 5: 'MapWindow 7' };
    check('showWindow', [7, number], false, [byCommand[hex] || '']);
    check('getKeyState', [number], 1, [keymap]);
  }
  for (const value of notANumber) {
    for (let i = 0; i < 5; i += 1) {
      const at = (zero, numbers) => Object.assign(numbers, { [i]: zero });
      const [id, ...place] = at('0', ['7', '1', '2', '3', '4']);
      check('moveWindow', [...at(value, [7, 1, 2, 3, 4]), value], undefined,
        [`ConfigureWindow ${id} f ${place.join(' ')}`]);
    }
    check('getWindowRect', [value, 1], zeroRectangle, ['']);
  }
});

test('flags, commands and keys have their meaning', () => {
  const place = 'ConfigureWindow 7 f 1 2 3 4';
  const flags = [
    [2 ** 32 + 0x83, 'UnmapWindow 7'], [2.9, 'ConfigureWindow 7 c 3 4'],
    [0xc0, `${place}; MapWindow 7`], [0x3c, place],
  ];
  for (const [number, want] of flags) {
    check('setWindowPos', [7, 6, 1, 2, 3, 4, number], false,
      [`${want}; ConfigureWindow 6 60 7 1`]);
  }
  for (const command of [1, 2, 4, 6, 9]) {
    check('showWindow', [7, command], false, ['']);
  }
  const keys = [[1, pointer], [2, pointer], [3, pointer], [4.9, pointer],
    [65, keymap], [2 ** 32 + 1, pointer]];
  for (const [number, want] of keys) check('getKeyState', [number], 1, [want]);
});

test('requests go to the screen that the display names', () => {
  const display = process.env.DISPLAY;
  for (const [end, root] of [['', 100], ['.1', 101]]) {
    process.env.DISPLAY = display + end;
    check('showWindow', [7, 3.9], false, [['', '_MAXIMIZED_HORZ',
      '_MAXIMIZED_VERT'].map((name) => `InternAtom _NET_WM_STATE${name}; `)
      .join('') + `SendEvent ${root} 80000 2021 7 200 1 201 202 0 0`]);
    check('getCursorPos', [], { x: 0, y: 0 }, [`QueryPointer ${root}`]);
    check('getKeyState', [1], 1, [`QueryPointer ${root}`]);
  }
  process.env.DISPLAY = display;
});

// Sets numbers of the display for the time of some checks.
function withDisplay(numbers, body) {
  const set = (entries) => entries.forEach((entry) => ask(entry.join(' ')));
  set(Object.entries(numbers).map(([key, [value]]) => [key, value]));
  body();
  set(Object.entries(numbers).map(([key, [, usual]]) => [key, usual]));
}

test('answers tell what the display says', () => {
  withDisplay({ properties: [0, 1] }, () => {
    check('isWindowHandle', [5], false, ['ListProperties 5']);
    check('enableWindow', [5, true], undefined, ['ListProperties 5']);
  });
  for (const enable of [true, false, 1, 'x', undefined]) {
    check('enableWindow', [5, enable, 7], false, ['ListProperties 5', '']);
  }
  const place = { x: [-3, 0], y: [4, 0], w: [800, 1], h: [600, 1],
    translated_x: [-6, 0], translated_y: [11, 0] };
  const requests =
    [`${attributes(5)}; TranslateCoordinates 5 100 4fffd`];
  withDisplay(place, () => check('getWindowRect', [5, 'more'],
    { x: -6, y: 11, width: 800, height: 600 }, requests));
  withDisplay({ root: [0x101, 0x100] }, () => check('getWindowRect', [5],
    { x: 0, y: 0, width: 1, height: 1 },
    [`${attributes(5)}; TranslateCoordinates 5 101 0`]));
  // On another screen: the position alone.
  withDisplay(Object.assign({ same_screen: [0, 1] }, place), () => check(
    'getWindowRect', [5], { x: -6, y: 11, width: 0, height: 0 }, requests));
  withDisplay({ pointer_x: [-7, 0], pointer_y: [8, 0] }, () => check(
    'getCursorPos', [1], { x: -7, y: 8 }, [pointer]));
  check('getDisplayWindowRect', [1], { width: 1280, height: 1024 },
    [attributes(100)]);
  withDisplay({ focus: [5, 0], w: [1280, 1], h: [1024, 1] }, () => check(
    'IsInFullScreen', [], false, []));
  check('getWindowClassName', [5], '', []);
});

test('without a display every function gives its fallback', () => {
  const zeros = (...keys) => JSON.stringify(
    Object.assign({}, ...keys.map((key) => ({ [key]: 0 }))));
  const cases = [
    ['setWindowPos', [5, 5, 1, 2, 3, 4, 0], 'false'],
    ['showWindow', [5, 5], 'false'],
    ['isWindowHandle', [5], 'false'],
    ['bringWindowToTop', [5], 'false'],
    ['enableWindow', [5, true], undefined],
    ['getWindowRect', [5], zeros('x', 'y', 'width', 'height')],
    ['moveWindow', [5, 1, 2, 3, 4, true], undefined],
    ['getDisplayWindowRect', [], zeros('width', 'height')],
    ['getCursorPos', [], zeros('x', 'y')],
    ['getKeyState', [1], '1'], ['getKeyState', [65], '1'],
  ];
  const display = process.env.DISPLAY;
  for (const where of [undefined, '', ':65000', 'no display', '/dev/null']) {
    if (where === undefined) delete process.env.DISPLAY;
    else process.env.DISPLAY = where;
    for (const [name, args, want] of cases) {
      const got = JSON.stringify(helper[name](...args));
      assert.strictEqual(got, want, `${name} on ${where}: got ${got}`);
    }
  }
  // Read on each call, so the display may come back.
  process.env.DISPLAY = display;
  check('getCursorPos', [], { x: 0, y: 0 }, [pointer]);
});
