'use strict';

// Every function is called again and again, KORVANE_CALLS times: memory and
// descriptors stay what they were. Runs on a display.

const fs = require('fs');
const { assert, helper, temporaryFolder, test } = require('../script/harness');
const { wellFormed } = require('../script/answers');
const { bytesInUse } = require(process.env.KORVANE_COMPLETIONS);

process.chdir(temporaryFolder());

const calls = Number(process.env.KORVANE_CALLS) || 1000;
// These start a process: they are called a fiftieth as often.
const slow = { System: 50, getLogicalDriveStrings: 50 };
// Bytes a call that stay by design: the registration of a function.
const kept = { attachClipBoard: 500 };
const root = parseInt(helper.System('xwininfo -root | grep -o 0x[0-9a-f]*'), 16);
const given = Object.assign({}, wellFormed, {
  System: [':'],
  attachClipBoard: [() => {}],
  bringWindowToTop: [root],
  compareStr: ['a', 'ä'],
  enableWindow: [root, true],
  getKeyState: [65],
  getTaskTypeFromUrl: ['http://h/'],
  getWindowRect: [root],
  isPingHostValid: ['http://localhost/'],
  isWindowHandle: [root],
  setWindowPos: [root, 0, 1, 2, 3, 4, 3],
  moveWindow: [root, 1, 2, 3, 4, true],
  showWindow: [root, 5],
});

const descriptors = () => fs.readdirSync('/proc/self/fd').length;

function bytesUsed() {
  global.gc();
  return process.memoryUsage().heapUsed + bytesInUse();
}

// The least that a third of the calls added: the engine compiles in another.
function growth(name, count) {
  let least = Infinity;
  let before = bytesUsed();
  for (let third = 0; third < 3; third += 1) {
    for (let i = 0; i < count; i += 1) helper[name](...given[name] || ['x', 1]);
    const after = bytesUsed();
    least = Math.min(least, after - before);
    before = after;
  }
  return least;
}

function checkGrowth(name) {
  const count = Math.ceil(calls / 3 / (slow[name] || 1));
  const before = descriptors();
  const bytes = growth(name, count);
  const most = ((kept[name] || 0) + 8) * count + 2000;
  assert(bytes <= most, `${count} calls keep ${bytes} bytes`);
  assert.strictEqual(descriptors(), before, 'open descriptors');
}

// On a display these keep a connection a call, as their own tests show.
const scale = ['getMonitorDPIFactor', 'getSysDPIFactor'];

test('the root window is there', () => assert(helper.isWindowHandle(root)));

for (const name of Object.keys(helper)) {
  if (scale.includes(name)) continue;
  test(`${name} keeps nothing`, () => checkGrowth(name));
}

test('the display\'s scale keeps nothing where there is no display', () => {
  delete process.env.DISPLAY;
  scale.forEach(checkGrowth);
});
