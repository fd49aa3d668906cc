'use strict';

// What a function answers when a call that it makes fails: each fails in turn
// until none does. Nothing stays open, and the next call answers as ever.

const fs = require('fs');
const { assert, helper, test } = require('../script/harness');

const root = Number(/0x\w+/.exec(helper.System('xwininfo -root')));

function attachClipBoard() {
  let links;
  const answer = helper.attachClipBoard((one, list) => { links = list; });
  return [answer, links];
}

const rows = [
  ['popen', '', 'System', 'echo x'],
  ['fread', '', 'System', 'echo x'],
  ['new', '', 'System', 'echo x'],
  ['socket', '007V', 'getPeerID'],
  ['ioctl', '007V', 'getPeerID'],
  ['new', undefined, 'getPeerID'],
  ['new', 0, 'isPingHostValid', '127.000000000000.0.1'],
  ['new', undefined, 'getTaskTypeFromUrl', 'http://host.example/'],
  ['new', [0, undefined], attachClipBoard],
  ['iconv_open', [0, ['']], attachClipBoard],
  ['iconv', [0, ['']], attachClipBoard],
  ['XOpenDisplay', 1, 'getMonitorDPIFactor'],
  ['XOpenDisplay', 1, 'getSysDPIFactor'],
  ['XOpenDisplay', { width: 0, height: 0 }, 'getDisplayWindowRect'],
  ['XOpenDisplay', { x: 0, y: 0 }, 'getCursorPos'],
  ['XOpenDisplay', { x: 0, y: 0, width: 0, height: 0 }, 'getWindowRect', root],
  ['XOpenDisplay', false, 'isWindowHandle', root],
  ['XOpenDisplay', false, 'bringWindowToTop', root],
];

const held = () => fs.readdirSync('/proc/self/fd').length +
  fs.readFileSync('/proc/thread-self/children', 'utf8');

for (const [fault, want, callee, ...args] of rows) {
  test(`${fault} fails in ${callee.name || callee}`, () => {
    const call = () => (callee.name ? callee() : helper[callee](...args));
    const usual = call();
    assert.notDeepStrictEqual(usual, want);
    for (let failing = 1; ; failing += 1) {
      const before = held();
      process.env.FAULT = `${fault} ${failing}`;
      const got = call();
      if ('FAULT' in process.env) {
        assert(failing > 1, 'was not called');
        break;
      }
      assert.deepStrictEqual(got, want);
      assert.strictEqual(held(), before);
      assert.deepStrictEqual(call(), usual);
    }
    delete process.env.FAULT;
  });
}
