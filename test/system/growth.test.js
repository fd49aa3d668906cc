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

const heapUsed = () => process.memoryUsage().heapUsed;

// The bytes that a call adds: what leaks does so in every round, while what the
// engine compiles beside shows in some.
function growth(count, call, ...used) {
  const bytes = () => {
    global.gc();
    return used.reduce((sum, use) => sum + use(), 0);
  };
  let least = Infinity;
  for (let round = 0; round < 10 && least > 0; round += 1) {
    const before = bytes();
    for (let i = 0; i < count; i += 1) call();
    least = Math.min(least, bytes() - before - 2000);
  }
  return least / count;
}

function keepsNothing(count, call) {
  const before = openDescriptors();
  const bytes = growth(count, call, heapUsed, bytesInUse);
  assert(bytes <= 8, `a call keeps ${bytes} bytes`);
  assert.strictEqual(openDescriptors(), before);
}

for (const name of Object.keys(helper)) {
  if (name === 'attachClipBoard') continue;
  test(name, () => {
    // With a display these keep a connection a call, by design.
    if (/DPIFactor/.test(name)) process.env.DISPLAY = '';
    const lists = given[name] ? [given[name]] : tested;
    const call = () => lists.forEach((args) => helper[name](...args));
    // These start a process.
    const slow = /^System$|DriveStrings$/.test(name) ? 50 : 1;
    keepsNothing(Math.ceil(calls / 3 / slow), call);
    process.env.DISPLAY = display;
  });
}

test('completions', () => {
  const holders = ['no isolate', 'no function', () => {}];
  keepsNothing(calls, () => [0, 1, 2, 3, 4].forEach((row) => (
    holders.forEach((holder) => complete(row, holder)))));
});

test('attachClipBoard keeps the function that it receives', () => {
  const bytes = growth(100, () => {
    const kept = new Array(1000).fill(1);
    helper.attachClipBoard(() => kept);
  }, heapUsed);
  assert(bytes > 5000, `a call keeps ${bytes} bytes`);
});
