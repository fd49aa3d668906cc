'use strict';

// Prints the table of goals from the medians of measurements, and draws them:
//
//   report.js PICTURE MEASUREMENTS...
//
// Fails if a goal is missed.

const fs = require('fs');
const path = require('path');

const [, , picture, ...files] = process.argv;
const goals = fs.readFileSync(path.join(__dirname, 'data/goals.tsv'), 'utf8').split('\n')
  .filter((line) => line !== '' && !line.startsWith('#')).map((line) => line.split('\t'));

// By WORKLOAD/LIST and contender: the median, in nanoseconds.
function medians() {
  const times = {};
  files.forEach((file) => {
    JSON.parse(fs.readFileSync(file, 'utf8')).benchmarks.forEach((turn) => {
      if (turn.run_type === 'aggregate') return;
      const [, row, contender] = turn.name.match(/^(.*?\/[^/]*)\/([^/]*)/);
      times[row] = times[row] || {};
      (times[row][contender] = times[row][contender] || []).push(turn.cpu_time);
    });
  });
  Object.values(times).forEach((row) => Object.keys(row).forEach((contender) => {
    const sorted = row[contender].sort((a, b) => a - b);
    row[contender] = sorted[Math.floor(sorted.length / 2)];
  }));
  return times;
}

// How cost grows: the time of one, at the worst size.
function addWorst(row) {
  const sizes = Object.keys(row).filter(Number);
  sizes.forEach((size) => { row[size] /= size; });
  row.worst = Math.max(...sizes.slice(1).map((size) => row[size]));
}

const fits = (pattern, text) =>
  new RegExp(`^${pattern.split('*').join('.*')}$`).test(text);

function rows() {
  const result = [];
  Object.entries(medians()).forEach(([name, times]) => {
    if (times[100]) addWorst(times);
    const [workload, list] = name.split('/');
    const peers = {};
    goals.filter((goal) => fits(goal[0], workload) && fits(goal[1], list) && times[goal[3]])
      .forEach((goal) => { peers[goal[3]] = peers[goal[3]] || goal; });
    Object.values(peers).forEach(([, , ours, peer, goal, label]) => {
      const ratio = times[ours] / times[peer];
      result.push({ name: `${workload}, ${list}`, ours: times[ours], peer, theirs: times[peer],
        ratio, goal, met: ratio <= goal, label });
    });
  });
  return result;
}

function print(all) {
  const line = (...cells) => console.log(cells.map((cell, i) =>
    (i === 0 || i === 2 ? cell.padEnd(i ? 19 : 44) : cell.padStart(i < 4 ? 11 : 7))).join(' '));
  line('workload, list', 'ours, ns', 'peer', 'its, ns', 'ratio', 'goal', '');
  all.forEach(({ name, ours, peer, theirs, ratio, goal, met }) => line(name, ours.toFixed(1),
    peer, theirs.toFixed(1), ratio.toFixed(3), goal, met ? 'met' : 'MISSED'));
}

// Two bars a row: the peer's is always as long; a mark on ours is the goal.
function draw(all) {
  const [left, width, step] = [190, 300, 34];
  const text = (x, y, words) => `<text x="${x}" y="${y}">${words}</text>`;
  const bar = (y, length, color) =>
    `<rect x="${left}" y="${y}" width="${length}" height="12" fill="${color}"/>`;
  const drawn = all.map(({ label, peer, ratio, goal }, i) => {
    const y = 12 + i * step;
    return [text(8, y + 15, label), bar(y, width * ratio, '#2a6fdb'), bar(y + 13, width, '#c3c9d2'),
      text(left + width * Math.max(ratio, 0) + 6, y + 10, ratio.toFixed(2)),
      text(left + 6, y + 23, peer)].join('');
  });
  const size = `width="560" height="${all.length * step + 16}"`;
  return `<svg xmlns="http://www.w3.org/2000/svg" ${size} font-family="sans-serif" font-size="11">
<rect ${size} fill="#fff"/>\n${drawn.join('\n')}\n</svg>\n`;
}

const all = rows();
print(all);
fs.writeFileSync(picture, draw(all.filter((row) => row.label)));
const met = all.filter((row) => row.met).length;
console.log(all.length ? `${met} of ${all.length} goals met` : 'Nothing was measured');
process.exitCode = met === all.length && met > 0 ? 0 : 1;
