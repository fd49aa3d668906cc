'use strict';

// node fake_display.js COMMAND...: runs a command on a display of the tests'
// own. It answers what the X library asks from a table of numbers, fails where
// it is told to, and notes every request. The command writes a line to
// descriptor 3 and reads one line of answer from descriptor 4:
//   KEY VALUE  sets a number: of `told`, or "refuse", "close_at", "hold_at",
//              the request code that is answered with an error, ends the
//              connection, or waits until another number is set
//   next       the requests of the oldest connection not told yet, without
//              those of opening and closing; waits until it has ended
//   held       waits until a request waits
// An answer that takes more than 20 seconds ends the command.

const fs = require('fs');
const net = require('net');
const readline = require('readline');
const { spawn } = require('child_process');

const root = 0x100;
const told = {
  root, x: 0, y: 0, w: 1, h: 1, properties: 1,  // every window
  translated_x: 0, translated_y: 0, same_screen: 1,
  focus: 0, pointer_x: 0, pointer_y: 0,
};

const field = (size, value = 0) => {
  const bytes = Buffer.alloc(size);
  for (let i = 0; i < size; i += 1) bytes[i] = value >> (8 * i);
  return bytes;
};
const byte = (value) => field(1, value);
const half = (value) => field(2, value);
const word = (value) => field(4, value);
const zeros = (count) => field(count);

const atoms = [];  // their names; the first is 0x200
const nameOf = (request) => (
  request.toString('latin1', 8, 8 + request.readUInt16LE(4)));
function numberOf(name) {
  if (!atoms.includes(name)) atoms.push(name);
  return 0x200 + atoms.indexOf(name);
}

// What the X library asks to open and to close a connection is not noted.
const freeContext = 60;
const opening = [20, 55, 98];
const names = {
  3: 'GetWindowAttributes', 8: 'MapWindow', 10: 'UnmapWindow',
  12: 'ConfigureWindow', 14: 'GetGeometry', 16: 'InternAtom',
  21: 'ListProperties', 25: 'SendEvent', 38: 'QueryPointer',
  40: 'TranslateCoordinates', 43: 'GetInputFocus', 44: 'QueryKeymap',
  101: 'GetKeyboardMapping', 119: 'GetModifierMapping',
};
// The data byte of a reply, then what follows its length.
const replies = {
  3: () => [0, word(0x21), half(1), zeros(30)],
  14: () => [24, word(told.root), half(told.x), half(told.y), half(told.w),
    half(told.h), zeros(12)],
  16: (request) => [0, word(numberOf(nameOf(request))), zeros(20)],
  20: () => [0, zeros(24)],
  21: () => [0, half(told.properties), zeros(22 + 4 * told.properties)],
  38: () => [1, word(root), zeros(4), half(-1), half(-1),
    half(told.pointer_x), half(told.pointer_y), zeros(8)],
  40: (request) => [
    request.readUInt32LE(8) === told.root ? told.same_screen : 0, zeros(4),
    half(told.translated_x), half(told.translated_y), zeros(16)],
  43: () => [0, word(told.focus), zeros(20)],
  44: () => [0, zeros(32)],
  98: () => [0, zeros(24)],
  101: (request) => [1, zeros(24 + 4 * request[5])],
  119: () => [1, zeros(32)],
};

const screen = (id, width, height) => Buffer.concat([
  word(id), word(0x20), zeros(12), half(width), half(height), half(339),
  half(271), half(1), half(1), word(0x21), zeros(2),
  byte(24), byte(1), byte(24), byte(0), half(1), zeros(4),     // one depth
  word(0x21), byte(4), byte(8), half(256), zeros(16)]);        // one visual

function setup() {
  const body = Buffer.concat([
    zeros(4), word(0x400000), word(0x1fffff), zeros(4), half(0), half(-1),
    byte(2), byte(1), zeros(2), byte(32), byte(32), byte(8), byte(255),
    zeros(4), byte(24), byte(32), byte(32), zeros(5),          // one format
    screen(root, 1280, 1024), screen(root + 1, 800, 600)]);
  return Buffer.concat(
    [byte(1), byte(0), half(11), half(0), half(body.length / 4), body]);
}

