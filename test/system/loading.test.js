'use strict';

// The module's file as the dynamic loader and native hosts see it.

const { execFileSync } = require('child_process');
const { assert, test } = require('../script/harness');

const { KORVANE_MODULE } = process.env;
const print = (command) => execFileSync('sh', ['-c', command],
  { encoding: 'utf8' }).trim().split('\n');
// The names of dynamic symbols, without parameters.
const symbols = (which, file = KORVANE_MODULE) => print(`nm -DC ${which} \
  --format=just-symbols ${file} | sed 's/[[(@].*//' | LC_ALL=C sort -u`);

test('six host functions and known libraries bring what is missing', () => {
  const known = /\[(lib(korvane_host|X11|stdc\+\+|gcc_s|c|m)\.so|ld-linux)/;
  assert.deepStrictEqual(print(`readelf -d ${KORVANE_MODULE} | grep NEEDED`)
    .filter((line) => !known.test(line)), []);
  const host = symbols('--defined-only', `\`dirname ${KORVANE_MODULE}\`/lib*`);
  const imported = symbols('--undefined-only');
  assert.deepStrictEqual(imported.filter((name) => host.includes(name)), [
    'qk::crypto::base64::encode', 'qk::set_last_error', 'string_2_wstring',
    'string_to_wstring_with_code_page', 'wstring_2_string', 'wstring_2_utf8']);
  // Several threads may open displays, with older libraries too.
  assert(imported.includes('XInitThreads'));
});

test('what is exported are the 124 public names', () => {
  // And one that newer runtimes look for.
  const exported = symbols('--defined-only')
    .filter((name) => !name.startsWith('node_register_module_v'));
  assert.strictEqual(exported.length, 124, exported.join(' '));
});
