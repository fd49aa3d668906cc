'use strict';

// isPingHostValid with a host file and a name server of the test's own. Runs
// inside its own namespaces; the host file has odd names, so that an answer
// tells which name was looked up.

const fs = require('fs');
const path = require('path');
const { execFileSync } = require('child_process');
const { assert, check, temporaryFolder, test } = require('../script/harness');

const longest = 'a'.repeat(8181);
const shorter = 'b'.repeat(8180);

const folder = temporaryFolder();
const replaced = {
  hosts: ['127.0.0.1 localhost', '10.0.0.1 known', '10.0.0.2 undefined',
    '10.0.0.3 null', '10.0.0.4 HTTP:', '10.0.0.5 xhttp:',
    '10.0.0.6 other?http: other?https: known?https:',
    '10.0.0.7 https:', '10.0.0.8 known\\a', `10.0.0.9 ${longest}`,
    `10.0.0.10 ${shorter}`],
  'resolv.conf': ['nameserver 127.0.0.1', 'options timeout:5 attempts:2'],
  'nsswitch.conf': ['hosts: files dns'],
};
// A copy of /etc, which may lack these files or link them to elsewhere.
const etc = path.join(folder, 'etc');
execFileSync('cp', ['-a', '/etc', etc]);
for (const [name, lines] of Object.entries(replaced)) {
  execFileSync('rm', ['-f', path.join(etc, name)]);
  fs.writeFileSync(path.join(etc, name), `${lines.join('\n')}\n`);
}
execFileSync('mount', ['--bind', etc, '/etc']);

function checkAll(cases) {
  for (const [url, want] of cases) check('isPingHostValid', [url], want);
}

test('the host file answers without a network', () => {
  checkAll([['known', 1], ['unknown', 0], ['dns.test', 0]]);
});

execFileSync('ip', ['link', 'set', 'lo', 'up']);
// It returns once it serves, and ends with the namespace.
execFileSync('dnsmasq', ['--conf-file=/dev/null', '--user=root', '--no-resolv',
  '--no-hosts', '--listen-address=127.0.0.1', '--bind-interfaces',
  '--host-record=dns.test,10.1.2.3', '--address=/#/',
  `--pid-file=${folder}/pid`]);

test('a name server answers', () => {
  checkAll([['dns.test', 1], ['http://dns.test/x', 1], ['DNS.TEST', 1],
    ['other.test', 0]]);
});

test('a name server that does not answer is waited for', () => {
  const server = Number(fs.readFileSync(`${folder}/pid`, 'utf8'));
  const call = 'require(process.env.KORVANE_MODULE).isPingHostValid("a.test")';
  const env = Object.assign({}, process.env,
    { RES_OPTIONS: 'timeout:1 attempts:1' });
  process.kill(server, 'SIGSTOP');
  const begin = Date.now();
  execFileSync(process.execPath, ['-e', call], { env });
  const waited = Date.now() - begin;
  process.kill(server, 'SIGCONT');
  assert(waited >= 1000 && waited < 5000, `${waited} ms`);
});

test('one scheme at the start is stripped, case-sensitively', () => {
  checkAll([
    ['http://known', 1], ['https://known', 1], ['ftp://known', 1],
    ['HTTP://other/', 1],  // looks up "HTTP:"
    ['xhttp://other/', 1],  // looks up "xhttp:"
    ['mms://known', 0],
    ['http://http://known', 1],  // looks up "http:"
    // A scheme found further on stops the search for the next one.
    ['ftp://other?http://', 0], ['ftp://other?https://', 0],
    ['http://known?https://', 1],
  ]);
});

test('the path is cut off', () => {
  checkAll([
    ['known/path', 1], ['http://known/a/b', 1], ['known/', 1],
    ['known\\share', 1], ['http://known\\share\\x', 1],
    ['known\\a/b', 1],  // looks up "known\a": a slash is there
    ['unknown/known', 0],
  ]);
});

test('nothing else is removed', () => {
  checkAll([['known:80', 0], ['http://known:80/x', 0], ['user@known', 0],
    ['known?x', 0], ['known#x', 0], [' known', 0], ['nfs:/known', 0]]);
});

test('anything is read as text', () => {
  checkAll([[null, 1], [undefined, 1], [['known'], 1],
    [{ toString: () => 'known' }, 1], ['known\0x', 1], ['10.9.8.7', 1],
    [Symbol('known'), 0], [1.5, 1], [NaN, 0]]);
  check('isPingHostValid', [], 1);
});

test('the text is cut after 8,181 bytes', () => {
  checkAll([
    [longest, 1], [`${longest}a`, 1], [`${longest}/`, 1],
    [longest.slice(1), 0],
    [`${shorter}é`, 1],  // a character that does not fit is left out whole
    [`${shorter}e`, 0],
  ]);
});
