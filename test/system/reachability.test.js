'use strict';

// isPingHostValid with a host file of the test's own. Runs inside its own
// namespaces; the file has odd names, so that a result shows which name was
// looked up.

const fs = require('fs');
const { execFileSync } = require('child_process');
const { check, test } = require('../script/harness');

const longest = 'a'.repeat(8181);
const shorter = 'b'.repeat(8180);

execFileSync('mount', ['-t', 'tmpfs', 'tmpfs', '/etc']);
fs.writeFileSync('/etc/hosts', `127.0.0.1 localhost
10.0.0.1 known undefined null HTTP: xhttp:
10.0.0.6 other?http: other?https: known?https: https: known\\a
10.0.0.9 ${longest}
10.0.0.10 ${shorter}
fd00::1 six
`);
fs.writeFileSync('/etc/nsswitch.conf', 'hosts: files\n');

const reaches = (want, ...urls) => urls.forEach((url) => (
  check('isPingHostValid', [url], want)));

test('one scheme at the start is removed, case-sensitively', () => {
  reaches(1, 'http://known', 'https://known', 'ftp://known');
  reaches(0, 'http://unknown', 'https://unknown', 'mms://known');
  // These look up "HTTP:", "xhttp:" and "http:".
  reaches(1, 'HTTP://other/', 'xhttp://other/', 'http://http://x');
  // A scheme found further on stops the search for the next one.
  reaches(0, 'ftp://other?http://', 'ftp://other?https://');
  reaches(1, 'http://known?https://');
});

test('the path is cut off, and nothing else', () => {
  reaches(1, 'known/path', 'http://known/a/b', 'known\\share',
    'http://known\\share\\x');
  reaches(1, 'known\\a/b');        // looks up "known\a": a slash is there
  reaches(0, 'unknown/known', 'known:80', 'http://known:80/x', 'user@known',
    'known?x', 'known#x', ' known', 'six');
});

test('any value is read as a string, cut after 8,181 bytes', () => {
  reaches(1, null, undefined, ['known'], 'known\0x', '10.9.8.7', 1.5);
  reaches(0, Symbol('known'), NaN);
  check('isPingHostValid', [], 1);
  reaches(1, longest, `${longest}a`, `${longest}/`);
  reaches(1, `${shorter}é`);       // a character that does not fit is left out
  reaches(0, `${shorter}e`);
});