// A request as text: its name, then an atom's name or the request's words.
function describe(request) {
  const [code, flag] = request;
  const parts = [names[code] || `request ${code}`];
  if ((code === 16 || code === 25) && flag !== 0) parts.push('flagged');
  if (code === 16) parts.push(nameOf(request));
  for (let at = 4; code !== 16 && at < request.length; at += 4) {
    const mask = code === 12 && at === 8;  // the rest of this word is padding
    parts.push(request.readUIntLE(at, mask ? 2 : 4).toString(16));
  }
  return parts.join(' ');
}

function answer(request, sequence) {
  const code = request[0];
  if (code === told.refuse) {
    return Buffer.concat([byte(0), byte(3), half(sequence), zeros(6),
      byte(code), zeros(21)]);
  }
  if (!replies[code]) return zeros(0);
  const [data, ...fields] = replies[code](request);
  const body = Buffer.concat(fields);
  return Buffer.concat([byte(1), byte(data), half(sequence),
    word((body.length - 24) / 4), body]);
}

// Calls those that wait; one that still has to wait puts itself back.
const waiting = [];
const wake = () => waiting.splice(0).forEach((step) => step());
const ended = [];
const held = [];

function serve(socket) {
  const requests = [];
  let unread = Buffer.alloc(0);
  let sequence = -1;  // the set-up is no request
  let noting = true;
  const take = () => {
    while (unread.length >= 4) {
      const padded = (at) => Math.ceil(unread.readUInt16LE(at) / 4) * 4;
      const size = sequence >= 0 ? unread.readUInt16LE(2) * 4
        : unread.length < 12 ? Infinity : 12 + padded(6) + padded(8);
      if (unread.length < size) return;
      const request = unread.slice(0, size);
      if (sequence >= 0) {
        const [code] = request;
        if (code === told.close_at) { socket.destroy(); return; }
        if (code === told.hold_at) { held.push(take); wake(); return; }
        noting = noting && code !== freeContext;
        if (noting && !opening.includes(code)) requests.push(describe(request));
      }
      unread = unread.slice(size);
      sequence += 1;
      if (sequence > 0) socket.write(answer(request, sequence));
      else socket.write(setup());
    }
  };
  socket.on('data', (bytes) => {
    unread = Buffer.concat([unread, bytes]);
    take();
  });
  socket.on('error', () => {});
  socket.on('close', () => { ended.push(requests.join('; ')); wake(); });
}

function obey(line, tell) {
  const [key, value] = line.split(' ');
  if (key === 'next' && ended.length > 0) tell(ended.shift());
  else if (key === 'held' && held.length > 0) tell('');
  else if (value === undefined) waiting.push(() => obey(line, tell));
  else {
    told[key] = Number(value);
    held.splice(0).forEach((take) => take());
    tell('');
  }
}

const folder = '/tmp/.X11-unix';  // where the X library looks
try {
  fs.mkdirSync(folder);
  fs.chmodSync(folder, 0o1777);  // every user's servers make sockets there
} catch (error) {
  if (error.code !== 'EEXIST') throw error;
}
let number = 1000;
const server = net.createServer(serve);
const listen = () => server.listen(`${folder}/X${number}`);
server.on('error', (error) => {
  if (error.code !== 'EADDRINUSE') throw error;
  number += 1;
  listen();
});
server.on('listening', () => {
  const child = spawn(process.argv[2], process.argv.slice(3), {
    stdio: ['inherit', 'inherit', 'inherit', 'pipe', 'pipe'],
    env: Object.assign({}, process.env, { DISPLAY: `:${number}` }),
  });
  readline.createInterface({ input: child.stdio[3] }).on('line', (line) => {
    const limit = setTimeout(() => {
      console.error(`fake_display: no answer to "${line}" in 20 s`);
      child.kill('SIGKILL');
    }, 20000);
    obey(line, (text) => {
      clearTimeout(limit);
      child.stdio[4].write(`${text}\n`);
    });
  });
  child.on('exit', (code) => {
    process.exitCode = code === null ? 1 : code;
    server.close(() => process.exit());
  });
});
listen();
