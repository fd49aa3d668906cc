'use strict';

// A tour of the module in its runtime: node tour.js PATH/KorvaneHelper.node

const path = require('path');

const file = path.resolve(process.argv[2]);
const helper = require(file);

const heading = (text) => console.log(`\n${text}`);
const line = (label, value) => console.log(`  ${label.padEnd(48)} ${value}`);
const show = (expression) => line(expression,
  JSON.stringify(Function('helper', `return helper.${expression}`)(helper)));

const names = Object.keys(helper);

heading('KorvaneHelper in its runtime');
line('runtime', `Node.js ${process.version}`);
line('Node.js ABI', process.versions.modules);
line('module', path.relative('', file));
line('functions', `${names.length}: ${names[0]}, ${names[1]}, … ` +
  `${names[names.length - 1]}`);

heading(`The display ${process.env.DISPLAY || '(none)'}`);
show('getMonitorDPIFactor()');
show('setDefaultDPI(120)');
show('getMonitorDPIFactor()');
show('setDefaultDPI(96)');

heading('This machine and its peer identifier (the trace is the module\'s)');
show('getPeerID()');
show('getCpuProcessors()');
show('getFileVersion()');

heading('Reachability: does the host of a URL resolve?');
show('isPingHostValid("http://localhost/file.zip")');
show('isPingHostValid("https://127.0.0.1/")');
show('isPingHostValid("http://no-such-host.invalid/")');

heading('Collation: the second text against the first');
show('compareStr("apple", "banana")');
show('compareStr("banana", "apple")');

heading('Shell commands');
show('System("uname -sm")');
show('System("echo 中文")');
show('System(42)');

heading('The clipboard registration calls back at once');
const answer = helper.attachClipBoard((...args) => {
  line('called back with', args.map((arg) => JSON.stringify(arg)).join(', '));
});
line('and returned', answer);

heading('Wrong arguments get an answer, never an exception');
show('asyncUnZipFile("a.zip")');
show('getDriveType(Symbol("odd"))');
show('getWindowRect()');
