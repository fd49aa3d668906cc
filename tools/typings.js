'use strict';

// Reads index.d.ts: what it says of all functions together, and of each.

const fs = require('fs');
const path = require('path');

const file = path.join(__dirname, '..', 'index.d.ts');

// A comment's lines without their stars.
function lines(comment) {
  return comment.replace(/^\/\*\*|\*\/$/g, '').split('\n')
    .map((line) => line.replace(/^ \* ?/, '').trimRight());
}

// { text, params: { name: text }, returns, fallback } of a comment; what a tag
// says stands in one line.
function readComment(comment) {
  const [text, ...tags] = lines(comment).join('\n').split(/\n(?=@)/);
  const entry = { text: text.trim(), params: {} };
  for (const tag of tags) {
    const [, kind, rest] = /^@(\w+)\s*([^]*)$/.exec(tag.trim());
    const says = rest.replace(/\s+/g, ' ');
    const param = /^(\S+) (.*)$/.exec(says);
    if (kind === 'param') entry.params[param[1]] = param[2];
    else entry[kind] = says;
  }
  return entry;
}

// [{ name, type }] of a parameter list, which nests parentheses at most once.
function readParams(list) {
  const params = list.match(/[.\w]+\??: (\([^)]*\) => \w+|[^,(]+)/g) || [];
  return params.map((param) => {
    const [, name, type] = /^([.\w]+\??): (.*)$/.exec(param);
    return { name, type };
  });
}

// Reads the file, or a text of its form: { about, functions }, the functions
// in their order as { name, list, answer, signature, text, params,
// returns, fallback }: `list` are the parameters, `answer` is the answer's type.
function read(source = fs.readFileSync(file, 'utf8')) {
  const about = readComment(/^\/\*\*[^]*?\*\//.exec(source)[0]).text;
  const comment = /(\/\*\*(?:(?!\*\/)[^])*\*\/)\n/.source;
  const type = /((?:\{[^}]*\}|[^;{])*);\n/.source;
  const pattern = new RegExp(
    `${comment}export function (\\w+)\\(([^;]*)\\): ${type}`, 'g');
  const functions = [];
  for (let found; (found = pattern.exec(source));) {
    const [, said, name, list, answer] = found;
    functions.push(Object.assign(readComment(said), {
      name, answer, list: readParams(list),
      signature: `${name}(${list}): ${answer}`,
    }));
  }
  return { about, functions };
}

module.exports = { read };
