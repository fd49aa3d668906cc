'use strict';

// What the window functions do on a real server with windows that are not there.

const { spawnSync } = require('child_process');
const { assert, check, test } = require('../script/harness');

const gone = 0x7654321;  // an identifier that no client has used

test('a window that is gone ends the process, if the call asks for it', () => {
  const ends = ['isWindowHandle(gone)', 'getWindowRect(gone)',
    'enableWindow(gone, true)', 'moveWindow(gone, 1, 2, 3, 4, true)',
    'moveWindow(0, 1, 2, 3, 4, true)', 'moveWindow("a", 1, 2, 3, 4, true)',
    'setWindowPos(gone, 0, 1, 2, 3, 4, 0)', 'setWindowPos(0, 0, 1, 2, 3, 4, 0)',
    'setWindowPos(gone, 0, 0, 0, 0, 0, 0x43)', 'showWindow(gone, 0)',
    'showWindow(gone, 5)', 'showWindow(0, 5)', 'bringWindowToTop(gone)',
    'bringWindowToTop(0)'];
  const lives = ['isWindowHandle(0)', 'getWindowRect(0)', 'getWindowRect("a")',
    'enableWindow(0, true)', 'showWindow(gone, 1)', 'showWindow(gone, 3)',
    'showWindow(0, 3)', 'setWindowPos(gone, 0, 1, 2, 3, 4, 3)',
    'setWindowPos(0, 0, 1, 2, 3, 4, 3)'];
  const script = (call) => 'try { require(process.env.KORVANE_MODULE)' +
    `.${call.replace(/gone/, gone)}; } catch (error) { process.exit(9); }`;
  for (const [calls, status] of [[ends, 1], [lives, 0]]) {
    for (const call of calls) {
      const run = spawnSync(process.execPath, ['-e', script(call)]);
      assert.strictEqual(run.status, status, `${call}: ended with ` +
        `${run.status}, ${run.stderr}`);
      assert.strictEqual(/BadWindow/.test(run.stderr), status === 1, call);
    }
  }
});

test('another process can ask whether a window is there', () => {
  const here = (id) => `xwininfo ${id} >/dev/null 2>&1 && echo here`;
  check('System', [here('-root')], 'here\n');
  check('System', [here(`-id ${gone}`)], '');
});
