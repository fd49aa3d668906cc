'use strict';

// The module's file as the dynamic loader and native hosts see it.

const fs = require('fs');
const path = require('path');
const { execFileSync } = require('child_process');
const { assert, test } = require('../script/harness');

const moduleFile = process.env.KORVANE_MODULE;
const hostLibrary = path.join(path.dirname(moduleFile), 'libkorvane_host.so');
const run = (command, ...args) => execFileSync(command, args,
  { encoding: 'utf8', maxBuffer: 2 ** 26 });

// The dynamic symbols of a file as [name, type], versions cut off.
function symbols(file, ...options) {
  return run('nm', '-D', '--format=posix', ...options, file).trim().split('\n')
    .map((line) => line.split(' ').slice(0, 2))
    .map(([name, type]) => [name.replace(/@.*/, ''), type]);
}

const hostFunctions = ['wstring_2_string', 'wstring_2_utf8', 'string_2_wstring',
  'string_to_wstring_with_code_page', 'set_last_error', 'encode'];

test('the runtime, the host, X11, C and C++ bring all that is missing', () => {
  const wanted = run('readelf', '-d', moduleFile)
    .match(/NEEDED.*\[.*\]/g).map((line) => line.replace(/.*\[|\]/g, ''));
  const known = /^lib(korvane_host|X11|stdc\+\+|gcc_s|c|m)\.so|^ld-linux/;
  assert.deepStrictEqual(wanted.filter((name) => !known.test(name)), []);
  const libraries = run('ldd', moduleFile).match(/\/\S+(?= \()/g);
  const brought = new Set();
  for (const file of [process.execPath, ...libraries]) {
    symbols(file, '--defined-only').forEach(([name]) => brought.add(name));
  }
  const missing = symbols(moduleFile, '--undefined-only')
    .filter(([name, type]) => type === 'U' && !brought.has(name));
  assert.deepStrictEqual(missing, []);
});

test('displays may be opened by several threads, with older libraries too',
  () => assert(symbols(moduleFile, '--undefined-only')
    .some(([name]) => name === 'XInitThreads')));

test('the host functions come from the host library', () => {
  const isHostFunction = ([name]) => hostFunctions.some((word) => (
    name.includes(`${word.length}${word}`)));
  const imported = symbols(moduleFile, '--undefined-only')
    .filter(isHostFunction).map(([name]) => name);
  const defined = symbols(hostLibrary, '--defined-only')
    .map(([name]) => name);
  assert.strictEqual(imported.length, hostFunctions.length);
  for (const name of imported) assert(defined.includes(name), name);
});

test('a host library that is loaded already is the one called', () => {
  const encode = (preloaded) => execFileSync(process.env.KORVANE_CALL_MODULE,
    [moduleFile, 'x'], { encoding: 'utf8', env: { LD_PRELOAD: preloaded } });
  assert.strictEqual(encode(''), 'korvane://QUF4Wlo=');
  assert.strictEqual(encode(process.env.KORVANE_OTHER_HOST),
    'korvane://by the other host: AAxZZ');
});

test('the exported symbols are the public ones', () => {
  const exported = new Set(run('nm', '-DC', '--defined-only',
    '--format=just-symbols', moduleFile).replace(/[[(].*/g, '').trim()
    .split('\n').sort());
  // What runtimes with workers look for; the product's has none.
  const { modules } = process.versions;
  assert.strictEqual(exported.delete(`node_register_module_v${modules}`),
    modules !== '57');
  const list = fs.readFileSync(
    path.join(__dirname, '../data/exported_symbols.txt'), 'utf8');
  assert.deepStrictEqual([...exported], list.trim().split(/\s/));
});
