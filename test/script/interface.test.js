'use strict';

// All functions together: their names, what each returns for any values, and
// that nothing throws. Runs without network and without a display.

const fs = require('fs');
const path = require('path');
const { createHash } = require('crypto');
const vm = require('vm');
const {
  assert, check, helper, printed, temporaryFolder, test,
} = require('./harness');

process.chdir(temporaryFolder());

// The names in the typings, and the values of those that return a constant.
const rows = [];
fs.readFileSync(path.join(__dirname, '../../index.d.ts'), 'utf8').replace(
  /(?:Always returns `(?!undefined)(.*?)`.*\n)?export function (\w+)/g,
  (found, value, name) => rows.push([name, value]));

test('the exports are the 163 names in order, as ordinary properties', () => {
  const names = Object.keys(helper);
  // Programs may rely on the order: a new name is the last one.
  assert.strictEqual(createHash('sha1').update(names.join()).digest('hex'),
    '4542cda59af86f9ed139476a4dfdfc86713bbec6');
  assert.deepStrictEqual(names.sort(), rows.map(([name]) => name).sort());
  for (const name of names) {
    assert.strictEqual(helper[name].name, name);
    const property = Object.getOwnPropertyDescriptor(helper, name);
    assert(property.writable && property.configurable, name);
  }
});

test('a setter in the way of a name leaves out that name alone', () => {
  assert.strictEqual(printed(`
    const setter = { set() { throw new Error('from script'); } };
    Object.defineProperty(Object.prototype, 'System', setter);
    const helper = require(process.env.KORVANE_MODULE);
    console.log(Object.keys(helper).length, helper.System);`),
  '162 undefined\n');
});

const throwing = () => { throw new Error('from script'); };
const { proxy, revoke } = Proxy.revocable(() => {}, {});
revoke();
const notes = [];
const noting = (note) => ({ toString() { notes.push(note); return note; } });

const oddValues = [
  Symbol('odd'), { toString: throwing, valueOf: throwing }, Object.create(null),
  new String('boxed'), NaN, Infinity, -Infinity, 2 ** 53, '\ud800',
  '中\ud800'.repeat(2 ** 19), 'a\udc00\0b', throwing, proxy, null, -1.5, true,
  undefined,
];

// Every call's arguments: none, one odd value, or two, within four places.
function* argumentLists() {
  yield [];
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

const oneOf = (...values) => (value) => values.includes(value);
const zeros = (...keys) => (value) => (
  Object.keys(value).join() === keys.join() &&
    keys.every((key) => value[key] === 0));
// What the functions that do something may return here.
const working = {
  System: (value) => value === undefined || typeof value === 'string',
  attachClipBoard: oneOf(0),
  bringWindowToTop: oneOf(false),
  compareStr: Number.isInteger,
  enableWindow: oneOf(undefined),
  getCursorPos: zeros('x', 'y'),
  getDisplayWindowRect: zeros('width', 'height'),
  getDriveType: (value, args) => (
    value === (typeof args[0] === 'string' ? 0 : undefined)),
  getKeyState: oneOf(0, 1),
  getMonitorDPIFactor: oneOf(1),
  getPeerID: (value) => /^([0-9A-F]{12})?007V$/.test(value),
  getSysDPIFactor: oneOf(1),
  getWindowRect: (value, args) => (args.length === 0 ? value === undefined
    : zeros('x', 'y', 'width', 'height')(value)),
  isPingHostValid: oneOf(0, 1),
  isWindowHandle: oneOf(false),
  setWindowPos: oneOf(false),
  showWindow: oneOf(false),
};
working.getTaskTypeFromUrl = working.getDriveType;
// These start a process or print a trace: a few odd values are enough.
const slow = ['System', 'getLogicalDriveStrings', 'getPeerID'];

test('nothing throws, and a function returns what it may', () => {
  for (const [name, value] of rows) {
    const isAllowed = working[name] || oneOf(value && JSON.parse(value));
    for (const args of argumentLists()) {
      if (slow.includes(name) && args.length > 1) continue;
      let result;
      try {
        result = helper[name](...args);
      } catch (error) {
        assert.fail(`${name} threw`);
      }
      assert(isAllowed(result, args), `${name} returned ${String(result)}`);
    }
  }
});

test('only asyncShellExecuteAndWait reads objects, after its checks', () => {
  const skipped = ['isPingHostValid', 'setDefaultDPI'];
  const objects = ['a', 'b', 'c'].map(noting);
  for (const [name] of rows.filter((row) => !skipped.includes(row[0]))) {
    helper[name](...objects);
    helper[name](...objects, 'no function');
    assert.deepStrictEqual(notes.splice(0), [], name);
    helper[name](...objects, () => {});
    assert.strictEqual(notes.splice(0).join(''),
      name === 'asyncShellExecuteAndWait' ? 'abc' : '', name);
  }
});

test('setters on the prototypes of lists and objects do no harm', () => {
  const setter = { set: throwing, configurable: true };
  Object.defineProperty(Array.prototype, 0, setter);
  Object.defineProperty(Object.prototype, 'x', setter);
  try {
    check('attachClipBoard', [() => {}], 0);
    helper.getCursorPos();
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
    'attachClipBoard(Object.defineProperty(list, 0, set) && Object)',
    'getCursorPos(Object.defineProperty(Object.prototype, "x", set))'];
  for (const code of calls) {
    const sandbox = { helper, forever, Object, set, list: Array.prototype };
    assert.throws(() => vm.runInNewContext(`
      try { helper.${code}; ran = true; } catch (e) { ran = true; }
      finally { ran = true; } for (;;) ran = true;`, sandbox, { timeout: 20 }),
    /timed out/, code);
    delete Object.prototype.x;
    delete Array.prototype[0];
    assert.strictEqual(sandbox.ran, undefined, code);
  }
});
