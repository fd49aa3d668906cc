'use strict';

// getPeerID and GetIp in network namespaces with interfaces made for each case.

const path = require('path');
const { spawnSync } = require('child_process');
const { assert, test } = require('../script/harness');

const inNamespace = path.join(__dirname, '../support/in_namespace');
const callPeerId = (fault) => `
  const count = () => require('fs').readdirSync('/proc/self/fd').length;
  process.env.FAULT = '${fault}';
  const helper = require(process.env.KORVANE_MODULE);
  const before = count();
  const peerId = helper.getPeerID();
  const left = count() - before;  // before the runtime opens its own
  process.stderr.write([process.pid, left, peerId].join(' '));
  process.kill(process.pid, 'SIGKILL');`;  // the trace is out by now

// Sanitizers cannot look for leaks in there.
const env = Object.assign({}, process.env,
  { ASAN_OPTIONS: 'detect_leaks=0:verify_asan_link_order=0' });

// Runs a shell setup, then a program, in a namespace. The shell stays: the
// first process of a namespace would not get its own signals.
function run(setup, program, ...args) {
  const result = spawnSync(inNamespace,
    ['sh', '-ec', `${setup}\n"$0" "$@"; exit $?`, program, ...args],
    { encoding: 'utf8', timeout: 20000, env });
  result.stderr = result.stderr.replace('Killed\n', '');  // the shell's word
  return result;
}

const up = 'ip link set lo up';
// An interface with its address, if it gets one, at the end of the list.
const add = (name, mac, address) => `
  ip link add ${name} address ${mac} type veth peer name p-${name}
  ip link set ${name} up
  ${address ? `ip addr add ${address} dev ${name}` : ''}`;
const eth0 = add('eth0', '0a:1b:2c:3d:4e:5f', '10.0.0.1/24');
const many = (count) => Array.from({ length: count }, (_, i) => add(`e${i}`,
  `0a:00:00:00:00:${(0x10 + i).toString(16)}`, `10.0.${i}.1/24`)).join('');

test('the last listed interface names the peer', () => {
  const cases = [
    // setup, number listed, last listed, its address
    ['', 0],
    [up, 1, 'lo', '000000000000'],
    [up + eth0, 2, 'eth0', '0A1B2C3D4E5F'],
    [eth0, 1, 'eth0', '0A1B2C3D4E5F'],
    [up + eth0 + add('eth1', '02:ff:ff:ff:ff:fe', '10.0.1.1/24'), 3, 'eth1',
      '02FFFFFFFFFE'],
    [up + eth0 + add('eth1', '02:ff:ff:ff:ff:fe', ''), 2, 'eth0',
      '0A1B2C3D4E5F'],
    [up + many(15), 16, 'e14', '0A000000001E'],
    [up + many(18), 16, 'e14', '0A000000001E'],
  ];
  for (const [setup, count, name, mac] of cases) {
    const { stdout, stderr } = run(setup, process.execPath, '-e', callPeerId(''));
    const [thread, left, peerId] = stderr.split(' ');
    assert.strictEqual(left, '0', 'no descriptor is left open');
    const found = count === 0 ? ''
      : `\ndevice name: ${name}\ndevice mac: ${mac}\n`;
    assert.strictEqual(peerId, `${mac || ''}007V`, setup);
    assert.strictEqual(stdout, `interface num = ${count}\n${found}` +
      `${thread} src/korvane_helper 1278 GetPeerID ${peerId}\r\n`);
  }
});

test('a failed request names its reason and place', () => {
  // The list, the flags and the address.
  for (const [index, line] of [170, 130, 162].entries()) {
    const { stdout, stderr } = run(`${up}
      export LD_PRELOAD=${process.env.KORVANE_WATCHED_CALLS}`,
    process.execPath, '-e', callPeerId(`ioctl ${index + 1}`));
    assert(stderr.endsWith(' 0 007V'), stderr);
    const printed = stdout.split('\n');
    assert.strictEqual(printed[line === 170 ? 0 : 3],
      `ioctl: Input/output error [src/linux_shell:${line}]`);
    assert.strictEqual(printed.length, line === 170 ? 3 : 6);
  }
});

test('without a socket there is no address', () => {
  const { stdout, stderr } = run('', 'sh', '-c', `exec "$0" -e '
    const fs = require("fs");
    const helper = require(process.env.KORVANE_MODULE);
    fs.readFileSync("/dev/null");
    try { for (;;) fs.openSync("/dev/null", "r"); } catch (error) {}
    helper.getPeerID();'`, process.execPath);
  assert(/^\d+ src\/korvane_helper 1278 GetPeerID 007V\r\n$/.test(stdout));
  assert(/^socket: Too many open files$/m.test(stderr), stderr);
});

test('GetIp learns the address from its own broadcast', () => {
  const caller = process.env.KORVANE_CALL_LINUX_SHELL;
  const broadcast = (source) => `${up}
    ip addr add ${source}/32 dev lo 2>/dev/null || true
    ip route add 255.255.255.255 dev lo src ${source}
    exec <&-  # the socket becomes descriptor 0`;
  // The first wait is interrupted.
  const traced = ['-e', 'trace=socket,sendto,recvfrom',
    '-e', 'inject=recvfrom:error=EINTR:when=1', caller, 'ip'];
  for (const source of ['127.0.0.1', '10.10.100.10']) {
    const { stdout, stderr, status } = run(broadcast(source), 'strace', ...traced);
    assert(/^socket\(AF_INET, SOCK_DGRAM\|SOCK_CLOEXEC, /.test(stderr), stderr);
    assert(/"broadcast test", 14, .*htons\(7778\).*"255\.255\.255\.255"/
      .test(stderr), stderr);
    assert.strictEqual(stdout, `${source}\nagain: \n`);
    assert.strictEqual(status, 0);
  }
  // One character more does not fit: the process ends.
  const { stdout, signal, status } = run(broadcast('10.100.100.10'), caller,
    'ip');
  assert.strictEqual(stdout, '');
  assert(signal === 'SIGABRT' || status === 134, `${signal} ${status}`);
});

test('a null text ends the process with the assertion', () => {
  const caller = process.env.KORVANE_CALL_LINUX_SHELL;
  const cases = [['null-first', 42, 'v1'], ['null-second', 43, 'v2']];
  for (const [call, line, name] of cases) {
    const { signal, stderr } = spawnSync(caller, [call], { encoding: 'utf8' });
    assert.strictEqual(signal, 'SIGABRT');
    assert.strictEqual(stderr, `call_linux_shell: src/linux_shell:${line}: ` +
      'int LinuxShell::CompareStr(const char*, const char*): ' +
      `Assertion \`${name} != NULL' failed.\n`);
  }
});
