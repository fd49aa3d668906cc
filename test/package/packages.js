'use strict';

// The package with the module of this build, in folders that are gone when the
// process ends.

const fs = require('fs');
const os = require('os');
const path = require('path');
const { execFileSync } = require('child_process');

const { KORVANE_BUILD: build, KORVANE_NODE: node } = process.env;
const root = fs.mkdtempSync(path.join(os.tmpdir(), 'package-'));
process.on('exit', () => fs.rmSync(root, { recursive: true }));

const makeFolder = () => fs.mkdtempSync(path.join(root, 'x'));
const run = (command, args, options) => execFileSync(command, args,
  { encoding: 'utf8', stdio: 'pipe', ...options });

function makePackage() {
  const folder = makeFolder();
  run(path.join(__dirname, '../../script/stage'), [folder]);
  const abi = run(node, ['-p', 'process.versions.modules']).trim();
  fs.cpSync(path.join(build, 'module'), path.join(folder,
    `prebuilds/linux-${process.arch}/abi-${abi}`), { recursive: true });
  return folder;
}

module.exports = { build, makeFolder, makePackage, node, run };
