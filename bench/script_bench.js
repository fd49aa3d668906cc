'use strict';

// Measures the script functions in the real runtime, in random order with
// addons that do the same by hand; prints JSON as link_bench writes it.
//
//   script_bench.js MODULE ADDONS [NAME]
//
// NAME is a part of WORKLOAD/LIST.

const { execFileSync } = require('child_process');
const { performance } = require('perf_hooks');

const [, , modulePath, addons, wanted = ''] = process.argv;
const addon = (name) => `${addons}/${name}.node`;
const helper = require(modulePath);
const byHand = require(addon('by_hand'));
const benchmarks = [];

// Each contender returns nanoseconds.
function measure(row, contenders, rounds = 31) {
  if (!row.includes(wanted)) return;
  const names = Object.keys(contenders);
  for (let round = 0; round < rounds; round += 1) {
    names.sort(() => Math.random() - 0.5).forEach((name) => {
      benchmarks.push({ name: `${row}/${name}`, cpu_time: contenders[name]() });
    });
  }
}

// What this process has used of the processor.
function used() {
  const { user, system } = process.cpuUsage();
  return (user + system) * 1e3;
}

// Windows wait for the server: what counts is the time that passes.
const passed = () => performance.now() * 1e6;

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

function compare(row, name, [ours, theirs], text, now = used, calls = 100000) {
  measure(row, { ours: timer(now, calls, ours, text),
    [name]: timer(now, calls, theirs, text) });
}

['isWin7', 'isDwmCompositionEnabled', 'getDesktopPath'].forEach((name) => {
  compare(`${name}/fixed`, 'empty function', [helper[name], byHand.empty], '');
});
[['read', "'one', 'two', 'three', done"],
  ['missing', "'one', 2, 'three', done"]].forEach(([list, text]) => {
    compare(`asyncUpgradeEmuleTask/three texts ${list}`, 'by hand',
      [helper.asyncUpgradeEmuleTask, byHand.readThreeTexts], text);
  });
[['getCursorPos', ''],
  ['moveWindow', `${byHand.createWindow()}, 1, 2, 100, 80, true`],
].forEach(([name, text]) => {
    compare(`${name}/a display`, 'libX11', [helper[name], byHand[name]], text,
      passed, 20);
  });

// A process for each turn: a module is loaded once.
const load = (file, ...before) => () => Number(execFileSync(
  process.execPath, ['-e', `
  const used = ${used};
  ${JSON.stringify(before)}.forEach((one) => require(one));
  const begin = used();
  require(${JSON.stringify(file)});
  console.log(used() - begin);`]));
measure('require/desktop process', {
  ours: load(modulePath, addon('by_hand')),
  '163 functions': load(addon('functions'), addon('by_hand')),
});
measure('require/with its libraries', {
  ours: load(modulePath), '163 functions': load(addon('linked_functions')),
});

console.log(JSON.stringify({ benchmarks }));
