/** The module file for the running Node.js: what `korvane-helper` loads. */
export const file: string;

/** The folder of the C and C++ headers: it holds `korvane/korvane_links.h`. */
export const include: string;
