/**
 * The functions that a script can call.
 *
 * Every name is there on every platform, so a script can call it without
 * testing for it first. A call never throws: a missing or mistyped argument
 * gives the function's fallback. Texts, numbers and functions are tested and not
 * coerced, unless the function says so: a `String` object is no text. Longer
 * texts are cut silently where a limit is given.
 *
 * A function answers through its return value. None of those whose names begin
 * with "asyn" or "async" calls the function that it is given.
 *
 * A window is its X identifier. That of a window that is gone is an error of the
 * display, which ends the process; 0 is one, too, but for `isWindowHandle`,
 * `enableWindow` and `getWindowRect`. A window function opens the display that
 * `DISPLAY` names and closes it again.
 *
 * @packageDocumentation
 */

/** Pixels on the screen. */
export interface Rectangle {
  x: number;
  y: number;
  width: number;
  height: number;
}

/** A function that this platform takes and never calls. */
export type NeverCalled = (...results: never[]) => void;

/** Does nothing. */
export function printEtwLog(...ignored: unknown[]): undefined;

/** Does nothing. */
export function printAdvancedEtwLog(...ignored: unknown[]): undefined;

/** Does nothing. */
export function attachShadowWindow(...ignored: unknown[]): undefined;

/** Does nothing. */
export function drawShadowWindow(...ignored: unknown[]): undefined;

/** Does nothing. */
export function destroyShadowWindow(...ignored: unknown[]): undefined;

/** Does nothing. */
export function setShadowWindowResizable(...ignored: unknown[]): undefined;

/** Does nothing. */
export function initGDIPlus(...ignored: unknown[]): undefined;

/** Does nothing. */
export function uninitGDIPlus(...ignored: unknown[]): undefined;

/**
 * How much larger than the reference DPI the display is: its width in pixels
 * for each inch, over the reference. Ask once and keep the answer: every call
 * leaves one of the server's connections taken until the process ends.
 *
 * @returns two decimal places, cut off and not rounded; 1 without a display,
 *   and for a display without a physical size
 */
export function getMonitorDPIFactor(): number;

/**
 * Whether the module knows display scales.
 *
 * @returns `true`
 */
export function getDPIAwareSupport(): boolean;

/**
 * The same as `getMonitorDPIFactor`.
 *
 * @returns the same number
 */
export function getSysDPIFactor(): number;

/**
 * Sets the reference DPI of the process, which is 96 at first.
 *
 * @param dpi whole DPI, the rest is cut off; 0 and less leave the reference as
 *   it is. Any value is taken as a number: "120" is 120, `true` is 1, and what
 *   is no number leaves the reference as it is.
 */
export function setDefaultDPI(dpi: number): undefined;

/**
 * Moves, resizes, shows or hides a window and changes what it stands on.
 *
 * @param window the window
 * @param insertAfter a window that comes to stand directly beneath it; 0 for
 *   none
 * @param x from the left edge of its parent
 * @param y from the top edge of its parent
 * @param cx width
 * @param cy height
 * @param flags a sum of 0x1 (keep the size), 0x2 (keep the position), 0x40
 *   (show) and 0x80 (hide, unless 0x40 is there too); other bits are ignored
 * @returns `false`, whatever came of it
 * @fallback `false`, and nothing is done: exactly seven numbers are needed
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

/** Does nothing. */
export function getWindowLong(...ignored: unknown[]): undefined;

/** Does nothing. */
export function setWindowLong(...ignored: unknown[]): undefined;

/** Does nothing. */
export function modifyStyle(...ignored: unknown[]): undefined;

/** Does nothing. */
export function modifyStyleEx(...ignored: unknown[]): undefined;

/** Does nothing. */
export function setWindowFocus(...ignored: unknown[]): undefined;

/**
 * Shows, hides or maximises a window.
 *
 * @param window the window
 * @param command 0 hides, 5 shows, 3 sends a message to maximise, which most
 *   window managers do not get; others do nothing
 * @returns `false`, whatever came of it
 * @fallback `false`, and nothing is done: exactly two numbers are needed
 */
export function showWindow(window: number, command: number): boolean;

/** Does nothing. */
export function getNextWindow(...ignored: unknown[]): undefined;

/** Does nothing. */
export function allowSetForegroundWindow(...ignored: unknown[]): undefined;

