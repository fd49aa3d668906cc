'use strict';

// Loads the module that is built for the running Node.js, 8 or later. Where
// that fails, the error says why and what helps.

const fs = require('fs');
const path = require('path');
const { file } = require('./path');
const { cpu, engines, os } = require('./package.json');

const { arch, platform } = process;
const { electron, modules: abi, node } = process.versions;
const [major] = node.split('.');

const exists = (name) => fs.existsSync(path.join(__dirname, name));
const isCheckout = exists('script/test');
const again = isCheckout ? 'build it again' : 'install the package again';
const external = 'mark it external, for esbuild by ' +
  '"--external:korvane-helper", for webpack by ' +
  '"externals: { \'korvane-helper\': \'commonjs korvane-helper\' }"';

// What the dynamic linker says, and what helps.
const refusals = [
  [/Cannot find module/, external],
  [/Error loading shared library|version .* not found/,
    'use Debian 12 or a newer system with glibc'],
  [/libX11\.so/, 'run "apt-get install libx11-6"'],
  [/Permission denied/, 'change its permissions'],
  [/./, again],
];

// The folder of the builds for this machine, and what it holds.
function searched() {
  const folder = path.join(__dirname, 'prebuilds', `${platform}-${arch}`);
  try {
    return `${folder}, which holds ${fs.readdirSync(folder).join(', ')}`;
  } catch (error) {
    return `${folder} (${error.code})`;
  }
}

// [the problem, what helps] where there is no file to load.
function explainNoFile() {
  const supported = engines.node.split(' || ');
  const none = `no build for ABI ${abi} in ${searched()}`;
  if (!exists('index.d.ts')) return ['it is part of a bundle', external];
  if (!os.includes(platform) || !cpu.includes(arch)) {
    return [`this is ${platform} on ${arch}`,
      `use ${os} on ${cpu.join(' or ')}`];
  }
  if (electron) {
    return [`this is Electron ${electron}, ${none}`,
      'load it in a Node.js process that Electron starts'];
  }
  if (!supported.includes(major)) {
    return [`this is Node.js ${node}, ${none}`,
      `use Node.js ${supported.join(', ')}`];
  }
  if (isCheckout) {
    const command = major === '8' ? 'demo' : `test --runtime ${major}`;
    return [none, `run "script/${command}"`];
  }
  return [none,
    `run "script/package --arch ${arch} ${major}" in a checkout and ${again}`];
}

function failure(problem, advice) {
  return new Error(
    `KorvaneHelper cannot be loaded: ${problem}\nTo mend this, ${advice}.`);
}

function load() {
  if (!fs.existsSync(file)) throw failure(...explainNoFile());
  try {
    return require(file);
  } catch (cause) {
    const [problem] = cause.message.split('\n');
    const [, advice] = refusals.find(([said]) => said.test(problem));
    throw Object.assign(failure(problem, advice), { cause });
  }
}

module.exports = load();
