'use strict';

// The program that shows what links hold.

const { spawnSync } = require('child_process');
const { assert, test } = require('./harness');

const hash = '0123456789abcdef0123456789abcdef';

function run(args, input) {
  const { stdout, stderr, status } = spawnSync(
    process.env.KORVANE_INSPECTOR, args, { input, encoding: 'utf8' });
  return [stdout, stderr, status];
}

test('each format is shown with its fields, one JSON object a line', () => {
  const cases = [
    ['FTP://u%201:p@h:2121/d/a%20b.zip?x#f', {
      kind: 'URL', name: 'a b.zip', scheme: 'FTP://', user: 'u 1',
      password: 'p', host: 'h', port: 2121, path: '/d/a%20b.zip?x',
      printed: 'FTP://u%201:p@h:2121/d/a%20b.zip?x' }],
    [`ed2k://|file|中😀.bin|100|${hash}|h=AAAQEAYEAUDAOCAJBIFQYDIOB4IBCEQT|` +
      `p=${hash}:${hash}|s=http://x/y|sources,1.2.3.4:80|/`, {
      kind: 'ed2k link', name: '中😀.bin', size: 100, hash,
      rootHash: '000102030405060708090a0b0c0d0e0f10111213',
      partHashes: [hash, hash], sources: ['1.2.3.4:80'],
      webAddress: 'http://x/y' }],
    [`magnet:?xt=urn:btih:${hash}89abcdef&dn=%E4%B8%AD&tr=udp://a&tr=udp://b`, {
      kind: 'magnet link', infoHash: `${hash}89abcdef`, name: '中',
      trackers: ['udp://a', 'udp://b'] }],
    ['hello', { error: 'no link' }],
    ['foo://h', { error: 'unknown scheme' }],
    ['ed2k://|x|', { error: 'no ed2k link to a file' }],
  ];
  const [stdout, stderr, status] = run(['--json'],
    cases.map(([link]) => `${link}\r\n\n`).join(''));
  assert.deepStrictEqual(
    stdout.trim().split('\n').map((line) => JSON.parse(line)),
    cases.map(([link, want]) => Object.assign({ link }, want)));
  assert.deepStrictEqual([stderr, status], ['', 1]);
});

test('people get a table; control characters are shown, not sent', () => {
  assert.deepStrictEqual(
    run([`magnet:?xt=urn:btih:${hash}89abcdef&dn=%1B%5B31m`, '\x07']), [
      `magnet:?xt=urn:btih:${hash}89abcdef&dn=%1B%5B31m\n` +
        '  kind        magnet link\n' +
        `  infoHash    ${hash}89abcdef\n` +
        '  name        \\u001B[31m\n',
      'inspect_links: no link: \\u0007\n', 1]);
});

test('an unknown option is refused', () => {
  const [stdout, stderr, status] = run(['--foo']);
  assert.deepStrictEqual([stdout, status], ['', 2]);
  assert(stderr.includes('--foo'), stderr);
});
