'use strict';

// What the module does to the windows of other programs, and what the display
// server says of it: node tour_windows.js PATH/KorvaneHelper.node PICTURE.png

const path = require('path');
const { execFileSync, spawn } = require('child_process');

const helper = require(path.resolve(process.argv[2]));
const picture = path.resolve(process.argv[3]);

const run = (command, ...args) => (
  execFileSync(command, args.map(String), { encoding: 'utf8', timeout: 20000 }));

// Starts a program that ends with the tour; its window, once that is shown.
function start(program, ...args) {
  const child = spawn(program, args, { stdio: 'ignore' });
  process.on('exit', () => child.kill());
  const found = run('xdotool', 'search', '--sync', '--onlyvisible', '--class',
    program);
  return Number(found.trim().split('\n').pop());
}

// Another client's view of a window.
function serverSays(id) {
  const text = run('xwininfo', '-id', id);
  const number = (label) => Number(text.match(`${label}: +(-?\\d+)`)[1]);
  return {
    x: number('Absolute upper-left X'), y: number('Absolute upper-left Y'),
    width: number('Width'), height: number('Height'),
    shown: /Map State: IsViewable/.test(text),
  };
}

const heading = (text) => console.log(`\n${text}`);
const line = (label, value) => console.log(`  ${label.padEnd(48)} ${value}`);

// Calls a function; a window manager, where there is one, takes its time, so
// the server is asked until `done` holds.
function call(name, args, id, done) {
  line(`${name}(${args.join(', ')})`, JSON.stringify(helper[name](...args)));
  if (!done) return;
  const limit = Date.now() + 5000;
  let now = serverSays(id);
  while (!done(now) && Date.now() < limit) now = serverSays(id);
  line('  the server says', `${now.width}x${now.height} at ` +
    `${now.x},${now.y}, ${now.shown ? 'shown' : 'hidden'}`);
}

heading('The display, as the module sees it');
call('getDisplayWindowRect', []);
call('getCursorPos', []);
call('getKeyState', [1]);

heading('Two programs that know nothing of us');
const calculator = start('xcalc', '-geometry', '300x400+340+90');
const clock = start('xclock', '-geometry', '200x200+60+60');
line('xcalc, xclock', `windows ${calculator}, ${clock}`);
call('isWindowHandle', [clock]);
call('getWindowRect', [clock]);

heading('The clock moves, grows, hides and comes back');
call('moveWindow', [clock, 80, 100, 200, 200, true], clock,
  (now) => now.x >= 80 && now.y >= 100);
call('setWindowPos', [clock, 0, 0, 0, 260, 260, 2], clock,
  (now) => now.width === 260 && now.height === 260);
call('showWindow', [clock, 0], clock, (now) => !now.shown);
call('showWindow', [clock, 5], clock, (now) => now.shown);
call('setWindowPos', [clock, 0, 60, 160, 360, 360, 0x40], clock,
  (now) => now.width === 360 && now.y >= 160);

heading('The calculator rises above it');
call('bringWindowToTop', [calculator], calculator, () => true);
call('getWindowRect', [calculator]);

heading('No window, no harm');
call('isWindowHandle', [0]);
call('getWindowRect', ['abc']);
call('setWindowPos', [clock, 0, 1, 2, 3]);

run('scrot', '--overwrite', '--delay', 1, picture);
console.log(`\nThe desktop is in ${path.relative('', picture)}.`);
process.exit();
