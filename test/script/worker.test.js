'use strict';

// The module loaded again and in worker threads, by runtimes that have them.
// Each case is a script of its own, in a process of its own.

const { assert, printed, test } = require('./harness');

// Runtimes differ in what they need, and in whether they can refuse modules
// that are not for several contexts.
const options = process.versions.modules === '64'
  ? ['--experimental-worker'] : [];
if (process.allowedNodeEnvironmentFlags.has('--force-context-aware')) {
  options.push('--force-context-aware');
}

const start = `
  const { Worker, parentPort } = require('worker_threads');
  const post = (message) => parentPort.postMessage(message);
  const load = () => {
    const target = { exports: {} };
    process.dlopen(target, process.env.KORVANE_MODULE);
    return target.exports;
  };
  const works = (helper) => Object.keys(helper).length === 163 &&
    helper.System('echo x') === 'x\\n';
  // The messages of a worker that evaluates code behind this start.
  const inWorker = (code) => new Promise((resolve) => {
    const worker = new Worker(start + code, { eval: true });
    const messages = [];
    worker.on('message', (message) => {
      messages.push(message);
      if (message === 'stop') worker.terminate();
    });
    worker.on('exit', () => resolve(messages));
  });`;

// Wants a script, which may await, to return a list.
const returns = (want, code) => assert.strictEqual(printed(`
  const start = ${JSON.stringify(start)};
  ${start}
  (async () => { ${code} })().then((list) => console.log(list.join()));`,
{ options }), `${want}\n`);

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
  'stop,true', `
  const stopped = await inWorker(\`
    const forever = { toString() { post('stop'); for (;;); } };
    try { load().isPingHostValid(forever); } catch (e) { post(2); }
    finally { post(3); } post(4);\`);
  return [stopped, works(load())];`));
