'use strict';

// The exported names, and what each function answers: the one answer of a
// function that has one, or the answer to a well-formed call and the fallback.
// The list gives NAME:ANSWER, NAME for undefined, NAME:? for several answers.

const fs = require('fs');
const path = require('path');

const text = 'file';
const call = () => { throw new Error('called'); };

// Functions whose answer tells a good call from another: name, good calls and
// their answer, other calls and theirs.
const checked = [
  ['getDriveType', [['/'], ['', 1]], 0, [[], [1], [null]], undefined],
  ['getTaskTypeFromUrl', [['http://h/'], ['x'.repeat(3000)], ['', 1]], 0,
    [[], [1], [new String(text)]], undefined],
];

// Well-formed calls of functions that answer one thing all the same.
const wellFormed = {
  asyncShellExecuteAndWait: [text, text, text, call],
  asyncUnZipFile: [text, text, call],
  asynCopyFile: [text, text, call],
  asynMoveFile: [text, text, call],
  asyncUpgradeP2spTask: [text, text, call],
  asyncUpgradeEmuleTask: [text, text, text, call],
  asyncUpgradeBtTask: [text, text, text, call],
  asynDeleteFile: [text, call],
  asynPreLoadFile: [text],
  isFilePathValid: [text],
  setFileAttributes: [text, 1],
  initUpgrade: [text],
  utf8StringDecodeFromBinary: [text, 1],
  utf8StringEncodeToBinary: [text, 1],
  getCpuFrequency: [call],
  asyncDiskIdleInfo: [call],
  getCpuList: [call],
  getAppList: [call],
  isSSD: [call],
  getHardDiskSpaceList: [call],
  getMemoryInfo: [call],
  startListenLocalNet: [call],
};

const listed = fs.readFileSync(
  path.join(__dirname, '../data/script_names.txt'), 'utf8').trim().split(/\s+/)
  .map((word) => word.split(/:(.*)/));
const names = listed.map(([name]) => name);
const fixed = new Map(listed.filter(([, answer]) => answer !== '?')
  .map(([name, answer]) => [name, answer && JSON.parse(answer)]));

module.exports = { checked, fixed, names, wellFormed };
