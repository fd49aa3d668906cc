'use strict';

// Every function is called again and again: memory and descriptors stay what
// they were. Runs on a display.

const {
  assert, helper, openDescriptors, temporaryFolder, test,
} = require('../script/harness');
const { bytesInUse, complete, createWindow } =
  require(process.env.KORVANE_ADDON);

process.chdir(temporaryFolder());

const window = createWindow(10, 20, 100, 80);
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

// The bytes that calls add.
function growth(count, call) {
  const used = () => {
    global.gc();
    return process.memoryUsage().heapUsed + bytesInUse();
  };
  const before = used();
  for (let i = 0; i < count; i += 1) call();
  return used() - before;
}

// What leaks does so in every round, while what the engine compiles beside
// shows in some.
function keepsNothing(count, call) {
  const before = openDescriptors();
  let bytes = Infinity;
  for (let round = 0; round < 10 && bytes > 4000; round += 1) {
    bytes = growth(count, call);
  }
  assert(bytes <= 4000, `${count} calls keep ${bytes} bytes`);
  assert.strictEqual(openDescriptors(), before);
}

for (const name of Object.keys(helper)) {
  // With a display some keep a connection a call, by design.
  if (/attachClipBoard|DPIFactor/.test(name)) continue;
  test(name, () => keepsNothing(
    /^System$|DriveStrings$/.test(name) ? 6 : 300,  // these start a process
    () => (given[name] ? [given[name]] : tested).forEach(
      (args) => helper[name](...args))));
}

test('completions', () => keepsNothing(300, () => (
  ['no isolate', 'no function', () => {}].forEach(complete))));

test('attachClipBoard keeps the function that it receives', () => {
  const bytes = growth(100, () => {
    const kept = new Array(1000).fill(1);
    helper.attachClipBoard(() => kept);
  });
  assert(bytes > 500000, `100 calls keep ${bytes} bytes`);
});