/** Does nothing. */
export function setForegroundWindow(...ignored: unknown[]): undefined;

/**
 * Whether a window exists and has a property. The identifier of a window that
 * is gone is an error of the display, which ends the process.
 *
 * @param window the window
 * @returns `true` or `false`
 * @fallback `false`: exactly one number is needed
 */
export function isWindowHandle(window: number): boolean;

/** Does nothing. */
export function setDllDirectory(...ignored: unknown[]): undefined;

/** Does nothing. */
export function findChildWindow(...ignored: unknown[]): undefined;

/**
 * Puts a window on top of its siblings.
 *
 * @param window the window
 * @returns `true` when the request was sent, `false` without a display
 * @fallback `false`: exactly one number is needed
 */
export function bringWindowToTop(window: number): boolean;

/**
 * Whether a key is down: not known on this platform.
 *
 * @param key a mouse button (1 to 4) or a keysym
 * @returns 1 for every key
 * @fallback 0: exactly one number is needed
 */
export function getKeyState(key: number): number;

/**
 * Who this machine is to its peers: the hardware address of the last network
 * interface that the kernel lists, and a suffix. Writes trace lines to standard
 * output.
 *
 * @returns 12 upper-case hexadecimal digits and "007V"; "007V" alone when no
 *   address could be read
 */
export function getPeerID(): string;

/**
 * The machine's DMI code: not known on this platform.
 *
 * @returns `""`
 */
export function getDmideCode(): string;

/**
 * The version of a file: the same for every file.
 *
 * @returns `"1.0.0.1"`
 */
export function getFileVersion(...ignored: unknown[]): string;

/** Does nothing. */
export function getClipBoardText(...ignored: unknown[]): undefined;

/** Does nothing. */
export function queryRegValue(...ignored: unknown[]): undefined;

/** Does nothing. */
export function readRegString(...ignored: unknown[]): undefined;

/** Does nothing. */
export function writeRegValue(...ignored: unknown[]): undefined;

/** Does nothing. */
export function deleteRegValue(...ignored: unknown[]): undefined;

/** Does nothing. */
export function deleteRegKey(...ignored: unknown[]): undefined;

/** Does nothing. */
export function createRegKey(...ignored: unknown[]): undefined;

/**
 * The state of the connection to the internet: not known on this platform.
 *
 * @returns `0`
 */
export function getCurInternetState(): number;

/**
 * Would report changes of the local network.
 *
 * @param callback never called
 * @returns `undefined`
 */
export function startListenLocalNet(callback?: NeverCalled): undefined;

/** Does nothing. */
export function stopListenLocalNet(...ignored: unknown[]): undefined;

/**
 * Leaves the machine running.
 *
 * @returns `undefined`
 */
export function shutDownMachine(): undefined;

/**
 * Leaves the machine awake.
 *
 * @returns `undefined`
 */
export function suspendMachine(): undefined;

/**
 * Leaves the machine running.
 *
 * @returns `undefined`
 */
export function rebootdMachine(): undefined;

/** Does nothing. */
export function initClipBoard(...ignored: unknown[]): undefined;

/**
 * Registers a function for the links found on the clipboard. It is called once,
 * before `attachClipBoard` returns, with a fixed link, and is kept for the life
 * of the process; what it throws is dropped.
 *
 * @param callback takes the number 1 and the links
 * @returns `0`
 * @fallback `0`, and nothing is called
 */
export function attachClipBoard(
  callback: (one: number, links: string[]) => void,
): number;

/**
 * The folder of a user's low-trust data: not known on this platform.
 *
 * @returns `""`
 */
export function getAppDataLocalLowPath(): string;

/**
 * The folder of a user's roaming data: not known on this platform.
 *
 * @returns `""`
 */
export function getRoamingAppDataPath(): string;

/**
 * The folder of the data that users share: not known on this platform.
 *
 * @returns `""`
 */
export function getPublicUserDataPath(): string;

/** Does nothing. */
export function readINI(...ignored: unknown[]): undefined;

/**
 * Writes no setting.
 *
 * @returns `0`
 */
export function writeINI(...ignored: unknown[]): number;

/**
 * Tells no browser of a change.
 *
 * @returns `false`
 */
