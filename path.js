'use strict';

// Where native code finds the module for the running Node.js, and the headers.

const fs = require('fs');
const path = require('path');

const { modules: abi, node } = process.versions;
const [major] = node.split('.');
const build = major === '8' ? 'release' : `runtime-${major}`;

// In a package, and in a checkout.
const files = [
  `prebuilds/${process.platform}-${process.arch}/abi-${abi}`,
  `build/${build}/module`,
].map((folder) => path.join(__dirname, folder, 'KorvaneHelper.node'));

exports.file = files.find((file) => fs.existsSync(file)) || files[0];
exports.include = path.join(__dirname, 'include');
