/**
 * The script functions of KorvaneHelper. 20 functions do something here, 67
 * return a constant and 76 do nothing; every name exists on every platform.
 *
 * Nothing throws. If an argument is missing or has the wrong type, a function
 * returns its fallback. Arguments are not converted, except where documented:
 * "5" is not a number, and `new String("a")` is not a string. Numbers become
 * 32-bit integers. Strings are truncated silently at their limits, which are in
 * UTF-8 bytes. Calls block until they are done.
 *
 * Windows are identified by their X11 window ID. A window that no longer exists
 * terminates the process: the X library exits, and `try` does not catch that.
 * Window 0 does the same in a function that changes windows. Positions and sizes
 * are in pixels. Without a display a function returns its fallback, though
 * `getKeyState` returns 1.
 *
 * @packageDocumentation
 */

// Windows and the screen

export interface Rectangle {
  x: number;
  y: number;
  width: number;
  height: number;
}

/**
 * Whether the window has X11 properties, as main windows have. Terminates the
 * process for a window that no longer exists.
 *
 * @returns fallback `false`
 */
export function isWindowHandle(window: number): boolean;

/**
 * The size of a window without its border, and a wrong position: its position
 * on the screen plus that in its parent. For a window at (10, 20) of the screen
 * x is 20 and y is 40.
 *
 * @returns fallback zeros, or `undefined` without an argument
 */
export function getWindowRect(window: number): Rectangle;

/**
 * Moves and resizes a window. An argument that is not a number counts as 0, and
 * a width or height of 0 terminates the process. Does nothing unless there are
 * exactly six arguments.
 *
 * @param x from the left edge of the parent
 * @param y from the top edge of the parent
 * @param repaint ignored
 */
export function moveWindow(
  window: number,
  x: number,
  y: number,
  width: number,
  height: number,
  repaint: boolean,
): undefined;

/**
 * Moves, resizes, shows or hides a window, and changes its stacking order. Does
 * nothing unless there are exactly seven numbers.
 *
 * @param insertAfter a sibling that is put directly beneath the window, 0 for
 *   none; a window that is no sibling terminates the process
 * @param flags 0x1 keeps the size, 0x2 keeps the position, 0x40 shows, 0x80
 *   hides unless 0x40 is set; others are ignored
 * @returns always `false`; check with `getWindowRect`
 */
export function setWindowPos(
  window: number,
  insertAfter: number,
  x: number,
  y: number,
  cx: number,
  cy: number,
  flags: number,
): boolean;

/**
 * Shows, hides or maximises a window. Does nothing unless there are exactly two
 * numbers.
 *
 * @param command 0 hides, 5 shows, 3 asks the window manager to maximise, which
 *   most window managers ignore; others do nothing
 * @returns always `false`
 */
export function showWindow(window: number, command: number): boolean;

/**
 * Raises a window above its siblings.
 *
 * @returns whether the request was sent; fallback `false`
 */
export function bringWindowToTop(window: number): boolean;

/**
 * Changes nothing: X11 windows always accept input.
 *
 * @returns `false`, or `undefined` if `isWindowHandle` is false; fallback
 *   `undefined`
 */
export function enableWindow(
  window: number,
  enable: boolean,
): boolean | undefined;

/** The size of the screen; zeros without a display. */
export function getDisplayWindowRect(): { width: number; height: number };

/** The position of the pointer on the screen; zeros without a display. */
export function getCursorPos(): { x: number; y: number };

/**
 * Asks for the state of a key and ignores it.
 *
 * @returns always 1; fallback 0
 */
export function getKeyState(key: number): number;

// Display scale

/**
 * The scale of the display: its dots per inch over the reference DPI. Ask once:
 * every call leaves a connection to the X server open until the process exits,
 * and after about 250 no program can open a window any more.
 *
 * @returns two decimals, cut and not rounded; 1 without a display
 */
export function getMonitorDPIFactor(): number;

/** The same as `getMonitorDPIFactor`, with the same danger. */
export function getSysDPIFactor(): number;

/**
 * Sets the reference DPI of the process, 96 by default.
 *
 * @param dpi any value, which is converted to a number and cut to an integer:
 *   "120" is 120. Below 1 it is ignored.
 */
export function setDefaultDPI(dpi: number): undefined;

// Shell commands