export function notifyBrowserConfigChanged(...ignored: unknown[]): boolean;

/**
 * Whether the product starts afresh: not known on this platform.
 *
 * @returns `undefined`
 */
export function iSColdStartUp(): undefined;

/** Does nothing. */
export function refreshIcon(...ignored: unknown[]): undefined;

/** Does nothing. */
export function startAutoUpdateWithUI(...ignored: unknown[]): undefined;

/** Does nothing. */
export function startManualUpdateWithUI(...ignored: unknown[]): undefined;

/** Does nothing. */
export function startUpdateWithUI(...ignored: unknown[]): undefined;

/** Does nothing. */
export function initLiveUD(...ignored: unknown[]): undefined;

/** Does nothing. */
export function isKorvaneOnUserFocus(...ignored: unknown[]): undefined;

/** Does nothing. */
export function moveSuspenWindow(...ignored: unknown[]): undefined;

/** Does nothing. */
export function shellExecute(...ignored: unknown[]): undefined;

/**
 * Whether the host of a URL resolves. Waits for the system's resolver.
 *
 * One scheme at the start ("http://", "https://" or "ftp://", in lower case)
 * and all from the first slash on are taken off; without a slash, all from the
 * first backslash on. What is left is the name: with a port or a user it does
 * not resolve.
 *
 * @param url a URL or a host, cut after 8,181 bytes of UTF-8; any other value
 *   is taken as its text
 * @returns 1 or 0, a number
 */
export function isPingHostValid(url: string): number;

/**
 * Whether this is a certain desktop system, which it is not.
 *
 * @returns `0`, a number
 */
export function isWin7(): number;

/** Does nothing. */
export function copyTextToClipBoard(...ignored: unknown[]): undefined;

/** Does nothing. */
export function emptyClipBoard(...ignored: unknown[]): undefined;

/** Does nothing. */
export function endKorvaneStartProcess(...ignored: unknown[]): undefined;

/** Does nothing. */
export function getForegroundProcessName(...ignored: unknown[]): undefined;

/**
 * Whether a window covers the screen: not known on this platform.
 *
 * @returns `undefined`
 */
export function isFullScreen(): undefined;

/**
 * Writes the usage of the file systems, as "df -h" prints it, to the file
 * "tmp.text" in the current directory. Waits until it is written.
 */
export function getLogicalDriveStrings(): undefined;

/** Does nothing. */
export function getDriveInfo(...ignored: unknown[]): undefined;

/**
 * The type of a drive: the same for every drive.
 *
 * @param path where the drive is
 * @returns 0
 * @fallback `undefined`
 */
export function getDriveType(path: string): number;

/** Does nothing. */
export function getPartitionSpace(...ignored: unknown[]): undefined;

/** Does nothing. */
export function getFreePartitionSpace(...ignored: unknown[]): undefined;

/** Does nothing. */
export function getSystemTempPath(...ignored: unknown[]): undefined;

/**
 * Whether a path can be a file's: not known on this platform.
 *
 * @param path a path
 * @returns `false`
 */
export function isFilePathValid(path: string): boolean;

/**
 * The user's desktop folder: not known on this platform.
 *
 * @returns `""`
 */
export function getDesktopPath(): string;

/**
 * The user's folder of documents: not known on this platform.
 *
 * @returns `""`
 */
export function getDocumentPath(): string;

/**
 * The channel that the product was installed from: none on this platform.
 *
 * @returns `""`
 */
export function getInstallChannel(): string;

/** Does nothing. */
export function isKorvanePrivateUrl(...ignored: unknown[]): undefined;

/** Does nothing. */
export function parseKorvanePrivateUrl(...ignored: unknown[]): undefined;

/** Does nothing. */
export function makeKorvanePrivateUrl(...ignored: unknown[]): undefined;

/** Does nothing. */
export function parseFileNameFromP2spUrlPath(...ignored: unknown[]): undefined;

/** Does nothing. */
export function parseUrl(...ignored: unknown[]): undefined;

/** Does nothing. */
export function parseEd2kUrl(...ignored: unknown[]): undefined;

/**
 * The type of the download task that a URL starts: the same for every URL.
 *
 * @param url a URL, cut after 2,082 bytes of UTF-8
 * @returns 0
 * @fallback `undefined`
 */
