'use strict';

// Every function is called again and again, KORVANE_CALLS times: memory and
// descriptors stay what they were. Runs on a display.

const {
  assert, helper, openDescriptors, temporaryFolder, test,
} = require('../script/harness');
const { bytesInUse, complete, createWindow } =
  require(process.env.KORVANE_ADDON);

process.chdir(temporaryFolder());

const calls = Number(process.env.KORVANE_CALLS) || 1000;
const display = process.env.DISPLAY;
const window = createWindow();
// Arguments of functions that do something, and those that others may test.
const tested = [['a', 'b', 'c', () => {}], ['a', 'b', () => {}], ['a', 1]];
const given = {
  System: [':'],
  attachClipBoard: [() => {}],
  bringWindowToTop: [window],
  compareStr: ['a', 'ä'],
  enableWindow: [window, true],
  getKeyState: [65],
  getWindowRect: [window],
  isPingHostValid: ['http://localhost/'],
  isWindowHandle: [window],
  moveWindow: [window, 1, 2, 3, 4, true],
  setWindowPos: [window, 0, 1, 2, 3, 4, 3],
  showWindow: [window, 5],
};

function bytesUsed() {
  global.gc();
  return process.memoryUsage().heapUsed + bytesInUse();
}

// The bytes that a call adds: the least of three rounds, as the engine compiles
// in another.
function growth(count, call) {
  let least = Infinity;
  for (let round = 0; round < 3; round += 1) {
    const before = bytesUsed();
    for (let i = 0; i < count; i += 1) call();
    least = Math.min(least, bytesUsed() - before - 2000);
  }
  return least / count;
}

function keeps(least, most, count, call) {
  const before = openDescriptors();
  const bytes = growth(count, call);
  assert(bytes >= least && bytes <= most, `a call keeps ${bytes} bytes`);
  assert.strictEqual(openDescriptors(), before);
}

for (const name of Object.keys(helper)) {
  test(name, () => {
    // With a display these keep a connection a call, by design.
    if (/DPIFactor/.test(name)) process.env.DISPLAY = '';
    const lists = given[name] ? [given[name]] : tested;
    const call = () => lists.forEach((args) => helper[name](...args));
    // These start a process.
    const slow = /^System$|DriveStrings$/.test(name) ? 50 : 1;
    // A registration is kept; sanitizers do not count its bytes.
    const kept = name === 'attachClipBoard' && bytesInUse() > 0;
    keeps(kept ? 30 : -Infinity, kept ? 500 : 8,
      Math.ceil(calls / 3 / slow), call);
    process.env.DISPLAY = display;
  });
}

test('completions', () => {
  const holders = ['no isolate', 'no function', () => {}];
  keeps(-Infinity, 8, calls, () => [0, 1, 2, 3, 4].forEach((row) => (
    holders.forEach((holder) => complete(row, holder)))));
});
