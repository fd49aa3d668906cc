'use strict';

// The module in worker threads, and loaded again, by runtimes that can.

const assert = require('assert');
const { Worker } = require('worker_threads');

function load() {
  const target = { exports: {} };
  process.dlopen(target, process.env.KORVANE_MODULE);
  return target.exports;
}

const works = (helper) => Object.keys(helper).length === 163 &&
  helper.System('echo x') === 'x\n';

// The messages that code posts in a worker; "stop" terminates it.
const messages = (code) => new Promise((resolve) => {
  const worker = new Worker(`${load}; const works = ${works};
    const { parentPort } = require('worker_threads');
    const post = (message) => parentPort.postMessage(message); ${code}`,
  { eval: true });
  const received = [];
  worker.on('message', (message) => {
    received.push(message);
    if (message === 'stop') worker.terminate();
  });
  worker.on('exit', () => resolve(received));
});

const busy = `const helper = load(); for (let i = 0; i < 200; i += 1) {
  helper.compareStr('a', 'b'); helper.setDefaultDPI(96 + i);
  helper.attachClipBoard(() => {}); helper.getMonitorDPIFactor(); }
  post(works(helper));`;
const forever = `const forever = { toString() { post('stop'); for (;;); } };
  try { load().isPingHostValid(forever); } finally { post('runs on'); }`;

(async () => {
  assert.deepStrictEqual(await messages('post(works(load()))'), [true]);
  const [first, second] = [load(), load()];
  assert(works(first) && works(second) && first.System !== second.System);
  assert.deepStrictEqual(await Promise.all([busy, busy, busy].map(messages)),
    [[true], [true], [true]]);
  assert.deepStrictEqual(await messages(forever), ['stop']);
  assert(works(first));
})().catch((error) => {
  console.error(error);
  process.exitCode = 1;
});
