'use strict';

// All functions together: their names, what each returns for any values, and
// that nothing throws. Runs without network and without a display.

const { execFileSync } = require('child_process');
const { createHash } = require('crypto');
const fs = require('fs');
const path = require('path');
const vm = require('vm');
const { assert, enterTemporaryFolder, helper, test } = require('./harness');

enterTemporaryFolder();

const names = Object.keys(helper);
const page = (name) => fs.readFileSync(
  path.join(__dirname, '../..', name), 'utf8');
// What each may return here, as JSON: a constant by its description.
const allowed = {};
page('index.d.ts').replace(
  /(?:(?:Always r|R)eturns `(.*?)`.*\n)?export function (\w+)/g,
  (found, value = 'undefined', name) => { allowed[name] = [value]; });

test('the exports are the 163 names in order, as ordinary properties', () => {
  // Programs may rely on the order: a new name is the last one.
  assert.strictEqual(createHash('sha1').update(names.join()).digest('hex'),
    '4542cda59af86f9ed139476a4dfdfc86713bbec6');
  for (const name of names) {
    assert.strictEqual(helper[name].name, name);
    const property = Object.getOwnPropertyDescriptor(helper, name);
    assert(property.writable && property.configurable, name);
  }
});

test('they are described, and nothing else', () => {
  assert.deepStrictEqual(Object.keys(allowed).sort(), [...names].sort());
  const described = page('docs/script-api.md').match(/\w+/g);
  assert.deepStrictEqual(names.filter((name) => !described.includes(name)), []);
});

test('a setter in the way leaves out its name or property alone', () => {
  assert.strictEqual(String(execFileSync('sh', ['-c', // may be emulated
    '$KORVANE_EMULATOR "$0" -e "$1"', process.execPath, `
    const setter = { configurable: true, set() { throw new Error('script'); } };
    Object.defineProperty(Object.prototype, 'System', setter);
    const helper = require(process.env.KORVANE_MODULE);
    Object.defineProperty(Object.prototype, 'x', setter);
    Object.defineProperty(Array.prototype, 0, setter);
    const found = Object.keys(helper.getCursorPos()).join();
    helper.attachClipBoard(() => {});
    delete Array.prototype[0];
    console.log([Object.keys(helper).length, helper.System, found].join());`])),
  '162,,y\n');
});

// The functions that do something.
for (const [working, ...results] of [
  ['attachClipBoard compareStr isPingHostValid', '0'],
  ['getMonitorDPIFactor getSysDPIFactor', '1'],
  ['getKeyState', '0', '1'],
  ['getDriveType getTaskTypeFromUrl', 'undefined', '0'],
  ['bringWindowToTop isWindowHandle setWindowPos showWindow', 'false'],
  ['System', 'undefined', '""'],
  ['getPeerID', '"007V"'],
  ['getCursorPos', '{"x":0,"y":0}'],
  ['getDisplayWindowRect', '{"width":0,"height":0}'],
  ['getWindowRect', 'undefined', '{"x":0,"y":0,"width":0,"height":0}'],
]) working.split(' ').forEach((name) => { allowed[name] = results; });

const throwing = () => { throw new Error('from script'); };
const { proxy, revoke } = Proxy.revocable(() => {}, {});
revoke();

const oddValues = [
  Symbol('odd'), { toString: throwing, valueOf: throwing }, Object.create(null),
  new String('boxed'), NaN, Infinity, -Infinity, 2 ** 53, '\ud800',
  '中\ud800'.repeat(2 ** 19), 'a\udc00\0b', throwing, proxy, null, -1.5, true,
  undefined,
];

test('nothing throws, and a function returns what it may', () => {
  assert.strictEqual(helper.getDriveType('x'), 0);
  assert.strictEqual(helper.getTaskTypeFromUrl('x'), 0);
  for (const name of names) {
    oddValues.forEach((value, row) => [0, 1, 2, 3, 6, 7].forEach((count) => {
      const values = new Array(count).fill(value);
      for (const args of [values, [...values, throwing]]) {
        const result = JSON.stringify(helper[name](...args)) || 'undefined';
        assert(allowed[name].includes(result),
          `${name} returned ${result} for ${count} of odd value ${row}`);
      }
    }));
  }
});

test('few functions read objects, and after their checks', () => {
  const notes = [];
  for (const name of names) {
    const objects = ['a', 'b', 'c'].map((note) => (
      { toString() { notes.push(name + note); return note; } }));
    helper[name](...objects, 'no function');
    helper[name](...objects, Object.assign(() => {}, objects[0]));
  }
  assert.strictEqual(notes.join(), 'setDefaultDPIa,setDefaultDPIa,' +
    'isPingHostValida,isPingHostValida,asyncShellExecuteAndWaita,' +
    'asyncShellExecuteAndWaitb,asyncShellExecuteAndWaitc');
});

test('nothing of a script that is being terminated runs on', () => {
  const forever = () => { for (;;); };
  const value = { toString: forever, valueOf: forever };
  const set = { set: forever, configurable: true };
  for (const code of ['isPingHostValid(value)', 'setDefaultDPI(value)',
    'asyncShellExecuteAndWait(value, 1, 2, Object)',
    'asyncShellExecuteAndWait(1, value, value, Object)',
    'attachClipBoard(forever)',
    'attachClipBoard(Object.defineProperty(Array.prototype, 0, set) && Object)',
    'getCursorPos(Object.defineProperty(Object.prototype, "x", set))']) {
    const sandbox = { helper, forever, value, set, Array, Object };
    assert.throws(() => vm.runInNewContext(`
      try { helper.${code}; } finally { ran = true; }`, sandbox,
    { timeout: 20 }), /timed out/, code);
    delete Object.prototype.x;
    delete Array.prototype[0];
    assert.strictEqual(sandbox.ran, undefined, code);
  }
});
