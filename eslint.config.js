'use strict';

const js = require('@eslint/js');

const globals = {};
for (const name of ['Buffer', 'clearTimeout', 'console', 'process',
  'setImmediate', 'setTimeout', '__dirname', '__filename']) {
  globals[name] = 'readonly';
}

module.exports = [
  { ignores: ['build/'] },
  js.configs.recommended,
  {
    // The product's runtime runs these.
    languageOptions: { ecmaVersion: 2018, sourceType: 'commonjs', globals },
    rules: {
      eqeqeq: 'error',
      'max-len': ['error', { code: 80 }],
      'no-shadow': 'error',
      'no-unused-vars': ['error', { caughtErrors: 'none' }],
      'no-var': 'error',
      'prefer-const': 'error',
      strict: ['error', 'global'],
    },
  },
  {
    files: ['test/docs/*', 'test/package/*'],
    languageOptions: { ecmaVersion: 2022 },
  },
];
