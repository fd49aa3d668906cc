'use strict';

// A test runner for the product's runtime, which brings none. A file of tests
// calls test() and check(); a failure shows the lines that lead to it, its
// row's among them.

const assert = require('assert');
const fs = require('fs');
const os = require('os');
const path = require('path');
const { execFileSync } = require('child_process');
const { inspect } = require('util');

const helper = require(process.env.KORVANE_MODULE);

function test(name, body) {
  try {
    body();
  } catch (error) {
    console.error(`FAILED: ${name}\n${error.stack}`);
    process.exitCode = 1;
  }
}

// One row: calls a function of the module and compares what it returns.
function check(name, args, want) {
  const got = inspect(helper[name](...args));
  assert.strictEqual(got, inspect(want), `${name} ${inspect(args)}: ${got}`);
}

// One that goes with the process.
function enterTemporaryFolder() {
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), 'korvane-'));
  process.chdir(folder);
  process.on('exit', () => execFileSync('rm', ['-rf', folder]));
}

const openDescriptors = () => fs.readdirSync('/proc/self/fd').length;

module.exports = {
  assert, check, enterTemporaryFolder, helper, openDescriptors, test,
};
