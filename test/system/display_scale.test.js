'use strict';

// The display scale on screens of several sizes. The X server makes the
// physical width: pixels x 25.4 / dots per inch.

const { execFileSync } = require('child_process');
const { assert, test } = require('../script/harness');

// What expressions over the module, `m`, are on a screen.
const on = (screen, ...expressions) => JSON.parse(execFileSync('xvfb-run', [
  '-a', '-s', `-screen 0 ${screen}`, process.execPath, '-p', `
  const m = require(process.env.KORVANE_MODULE);
  JSON.stringify([${expressions}])`]));

test('the factor is the screen\'s scale, truncated to two places', () => {
  for (const [screen, factor] of [
    ['2560x1440x24 -dpi 128', 1.33],
    ['1000x1000x24 -dpi 100', 1.04],
    ['640x480x24 -dpi 100000', 1],  // no physical width
  ]) {
    assert.deepStrictEqual(on(screen, 'm.getMonitorDPIFactor()',
      'm.getSysDPIFactor()'), [factor, factor]);
  }
});

test('a call leaves a connection open, until the server has no more', () => {
  const count = 'require("fs").readdirSync("/proc/self/fd").length';
  assert.deepStrictEqual(on('1920x1080x24 -dpi 192',
    `-${count} + (m.getSysDPIFactor(), ${count})`,
    '(new Array(300).fill().map(m.getSysDPIFactor), m.getMonitorDPIFactor())',
    'm.getDisplayWindowRect()'), [1, 1, { width: 0, height: 0 }]);
});

test('setDefaultDPI sets the reference', () => {
  const rows = [
    // the reference, the factor on a screen of 96 dots per inch
    ['120.9', 0.8], ['"120"', 0.8], ['[120]', 0.8], ['true', 96],
    ['0', 1], ['-120', 1], ['0.9', 1], ['NaN', 1], ['"x"', 1], ['', 1],
    ['Symbol()', 1], ['-1e300', 1], ['{valueOf() { throw 1; }}', 1],
    ['Infinity', 0], ['2 ** 31', 0], ['4294967296 + 120', 0],
  ];
  on('1920x1080x24 -dpi 96', ...rows.map(([reference]) => `(m.setDefaultDPI(96),
    m.setDefaultDPI(${reference}), m.getMonitorDPIFactor())`)).forEach(
    (factor, i) => assert.strictEqual(factor, rows[i][1], rows[i][0]));
});
