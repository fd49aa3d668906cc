'use strict';

// The module loaded again and in worker threads, by runtimes that have them.
// Each case is a script of its own, in a process of its own.

const { spawnSync } = require('child_process');
const { assert, runtime, test } = require('./harness');

const options = process.versions.modules === '64'
  ? ['--experimental-worker'] : [];
const start = `
  const { Worker, parentPort } = require('worker_threads');
  const post = (message) => parentPort.postMessage(message);
  const load = () => {
    const target = { exports: {} };
    process.dlopen(target, process.env.KORVANE_MODULE);
    return target.exports;
  };
  const works = (helper) => Object.keys(helper).length === 163 &&
    helper.getFileVersion() === '1.0.0.1' && helper.System('echo x') === 'x\\n';
  // The messages of a worker that evaluates code behind this start.
  const inWorker = (code, onMessage = () => {}) => new Promise((resolve) => {
    const worker = new Worker(start + code, { eval: true });
    const messages = [];
    worker.on('message', (message) => {
      messages.push(message);
      onMessage(worker);
    });
    worker.on('exit', () => resolve(messages));
  });`;

// Wants a script, which may await, to return a list.
function returns(want, code, ...more) {
  const script = `const start = ${JSON.stringify(start)};
    ${start}
    (async () => { ${code} })().then((list) => console.log(list.join()));`;
  const { stdout, stderr } = spawnSync(runtime[0],
    [...runtime.slice(1), ...options, ...more, '-e', script],
    { encoding: 'utf8' });
  assert.strictEqual(stdout, `${want}\n`, stderr);
}

test('it works in workers, and loads again in the main thread', () => returns(
  'true,true,true,true', `
  const before = await inWorker('post(works(load()))');
  const [first, second] = [load(), load()];
  return [before, works(first), works(second), first.System !== second.System];`
));

test('it works in several workers at a time', () => returns(
  'true,true,true,true', `
  const busy = \`const helper = load(); for (let i = 0; i < 200; i += 1) {
    helper.compareStr('a', 'b'); helper.setDefaultDPI(96 + i);
    helper.attachClipBoard(() => {}); helper.getMonitorDPIFactor(); }
    post(works(helper))\`;
  return Promise.all([1, 2, 3, 4].map(() => inWorker(busy)));`));

test('a worker that is stopped inside the module stops alone', () => returns(
  '1,true', `
  const stopped = await inWorker(\`
    const forever = { toString() { post(1); for (;;); } };
    try { load().isPingHostValid(forever); } catch (e) { post(2); }
    finally { post(3); } post(4);\`, (worker) => worker.terminate());
  return [stopped, works(load())];`));

test('it loads where only modules for contexts may', () => {
  const option = '--force-context-aware';
  if (!process.allowedNodeEnvironmentFlags.has(option)) return;
  returns('true', 'return [works(load())];', option);
});
