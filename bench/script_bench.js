'use strict';

// Measures the script functions in the real runtime, in turns with addons that
// do the same by hand; prints lines of the form that link_bench prints.
//
//   script_bench.js MODULE ADDONS calls|windows|require [WORKLOAD]
//
// WORKLOAD is a part of the names of those that are run.

const path = require('path');
const { execFileSync } = require('child_process');

const [, , modulePath, addons, part, filter = ''] = process.argv;
const addon = (name) => path.join(addons, `${name}.node`);
const ROUNDS = 15;

function median(values) {
  return values.sort((a, b) => a - b)[Math.floor(values.length / 2)];
}

// Two contenders give the time of one operation; they swap places each round.
function compare(workload, rival, goal, ours, theirs, rounds = ROUNDS) {
  if (!workload.includes(filter)) return;
  const times = { ours: [], theirs: [], ratios: [] };
  for (let round = 0; round < rounds; round += 1) {
    const first = round % 2 === 0 ? ours() : theirs();
    const second = round % 2 === 0 ? theirs() : ours();
    const [our, their] = round % 2 === 0 ? [first, second] : [second, first];
    times.ours.push(our);
    times.theirs.push(their);
    times.ratios.push(our / their);
  }
  console.log([workload, median(times.ours).toFixed(2), rival,
    median(times.theirs).toFixed(2), median(times.ratios).toFixed(3),
    goal === Infinity ? '' : goal.toFixed(2)].join('\t'));
}

let loops = 0;

// The loop is a text of its own for each function, so that the runtime compiles
// it for that function alone.
function timer(now, calls, target, text) {
  loops += 1;
  const loop = new Function('target', 'calls', 'done',
    `/* ${loops} */ for (let i = 0; i < calls; i += 1) target(${text});`);
  const done = () => {};
  loop(target, calls, done);
  return () => {
    const begin = now();
    loop(target, calls, done);
    return (now() - begin) / calls;
  };
}

function compareCalls() {
  const helper = require(modulePath);
  const calls = require(addon('calls'));
  const time = (target, text) => timer(calls.now, 50000, target, text);
  const empty = time(calls.empty, '');
  ['isWin7', 'isDwmCompositionEnabled', 'getDesktopPath'].forEach((name) => {
    compare(`${name}, a fixed answer`, 'an empty function', 1.3,
      time(helper[name], ''), empty);
  });
  [["three texts read", "'one', 'two', 'three', done"],
    ['three texts missing', "'one', 2, 'three', done"]].forEach((row) => {
    compare(`asyncUpgradeEmuleTask, ${row[0]}`, 'checks by hand', 1.1,
      time(helper.asyncUpgradeEmuleTask, row[1]),
      time(calls.readThreeTexts, row[1]));
  });
}

// Round trips to the server: what counts is the time that passes.
function passed() {
  const [seconds, nanoseconds] = process.hrtime();
  return seconds * 1e9 + nanoseconds;
}

function compareWindows() {
  const helper = require(modulePath);
  const byHand = require(addon('windows'));
  const window = byHand.createWindow();
  [['getCursorPos', ''], ['moveWindow', `${window}, 1, 2, 100, 80, true`]]
    .forEach(([name, text]) => {
      compare(name, 'libX11 by hand', 1.10,
        timer(passed, 20, helper[name], text),
        timer(passed, 20, byHand[name], text), 41);
    });
}

// A process for each: a module is loaded once. Without a goal the row only
// tells what loading the libraries costs.
function compareRequire() {
  const time = (file, ...before) => () => {
    const loaded = [addon('calls'), ...before].map((one) => JSON.stringify(one));
    return Number(execFileSync(process.execPath, ['-e', `
      const [{ now }] = [${loaded}].map((file) => require(file));
      const begin = now();
      require(${JSON.stringify(file)});
      console.log(now() - begin);`]));
  };
  const desktop = addon('desktop');
  compare('require, in a desktop process', '163 empty functions', 1.15,
    time(modulePath, desktop), time(addon('functions'), desktop), 31);
  compare('require, with its libraries', '163 functions, same libraries', 1.15,
    time(modulePath), time(addon('linked_functions')), 31);
  compare('require, with its libraries', '163 empty functions', Infinity,
    time(modulePath), time(addon('functions')), 31);
}

({ calls: compareCalls, windows: compareWindows, require: compareRequire })[part]();
