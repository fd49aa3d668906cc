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

const run = (command, args, options) => execFileSync(command, args,
  { encoding: 'utf8', stdio: 'pipe', ...options });

// Other users may read it.
function makeFolder() {
  const folder = fs.mkdtempSync(path.join(root, 'x'));
  run('chmod', ['755', root, folder]);
  return folder;
}

function makePackage() {
  const folder = makeFolder();
  const prebuilds = path.join(folder, `prebuilds/linux-${process.arch}`);
  const abi = run(node, ['-p', 'process.versions.modules']).trim();
  run(path.join(__dirname, '../../script/stage'), [folder]);
  fs.cpSync(path.join(build, 'module'), path.join(prebuilds, `abi-${abi}`),
    { recursive: true });
  return folder;
}

module.exports = { build, makeFolder, makePackage, node, run };
