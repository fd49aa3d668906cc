'use strict';

// Runs the examples of pages and compares what they print with the block
// behind, which has no language:
//
//   ```js, ```c, ```cpp   a program; in a script `helper` is the module
//   ```c name.c, ...      a file for the programs and commands that follow
//   ```cmake name.txt     a project, which is built
//   ```sh                 commands, where a block is behind: how it ends
//   ```ts                 a signature, which is not run

const assert = require('assert');
const fs = require('fs');
const path = require('path');
const { test } = require('node:test');
const { build, makeFolder, makePackage, node, run } =
  require('../package/packages');

const cwd = makeFolder();
const prefix = makeFolder();
const env = { ...process.env, CMAKE_PREFIX_PATH: prefix,
  PATH: `${path.dirname(node)}:${process.env.PATH}` };
const shell = (text) => run('bash', ['-euo', 'pipefail', '-c', text],
  { cwd, env });
shell(`mkdir node_modules; ln -s ${makePackage()} node_modules/korvane-helper
  echo "global.helper = require('korvane-helper')" >helper.js
  cmake --install ${build} --prefix ${prefix}`);
env.PKG_CONFIG_PATH = path.dirname(shell(`find ${prefix} -name '*.pc'`));

const compile = '-Wall -Wextra -Werror -o program ' +
  '$(pkg-config --cflags --libs korvane_links) && ./program';
// How a program is run.
const commands = {
  js: 'node -r ./helper.js program.js',
  c: `gcc program.c -std=c99 -pedantic-errors ${compile}`,
  cpp: `g++ program.cpp -std=c++17 ${compile}`,
};

function runExample(language, name, text, printed) {
  const isProgram = !name && language in commands;
  const file = isProgram ? `program.${language}` : name;
  if (file) fs.writeFileSync(path.join(cwd, file), text);
  if (isProgram) assert.strictEqual(shell(commands[language]), printed);
  if (language === 'cmake') shell('cmake -B build && cmake --build build');
  if (language === 'sh' && printed) assert(shell(text).endsWith(printed));
}

const fence =
  /^```(\w+) ?(.*)\n([^]*?)^```$(?:(?!^```)[^])*(?:^```\n([^]*?)^```$)?/gm;

for (const page of process.argv.slice(2)) {
  const text = fs.readFileSync(path.join(__dirname, '../..', page), 'utf8');
  assert(text.match(fence), page);
  for (const found of text.matchAll(fence)) {
    const line = text.slice(0, found.index).split('\n').length;
    test(`${page}:${line}`, () => runExample(...found.slice(1)));
  }
}
