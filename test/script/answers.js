'use strict';

// What each function answers: the one answer of a function that has one, or
// the answer to a well-formed call and the fallback.

const text = 'file';
const call = () => { throw new Error('called'); };

// Functions that answer one thing, whatever they are given.
const constant = [
  [undefined, `
    printEtwLog printAdvancedEtwLog attachShadowWindow drawShadowWindow
    destroyShadowWindow setShadowWindowResizable initGDIPlus uninitGDIPlus
    setDefaultDPI getWindowLong setWindowLong modifyStyle modifyStyleEx
    setWindowFocus getNextWindow allowSetForegroundWindow setForegroundWindow
    setDllDirectory findChildWindow getClipBoardText queryRegValue readRegString
    writeRegValue deleteRegValue deleteRegKey createRegKey startListenLocalNet
    stopListenLocalNet shutDownMachine suspendMachine rebootdMachine
    initClipBoard readINI iSColdStartUp refreshIcon startAutoUpdateWithUI
    startManualUpdateWithUI startUpdateWithUI initLiveUD isKorvaneOnUserFocus
    moveSuspenWindow shellExecute copyTextToClipBoard emptyClipBoard
    endKorvaneStartProcess getForegroundProcessName isFullScreen
    getLogicalDriveStrings getDriveInfo getPartitionSpace getFreePartitionSpace
    getSystemTempPath isKorvanePrivateUrl parseKorvanePrivateUrl
    makeKorvanePrivateUrl parseFileNameFromP2spUrlPath parseUrl parseEd2kUrl
    parseMagnetUrl makeUrl getOSVersion isWindowEnable setScreenSaveActive
    getTickCount extractIcon getFreeTime openURLByIEorDefault openURLByDefault
    getWndHandleFromPoint getParentWnd getIEProxy disableWindowAnimation
    setBugreportCustomInfo setBugreportShowMode getMediaInfo calculateFileCID
    calculateFileGCID calculateFileBCID attachVirtualDisk detachVirtualDisk
    getVirtualDiskPhysicalPath isIconic isZoomed moveWindow isWindowVisible
    getAppList isSSD getMemoryInfo getHardDiskSpaceList getCpuList
    getDriveMediaType IsSparseFile IsSparseDriver trackEvent`],
  ['', `
    getDmideCode getAppDataLocalLowPath getRoamingAppDataPath
    getPublicUserDataPath getDesktopPath getDocumentPath getInstallChannel
    getChannelID getLongPathName getCommonFilesPath getDefaultBrowserPath
    utf8StringEncodeToBinary utf8StringDecodeFromBinary getWindowClassName
    getCpuID`],
  ['1.0.0.1', 'getFileVersion'],
  [0, `
    getCurInternetState attachClipBoard writeINI isWin7 getCpuFrequency
    asynCopyFile asynMoveFile asynPreLoadFile asyncUpgradeP2spTask
    asyncUpgradeBtTask asyncUpgradeEmuleTask asyncShellExecuteAndWait
    asyncShellExecute asyncCalcuteFileMD5 asyncDiskIdleInfo asyncUnZipFile
    setProcessEnvironmentVariable removeProcessEnvironmentVariable
    asyncFindProcess terminateProcessByName getNetAdapterInfo
    updateDesktopIcon`],
  [1, 'getCpuProcessors'],
  [-1, 'asynDeleteFile'],
  [false, `
    setWindowPos showWindow notifyBrowserConfigChanged isFilePathValid
    setFileAttributes queryFileExists initUpgrade IsInFullScreen
    isDwmCompositionEnabled isDropShadowEnabled emptyWorkingSet
    createShortcut`],
  [true, 'getDPIAwareSupport isOpenLumo'],
];

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

const fixed = new Map();
for (const [answer, list] of constant) {
  for (const name of list.trim().split(/\s+/)) fixed.set(name, answer);
}

module.exports = { checked, fixed, wellFormed };
