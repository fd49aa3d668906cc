'use strict';

// Runs the examples of pages and compares what they print with the block
// behind, which has no language:
//
//   ```js, ```c, ```cpp   a program; in a script `helper` is the module
//   ```c name.c, ...      a file for the programs and commands that follow
//   ```sh                 commands, where a block is behind: how it ends
//   ```ts                 a signature, which is not run

const assert = require('assert');
const fs = require('fs');
const path = require('path');
const { test } = require('node:test');
const { build, makeFolder, makePackage, node, run } =
  require('../package/packages');

const project = makeFolder();
const prefix = makeFolder();
fs.mkdirSync(path.join(project, 'node_modules'));
fs.symlinkSync(makePackage(),
  path.join(project, 'node_modules/korvane-helper'));
run('cmake', ['--install', build, '--prefix', prefix]);
const env = { ...process.env, CMAKE_GENERATOR: 'Ninja',
  PATH: `${path.dirname(node)}:${process.env.PATH}`,
  CMAKE_PREFIX_PATH: prefix, PKG_CONFIG_PATH: path.dirname(
    run('find', [prefix, '-name', 'korvane_links.pc'])) };

const write = (name, text) => fs.writeFileSync(path.join(project, name), text);
const shell = (commands) => run('bash', ['-euo', 'pipefail', '-c', commands],
  { cwd: project, env });
const compiled = (compiler, name) => (text) => {
  write(name, text);
  return shell(`${compiler} -Wall -Wextra -Werror ${name} -o program \
    $(pkg-config --cflags --libs korvane_links) && ./program`);
};
const runners = {
  js: (text) => {
    const line = "const helper = require('korvane-helper');\n";
    write('program.js', text.startsWith(line) ? text : line + text);
    return run(node, ['program.js'], { cwd: project });
  },
  c: compiled('gcc -std=c99 -pedantic-errors', 'program.c'),
  cpp: compiled('g++ -std=c++17', 'program.cc'),
};

// [{ language, name, text, line }] of the fenced blocks of a page.
function blocks(page) {
  const text = fs.readFileSync(path.join(__dirname, '../..', page), 'utf8');
  const fence = /^```(\w*) ?([^\n]*)\n(.*?)^```$/gms;
  return [...text.matchAll(fence)].map((found) => ({
    language: found[1], name: found[2], text: found[3],
    line: text.slice(0, found.index).split('\n').length,
  }));
}

function runExample({ language, name, text }, printed) {
  if (name) {
    write(name, text);
  } else if (language === 'sh') {
    if (printed) assert(shell(text).endsWith(printed));
  } else if (language && language !== 'ts') {
    assert.strictEqual(runners[language](text), printed);
  }
}

for (const page of process.argv.slice(2)) {
  const all = blocks(page);
  all.forEach((block, index) => {
    const next = all[index + 1];
    test(`${page}:${block.line}`, () => (
      runExample(block, next && !next.language ? next.text : undefined)));
  });
}
