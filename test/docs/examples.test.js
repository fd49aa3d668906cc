'use strict';

// The examples of the pages are run as they stand, and what they print is
// compared with the page:
//
//   ```js, ```c, ```cpp   a program; the block without a language behind it is
//                         what it prints
//   ```c name.c, ...      a file for the commands that follow
//   ```sh                 commands; with a block without a language behind it
//                         they are run, and what they print ends with that

const fs = require('fs');
const path = require('path');
const { execFileSync } = require('child_process');
const { assert, test } = require('../script/harness');
const { copy, copyModule, makeFolder } = require('../package/copies');

const sources = path.join(__dirname, '../..');
const warnings = ['-Wall', '-Wextra', '-Werror', '-o', 'program'];

// A project beside an installed package, with the module also where a checkout
// builds it.
function makeProject() {
  const project = makeFolder();
  const installed = path.join(project, 'node_modules/korvane-helper');
  copy(['index.js', 'package.json'], sources, installed);
  copyModule(path.join(installed, `prebuilds/linux-${process.arch}`,
    `interface-${process.versions.modules}`));
  copyModule(path.join(project, 'build/release/module'));
  return project;
}

// The link library, installed where pkg-config and CMake are told to look.
function installLinks() {
  const prefix = makeFolder();
  execFileSync('cmake',
    ['--install', process.env.KORVANE_BUILD, '--prefix', prefix]);
  const file = execFileSync('find', [prefix, '-name', 'korvane_links.pc'],
    { encoding: 'utf8' }).trim();
  return { PKG_CONFIG_PATH: path.dirname(file), CMAKE_PREFIX_PATH: prefix };
}

const project = makeProject();
const env = Object.assign({}, process.env, installLinks());
const run = (command, ...args) => execFileSync(command, args,
  { cwd: project, env, encoding: 'utf8' });
const shell = (commands) => run('bash', '-euo', 'pipefail', '-c', commands);
const write = (name, text) => (
  fs.writeFileSync(path.join(project, name), text));

// [{ language, name, text, line }] of the fenced blocks of a page.
function blocks(page) {
  const found = [];
  const text = fs.readFileSync(path.join(sources, page), 'utf8');
  const fence = /^```(\w*) ?(.*)\n([^]*?)^```$/gm;
  for (let block; (block = fence.exec(text));) {
    found.push({ language: block[1], name: block[2], text: block[3],
      line: text.slice(0, block.index).split('\n').length });
  }
  return found;
}

const compile = (compiler, standard) => (text, extension) => {
  write(`program${extension}`, text);
  shell(`${compiler} ${standard} ${warnings.join(' ')} program${extension} ` +
    '$(pkg-config --cflags --libs korvane_links)');
  return run('./program');
};
const programs = {
  js: (text) => {
    write('program.js', text);
    return run(process.execPath, 'program.js');
  },
  c: (text) => compile('gcc', '-std=c99 -pedantic-errors')(text, '.c'),
  cpp: (text) => compile('g++', '-std=c++17')(text, '.cc'),
};

function runExample({ language, name, text }, printed) {
  if (name) {
    write(name, text);
  } else if (language === 'sh') {
    if (printed === undefined) return;
    const said = shell(text);
    assert.strictEqual(said.slice(-printed.length), printed);
  } else if (programs[language]) {
    assert.notStrictEqual(printed, undefined, 'no block says what it prints');
    assert.strictEqual(programs[language](text), printed);
  } else if (language) {
    assert.fail(`nothing runs ${language}`);
  }
}

for (const page of process.argv.slice(2)) {
  const all = blocks(page);
  assert(all.length > 0, `${page} has no examples`);
  all.forEach((block, index) => {
    const next = all[index + 1];
    test(`${page}:${block.line}`, () => (
      runExample(block, next && !next.language ? next.text : undefined)));
  });
}
