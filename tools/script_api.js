#!/usr/bin/env node
'use strict';

// Writes docs/script-api.md from index.d.ts; with --check it only says whether
// the page is up to date, and ends with 1 if it is not.

const fs = require('fs');
const path = require('path');
const { read } = require('./typings');

const page = path.join(__dirname, '..', 'docs', 'script-api.md');

const doesNothing = ({ text }) => text === 'Does nothing.';
const answersOneThing = ({ returns, fallback }) => (
  /^`/.test(returns) && fallback === undefined);

function section({ name, signature, text, params, returns, fallback }) {
  const facts = Object.keys(params)
    .map((param) => `- \`${param}\`: ${params[param]}`);
  if (returns) facts.push(`- answers ${returns}`);
  if (fallback) facts.push(`- otherwise ${fallback}`);
  return [`### ${name}`, '', '```ts', signature, '```', '', text, '',
    ...(facts.length ? [...facts, ''] : [])];
}

function row({ name, list, text, returns }) {
  const names = list.filter((param) => !param.name.startsWith('...'))
    .map((param) => param.name);
  const says = text.replace(/\s+/g, ' ');
  return `| \`${name}(${names.join(', ')})\` | ${says} | ${returns} |`;
}

function render({ about, functions }) {
  const nothing = functions.filter(doesNothing);
  const constant = functions
    .filter((entry) => !doesNothing(entry) && answersOneThing(entry));
  const working = functions
    .filter((entry) => !doesNothing(entry) && !answersOneThing(entry));
  return [
    '# Script functions', '',
    '<!-- Written by tools/script_api.js from index.d.ts. -->', '',
    about, '',
    `Of the ${functions.length} functions ${working.length} work, ` +
      `${constant.length} give one answer to every call, and ` +
      `${nothing.length} do nothing. What may surprise in some of them is ` +
      'in [known-behaviours.md](known-behaviours.md).', '',
    '## Functions that work', '',
    ...[].concat(...working.map(section)),
    '## Functions with one answer', '',
    '| function | | answers |', '|---|---|---|', ...constant.map(row), '',
    '## Functions that do nothing', '',
    'They read nothing, have no effect and answer `undefined`.', '',
    ...nothing.map(({ name }) => `- \`${name}\``), '',
  ].join('\n');
}

const wanted = render(read());
if (process.argv[2] !== '--check') {
  fs.writeFileSync(page, wanted);
} else if (fs.readFileSync(page, 'utf8') !== wanted) {
  console.error('docs/script-api.md is out of date: run tools/script_api.js');
  process.exitCode = 1;
}
