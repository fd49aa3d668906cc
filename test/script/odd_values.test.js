'use strict';

// Every function is called with every odd value in each of the first four
// places, alone and in pairs: nothing throws, and the answer is one that the
// function may give. Runs without network and without a display.

const vm = require('vm');
const { assert, check, helper, temporaryFolder, test } = require('./harness');
const { checked, fixed } = require('./answers');

process.chdir(temporaryFolder());

const throwing = () => { throw new Error('from script'); };
const { proxy, revoke } = Proxy.revocable(() => {}, {});
revoke();

const oddValues = [
  Symbol('odd'), { toString: throwing, valueOf: throwing }, Object.create(null),
  new String('boxed'), NaN, Infinity, -Infinity, 2 ** 53, '\ud800',
  '中\ud800'.repeat(2 ** 19), 'a\udc00\0b', throwing, proxy, null, -1.5, true,
  { [Symbol.toPrimitive]: () => ({}) },
];

// What the functions that do work may answer here.
const isObject = (...keys) => (value) => (
  Object.keys(value).join() === keys.join() && keys.every((key) => (
    value[key] === 0)));
const oneOf = (...answers) => (value) => answers.includes(value);
const working = {
  System: (value) => value === undefined || typeof value === 'string',
  compareStr: (value) => Number.isInteger(value),
  getPeerID: (value) => /^[0-9A-F]{12}007V$|^007V$/.test(value),
  isPingHostValid: oneOf(0, 1),
  getMonitorDPIFactor: oneOf(1),
  getSysDPIFactor: oneOf(1),
  getCursorPos: isObject('x', 'y'),
  getDisplayWindowRect: isObject('width', 'height'),
  getWindowRect: (value) => value === undefined ||
    isObject('x', 'y', 'width', 'height')(value),
  isWindowHandle: oneOf(false),
  bringWindowToTop: oneOf(false),
  enableWindow: oneOf(undefined),
  getKeyState: oneOf(0, 1),
};

function allowed(name) {
  if (fixed.has(name)) return oneOf(fixed.get(name));
  const row = checked.find(([checkedName]) => checkedName === name);
  return row ? oneOf(row[2], row[4]) : working[name];
}

// Every call's arguments: one odd value, or two, within the first four places.
function* argumentLists() {
  const places = [0, 1, 2, 3];
  for (const first of places) {
    for (const value of oddValues) {
      const args = new Array(first + 1).fill('text');
      args[first] = value;
      yield args;
      for (const second of places.slice(first + 1)) {
        for (const other of oddValues) {
          yield Object.assign(new Array(second + 1).fill(1),
            { [first]: value, [second]: other });
        }
      }
    }
  }
}

// These start a process or print a trace: one odd value a call is enough.
const slow = new Set(['System', 'getLogicalDriveStrings', 'getPeerID']);

for (const name of Object.keys(helper)) {
  test(`${name} takes odd values`, () => {
    const isAllowed = allowed(name);
    for (const args of argumentLists()) {
      if (slow.has(name) && args.length > 1) continue;
      let got;
      try {
        got = helper[name](...args);
      } catch (error) {
        assert.fail(`${name} threw on [${args.map((arg) => typeof arg)}]`);
      }
      assert(isAllowed(got), `${name} answered ${got}`);
    }
  });
}

test('setters on the prototypes of lists and objects do no harm', () => {
  const setter = { set: throwing, configurable: true };
  Object.defineProperty(Array.prototype, 0, setter);
  Object.defineProperty(Object.prototype, 'x', setter);
  try {
    check('attachClipBoard', [() => {}], 0);
    helper.getCursorPos();
    helper.getWindowRect(0);
  } finally {
    delete Array.prototype[0];
    delete Object.prototype.x;
  }
});

test('nothing of a script that is being terminated runs on', () => {
  const forever = { toString() { for (;;); }, valueOf() { for (;;); } };
  const set = { set: forever.toString, configurable: true };
  const calls = ['isPingHostValid(forever)', 'setDefaultDPI(forever)',
    'asyncShellExecuteAndWait(forever, 1, 2, Object)',
    'asyncShellExecuteAndWait(1, forever, forever, Object)',
    'attachClipBoard(forever.toString)',
    'attachClipBoard(() => { helper.setDefaultDPI(forever); ran = true; })',
    'getCursorPos(Object.defineProperty(Object.prototype, "x", set))'];
  for (const code of calls) {
    const sandbox = { helper, forever, Object, set, ran: false };
    assert.throws(() => vm.runInNewContext(`
      try { helper.${code}; ran = true; } catch (e) { ran = true; }
      finally { ran = true; } for (;;) ran = true;`, sandbox, { timeout: 20 }),
    /timed out/, code);
    delete Object.prototype.x;
    assert.strictEqual(sandbox.ran, false, code);
  }
});
