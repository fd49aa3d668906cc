'use strict';

// The display scale on screens of several sizes and without one. The X
// server makes the physical width: pixels x 25.4 / dots per inch.

const path = require('path');
const { execFileSync } = require('child_process');
const { assert, test } = require('../script/harness');

const withDisplay = path.join(__dirname, '../support/with_display');

// Evaluates script code with the module as `m`; answers what it returns.
function evaluate(launcher, code) {
  const script = `const m = require(process.env.KORVANE_MODULE);
    console.log(JSON.stringify(${code}))`;
  const [program, ...args] = [...launcher, process.execPath, '-e', script];
  return JSON.parse(execFileSync(program, args, { encoding: 'utf8' }));
}

const both = '[m.getMonitorDPIFactor(), m.getSysDPIFactor()]';

test('the factor is the screen\'s scale, truncated to two places', () => {
  const cases = [
    ['1920x1080x24', 96, 1], ['2560x1440x24', 128, 1.33],
    ['1280x1024x24', 72, 0.74], ['3840x2160x24', 192, 2],
    ['1000x1000x24', 100, 1.04], ['800x600x16', 45, 0.46],
    ['640x480x24', 100000, 1],  // no physical width
  ];
  for (const [screen, dpi, want] of cases) {
    const got = evaluate(
      [withDisplay, '--screen', screen, '--dpi', String(dpi)], both);
    assert.deepStrictEqual(got, [want, want], `${screen} at ${dpi}`);
  }
});

test('every question leaves one connection open', () => {
  const count = 'require("fs").readdirSync("/proc/self/fd").length';
  const [before, after] = evaluate([withDisplay],
    `[${count}, (${both}, m.getDPIAwareSupport(), ${count})]`);
  assert.strictEqual(after - before, 2);
});

test('300 questions use up the server\'s connections, for windows too', () => {
  const last = `(() => {
    for (let i = 0; i < 300; i += 1) m.getSysDPIFactor();
    return [m.getMonitorDPIFactor(), m.getDisplayWindowRect(),
      m.System("xwininfo -root 2>&1")];
  })()`;
  const [factor, size, stranger] = evaluate(
    [withDisplay, '--screen', '1920x1080x24', '--dpi', '192'], last);
  assert.deepStrictEqual([factor, size], [1, { width: 0, height: 0 }]);
  assert(/Maximum number of clients/.test(stranger), stranger);
});

test('a display that refuses the cookie is none', () => {
  const wrong = 'xauth -q add $DISPLAY . 0123 && exec "$@"';
  const got = evaluate([withDisplay, 'sh', '-c', wrong, 'sh'],
    `[${both}, m.getDisplayWindowRect(), m.getCursorPos(), m.getWindowRect(9),
      m.isWindowHandle(9), m.bringWindowToTop(9), m.getKeyState(9)]`);
  assert.deepStrictEqual(got, [[1, 1], { width: 0, height: 0 }, { x: 0, y: 0 },
    { x: 0, y: 0, width: 0, height: 0 }, false, false, 1]);
});

test('setDefaultDPI sets the reference', () => {
  const cases = [
    // the reference given, the factor on a screen of 96 dots per inch
    ['120', 0.8], ['120.9', 0.8], ['"120"', 0.8], ['48', 2], ['true', 96],
    ['[120]', 0.8], ['new Number(120)', 0.8], ['1', 96],
    ['0', 1], ['-120', 1], ['0.9', 1], ['NaN', 1], ['"x"', 1], ['undefined', 1],
    ['null', 1], ['false', 1], ['Symbol()', 1], ['-Infinity', 1], ['-1e300', 1],
    ['{valueOf() { throw 1; }}', 1],
    ['Infinity', 0], ['2 ** 53', 0], ['2 ** 31', 0], ['4294967296 + 120', 0],
  ];
  const factors = cases.map(([value]) => `(m.setDefaultDPI(96),
    m.setDefaultDPI(${value}), m.getMonitorDPIFactor())`);
  const got = evaluate([withDisplay, '--screen', '1920x1080x24'],
    `[${factors}, (m.setDefaultDPI(96), m.setDefaultDPI(), ${both}[0])]`);
  [...cases, ['', 1]].forEach(([value, want], index) => {
    assert.strictEqual(got[index], want, `setDefaultDPI(${value})`);
  });
});