/**
 * Runs a command in the shell, with this process's environment, directory,
 * standard input and standard error, and waits until it ends.
 *
 * @param command cut after 1,023 bytes, and what is left is run. Never build it
 *   from outside text: the shell runs whatever is in it.
 * @returns its standard output, cut after 20,479 bytes and at the first zero
 *   byte; "" if it could not start; fallback `undefined`, and nothing is run
 */
export function System(command: string): string;

/** Runs "df -h > tmp.text": overwrites "tmp.text" in the current directory. */
export function getLogicalDriveStrings(): undefined;

// Network and identity

/**
 * Whether the host of a URL has an IPv4 address. Nothing is sent to the host,
 * and the resolver may block for many seconds. IPv6 addresses, such as "::1",
 * are 0.
 *
 * @param url a host name, or a URL whose scheme is "http://", "https://" or
 *   "ftp://" in lower case; with a port, a user, a query or a fragment in front
 *   of the first slash it is 0. Any value is converted to a string, cut after
 *   8,181 bytes.
 * @returns 1 or 0
 */
export function isPingHostValid(url: string): number;

/**
 * Identifies this machine by the hardware address of its last network
 * interface. Neither unique nor stable. Prints lines to standard output.
 *
 * @returns 12 hexadecimal digits and "007V"; "007V" without an address
 */
export function getPeerID(): string;

// Text, clipboard and links

/**
 * Compares the first characters in the order of the locale. Of a string that
 * begins at U+0100 or above it compares the bytes of the UTF-16 code units, low
 * byte first, up to the first zero byte.
 *
 * @returns less than 0 if `b` comes first, more than 0 if `a` does, 0 if they
 *   are equal; fallback 0
 */
export function compareStr(a: string, b: string): number;

/**
 * Calls the callback once, before it returns, with 1 and a fixed link:
 * `["http://example.com/"]`. The clipboard is not read. The callback is kept
 * until the process exits, and what it throws is ignored.
 *
 * @returns always 0
 */
export function attachClipBoard(
  callback: (one: number, links: string[]) => void,
): number;

/**
 * The type of the download task that a URL starts, which is 0 for every URL.
 *
 * @param url cut after 2,082 bytes
 * @returns fallback `undefined`
 */
export function getTaskTypeFromUrl(url: string): number;

// Constants

