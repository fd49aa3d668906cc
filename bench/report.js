'use strict';

// Prints the table of goals from the medians of measurements, and draws them:
//
//   report.js PICTURE MEASUREMENTS...
//
// Fails if a goal is missed.

const fs = require('fs');

const [, , picture, ...files] = process.argv;
const goals = fs.readFileSync(`${__dirname}/data/goals.tsv`, 'utf8').split('\n')
  .filter((line) => line !== '' && !line.startsWith('#'))
  .map((line) => line.split('\t'));

// By WORKLOAD/LIST and contender: the median, in nanoseconds.
function medians(file) {
  const times = {};
  JSON.parse(fs.readFileSync(file, 'utf8')).benchmarks.forEach((turn) => {
    if (turn.run_type === 'aggregate') return;
    const [, row, contender] = turn.name.match(/^(.*?\/[^/]*)\/([^/]*)/);
    times[row] = times[row] || {};
    (times[row][contender] = times[row][contender] || []).push(turn.cpu_time);
  });
  Object.values(times).forEach((row) => Object.keys(row).forEach((name) => {
    const sorted = row[name].sort((a, b) => a - b);
    row[name] = sorted[Math.floor(sorted.length / 2)];
  }));
  return times;
}

// How cost grows: the time of one, at the worst size.
function addWorst(row) {
  const sizes = Object.keys(row).filter(Number);
  sizes.forEach((size) => { row[size] /= size; });
  row.worst = Math.max(...sizes.slice(1).map((size) => row[size]));
}

const fits = (pattern, text) => (
  new RegExp(`^${pattern.split('*').join('.*')}$`).test(text));

function rows(file) {
  const result = [];
  Object.entries(medians(file)).forEach(([row, times]) => {
    if (times[100]) addWorst(times);
    const [workload, list] = row.split('/');
    const peers = new Set();
    goals.forEach(([itsWorkload, itsList, ours, peer, goal, drawn]) => {
      if (!fits(itsWorkload, workload) || !fits(itsList, list)) return;
      if (!times[peer] || peers.has(peer)) return;
      peers.add(peer);
      const ratio = times[ours] / times[peer];
      result.push({ name: `${workload}, ${list}`, ours: times[ours], peer,
        theirs: times[peer], ratio, goal, met: ratio <= goal, drawn });
    });
  });
  return result;
}

function print(all) {
  const line = (name, ours, peer, ...rest) => console.log(name.padEnd(44),
    ours.padStart(10), peer.padEnd(18), ...rest.map((it) => it.padStart(10)));
  line('workload, list', 'ours, ns', 'peer', 'peer, ns', 'ratio', 'goal', '');
  all.forEach(({ name, ours, peer, theirs, ratio, goal, met }) => line(name,
    ours.toFixed(1), peer, theirs.toFixed(1), ratio.toFixed(3), goal,
    met ? 'met' : 'MISSED'));
}

// Two bars a row. The peer's is always as long.
function draw(all) {
  const [left, width, step] = [220, 260, 36];
  const text = (x, y, words) => `<text x="${x}" y="${y}">${words}</text>`;
  const bar = (y, length, color) => `<rect x="${left}" y="${y}" ` +
    `width="${length.toFixed()}" height="14" fill="${color}"/>`;
  const drawn = all.map(({ name, peer, ratio }, i) => {
    const [y, end] = [10 + i * step, left + width * ratio + 6];
    return text(10, y + 18, name) + bar(y, width * ratio, '#7fb2f0') +
      bar(y + 14, width, '#d5d9df') + text(left + 6, y + 25, peer) +
      text(end.toFixed(), y + 11, ratio.toFixed(2));
  });
  const size = `width="560" height="${all.length * step + 14}"`;
  return `<svg xmlns="http://www.w3.org/2000/svg" ${size} font-size="12"
font-family="sans-serif"><rect ${size} fill="#fff"/>
${drawn.join('\n')}\n</svg>\n`;
}

const all = [].concat(...files.map(rows));
print(all);
fs.writeFileSync(picture, draw(all.filter((row) => row.drawn)));
const met = all.filter((row) => row.met).length;
console.log(all.length === 0 ? 'Nothing was measured'
  : `${met} of ${all.length} goals met`);
process.exitCode = met === all.length && met > 0 ? 0 : 1;
