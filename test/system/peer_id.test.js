'use strict';

// getPeerID and GetIp in network namespaces with interfaces made for each case.

const { spawnSync } = require('child_process');
const { assert, test } = require('../script/harness');

// Sanitizers cannot look for leaks under strace.
const env = Object.assign({}, process.env, { ASAN_OPTIONS: 'detect_leaks=0' });

// Runs a shell setup, then a script behind a launcher.
const run = (setup, script, ...launcher) => spawnSync('unshare', ['--net',
  'sh', '-ec', `${setup}\nexec "$@"`, 'sh', ...launcher, process.execPath, '-e',
  `const { compareNull, getIp } = require(process.env.KORVANE_ADDON);
  const { getPeerID } = require(process.env.KORVANE_MODULE); ${script}`],
{ encoding: 'utf8', env });

const lo = 'ip link set lo up\n';
// An interface at the end of the list.
const add = (name, mac, address) => `
  ip link add ${name} address ${mac} type veth peer name p-${name}
  ip link set ${name} up
  ip addr add ${address} dev ${name}`;

// getPeerID prints what it finds, and a trace.
const peerId = 'console.log(process.pid); console.log(getPeerID())';
function prints(want, id, setup, ...launcher) {
  const { stdout, stderr } = run(setup, peerId, ...launcher);
  const [pid, ...lines] = stdout.split('\n');
  assert.strictEqual(stderr + lines.join('\n'),
    `${want}${pid} src/korvane_helper 1278 GetPeerID ${id}\r\n${id}\n`);
}

test('the last listed interface is the one, of sixteen at most', () => {
  const finds = (count, name, mac, setup) => prints(`interface num = ${count}

device name: ${name}\ndevice mac: ${mac}\n`, `${mac}007V`, setup);
  prints('interface num = 0\n', '007V', '');
  finds(2, 'eth0', '0A1B2C3D4E5F',
    lo + add('eth0', '0a:1b:2c:3d:4e:5f', '10.0.0.1/24'));
  finds(16, 'e14', '0A0000000024', lo + Array.from({ length: 17 }, (_, i) => (
    add(`e${i}`, `0a:00:00:00:00:${i + 10}`, `10.0.${i}.1/24`))).join(''));
});

test('a failure is printed with its reason and place', () => {
  const inject = ['strace', '-o', '/dev/null', '-e'];
  prints('socket: Too many open files\n', '007V', lo, ...inject,
    'inject=socket:error=EMFILE');
  const { stderr } = run(lo, peerId, 'strace', '-e', 'trace=ioctl');
  const first = stderr.split('\n').findIndex((line) => /IFCONF/.test(line)) + 1;
  const found = 'interface num = 1\n\ndevice name: lo\n';
  [['', 170], [found, 130], [found, 162]].forEach(([before, line], i) => prints(
    `${before}ioctl: Input/output error [src/linux_shell:${line}]\n`, '007V',
    lo, ...inject, `inject=ioctl:error=EIO:when=${first + i}`));
});

test('getIp learns the address from its own broadcast', () => {
  const broadcast = (source, ...launcher) => run(`${lo}
    ip addr replace ${source}/32 dev lo
    ip route add 255.255.255.255 dev lo src ${source}`,
  // The socket becomes descriptor 0, and the port is taken then.
  'require("fs").closeSync(0); console.log([getIp(), getIp()]);', ...launcher);
  // The first wait is interrupted.
  const { stdout, stderr } = broadcast('10.10.100.10', 'strace', '-e',
    'trace=socket,sendto', '-e', 'inject=recvfrom:error=EINTR:when=1');
  assert.strictEqual(stdout, "[ '10.10.100.10', '' ]\n");
  assert(/^socket\(AF_INET, SOCK_DGRAM\|SOCK_CLOEXEC, /m.test(stderr), stderr);
  assert(/"broadcast test", 14, .*htons\(7778\).*"255\.255\.255\.255"/
    .test(stderr), stderr);
  // One character more does not fit.
  const long = broadcast('10.100.100.10');
  assert(/^GetIp: the address is longer than 12 /.test(long.stderr));
  assert.strictEqual(long.signal, 'SIGABRT');
});

test('a null string terminates the process with the assertion', () => {
  [[42, 'v1'], [43, 'v2']].forEach(([line, name], place) => {
    const { signal, stderr } = run('', `compareNull(${place})`);
    assert.strictEqual(stderr, `node: src/linux_shell:${line}: int ` +
      'LinuxShell::CompareStr(const char*, const char*): ' +
      `Assertion \`${name} != NULL' failed.\n`);
    assert.strictEqual(signal, 'SIGABRT');
  });
});