/** @deprecated Always returns `true`. */
export function getDPIAwareSupport(...ignored: unknown[]): boolean;
/** @deprecated Always returns `""`. */
export function getDmideCode(...ignored: unknown[]): string;
/** @deprecated Always returns `"1.0.0.1"`. */
export function getFileVersion(...ignored: unknown[]): string;
/** @deprecated Always returns `0`. Use `os.networkInterfaces()`. */
export function getCurInternetState(...ignored: unknown[]): number;
/** @deprecated Always returns `undefined`. */
export function startListenLocalNet(...ignored: unknown[]): undefined;
/** @deprecated Always returns `undefined`. */
export function shutDownMachine(...ignored: unknown[]): undefined;
/** @deprecated Always returns `undefined`. */
export function suspendMachine(...ignored: unknown[]): undefined;
/** @deprecated Always returns `undefined`. */
export function rebootdMachine(...ignored: unknown[]): undefined;
/** @deprecated Always returns `""`. Use `os.homedir()`. */
export function getAppDataLocalLowPath(...ignored: unknown[]): string;
/** @deprecated Always returns `""`. Use `os.homedir()`. */
export function getRoamingAppDataPath(...ignored: unknown[]): string;
/** @deprecated Always returns `""`. Use `os.homedir()`. */
export function getPublicUserDataPath(...ignored: unknown[]): string;
/** @deprecated Always returns `0`. Use `fs.writeFile`. */
export function writeINI(...ignored: unknown[]): number;
/** @deprecated Always returns `false`. */
export function notifyBrowserConfigChanged(...ignored: unknown[]): boolean;
/** @deprecated Always returns `undefined`. */
export function iSColdStartUp(...ignored: unknown[]): undefined;
/** @deprecated Always returns `0`. Use `process.platform`. */
export function isWin7(...ignored: unknown[]): number;
/** @deprecated Always returns `undefined`. */
export function isFullScreen(...ignored: unknown[]): undefined;
/** @deprecated Returns `0` for a string, otherwise `undefined`. */
export function getDriveType(...ignored: unknown[]): number | undefined;
/** @deprecated Always returns `false`. Use `fs.existsSync`. */
export function isFilePathValid(...ignored: unknown[]): boolean;
/** @deprecated Always returns `""`. Use `os.homedir()`. */
export function getDesktopPath(...ignored: unknown[]): string;
/** @deprecated Always returns `""`. Use `os.homedir()`. */
export function getDocumentPath(...ignored: unknown[]): string;
/** @deprecated Always returns `""`. */
export function getInstallChannel(...ignored: unknown[]): string;
/** @deprecated Always returns `""`. */
export function getChannelID(...ignored: unknown[]): string;
/** @deprecated Always returns `0`. Use `os.cpus()`. */
export function getCpuFrequency(...ignored: unknown[]): number;
/** @deprecated Always returns `1`. Use `os.cpus()`. */
export function getCpuProcessors(...ignored: unknown[]): number;
/** @deprecated Always returns `undefined`. Use `process.uptime()`. */
export function getTickCount(...ignored: unknown[]): undefined;
/** @deprecated Always returns `false`. Use `fs.chmodSync`. */
export function setFileAttributes(...ignored: unknown[]): boolean;
/** @deprecated Always returns `0`. Use `fs.copyFile`. */
export function asynCopyFile(...ignored: unknown[]): number;
/** @deprecated Always returns `0`. Use `fs.rename`. */
export function asynMoveFile(...ignored: unknown[]): number;
/** @deprecated Always returns `-1`. Use `fs.unlink`. */
export function asynDeleteFile(...ignored: unknown[]): number;
/** @deprecated Always returns `false`. Use `fs.existsSync`. */
export function queryFileExists(...ignored: unknown[]): boolean;
/** @deprecated Always returns `0`. */
export function asynPreLoadFile(...ignored: unknown[]): number;
/** @deprecated Always returns `false`. */
export function initUpgrade(...ignored: unknown[]): boolean;
/** @deprecated Always returns `0`. */
export function asyncUpgradeP2spTask(...ignored: unknown[]): number;
/** @deprecated Always returns `0`. */
export function asyncUpgradeBtTask(...ignored: unknown[]): number;
/** @deprecated Always returns `0`. */
export function asyncUpgradeEmuleTask(...ignored: unknown[]): number;
/** @deprecated Always returns `0`. Use `child_process.spawn`. */
export function asyncShellExecuteAndWait(...ignored: unknown[]): number;
/** @deprecated Always returns `0`. Use `child_process.spawn`. */
export function asyncShellExecute(...ignored: unknown[]): number;
/** @deprecated Always returns `""`. Use `fs.realpathSync`. */
export function getLongPathName(...ignored: unknown[]): string;
/** @deprecated Always returns `""`. Use `os.homedir()`. */
export function getCommonFilesPath(...ignored: unknown[]): string;
/** @deprecated Always returns `""`. */
export function getDefaultBrowserPath(...ignored: unknown[]): string;
/** @deprecated Always returns `true`. */
export function isOpenLumo(...ignored: unknown[]): boolean;
/** @deprecated Always returns `false`. */
export function IsInFullScreen(...ignored: unknown[]): boolean;
/** @deprecated Always returns `false`. */
export function isDwmCompositionEnabled(...ignored: unknown[]): boolean;
/** @deprecated Always returns `false`. */
export function isDropShadowEnabled(...ignored: unknown[]): boolean;
/** @deprecated Always returns `""`. */
export function utf8StringEncodeToBinary(...ignored: unknown[]): string;
/** @deprecated Always returns `""`. */
export function utf8StringDecodeFromBinary(...ignored: unknown[]): string;
/** @deprecated Always returns `undefined`. */
export function getWndHandleFromPoint(...ignored: unknown[]): undefined;
/** @deprecated Always returns `undefined`. */
export function getParentWnd(...ignored: unknown[]): undefined;
/** @deprecated Always returns `0`. Use `crypto.createHash`. */
export function asyncCalcuteFileMD5(...ignored: unknown[]): number;
/** @deprecated Always returns `0`. */
export function asyncDiskIdleInfo(...ignored: unknown[]): number;
/** @deprecated Always returns `0`. */
export function asyncUnZipFile(...ignored: unknown[]): number;
/** @deprecated Always returns `undefined`. Use `process.env.http_proxy`. */
export function getIEProxy(...ignored: unknown[]): undefined;
/** @deprecated Always returns `""`. */
export function getWindowClassName(...ignored: unknown[]): string;
/** @deprecated Always returns `0`. Use `process.env`. */
export function setProcessEnvironmentVariable(...ignored: unknown[]): number;
/** @deprecated Always returns `0`. Use `process.env`. */
export function removeProcessEnvironmentVariable(...ignored: unknown[]): number;
/** @deprecated Always returns `0`. */
export function asyncFindProcess(...ignored: unknown[]): number;
/** @deprecated Always returns `0`. Use `process.kill`. */
export function terminateProcessByName(...ignored: unknown[]): number;
/** @deprecated Always returns `false`. */
export function emptyWorkingSet(...ignored: unknown[]): boolean;
/** @deprecated Always returns `0`. Use `os.networkInterfaces()`. */
export function getNetAdapterInfo(...ignored: unknown[]): number;
/** @deprecated Always returns `""`. */
export function getCpuID(...ignored: unknown[]): string;
/** @deprecated Always returns `false`. */
export function createShortcut(...ignored: unknown[]): boolean;
/** @deprecated Always returns `0`. */
export function updateDesktopIcon(...ignored: unknown[]): number;
/** @deprecated Always returns `undefined`. */
export function getAppList(...ignored: unknown[]): undefined;
/** @deprecated Always returns `undefined`. */
export function isSSD(...ignored: unknown[]): undefined;
/** @deprecated Always returns `undefined`. Use `os.totalmem()`. */
export function getMemoryInfo(...ignored: unknown[]): undefined;
/** @deprecated Always returns `undefined`. */
export function getHardDiskSpaceList(...ignored: unknown[]): undefined;
/** @deprecated Always returns `undefined`. Use `os.cpus()`. */
export function getCpuList(...ignored: unknown[]): undefined;

