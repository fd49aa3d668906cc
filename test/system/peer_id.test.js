'use strict';

// getPeerID and GetIp in network namespaces with interfaces made for each case.

const path = require('path');
const { spawnSync } = require('child_process');
const { assert, test } = require('../script/harness');

const inNamespace = path.join(__dirname, '../support/in_namespace');
const caller = process.env.KORVANE_CALLER;
// Sanitizers cannot look for leaks under strace.
const env = Object.assign({}, process.env, { ASAN_OPTIONS: 'detect_leaks=0' });

// Runs a shell setup, then a program, in a namespace. The shell stays: the
// first process of a namespace would not get its own signals.
function run(setup, ...command) {
  return spawnSync(inNamespace, ['sh', '-ec', `${setup}\n"$@"; exit $?`, 'sh',
    ...command], { encoding: 'utf8', env });
}

const up = 'ip link set lo up';
// An interface with its address, if it gets one, at the end of the list.
const add = (name, mac, address) => `
  ip link add ${name} address ${mac} type veth peer name p-${name}
  ip link set ${name} up
  ${address ? `ip addr add ${address} dev ${name}` : ''}`;
const eth0 = add('eth0', '0a:1b:2c:3d:4e:5f', '10.0.0.1/24');

test('the last listed interface is the one, of sixteen at most', () => {
  const lists = (setup, count, name, mac) => assert.strictEqual(
    run(setup, caller, 'mac').stdout, `interface num = ${count}\n` + (name
      ? `\ndevice name: ${name}\ndevice mac: ${mac}\n${mac}\n` : '\n'));
  lists('', 0);
  lists(up, 1, 'lo', '000000000000');
  lists(up + eth0, 2, 'eth0', '0A1B2C3D4E5F');
  lists(eth0 + add('eth1', '02:ff:ff:ff:ff:fe', ''), 1, 'eth0', '0A1B2C3D4E5F');
  const many = Array.from({ length: 17 }, (_, i) => add(
    `e${i}`, `0a:00:00:00:00:${i + 10}`, `10.0.${i}.1/24`)).join('');
  lists(up + many, 16, 'e14', '0A0000000024');
});

test('a failure is printed with its reason and place', () => {
  const failing = (call) => run(up, 'strace', '-o', '/dev/null', '-e',
    `inject=${call}`, caller, 'mac');
  const request = (index, line) => assert(
    failing(`ioctl:error=EIO:when=${index}`).stdout
      .endsWith(`ioctl: Input/output error [src/linux_shell:${line}]\n\n`));
  request(1, 170);
  request(2, 130);
  request(3, 162);
  const { stdout, stderr } = failing('socket:error=EMFILE');
  assert.strictEqual(stdout + stderr, '\nsocket: Too many open files\n');
});

test('getPeerID adds its suffix and writes a trace', () => {
  const { stdout } = run(eth0, process.execPath, '-p', `process.pid + ' ' +
    require(process.env.KORVANE_MODULE).getPeerID()`);
  const [traced, printed] = stdout.split('\n').slice(4);
  const [pid, peerId] = printed.split(' ');
  assert.strictEqual(peerId, '0A1B2C3D4E5F007V');
  assert.strictEqual(traced,
    `${pid} src/korvane_helper 1278 GetPeerID ${peerId}\r`);
});

test('GetIp learns the address from its own broadcast', () => {
  const broadcast = (source, ...command) => run(`${up}
    ip addr replace ${source}/32 dev lo
    ip route add 255.255.255.255 dev lo src ${source}
    exec <&-  # the socket becomes descriptor 0`, ...command, caller, 'ip');
  // The first wait is interrupted.
  const { stdout, stderr } = broadcast('10.10.100.10', 'strace', '-e',
    'trace=socket,sendto', '-e', 'inject=recvfrom:error=EINTR:when=1');
  assert.strictEqual(stdout, '10.10.100.10\nagain: \n');
  assert(/^socket\(AF_INET, SOCK_DGRAM\|SOCK_CLOEXEC, /.test(stderr), stderr);
  assert(/"broadcast test", 14, .*htons\(7778\).*"255\.255\.255\.255"/
    .test(stderr), stderr);
  // One character more does not fit: the process ends.
  const long = broadcast('10.100.100.10');
  assert.strictEqual(long.stdout, '');
  assert(/^GetIp: the address is longer than 12 /.test(long.stderr));
  assert.strictEqual(long.status, 134);
});

test('a null string ends the process with the assertion', () => {
  const fails = (which, line, name) => {
    const { signal, stderr } = spawnSync(caller, [which], { encoding: 'utf8' });
    assert.strictEqual(signal, 'SIGABRT');
    assert.strictEqual(stderr, `native_caller: src/linux_shell:${line}: ` +
      'int LinuxShell::CompareStr(const char*, const char*): ' +
      `Assertion \`${name} != NULL' failed.\n`);
  };
  fails('null-first', 42, 'v1');
  fails('null-second', 43, 'v2');
});
