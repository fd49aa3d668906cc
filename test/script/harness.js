'use strict';

// A test runner for the product's runtime, which brings none. A file of tests
// calls test() and check(); arguments name the tests to run by parts of their
// names. A failure shows the lines that lead to it, its row's among them.

const assert = require('assert');
const fs = require('fs');
const os = require('os');
const path = require('path');
const { execFileSync } = require('child_process');
const { inspect } = require('util');

const helper = require(process.env.KORVANE_MODULE);
const wanted = process.argv.slice(2);

function fail(error) {
  const lines = error.stack.match(/[\w.]+\.test\.js:\d+/g) || [];
  console.error(`FAILED ${lines.reverse().join(' ')}: ${error.message}`);
  process.exitCode = 1;
}

function test(name, body) {
  if (wanted.length > 0 && !wanted.some((part) => name.includes(part))) return;
  try {
    body();
  } catch (error) {
    fail(error);
  }
}

// One row: calls a function of the module and compares what it returns.
function check(name, args, want) {
  const got = inspect(helper[name](...args));
  if (got === inspect(want)) return;
  fail(new Error(`${name}(${args.map((arg) => inspect(arg)).join(', ')}) ` +
    `returned ${got}, not ${inspect(want)}`));
}

// The command that starts this runtime again: behind an emulator for another
// architecture's.
const runtime = [process.env.KORVANE_EMULATOR, process.execPath]
  .filter(Boolean);

// What a script prints in a process of its own.
const printed = (script) => execFileSync(runtime[0],
  [...runtime.slice(1), '-e', script], { encoding: 'utf8' });

// A folder that goes with the process.
function temporaryFolder() {
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), 'korvane-'));
  process.on('exit', () => {
    process.chdir('/');
    execFileSync('rm', ['-rf', folder]);
  });
  return folder;
}

const openDescriptors = () => fs.readdirSync('/proc/self/fd').length;

module.exports = {
  assert, check, helper, openDescriptors, printed, runtime, temporaryFolder,
  test,
};
