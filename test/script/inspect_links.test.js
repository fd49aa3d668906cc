'use strict';

// The program that shows what links hold.

const { spawnSync } = require('child_process');
const { assert, test } = require('./harness');

const hash = '0123456789abcdef0123456789abcdef';

test('links are shown with their fields, one JSON object a line', () => {
  const rows = [
    { link: 'FTP://u:p@h:2121/d/a%20b.zip?x#f', kind: 'URL', name: 'a b.zip',
      scheme: 'FTP://', user: 'u', password: 'p', host: 'h', port: 2121,
      path: '/d/a%20b.zip?x', printed: 'FTP://u:p@h:2121/d/a%20b.zip?x' },
    { link: `ed2k://|file|中😀|1|${hash}|p=${hash}|s=http://x|sources,h:80|/`,
      kind: 'ed2k link', name: '中😀', size: 1, hash, partHashes: [hash],
      sources: ['h:80'], webAddress: 'http://x' },
    { link: `magnet:?xt=urn:btih:${hash}89abcdef&dn=%E4%B8%AD&tr=u`,
      kind: 'magnet link', infoHash: `${hash}89abcdef`, name: '中',
      trackers: ['u'] },
    { link: 'ed2k://|x|', error: 'no ed2k link to a file' },
  ];
  const input = rows.map(({ link }) => `${link}\r\n\n`).join('');
  const { stdout, status } = spawnSync(process.env.KORVANE_INSPECTOR,
    ['--json'], { input, encoding: 'utf8' });
  assert.deepStrictEqual(JSON.parse(`[${stdout.trim().split('\n')}]`), rows);
  assert.strictEqual(status, 1);
});
