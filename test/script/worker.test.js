'use strict';

// The module loaded again and in worker threads, by runtimes that have them.
// Each case is a script of its own, in a process of its own.

const { spawnSync } = require('child_process');
const { assert, runtime, test } = require('./harness');

// Interface 64 has workers behind an option.
const options = process.versions.modules === '64'
  ? ['--experimental-worker'] : [];
const start = `
  const { Worker } = require('worker_threads');
  const file = process.env.KORVANE_MODULE;
  const load = () => {
    const target = { exports: {} };
    process.dlopen(target, file);
    return target.exports;
  };
  const tell = (helper) => Object.keys(helper).length + ' ' +
    Math.sign(helper.compareStr('a', 'b')) + helper.getFileVersion() +
    helper.System('echo done').trim();
  // A worker that evaluates code behind this start; answers its message.
  const inWorker = (code) => new Promise((resolve, reject) => {
    const worker = new Worker('const start = ' + JSON.stringify(start) +
      ';eval(start + ' + JSON.stringify(code) + ')', { eval: true });
    worker.on('message', resolve);
    worker.on('error', reject);
    worker.on('exit', () => reject(new Error('no message')));
  });
  const post = "require('worker_threads').parentPort.postMessage";
  const telling = post + '(tell(load()))';`;
const told = '163 11.0.0.1done\n';

// What a script prints in a process of its own; it may await.
function printed(code, ...more) {
  const script = `const start = ${JSON.stringify(start)};
    ${start}
    const print = (text) => process.stdout.write(text + '\\n');
    (async () => { ${code} })().catch((error) => {
      print(error.stack);
      process.exitCode = 1;
    });`;
  const { stdout, stderr, status, signal } = spawnSync(runtime[0],
    [...runtime.slice(1), ...options, ...more, '-e', script],
    { encoding: 'utf8', timeout: 60000 });
  assert.strictEqual(status, 0, `${signal} ${stdout} ${stderr}`);
  return stdout;
}

test('the module loads again, for another exports object', () => {
  assert.strictEqual(printed(`
    const [first, second] = [load(), load()];
    print(tell(first));
    print(tell(second));
    print(first.System !== second.System);`), `${told}${told}true\n`);
});

test('it works in workers, before the main thread has loaded it and after',
  () => {
    assert.strictEqual(printed(`
      print(await inWorker(telling));
      print(await inWorker(telling));
      print(tell(load()));
      print(await inWorker(telling));`), told.repeat(4));
  });

test('it works in several workers at a time', () => {
  assert.strictEqual(printed(`
    const work = 'const helper = load();' +
      'for (let i = 0; i < 200; i += 1) {' +
      '  helper.compareStr("a", "b"); helper.setDefaultDPI(96 + i);' +
      '  helper.attachClipBoard(() => {}); helper.getMonitorDPIFactor(); }' +
      telling;
    const told = await Promise.all([1, 2, 3, 4].map(() => inWorker(work)));
    told.forEach(print);`), told.repeat(4));
});

test('a worker that is stopped inside the module stops alone', () => {
  assert.strictEqual(printed(`
    const worker = new Worker('const start = ' + JSON.stringify(start) +
      ';eval(start + "const forever = { toString() {' + post +
      '(1); for (;;); } }; load().asyncShellExecuteAndWait(forever, ' +
      'forever, forever, Object); ' + post + '(2);")', { eval: true });
    const messages = [];
    await new Promise((resolve) => {
      worker.on('message', (message) => {
        messages.push(message);
        worker.terminate();
      });
      worker.on('exit', resolve);
    });
    print(messages.join());
    print(tell(load()));`), `1\n${told}`);
});

test('it loads where only modules for contexts may', () => {
  if (!process.allowedNodeEnvironmentFlags.has('--force-context-aware')) return;
  assert.strictEqual(printed('print(tell(load()));', '--force-context-aware'),
    told);
});
