'use strict';

// The window functions on a real server: what a script does to a window is
// what another client of the display reads afterwards.

const { execFileSync, spawnSync } = require('child_process');
const { assert, check, helper, test } = require('../script/harness');

const [window, other, gone] = ['WINDOW', 'OTHER', 'GONE'].map(
  (name) => Number(process.env[name]));
const ask = (...args) => execFileSync('xwininfo', args, { encoding: 'utf8' });

function state() {
  const text = ask('-id', window);
  return ['Absolute upper-left X', 'Absolute upper-left Y', 'Width', 'Height',
    'Map State'].map((label) => (
    text.match(`${label}: +(\\S+)`)[1])).join(' ');
}

test('a window does what the script says', () => {
  const cases = [
    ['setWindowPos', [window, 0, 1, 1, 1, 1], false, '10 20 100 80 IsUnMapped'],
    ['setWindowPos', [window, 0, -5.9, 4.9, 301.5, 2 ** 32 + 200, 0x40], false,
      '-5 4 301 200 IsViewable'],
    ['showWindow', [window, 0], false, '-5 4 301 200 IsUnMapped'],
    ['showWindow', [window, 5], false, '-5 4 301 200 IsViewable'],
    ['moveWindow', [window, 'a', 10, 90, 91, true], undefined,
      '0 10 90 91 IsViewable'],
    ['isWindowHandle', [window], true, '0 10 90 91 IsViewable'],
    ['enableWindow', [window, true], false, '0 10 90 91 IsViewable'],
  ];
  for (const [name, args, answer, want] of cases) {
    check(name, args, answer);
    const got = state();
    assert.strictEqual(got, want, `${name}(${args}): want ${want}, got ${got}`);
  }
  assert.deepStrictEqual(helper.getWindowRect(window),
    { x: 0, y: 20, width: 90, height: 91 });
  const above = () => Number(ask('-root', '-tree').match(/0x\w+ "test/)[0]
    .split(' ')[0]);
  check('bringWindowToTop', [window], true);
  assert.strictEqual(above(), window);
  check('setWindowPos', [other, window, 0, 0, 0, 0, 3], false);
  assert.strictEqual(above(), other);
});

test('a window that is gone ends the process, window 0 does not', () => {
  const ends = ['isWindowHandle(gone)', 'getWindowRect(gone)',
    'enableWindow(gone, true)', 'moveWindow(gone, 1, 2, 3, 4, true)',
    'setWindowPos(gone, 0, 1, 2, 3, 4, 0)', 'showWindow(gone, 5)',
    'bringWindowToTop(gone)', 'moveWindow("a", 1, 2, 3, 4, true)'];
  const lives = ['isWindowHandle(0)', 'getWindowRect(0)',
    'enableWindow(0, true)', 'showWindow(gone, 1)', 'getWindowRect("a")'];
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
  const here = (id) => `xwininfo -id ${id} >/dev/null 2>&1 && echo here`;
  check('System', [here(window)], 'here\n');
  check('System', [here(gone)], '');
});