// Placeholders

/** @deprecated Does nothing. */
export function printEtwLog(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function printAdvancedEtwLog(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function attachShadowWindow(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function drawShadowWindow(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function destroyShadowWindow(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function setShadowWindowResizable(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function initGDIPlus(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function uninitGDIPlus(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function getWindowLong(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function setWindowLong(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function modifyStyle(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function modifyStyleEx(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function setWindowFocus(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function getNextWindow(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function allowSetForegroundWindow(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function setForegroundWindow(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function setDllDirectory(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function findChildWindow(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function getClipBoardText(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function queryRegValue(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function readRegString(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function writeRegValue(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function deleteRegValue(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function deleteRegKey(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function createRegKey(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function stopListenLocalNet(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function initClipBoard(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. Use `fs.readFile`. */
export function readINI(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function refreshIcon(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function startAutoUpdateWithUI(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function startManualUpdateWithUI(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function startUpdateWithUI(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function initLiveUD(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function isKorvaneOnUserFocus(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function moveSuspenWindow(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. Use `child_process.spawn`. */
export function shellExecute(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function copyTextToClipBoard(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function emptyClipBoard(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function endKorvaneStartProcess(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function getForegroundProcessName(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function getDriveInfo(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function getPartitionSpace(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function getFreePartitionSpace(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. Use `os.tmpdir()`. */
export function getSystemTempPath(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function isKorvanePrivateUrl(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function parseKorvanePrivateUrl(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function makeKorvanePrivateUrl(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function parseFileNameFromP2spUrlPath(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. Use `new URL()`. */
export function parseUrl(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function parseEd2kUrl(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function parseMagnetUrl(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function makeUrl(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. Use `os.release()`. */
export function getOSVersion(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function isWindowEnable(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function setScreenSaveActive(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function extractIcon(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function getFreeTime(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function openURLByIEorDefault(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function openURLByDefault(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function disableWindowAnimation(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function setBugreportCustomInfo(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function setBugreportShowMode(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function getMediaInfo(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function calculateFileCID(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function calculateFileGCID(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function calculateFileBCID(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function attachVirtualDisk(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function detachVirtualDisk(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function getVirtualDiskPhysicalPath(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function isIconic(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function isZoomed(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function isWindowVisible(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function getDriveMediaType(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function IsSparseFile(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function IsSparseDriver(...ignored: unknown[]): undefined;
/** @deprecated Does nothing. */
export function trackEvent(...ignored: unknown[]): undefined;
