'use strict';

// Makes links as varied as real ones, the same in every run: in length, fields,
// escapes and trackers. One name in five goes beyond ASCII.
//
//   make_links.js FOLDER

const fs = require('fs');

const HEX = '0123456789abcdef';
const BASE32 = 'ABCDEFGHIJKLMNOPQRSTUVWXYZ234567';
const PLAIN = `${'abcdefghijklmnopqrstuvwxyz'.repeat(2)}0123456789`;
const BEYOND_ASCII = ['aeiourstnléèüñçø', 'абвгдежзиклмнопрст',
  '中文名字电影音乐下载'];
const SEPARATORS = "   ...__--()[]&'+,!";

let state = 1;

// xorshift32
function random() {
  state ^= state << 13;
  state ^= state >>> 17;
  state ^= state << 5;
  return (state >>> 0) / 2 ** 32;
}

const between = (least, most) => (
  least + Math.floor(random() * (most - least + 1)));
const oneIn = (sides) => random() * sides < 1;
const of = (choices) => choices[between(0, choices.length - 1)];
const repeat = (count, make) => Array.from({ length: count }, make).join('');
const word = (alphabet, least, most = least) => (
  repeat(between(least, most), () => of(alphabet)));

const host = () => repeat(between(1, 2), () => `${word(PLAIN, 2, 12)}.`) +
  of(['com', 'org', 'net', 'io']);
const folders = () => word(PLAIN, 1, 59).replace(/(...)./g,
  (all, kept) => (oneIn(3) ? `${kept}${of('/.-_')}` : all));

function fileName(most = 120) {
  const letters = oneIn(5) ? of(BEYOND_ASCII) : PLAIN;
  return repeat(between(3, most), () => of(oneIn(7) ? SEPARATORS : letters));
}

function tracker() {
  const scheme = of(['udp', 'udp', 'http', 'https']);
  const url = `${scheme}://${host()}:${between(80, 9999)}` +
    (oneIn(4) ? '' : '/announce');
  return `&tr=${oneIn(5) ? url : encodeURIComponent(url)}`;
}

const source = () => `,10.0.0.${between(1, 255)}:${between(1024, 9999)}`;

// A list comes from few servers.
const servers = Array.from({ length: 8 }, (_, i) => [
  `${of(['ftp', 'http'])}://${word(PLAIN, 3, 12)}${i ? '' : '%40work'}`,
  oneIn(5) ? '' : `:${word(PLAIN, 4, 16)}`,
  `@${host()}${oneIn(2) ? `:${between(21, 9999)}` : ''}/`].join(''));

const makers = {
  user: () => of(servers) + folders() +
    (oneIn(5) ? `/${encodeURIComponent(fileName(20))}` : ''),
  magnet: () => 'magnet:?xt=urn:btih:'
    + (oneIn(5) ? word(BASE32, 32) : word(HEX, 40))
    + (oneIn(10) ? '' : `&dn=${encodeURIComponent(fileName())}`)
    + (oneIn(4) ? `&xl=${between(1, 2e9)}` : '')
    + repeat(between(0, 12), tracker)
    + (oneIn(10) ? `&ws=${encodeURIComponent(`http://${host()}/${folders()}`)}`
      : ''),
  ed2k: () => 'ed2k://|file|'
    + (oneIn(3) ? String : encodeURIComponent)(fileName())
    + `|${between(1, 2e9)}|${word(HEX, 32)}|`
    + (oneIn(10) ? `p=${word(HEX, 32)}:${word(HEX, 32)}|` : '')
    + (oneIn(2) ? `h=${word(BASE32, 32)}|` : '')
    + (oneIn(10) ? `s=http://${host()}/${folders()}|/` : '/')
    + (oneIn(10) ? `|sources${repeat(between(1, 5), source)}|/` : ''),
};

// Each list is as long as bench/data/downloads.txt.
Object.keys(makers).forEach((name) => {
  let lines = '';
  while (lines.length < 1e5) lines += `${makers[name]()}\n`;
  fs.writeFileSync(`${process.argv[2]}/${name}.txt`, lines);
});