export function getTaskTypeFromUrl(url: string): number;

/** Does nothing. */
export function parseMagnetUrl(...ignored: unknown[]): undefined;

/** Does nothing. */
export function makeUrl(...ignored: unknown[]): undefined;

/** Does nothing. */
export function getOSVersion(...ignored: unknown[]): undefined;

/**
 * The same as `getInstallChannel`.
 *
 * @returns `""`
 */
export function getChannelID(): string;

/** Does nothing. */
export function isWindowEnable(...ignored: unknown[]): undefined;

/**
 * Would let a window take input or not; windows here always take it.
 *
 * @param window the window
 * @param enable whether it is to take input
 * @returns `false`
 * @fallback `undefined`: without both arguments, for a first that is no number,
 *   and for 0 and others that `isWindowHandle` denies
 */
export function enableWindow(
  window: number,
  enable: boolean,
): boolean | undefined;

/** Does nothing. */
export function setScreenSaveActive(...ignored: unknown[]): undefined;

/**
 * The processors' frequency: not known on this platform.
 *
 * @param callback never called
 * @returns `0`
 */
export function getCpuFrequency(callback?: NeverCalled): number;

/**
 * How many processors there are: one, whatever the machine has.
 *
 * @returns `1`
 */
export function getCpuProcessors(): number;

/**
 * The time since the start, which is not kept on this platform.
 *
 * @returns `undefined`
 */
export function getTickCount(): undefined;

/** Does nothing. */
export function extractIcon(...ignored: unknown[]): undefined;

/**
 * Collates the second text against the first by the locale of the environment.
 * Of a text that begins below U+0100 only the first character takes part; of
 * others the bytes of the 16-bit units do, low byte first, up to the first zero.
 *
 * @param a the first text
 * @param b the second text
 * @returns less than 0 when `b` comes first, more than 0 when `a` does, 0 when
 *   they are equal
 * @fallback 0: exactly two texts are needed
 */
export function compareStr(a: string, b: string): number;

/** Does nothing. */
export function getFreeTime(...ignored: unknown[]): undefined;

/**
 * Leaves a file's attributes as they are.
 *
 * @param path a file
 * @param attributes what they would be
 * @returns `false`
 */
export function setFileAttributes(path: string, attributes: number): boolean;

/**
 * Copies nothing.
 *
 * @param from a file
 * @param to where it would go
 * @param callback never called
 * @returns `0`
 */
export function asynCopyFile(
  from: string,
  to: string,
  callback: NeverCalled,
): number;

/**
 * Moves nothing.
 *
 * @param from a file
 * @param to where it would go
 * @param callback never called
 * @returns `0`
 */
export function asynMoveFile(
  from: string,
  to: string,
  callback: NeverCalled,
): number;

/**
 * Deletes nothing.
 *
 * @param path a file
 * @param callback never called
 * @returns `-1`, unlike its siblings
 */
export function asynDeleteFile(path: string, callback: NeverCalled): number;

/**
 * Whether a file exists: not known on this platform.
 *
 * @returns `false`
 */
export function queryFileExists(...ignored: unknown[]): boolean;

/**
 * Loads nothing ahead.
 *
 * @param path a file
 * @returns `0`
 */
export function asynPreLoadFile(path: string): number;

/**
 * Prepares no upgrade.
 *
 * @param text not used
 * @returns `false`
 */
export function initUpgrade(text: string): boolean;

/**
 * Upgrades nothing.
 *
 * @param first a text, not used
 * @param second a text, not used
 * @param callback never called
 * @returns `0`
 */
export function asyncUpgradeP2spTask(
  first: string,
  second: string,
  callback: NeverCalled,
): number;

/**
 * Upgrades nothing.
 *
 * @param first a text, not used
 * @param second a text, not used
 * @param third a text, not used
 * @param callback never called
 * @returns `0`
 */
export function asyncUpgradeBtTask(
  first: string,
  second: string,
  third: string,
  callback: NeverCalled,
): number;

/**
 * Upgrades nothing.
 *
 * @param first a text, not used
 * @param second a text, not used
 * @param third a text, not used
 * @param callback never called
 * @returns `0`
 */
export function asyncUpgradeEmuleTask(
  first: string,
  second: string,
  third: string,
  callback: NeverCalled,
): number;

