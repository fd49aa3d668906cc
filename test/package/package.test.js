'use strict';

// What script/prebuilds collects and refuses, and a package that is installed.

const fs = require('fs');
const path = require('path');
const { execFileSync, spawnSync } = require('child_process');
const { assert, helper, test } = require('../script/harness');
const { copy, copyModule, makeFolder, replace, setMachine } =
  require('./copies');

const sources = path.join(__dirname, '../..');
const build = process.env.KORVANE_BUILD;
const readme = fs.readFileSync(path.join(sources, 'README.md'), 'utf8');
const [, glibc] = /glibc ([\d.]*\d)/.exec(readme);
const [, glibcxx] = /GLIBCXX ([\d.]*\d)/.exec(readme);
const next = (version) => version.replace(/\d+$/, (last) => Number(last) + 1);

// A build folder whose module is altered.
function makeBuild(change) {
  const folder = makeFolder();
  copy(['compile_commands.json'], build, folder);
  for (const name of fs.readdirSync(path.join(build, 'CMakeFiles'))) {
    const compiler = path.join('CMakeFiles', name);
    if (fs.existsSync(path.join(build, compiler, 'CMakeSystem.cmake'))) {
      copy(['CMakeSystem.cmake'], path.join(build, compiler),
        path.join(folder, compiler));
    }
  }
  copyModule(path.join(folder, 'module'), change);
  return folder;
}

// What script/prebuilds says of such a folder, called BUILD here.
function collect(change) {
  const folder = path.join(makeFolder(), 'prebuilds');
  const source = makeBuild(change);
  const { status, stderr } = spawnSync(path.join(sources, 'script/prebuilds'),
    [folder, source], { encoding: 'utf8' });
  return { folder, status, complaint: stderr.trim().replace(source, 'BUILD') };
}

test('modules that are not fit for shipping are refused', () => {
  const riscv = (folder) => execFileSync('sh', ['-c',
    'sed -i s/x86_64/riscv64/ "$0"/../CMakeFiles/*/CMakeSystem.cmake', folder]);
  const cases = [
    [setMachine(183), 'BUILD/module/KorvaneHelper.node is for AArch64, not x64'],
    [setMachine(183, 'libkorvane_host.so'),
      'BUILD/module/libkorvane_host.so is for AArch64, not x64'],
    [riscv, 'BUILD is for riscv64'],
    [replace('GLIBC_2.14', `GLIBC_${next(glibc)}`),
      `BUILD/module/KorvaneHelper.node needs GLIBC ${next(glibc)}, ` +
      `README.md promises ${glibc}`],
    [replace('GLIBC_2.14', `GLIBC_${glibc}`)],
    [replace('GLIBCXX_3.4.21', `GLIBCXX_${next(glibcxx)}`),
      `BUILD/module/KorvaneHelper.node needs GLIBCXX ${next(glibcxx)}, ` +
      `README.md promises ${glibcxx}`],
    [replace('GLIBCXX_3.4.21', `GLIBCXX_${glibcxx}`)],
    [replace('parse_url_u\0', 'parse_url_x\0'),
      'BUILD/module/KorvaneHelper.node exports parse_url_x'],
  ];
  for (const [change, problem] of cases) {
    const { status, complaint } = collect(change);
    assert.deepStrictEqual([status, complaint],
      problem ? [1, `Not fit for shipping: ${problem}`] : [0, '']);
  }
});

test('a package installs without a network and works', () => {
  const stage = makeFolder();
  copy(['package.json', 'index.js', 'index.d.ts', 'README.md', 'LICENSE',
    'CHANGELOG.md', 'docs'], sources, stage);
  const { folder, complaint } = collect();
  assert.strictEqual(complaint, '');
  copy(['prebuilds'], path.dirname(folder), stage);

  const project = makeFolder();
  const npm = (...args) => execFileSync('npm',
    [...args, '--silent', '--ignore-scripts', '--offline'],
    { cwd: project, encoding: 'utf8' });
  npm('pack', stage);
  fs.writeFileSync(path.join(project, 'package.json'), '{}');
  npm('install', './korvane-helper-1.0.0.tgz');

  const installed = execFileSync('find', ['node_modules/korvane-helper',
    '-type', 'f'], { cwd: project, encoding: 'utf8' })
    .trim().split('\n').map((name) => name.slice(28)).sort();
  const prebuilt = `prebuilds/linux-${process.arch}/` +
    `interface-${process.versions.modules}`;
  assert.deepStrictEqual(installed.filter((name) => !/^docs\//.test(name)), [
    'CHANGELOG.md', 'LICENSE', 'README.md', 'index.d.ts', 'index.js',
    'package.json', `${prebuilt}/KorvaneHelper.node`,
    `${prebuilt}/libkorvane_host.so`]);

  fs.writeFileSync(path.join(project, 'script.js'), `
    const helper = require('korvane-helper');
    console.log(Object.keys(helper).length);
    console.log(helper.System('echo hello'));
  `);
  assert.strictEqual(
    execFileSync(process.execPath, ['script.js'],
      { cwd: project, encoding: 'utf8' }),
    `${Object.keys(helper).length}\nhello\n\n`);
});
