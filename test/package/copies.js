'use strict';

// Copies of the built module and host library, with bytes altered on demand,
// in folders that are gone when the process ends.

const fs = require('fs');
const os = require('os');
const path = require('path');
const { execFileSync } = require('child_process');

const built = path.dirname(process.env.KORVANE_MODULE);
const root = fs.mkdtempSync(path.join(os.tmpdir(), 'package-'));
process.on('exit', () => execFileSync('rm', ['-r', root]));

const makeFolder = () => fs.mkdtempSync(path.join(root, 'x'));

// Copies files and folders by name from one folder to another, new or not.
function copy(names, from, to) {
  execFileSync('mkdir', ['-p', to]);
  execFileSync('cp', ['-r', ...names.map((name) => path.join(from, name)), to]);
}

// Puts the module and the host library into `folder`, which `change` alters.
function copyModule(folder, change) {
  copy(fs.readdirSync(built), built, folder);
  if (change) change(folder);
}

// Changes for copyModule: of the module's bytes, or those of another file.
const edit = (change, name = 'KorvaneHelper.node') => (folder) => {
  const file = path.join(folder, name);
  fs.writeFileSync(file, change(fs.readFileSync(file)));
};
const replace = (from, to) => edit((bytes) => (
  Buffer.from(bytes.toString('latin1').split(from).join(to), 'latin1')));
const setMachine = (number, name) => edit((bytes) => {
  bytes.writeUInt16LE(number, 18);
  return bytes;
}, name);
const remove = (name) => (folder) => fs.unlinkSync(path.join(folder, name));

module.exports = { copy, copyModule, edit, makeFolder, remove, replace,
  setMachine };
