'use strict';

// A test runner in a page, for runtimes that bring none. A file of tests calls
// test() and check(); the process ends with 1 if anything failed.

const assert = require('assert');
const fs = require('fs');
const os = require('os');
const path = require('path');
const { execFileSync } = require('child_process');

const helper = require(process.env.KORVANE_MODULE);
let failures = 0;

function test(name, body) {
  try {
    body();
  } catch (error) {
    failures += 1;
    console.error(`FAILED ${name}\n  ${error.message}`);
  }
}

// Calls one function of the module; says what went in, wanted and got.
function check(name, args, want) {
  const got = helper[name](...args);
  const show = (value) => (typeof value === 'string'
    ? JSON.stringify(value) : String(value));
  if (Object.is(got, want)) return;
  assert.fail(`${name}(${args.map(show).join(', ')}): ` +
    `want ${typeof want} ${show(want)}, got ${typeof got} ${show(got)}`);
}

// The command that starts this runtime again: behind an emulator for another
// architecture's.
const runtime = [process.env.KORVANE_EMULATOR, process.execPath]
  .filter(Boolean);

// A folder that goes with the process.
function temporaryFolder() {
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), 'korvane-'));
  process.on('exit', () => {
    process.chdir('/');
    execFileSync('rm', ['-rf', folder]);
  });
  return folder;
}

process.on('exit', (code) => {
  if (code === 0 && failures > 0) process.exitCode = 1;
});

module.exports = { assert, check, helper, runtime, temporaryFolder, test };
