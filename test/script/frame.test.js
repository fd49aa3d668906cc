'use strict';

// What the module registers, before any function is called.

const fs = require('fs');
const path = require('path');
const { execFileSync } = require('child_process');
const { assert, helper, runtime, temporaryFolder, test } = require('./harness');
const { names } = require('./answers');

test('the exports are the 163 names in order', () => {
  assert.strictEqual(names.length, 163);
  assert.deepStrictEqual(Object.keys(helper), names);
});

test('every function carries its name and can be replaced', () => {
  for (const name of names) {
    assert.strictEqual(typeof helper[name], 'function');
    assert.strictEqual(helper[name].name, name);
    const property = Object.getOwnPropertyDescriptor(helper, name);
    assert(property.writable && property.configurable, name);
  }
});

test('the module loads from a folder with nothing but its two files', () => {
  const folder = temporaryFolder();
  const built = path.dirname(process.env.KORVANE_MODULE);
  const files = ['KorvaneHelper.node', 'libkorvane_host.so'];
  for (const file of files) {
    fs.copyFileSync(path.join(built, file), path.join(folder, file));
  }
  const script = 'console.log(Object.keys(require("./KorvaneHelper")).length)';
  const printed = execFileSync(runtime[0], [...runtime.slice(1), '-e', script],
    { cwd: folder, env: { ASAN_OPTIONS: 'detect_leaks=0' }, encoding: 'utf8' });
  assert.strictEqual(printed, '163\n');
});

test('a setter in the way of a name leaves out that name alone', () => {
  const script = `
    const setter = { set() { throw new Error('from script'); } };
    Object.defineProperty(Object.prototype, 'System', setter);
    const helper = require(process.env.KORVANE_MODULE);
    console.log(Object.keys(helper).length, helper.System);`;
  const printed = execFileSync(runtime[0], [...runtime.slice(1), '-e', script],
    { encoding: 'utf8' });
  assert.strictEqual(printed, '162 undefined\n');
});
