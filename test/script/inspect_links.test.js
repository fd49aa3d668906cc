'use strict';

// The example that inspects links, run as a program.

const fs = require('fs');
const path = require('path');
const readline = require('readline');
const { spawn, spawnSync } = require('child_process');
const { assert, runtime, test } = require('./harness');

const program = path.join(__dirname,
  '../../examples/inspect_links/inspect_links.js');
const hash = '0123456789abcdef0123456789abcdef';

function run(args, input) {
  return spawnSync(runtime[0], [...runtime.slice(1), program, ...args],
    { input, encoding: 'utf8' });
}

test('each format is told with its fields', () => {
  const cases = [
    ['FTP://u%201:p@h:2121/d/a%20b.zip?x#f', {
      kind: 'url', name: 'a b.zip', scheme: 'FTP://', user: 'u 1',
      password: 'p', host: 'h', port: 2121, path: '/d/a%20b.zip?x',
      printed: 'FTP://u%201:p@h:2121/d/a%20b.zip?x', supported: true }],
    ['peer://h', {
      kind: 'url', name: 'h', scheme: 'peer://', host: 'h', port: 3077,
      path: '/', printed: 'peer://h/', supported: false }],
    [`ed2k://|file|中😀%20.bin|100|${hash}|/`,
      { kind: 'ed2k', name: '中😀%20.bin', size: 100, hash }],
    [`magnet:?xt=urn:btih:${hash}89abcdef`,
      { kind: 'magnet', infoHash: `${hash}89abcdef` }],
    ['korvane://QUE=', { kind: 'private' }],
    ['hello', { error: 'no link' }],
    ['foo://h', { error: 'a scheme that nothing here loads' }],
    [`http://${'h'.repeat(257)}/`, { error: 'a part of the URL is too long' }],
    ['ed2k://|x|', { error: 'no ed2k link to a file' }],
  ];
  const { stdout, status } = run(['--json', ...cases.map(([link]) => link)]);
  assert.deepStrictEqual(
    stdout.trim().split('\n').map((line) => JSON.parse(line)),
    cases.map(([link, want]) => Object.assign({ link }, want)));
  assert.strictEqual(status, 1);
});

test('a table for people, one line for a text that is no link', () => {
  const { stdout, stderr, status } = run([],
    `magnet:?xt=urn:btih:${hash}89abcdef\n\n  \nno "link"\n`);
  assert.strictEqual(stdout, `magnet:?xt=urn:btih:${hash}89abcdef\n` +
    '  kind             magnet link\n' +
    `  info hash        ${hash}89abcdef\n` +
    'not a link (no link): "no \\"link\\""\n');
  assert.strictEqual(stderr, '');  // no progress where nobody watches
  assert.strictEqual(status, 1);
});

// 100,000 links through pipes: memory at the end is what it was after 20,000.
const child = spawn(runtime[0],
  [...runtime.slice(1), program, '--json']);
const peak = () => Number(fs.readFileSync(`/proc/${child.pid}/status`, 'utf8')
  .match(/VmHWM:\s+(\d+) kB/)[1]);
let count = 0;
let early = 0;
readline.createInterface({ input: child.stdout }).on('line', () => {
  count += 1;
  if (count === 20000) early = peak();
  if (count < 100000) return;
  assert(peak() - early < 40000, `${early} kB, then ${peak()} kB`);
  child.stdin.end();
});
child.on('exit', (code) => assert.deepStrictEqual([count, code], [100000, 0]));
(function feed(sent) {
  if (sent === 100000) return;
  const links = Array.from({ length: 1000 }, (_, i) => (
    `http://h.example/dir/file${sent + i}.zip?x=1\n`));
  child.stdin.write(links.join(''), () => feed(sent + 1000));
}(0));
