'use strict';

// Says what links hold.
//
//   inspect_links.js [--json] [LINK...]
//
// Without links it reads them from standard input, one a line. --json prints
// an object a line. Ends with 1 if a text was no link.

const path = require('path');
const readline = require('readline');

const folder = process.env.KORVANE_BUILD ||
  path.join(__dirname, '../../build/release');
const moduleFile = path.join(folder, 'module/KorvaneHelper.node');

require(moduleFile);
const addon = require(path.join(folder, 'examples/inspect_links.node'));

const labels = {
  kind: 'kind', name: 'file name', size: 'size in bytes', hash: 'file hash',
  infoHash: 'info hash', scheme: 'scheme', user: 'user', password: 'password',
  host: 'host', port: 'port', path: 'path', printed: 'printed again',
  supported: 'can be loaded',
};
const kinds = {
  url: 'URL', ed2k: 'ed2k file link', magnet: 'magnet link',
  private: 'private link, which this platform makes but does not read',
};

function asTable(link, report) {
  if (report.error) {
    return `not a link (${report.error}): ${JSON.stringify(link)}\n`;
  }
  const rows = Object.keys(report).map((key) => {
    const value = key === 'kind' ? kinds[report.kind] : report[key];
    return `  ${labels[key].padEnd(16)} ${value}\n`;
  });
  return `${link}\n${rows.join('')}`;
}

function asJson(link, report) {
  return `${JSON.stringify(Object.assign({ link }, report))}\n`;
}

// One line on the terminal, written over and over while a long list is read.
function showProgress(count) {
  if (process.stderr.isTTY && count % 1000 === 0) {
    process.stderr.write(`\r${count} links`);
  }
}

function main(args) {
  const format = args.includes('--json') ? asJson : asTable;
  const links = args.filter((argument) => argument !== '--json');
  let count = 0;
  const inspect = (link) => {
    const report = addon.inspect(link);
    if (report.error) process.exitCode = 1;
    count += 1;
    return process.stdout.write(format(link, report));
  };

  if (links.length > 0) {
    links.forEach(inspect);
    return;
  }
  const lines = readline.createInterface({ input: process.stdin });
  lines.on('line', (line) => {
    if (line.trim() === '') return;
    // Whoever reads slower than this writes is waited for.
    if (!inspect(line)) lines.pause();
    showProgress(count);
  });
  process.stdout.on('drain', () => lines.resume());
  lines.on('close', () => {
    if (process.stderr.isTTY && count >= 1000) process.stderr.write('\n');
  });
}

// A reader that has seen enough ends the program, not an error.
process.stdout.on('error', () => process.exit());

if (!addon.attach(moduleFile)) {
  throw new Error(`no link library in ${moduleFile}`);
}
main(process.argv.slice(2));
