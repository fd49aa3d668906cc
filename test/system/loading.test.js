'use strict';

// The module's file as the dynamic loader and native hosts see it.

const path = require('path');
const { execFileSync } = require('child_process');
const { assert, test } = require('../script/harness');

const { KORVANE_MODULE } = process.env;
const print = (...command) => execFileSync(command[0], command.slice(1),
  { encoding: 'utf8' });
// The names of dynamic symbols, without parameters, sorted.
const symbols = (which, file = KORVANE_MODULE) => print('nm', '-DC',
  '--format=just-symbols', which, file)
  .replace(/[[(@].*/g, '').trim().split('\n').sort();

test('the runtime, the host, X11, C and C++ bring all that is missing', () => {
  const known = /\[(lib(korvane_host|X11|stdc\+\+|gcc_s|c|m)\.so|ld-linux)/;
  const wanted = print('readelf', '-d', KORVANE_MODULE).match(/NEEDED.*/g);
  assert.deepStrictEqual(wanted.filter((line) => !known.test(line)), []);
});

test('of ours exactly the host functions are from outside', () => {
  const host = symbols('--defined-only',
    path.join(KORVANE_MODULE, '../libkorvane_host.so'));
  const imported = symbols('--undefined-only');
  assert.deepStrictEqual(imported.filter((name) => host.includes(name)), [
    'qk::crypto::base64::encode', 'qk::set_last_error', 'string_2_wstring',
    'string_to_wstring_with_code_page', 'wstring_2_string', 'wstring_2_utf8']);
  // Several threads may open displays, with older libraries too.
  assert(imported.includes('XInitThreads'));
});

test('what is exported are the 124 public names', () => {
  const exported = new Set(symbols('--defined-only'));
  // Besides, runtimes with workers look for one; the product's has none.
  const { modules } = process.versions;
  assert.strictEqual(exported.delete(`node_register_module_v${modules}`),
    modules !== '57');
  assert.strictEqual(exported.size, 124, [...exported].join(' '));
});