/**
 * Runs nothing. Given all four arguments, the last a function, the other three
 * are read as texts whatever they are.
 *
 * @param file a program
 * @param parameters its command line
 * @param folder where it would run
 * @param callback never called
 * @returns `0`
 */
export function asyncShellExecuteAndWait(
  file: string,
  parameters: string,
  folder: string,
  callback: NeverCalled,
): number;

/**
 * Runs nothing.
 *
 * @returns `0`
 */
export function asyncShellExecute(...ignored: unknown[]): number;

/**
 * The long form of a path: paths here have one form.
 *
 * @returns `""`
 */
export function getLongPathName(...ignored: unknown[]): string;

/**
 * The folder of files that programs share: not known on this platform.
 *
 * @returns `""`
 */
export function getCommonFilesPath(): string;

/**
 * The user's browser: not known on this platform.
 *
 * @returns `""`
 */
export function getDefaultBrowserPath(): string;

/** Does nothing. */
export function openURLByIEorDefault(...ignored: unknown[]): undefined;

/** Does nothing. */
export function openURLByDefault(...ignored: unknown[]): undefined;

/**
 * Answers yes, alone among the questions with one answer about the desktop.
 *
 * @returns `true`
 */
export function isOpenLumo(): boolean;

/**
 * Whether a window covers the screen: answers no even when one does.
 *
 * @returns `false`
 */
export function IsInFullScreen(): boolean;

/**
 * Whether the desktop is composed: not known on this platform.
 *
 * @returns `false`
 */
export function isDwmCompositionEnabled(): boolean;

/**
 * Whether windows throw shadows: not known on this platform.
 *
 * @returns `false`
 */
export function isDropShadowEnabled(): boolean;

/**
 * Encodes nothing.
 *
 * @param text not used
 * @param number not used
 * @returns `""`
 */
export function utf8StringEncodeToBinary(
  text: string,
  number: number,
): string;

/**
 * Decodes nothing.
 *
 * @param text not used
 * @param number not used
 * @returns `""`
 */
export function utf8StringDecodeFromBinary(
  text: string,
  number: number,
): string;

/**
 * Where the pointer is on the screen.
 *
 * @returns zeros without a display
 */
export function getCursorPos(): { x: number; y: number };

/**
 * How large the screen is.
 *
 * @returns zeros without a display
 */
export function getDisplayWindowRect(): { width: number; height: number };

/**
 * The window at a point: not known on this platform.
 *
 * @returns `undefined`
 */
export function getWndHandleFromPoint(...ignored: unknown[]): undefined;

/**
 * The window that a window belongs to: not known on this platform.
 *
 * @returns `undefined`
 */
export function getParentWnd(...ignored: unknown[]): undefined;

/**
 * Digests nothing.
 *
 * @returns `0`
 */
export function asyncCalcuteFileMD5(...ignored: unknown[]): number;

/**
 * Would report how busy the disks are.
 *
 * @param callback never called
 * @returns `0`
 */
export function asyncDiskIdleInfo(callback?: NeverCalled): number;

/**
 * Unpacks nothing.
 *
 * @param archive a file
 * @param folder where its contents would go
 * @param callback never called
 * @returns `0`
 */
export function asyncUnZipFile(
  archive: string,
  folder: string,
  callback: NeverCalled,
): number;

/**
 * The proxy of a browser that is not on this platform.
 *
 * @returns `undefined`
 */
export function getIEProxy(): undefined;

/**
 * The class of a window: none on this platform.
 *
 * @returns `""`
 */
export function getWindowClassName(...ignored: unknown[]): string;

/**
 * Leaves the environment as it is.
 *
 * @returns `0`
 */
export function setProcessEnvironmentVariable(...ignored: unknown[]): number;

/**
 * Leaves the environment as it is.
 *
 * @returns `0`
 */
export function removeProcessEnvironmentVariable(...ignored: unknown[]): number;

/**
 * Looks for no process.
 *
 * @returns `0`
 */
export function asyncFindProcess(...ignored: unknown[]): number;

/**
 * Ends no process.
 *
 * @returns `0`
 */
export function terminateProcessByName(...ignored: unknown[]): number;

/**
 * Leaves the process its memory.
 *
 * @returns `false`
 */
