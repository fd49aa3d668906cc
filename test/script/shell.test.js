'use strict';

const fs = require('fs');
const { assert, check, helper, temporaryFolder, test } = require('./harness');

process.chdir(temporaryFolder());
const count = (file) => fs.readdirSync(file).length;

// A command of exactly `length` bytes that prints the length of its argument.
function measured(length) {
  const head = 'x=';
  const tail = '; echo ${#x}';
  return [head + 'y'.repeat(length - head.length - tail.length) + tail,
    `${length - head.length - tail.length}\n`];
}

test('System answers what the command prints', () => {
  const cases = [
    ['echo hello', 'hello\n'],
    ['printf "中文 \\360\\237\\230\\200"', '中文 😀'],
    ['echo seen; echo unseen >&2; exit 3', 'seen\n'],
    ['true', ''],
    ['exec 1>&-', ''],
    ['printf "a\\0b"', 'a'],
    ['printf "a\\377b"', 'a\ufffdb'],
    ['printf "%s" "$0"', 'sh'],
    ['echo a\0b', 'a\n'],
    ['', ''],
  ];
  for (const [command, want] of cases) check('System', [command, 1], want);
});

test('System cuts the command after 1,023 bytes', () => {
  for (const length of [1022, 1023]) {
    const [command, want] = measured(length);
    check('System', [command], want);
  }
  const head = '#'.repeat(1010) + '\necho ';
  check('System', [`${head}1234567890`], '1234567\n');
  // A character that does not fit is left out whole.
  check('System', [`${head}12345é`], '12345é\n');
  check('System', [`${head}123456é`], '123456\n');
  check('System', [`${head}12345😀`], '12345\n');
  // Three bytes hold half of it, which comes back as runtimes read it.
  const abi = Number(process.versions.modules);
  const half = '\ufffd'.repeat(abi === 57 ? 1 : abi < 137 ? 3 : 0);
  check('System', [`${head}1234😀`], `1234${half}\n`);
});

test('System cuts the output after 20,479 bytes', () => {
  const print = (length) => [`head -c ${length} /dev/zero | tr '\\0' x`];
  check('System', print(20478), 'x'.repeat(20478));
  check('System', print(20479), 'x'.repeat(20479));
  check('System', print(20480), 'x'.repeat(20479));
  check('System', ["printf '中%.0s' $(seq 7000)"],
    `${'中'.repeat(6826)}\ufffd`);  // the last character is cut
  check('System', ['yes'], 'y\n'.repeat(10240).slice(0, 20479));
  // Its pipe is closed then; what does not look at that goes on to its end.
  check('System', ['for i in $(seq 5000); do echo 12345; done 2>&-; touch end'],
    '12345\n'.repeat(5000).slice(0, 20479));
  assert(fs.existsSync('end'));
});

test('System waits for all of a slow command\'s output and its end', () => {
  check('System', ['echo 1; read x </dev/null; sleep 0.05; echo 2'], '1\n2\n');
  check('System', ['{ sleep 0.05; echo 2; } & echo 1'], '1\n2\n');
  check('System', ['exec >&-; sleep 0.05; touch ended'], '');
  assert(fs.existsSync('ended'));
});

test('commands have the standard streams of the process, no closed one', () => {
  const streams = '/proc/self/fd/0 /proc/self/fd/2';
  const own = streams.split(' ').map((link) => `${fs.readlinkSync(link)}\n`);
  const flags = () => [0, 1, 2].map((stream) => fs.readFileSync(
    `/proc/self/fdinfo/${stream}`, 'utf8').match(/flags:.*/)[0]).join();
  const before = flags();
  check('System', [`readlink ${streams}`], own.join(''));
  fs.writeFileSync('df', `#!/bin/sh\nreadlink ${streams}`, { mode: 0o755 });
  const { PATH } = process.env;
  process.env.PATH = `.:${PATH}`;
  helper.getLogicalDriveStrings();
  process.env.PATH = PATH;
  assert.strictEqual(fs.readFileSync('tmp.text', 'utf8'), own.join(''));
  assert.strictEqual(flags(), before);
  fs.closeSync(0);
  check('System', [`readlink ${streams}`], own[1]);
  assert.throws(() => fs.fstatSync(0), /EBADF/);
  fs.openSync('/dev/null', 'r');
});

test('System runs nothing without a text', () => {
  for (const args of [[], [1], [undefined], [new String('touch ran')],
    [{ toString: () => 'touch ran' }]]) {
    check('System', args, undefined);
  }
  assert(!fs.existsSync('ran'));
});

test('System answers "" when the command cannot be started', () => {
  const limit = helper.System('ulimit -Sn').trim();
  const opened = [];
  try {
    for (let i = 0; i <= Number(limit); i += 1) {
      opened.push(fs.openSync('/dev/null', 'r'));
    }
  } catch (error) {
    assert.strictEqual(error.code, 'EMFILE');
  }
  const got = helper.System('echo started');
  opened.forEach((descriptor) => fs.closeSync(descriptor));
  assert.strictEqual(got, '');
  check('System', ['echo started'], 'started\n');
});

test('1,000 commands leave no descriptor and no process behind', () => {
  const children = () => fs.readFileSync(
    `/proc/self/task/${process.pid}/children`, 'utf8');
  const [files, processes] = [count('/proc/self/fd'), children()];
  for (let i = 0; i < 1000; i += 1) helper.System('printf x');
  assert.strictEqual(count('/proc/self/fd'), files);
  assert.strictEqual(children(), processes);
});

test('getLogicalDriveStrings writes the table of file systems', () => {
  fs.writeFileSync('tmp.text', 'old'.repeat(10000));
  check('getLogicalDriveStrings', [1, 2], undefined);
  const written = fs.readFileSync('tmp.text', 'utf8');
  // Where no file system is mounted, as in a bare chroot, there is no table.
  assert(/^(Filesystem +Size +Used|$)/.test(written), written.slice(0, 60));
  assert(!written.includes('old'));
});
