// A script as a careful author writes it, and calls that the compiler must
// refuse: this file is compiled, never run.
import * as helper from '../..';

const noLinks = (one: number, links: string[]) => { links.slice(one); };
const done = (error: Error, files: string[]) => files.concat(error.message);

// What answers a number.
export const numbers: number[] = [
  helper.getMonitorDPIFactor(), helper.getSysDPIFactor(),
  helper.getKeyState(65), helper.getCurInternetState(),
  helper.attachClipBoard(noLinks), helper.attachClipBoard(() => 1),
  helper.writeINI('file', 'section', 'key', 'value'),
  helper.isPingHostValid('http://localhost/'), helper.isWin7(),
  helper.getDriveType('/'), helper.getTaskTypeFromUrl('http://h/'),
  helper.getCpuFrequency(), helper.getCpuFrequency(done),
  helper.getCpuProcessors(), helper.compareStr('a', 'b'),
  helper.asynCopyFile('a', 'b', done), helper.asynMoveFile('a', 'b', done),
  helper.asynDeleteFile('a', done), helper.asynPreLoadFile('a'),
  helper.asyncUpgradeP2spTask('a', 'b', done),
  helper.asyncUpgradeBtTask('a', 'b', 'c', done),
  helper.asyncUpgradeEmuleTask('a', 'b', 'c', done),
  helper.asyncShellExecuteAndWait('a', 'b', 'c', done),
  helper.asyncShellExecute('a', 1, done), helper.asyncCalcuteFileMD5('a', done),
  helper.asyncDiskIdleInfo(), helper.asyncDiskIdleInfo(done),
  helper.asyncUnZipFile('a.zip', 'b', done),
  helper.setProcessEnvironmentVariable('NAME', 'value'),
  helper.removeProcessEnvironmentVariable('NAME'),
  helper.asyncFindProcess('name', done), helper.terminateProcessByName('name'),
  helper.getNetAdapterInfo(done), helper.updateDesktopIcon(),
];

export const texts: string[] = [
  helper.getPeerID(), helper.getDmideCode(), helper.getFileVersion('file'),
  helper.getAppDataLocalLowPath(), helper.getRoamingAppDataPath(),
  helper.getPublicUserDataPath(), helper.getDesktopPath(),
  helper.getDocumentPath(), helper.getInstallChannel(), helper.getChannelID(),
  helper.getLongPathName('a'), helper.getCommonFilesPath(),
  helper.getDefaultBrowserPath(), helper.utf8StringEncodeToBinary('a', 1),
  helper.utf8StringDecodeFromBinary('a', 1), helper.getWindowClassName(1),
  helper.getCpuID(), helper.System('true'),
];

export const yesOrNo: boolean[] = [
  helper.getDPIAwareSupport(), helper.setWindowPos(1, 0, 2, 3, 4, 5, 0x40),
  helper.showWindow(1, 5), helper.isWindowHandle(1),
  helper.bringWindowToTop(1), helper.enableWindow(1, true) || false,
  helper.notifyBrowserConfigChanged(), helper.isFilePathValid('a'),
  helper.setFileAttributes('a', 1), helper.queryFileExists('a'),
  helper.initUpgrade('a'), helper.isOpenLumo(), helper.IsInFullScreen(),
  helper.isDwmCompositionEnabled(), helper.isDropShadowEnabled(),
  helper.emptyWorkingSet(), helper.createShortcut('a', 'b'),
];

export const nothing: undefined[] = [
  helper.setDefaultDPI(120), helper.startListenLocalNet(done),
  helper.moveWindow(1, 2, 3, 4, 5, true), helper.getLogicalDriveStrings(),
  helper.rebootdMachine(), helper.iSColdStartUp(), helper.getTickCount(),
  helper.getWndHandleFromPoint(1, 2), helper.getCpuList(done),
  helper.printEtwLog('any', 1, {}), helper.trackEvent(), helper.IsSparseFile(),
];

const area: helper.Rectangle = helper.getWindowRect(1);
const { x, y } = helper.getCursorPos();
const { width, height } = helper.getDisplayWindowRect();
export const inside = x < area.x + width && y < area.y + height;

// A misspelt or corrected name is none.
// @ts-expect-error
helper.rebootMachine();
// @ts-expect-error
helper.system('true');

// Arguments of a wrong type, too few, too many.
// @ts-expect-error
helper.System(42);
// @ts-expect-error
helper.System();
// @ts-expect-error
helper.isPingHostValid(undefined);
// @ts-expect-error
helper.setDefaultDPI('120');
// @ts-expect-error
helper.setWindowPos(1, 0, 2, 3, 4, 5);
// @ts-expect-error
helper.setWindowPos(1, 0, 2, 3, 4, 5, 0, 0);
// @ts-expect-error
helper.moveWindow(1, 2, 3, 4, 5);
// @ts-expect-error
helper.compareStr('a');
// @ts-expect-error
helper.asyncUnZipFile('a.zip', done);
// @ts-expect-error
helper.asynDeleteFile('a', 'done');
// @ts-expect-error
helper.attachClipBoard((one: string) => one);
// @ts-expect-error
helper.getDesktopPath(1);

// Answers that are not what a script may take them for.
// @ts-expect-error
export const reachable: boolean = helper.isPingHostValid('http://localhost/');
// @ts-expect-error
export const enabled: boolean = helper.enableWindow(1, true);
// @ts-expect-error
export const right = helper.getWindowRect(1).right;
// @ts-expect-error
export const version: string = helper.getOSVersion();
