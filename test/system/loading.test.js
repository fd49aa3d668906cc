'use strict';

// The module's file as the dynamic loader and native hosts see it.

const path = require('path');
const { execFileSync } = require('child_process');
const { assert, test } = require('../script/harness');

const moduleFile = process.env.KORVANE_MODULE;
const run = (command, args, env) => execFileSync(command, args,
  { encoding: 'utf8', env });
// The names of dynamic symbols, without parameters, sorted.
const symbols = (which, file) => run('nm', ['-DC', '--format=just-symbols',
  which, file]).replace(/[[(@].*/g, '').trim().split('\n').sort();

test('the runtime, the host, X11, C and C++ bring all that is missing', () => {
  const known = /\[(lib(korvane_host|X11|stdc\+\+|gcc_s|c|m)\.so|ld-linux)/;
  const wanted = run('readelf', ['-d', moduleFile]).match(/NEEDED.*/g);
  assert.deepStrictEqual(wanted.filter((line) => !known.test(line)), []);
});

test('exactly the host functions come from the host library', () => {
  const host = symbols('--defined-only',
    path.join(path.dirname(moduleFile), 'libkorvane_host.so'));
  const imported = symbols('--undefined-only', moduleFile)
    .filter((name) => host.includes(name));
  assert.deepStrictEqual(imported, [
    'qk::crypto::base64::encode', 'qk::set_last_error', 'string_2_wstring',
    'string_to_wstring_with_code_page', 'wstring_2_string', 'wstring_2_utf8']);
});

test('displays may be opened by several threads, with older libraries too',
  () => assert(symbols('--undefined-only', moduleFile)
    .includes('XInitThreads')));

test('a host library that is loaded already is the one called', () => {
  const link = (preloaded) => run(process.env.KORVANE_CALLER,
    ['link', moduleFile, 'x'], { LD_PRELOAD: preloaded });
  assert.strictEqual(link(''), 'korvane://QUF4Wlo=\n');
  assert.strictEqual(link(process.env.KORVANE_OTHER_HOST),
    'korvane://by the other host: AAxZZ\n');
});

test('what is exported are the 124 public names', () => {
  // Besides, runtimes with workers look for one; the product's has none.
  const { modules } = process.versions;
  const init = `node_register_module_v${modules}`;
  const exported = new Set(symbols('--defined-only', moduleFile));
  assert.strictEqual(exported.delete(init), modules !== '57');
  assert.strictEqual(exported.size, 124, [...exported].join(' '));
});
