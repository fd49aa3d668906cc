'use strict';

const fs = require('fs');
const { assert, check, enterTemporaryFolder, helper, openDescriptors, test } =
  require('./harness');

enterTemporaryFolder();
const descriptors = openDescriptors();

test('System returns what the command prints, up to a zero byte', () => {
  check('System', ['printf "中文 \\360\\237\\230\\200"', 1], '中文 😀');
  check('System', ['echo seen; echo unseen >&2; exit 3'], 'seen\n');
  check('System', ['printf "\\0b"'], '');
  check('System', ['echo a\0b'], 'a\n');
  check('System', [new String('touch ran')], undefined);
  assert(!fs.existsSync('ran'));
});

test('System cuts the command after 1,023 bytes', () => {
  const prints = (argument, want) => check('System',
    [`${'#'.repeat(1010)}\necho ${argument}`], `${want}\n`);
  prints('1234567890', '1234567');
  // A character that does not fit is left out whole.
  prints('12345é', '12345é');
  prints('123456é', '123456');
  prints('12345😀', '12345');
});

test('System cuts the output after 20,479 bytes', () => {
  const print = (length) => `head -c ${length} /dev/zero | tr '\\0' x`;
  check('System', [print(20479)], 'x'.repeat(20479));
  // Its pipe is closed then; what ignores that goes on to its end.
  check('System', [`${print(20480)}; ${print(90000)}; touch end`],
    'x'.repeat(20479));
  assert(fs.existsSync('end'));
});

test('System returns "" when the command cannot be started', () => {
  const opened = [];
  assert.throws(() => {
    for (;;) opened.push(fs.openSync('/dev/null', 'r'));
  }, /EMFILE/);
  const result = helper.System('echo started');
  opened.forEach((descriptor) => fs.closeSync(descriptor));
  assert.strictEqual(result, '');
});

test('commands have the standard streams of the process, no closed one', () => {
  const links = 'readlink /proc/self/fd/0 /proc/self/fd/2';
  const own = [0, 2].map((stream) => (
    `${fs.readlinkSync(`/proc/self/fd/${stream}`)}\n`));
  const flags = () => [0, 1, 2].map((stream) => fs.readFileSync(
    `/proc/self/fdinfo/${stream}`, 'utf8').match(/flags:.*/)[0]).join();
  const before = flags();
  check('System', [links], own.join(''));
  fs.writeFileSync('df', `#!/bin/sh\necho "$*"; ${links}`, { mode: 0o755 });
  fs.writeFileSync('tmp.text', 'old'.repeat(10000));
  process.env.PATH = `.:${process.env.PATH}`;
  check('getLogicalDriveStrings', [1], undefined);
  assert.strictEqual(fs.readFileSync('tmp.text', 'utf8'),
    `-h\n${own.join('')}`);
  assert.strictEqual(flags(), before);
  fs.closeSync(0);
  check('System', [links], own[1]);
  fs.openSync('/dev/null', 'r');
});

test('commands leave no descriptor and no process behind', () => {
  assert.strictEqual(openDescriptors(), descriptors);
  assert.strictEqual(fs.readFileSync(
    `/proc/self/task/${process.pid}/children`, 'utf8'), '');
});
