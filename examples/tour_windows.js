'use strict';

// What the module does to the windows of other programs, and what the display
// server says of it: node tour_windows.js PATH/KorvaneHelper.node PICTURE.png

const path = require('path');
const { execFileSync, spawn } = require('child_process');

const helper = require(path.resolve(process.argv[2]));
const picture = path.resolve(process.argv[3]);

const run = (command, ...args) => (
  execFileSync(command, args.map(String), { encoding: 'utf8', timeout: 2e4 }));

// Starts a program that ends with the tour; its window, once that is shown. The
// title is like no other's, so that no window of the user's is taken for it.
function start(program, ...args) {
  const title = `${program} of tour ${process.pid}`;
  const child = spawn(program, ['-title', title, ...args], { stdio: 'ignore' });
  process.on('exit', () => child.kill());
  return Number(run('xdotool', 'search', '--sync', '--onlyvisible', '--name',
    `^${title}$`));
}

// Another client's view of a window.
function placeOf(id) {
  const text = run('xwininfo', '-id', id);
  const number = (label) => Number(text.match(`${label}: +(-?\\d+)`)[1]);
  const [x, y] = ['X', 'Y'].map((axis) => (
    number(`Absolute upper-left ${axis}`)));
  const [width, height] = [number('Width'), number('Height')];
  const shown = /Map State: IsViewable/.test(text);
  const place = `${width}x${height} at ${x},${y}`;
  return { x, y, width, height, shown, text: `${place}, ` +
    `${shown ? 'shown' : 'hidden'}` };
}

// Another client's view of which window lies above which.
function orderOf(ids) {
  const tree = run('xwininfo', '-root', '-tree');  // top first, frames opened
  const depth = (id) => tree.indexOf(` 0x${id.toString(16)} `);
  const order = [...ids].sort((one, two) => depth(one) - depth(two));
  return { top: order[0], text: `from the top ${order.join(', ')}` };
}

const heading = (text) => console.log(`\n${text}`);
const line = (label, value) => console.log(`  ${label.padEnd(48)} ${value}`);

// Calls a function; a window manager, where there is one, takes its time, so
// another client looks until `done` holds.
function call(name, args, look, done) {
  line(`${name}(${args.join(', ')})`, JSON.stringify(helper[name](...args)));
  if (!look) return;
  const limit = Date.now() + 5000;
  let now = look();
  while (!done(now) && Date.now() < limit) now = look();
  line('  the server says', now.text);
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
const look = () => placeOf(clock);
const is = (x, y, size) => (now) => now.x >= x && now.y >= y &&
  now.width === size && now.height === size;
call('moveWindow', [clock, 80, 100, 220, 220, true], look, is(80, 100, 220));
call('setWindowPos', [clock, 0, 0, 0, 260, 260, 2], look, is(80, 100, 260));
call('showWindow', [clock, 0], look, (now) => !now.shown);
call('showWindow', [clock, 5], look, (now) => now.shown);
call('setWindowPos', [clock, 0, 60, 160, 360, 360, 0x40], look,
  is(60, 160, 360));

heading('The calculator rises above it');
const order = () => orderOf([calculator, clock]);
line('before, the server says', order().text);
call('bringWindowToTop', [calculator], order, (now) => now.top === calculator);
call('getWindowRect', [calculator]);

heading('No window, no harm');
call('isWindowHandle', [0]);
call('getWindowRect', ['abc']);
call('setWindowPos', [clock, 0, 1, 2, 3]);

run('scrot', '--overwrite', '--delay', 1, picture);
console.log(`\nThe desktop is in ${path.relative('', picture)}.`);
process.exit();
