// A script as a careful author writes it, and below what the compiler refuses.
import helper, { type Rectangle, System } from 'korvane-helper';
import { file, include } from 'korvane-helper/path';

const count: number = Object.keys(helper).length;
const place: Rectangle | undefined = undefined;
const found: boolean | undefined = helper.enableWindow(0, true);
helper.attachClipBoard((one, links) => links.concat(one.toFixed()));
console.log([count, System('echo hello'), found, place, file, include].join());

// @ts-expect-error: the name is misspelt on purpose
void helper.rebootMachine;
// @ts-expect-error: too few arguments
helper.setWindowPos(1, 0, 2, 3, 4, 5);