export function emptyWorkingSet(...ignored: unknown[]): boolean;

/**
 * Would report the network adapters.
 *
 * @returns `0`
 */
export function getNetAdapterInfo(...ignored: unknown[]): number;

/**
 * The processor's identifier: not known on this platform.
 *
 * @returns `""`
 */
export function getCpuID(): string;

/** Does nothing. */
export function disableWindowAnimation(...ignored: unknown[]): undefined;

/** Does nothing. */
export function setBugreportCustomInfo(...ignored: unknown[]): undefined;

/** Does nothing. */
export function setBugreportShowMode(...ignored: unknown[]): undefined;

/**
 * Makes no shortcut.
 *
 * @returns `false`
 */
export function createShortcut(...ignored: unknown[]): boolean;

/**
 * Leaves the desktop's icons as they are.
 *
 * @returns `0`
 */
export function updateDesktopIcon(...ignored: unknown[]): number;

/** Does nothing. */
export function getMediaInfo(...ignored: unknown[]): undefined;

/** Does nothing. */
export function calculateFileCID(...ignored: unknown[]): undefined;

/** Does nothing. */
export function calculateFileGCID(...ignored: unknown[]): undefined;

/** Does nothing. */
export function calculateFileBCID(...ignored: unknown[]): undefined;

/** Does nothing. */
export function attachVirtualDisk(...ignored: unknown[]): undefined;

/** Does nothing. */
export function detachVirtualDisk(...ignored: unknown[]): undefined;

/** Does nothing. */
export function getVirtualDiskPhysicalPath(...ignored: unknown[]): undefined;

/**
 * Where a window is and how large. The position is that of the window's own
 * parent-relative position taken as a point inside the window: a window at
 * (10, 20) of the screen answers x 20 and y 40.
 *
 * @param window the window
 * @returns zeros without a display, and for 0
 * @fallback zeros for what is no number; `undefined` without an argument
 */
export function getWindowRect(window: number): Rectangle;

/** Does nothing. */
export function isIconic(...ignored: unknown[]): undefined;

/** Does nothing. */
export function isZoomed(...ignored: unknown[]): undefined;

/**
 * Moves and resizes a window.
 *
 * @param window the window
 * @param x from the left edge of its parent
 * @param y from the top edge of its parent
 * @param width of the window, without its frame
 * @param height of the window, without its frame
 * @param repaint not used
 * @fallback nothing is done unless there are exactly six arguments; one of the
 *   first five that is no number counts as 0
 */
export function moveWindow(
  window: number,
  x: number,
  y: number,
  width: number,
  height: number,
  repaint: boolean,
): undefined;

/** Does nothing. */
export function isWindowVisible(...ignored: unknown[]): undefined;

/**
 * Would report the programs that are installed.
 *
 * @param callback never called
 * @returns `undefined`
 */
export function getAppList(callback?: NeverCalled): undefined;

/**
 * Would report which disks are solid-state ones.
 *
 * @param callback never called
 * @returns `undefined`
 */
export function isSSD(callback?: NeverCalled): undefined;

/**
 * Would report the memory.
 *
 * @param callback never called
 * @returns `undefined`
 */
export function getMemoryInfo(callback?: NeverCalled): undefined;

/**
 * Would report the disks' sizes.
 *
 * @param callback never called
 * @returns `undefined`
 */
export function getHardDiskSpaceList(callback?: NeverCalled): undefined;

/**
 * Would report the processors.
 *
 * @param callback never called
 * @returns `undefined`
 */
export function getCpuList(callback?: NeverCalled): undefined;

/** Does nothing. */
export function getDriveMediaType(...ignored: unknown[]): undefined;

/** Does nothing. */
export function IsSparseFile(...ignored: unknown[]): undefined;

/** Does nothing. */
export function IsSparseDriver(...ignored: unknown[]): undefined;

/**
 * Runs a command in the shell, with the environment and the current directory
 * of the process, and waits until it has ended.
 *
 * @param command cut after 1,023 bytes of UTF-8
 * @returns what it wrote to standard output: at most 20,479 bytes, up to the
 *   first zero byte; `""` when it could not be started
 * @fallback `undefined`, and nothing is run
 */
export function System(command: string): string;

/** Does nothing. */
export function trackEvent(...ignored: unknown[]): undefined;
