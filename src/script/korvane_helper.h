// The functions that a script can call, and the module that carries them.
//
// A function answers at once through its return value: none of the
// "asyn"/"async" family calls the function that it is given. Arguments are
// tested as script_values.h says; "texts", "numbers" and "functions" below are
// script types, never coerced.
#ifndef KORVANE_SCRIPT_KORVANE_HELPER_H_
#define KORVANE_SCRIPT_KORVANE_HELPER_H_

#include <cstdint>
#include <string>
#include <vector>

#include "script/callback_holder.h"
#include "script/script_values.h"

class KorvaneHelper {
 public:
  // One row of the script interface.
  struct Export {
    const char* name;
    v8::FunctionCallback function;
  };
  // In registration order.
  static const Export kExports[];

  // Sets one function a row on `exports`. Throws nothing, and keeps no state:
  // every script thread may have its own.
  static void Register(v8::Local<v8::Object> exports);

  // --- Shell, processes and files (korvane_helper_shell.cc)

  // Runs a shell command (text, cut after 1,023 bytes) and answers the first
  // 20,479 bytes of its standard output up to a zero byte; "" when it could
  // not be started; undefined without a text. Blocks until the command ends.
  static void System(const Arguments& arguments);
  // Runs "df -h > tmp.text" in the current directory. Answers undefined.
  static void ExportGetLogicalDriveStrings(const Arguments& arguments);
  // Answer 0: (any, any, any, function) and (any...).
  static void AsynShellExecuteAndWait(const Arguments& arguments);
  static void AsyncShellExecute(const Arguments& arguments);
  // Answer 0: (text, text, function).
  static void AsyncUnZipFile(const Arguments& arguments);
  static void AsynCopyFile(const Arguments& arguments);
  static void AsynMoveFile(const Arguments& arguments);
  static void AsyncUpgradeP2spTask(const Arguments& arguments);
  // Answer 0: (text, text, text, function).
  static void AsyncUpgradeEmuleTask(const Arguments& arguments);
  static void AsyncUpgradeBtTask(const Arguments& arguments);
  // Answers -1, unlike its siblings (kept: callers rely on it).
  static void AsynDeleteFile(const Arguments& arguments);
  // Answers 0: (text).
  static void AsynPreLoadFile(const Arguments& arguments);
  // Answer false.
  static void QueryFileExists(const Arguments& arguments);
  static void ExportQueryFileExists(const Arguments& arguments);  // not bound
  static void ExportIsFilePathValid(const Arguments& arguments);  // (text)
  static void SetFileAttributes(const Arguments& arguments);  // (text, number)
  static void InitUpgrade(const Arguments& arguments);        // (text)
  static void EmptyWorkingSet(const Arguments& arguments);
  static void CreateShortcut(const Arguments& arguments);
  // Answer 0.
  static void AsyncCalcuteFileMD5(const Arguments& arguments);
  static void AsyncFindProcess(const Arguments& arguments);
  static void TerminateProcessByName(const Arguments& arguments);
  static void SetProcessEnvironmentVariable(const Arguments& arguments);
  static void RemoveProcessEnvironmentVariable(const Arguments& arguments);
  static void UpdateDesktopIcon(const Arguments& arguments);
  // Answer undefined.
  static void ShutDownMachine(const Arguments& arguments);
  static void SuspendMachine(const Arguments& arguments);
  static void RebootMachine(const Arguments& arguments);

  // --- System and path queries (korvane_helper_system.cc)

  // The display's scale factor, see DPIInterface.
  static void GetMonitorDPIFactor(const Arguments& arguments);
  static void GetSysDPIFactor(const Arguments& arguments);
  static void GetDPIAwareSupport(const Arguments& arguments);
  // Takes any argument as a number, truncated and saturated to 32 bits; 0, a
  // negative number and not-a-number leave the reference as it is.
  static void SetDefaultDPI(const Arguments& arguments);
  // Answer "".
  static void GetRoamingAppDataPath(const Arguments& arguments);
  static void GetAppDataLocalLowPath(const Arguments& arguments);
  static void ExportGetInstallChannel(const Arguments& arguments);
  static void GetPublicUserDataPath(const Arguments& arguments);
  static void ExportGetDesktopPath(const Arguments& arguments);
  static void ExportGetDocumentPath(const Arguments& arguments);
  static void GetCommonFilesPath(const Arguments& arguments);
  static void GetDefaultBrowserPath(const Arguments& arguments);
  static void GetLongPathName(const Arguments& arguments);
  static void GetCpuID(const Arguments& arguments);
  static void GetDmideCode(const Arguments& arguments);
  static void Utf8StringDecodeFromBinary(const Arguments& arguments);
  static void Utf8StringEncodeToBinary(const Arguments& arguments);
  // Answers "1.0.0.1".
  static void GetFileVersion(const Arguments& arguments);
  // Answers 1.
  static void GetCpuProcessors(const Arguments& arguments);
  // Answer 0.
  static void GetCpuFrequency(const Arguments& arguments);
  static void DiskIdleInfo(const Arguments& arguments);
  static void WriteINI(const Arguments& arguments);
  static void IsWin7(const Arguments& arguments);
  // Answers 0 for a text, otherwise undefined.
  static void ExportGetDriveType(const Arguments& arguments);
  // Answers true, unlike every other question (kept: callers rely on it).
  static void IsOpenLumo(const Arguments& arguments);
  // Answer false.
  static void IsDwmCompositionEnabled(const Arguments& arguments);
  static void IsDropShadowEnabled(const Arguments& arguments);
  static void NotifyBrowserConfigChanged(const Arguments& arguments);
  // Answer undefined; a function given to them is never called.
  static void GetCpuList(const Arguments& arguments);
  static void GetAppList(const Arguments& arguments);
  static void IsSSD(const Arguments& arguments);
  static void GetHardDiskSpaceList(const Arguments& arguments);
  static void GetMemoryInfo(const Arguments& arguments);
  static void IsFullScreen(const Arguments& arguments);
  static void GetIEProxy(const Arguments& arguments);
  static void GetTickCount(const Arguments& arguments);
  static void ISColdStartUp(const Arguments& arguments);
  static void GetWndHandleFromPonit(const Arguments& arguments);
  static void GetParentWnd(const Arguments& arguments);

  // --- Network (korvane_helper_network.cc)

  // Answers 1 when the host of a URL (any value, as text, cut after 8,181
  // bytes) resolves, otherwise 0. Blocks as long as the resolver takes.
  static void IsPingHostValid(const Arguments& arguments);
  // Answer 0.
  static void GetCurInternetState(const Arguments& arguments);
  static void AsyncGetNetAdapterInfo(const Arguments& arguments);
  // Answers undefined.
  static void StartListenLocalNet(const Arguments& arguments);

  // --- Clipboard (korvane_helper_clipboard.cc)

  // Calls a function once, at once, with 1 and an array of links, and keeps it
  // for the life of the process. Answers 0.
  static void AttachClipBoard(const Arguments& arguments);

  // --- Windows (korvane_helper_window.cc)

  static void TsSetWindowPos(const Arguments& arguments);
  static void TsShowWindow(const Arguments& arguments);
  static void TsIsWindowHandle(const Arguments& arguments);
  static void TsBringWindowToTop(const Arguments& arguments);
  static void TsEnableWindow(const Arguments& arguments);
  static void TsGetWindowRect(const Arguments& arguments);
  static void TsMoveWindow(const Arguments& arguments);
  static void GetDisplayWindowRect(const Arguments& arguments);
  static void GetCursorPosition(const Arguments& arguments);
  static void TsGetKeyState(const Arguments& arguments);
  static void IsInFullScreen(const Arguments& arguments);
  static void GetWindowClassName(const Arguments& arguments);

  // --- Identity (korvane_helper_identity.cc)

  // Answers the network adapter's address and "007V", see LinuxShell; writes
  // trace lines to standard output.
  static void GetPeerID(const Arguments& arguments);
  // (text, text): the collation of the second against the first, each read as
  // the bytes of its 16-bit units up to the first zero byte, so that only the
  // first character below U+0100 takes part. 0 for other arguments.
  static void ExportCompareStr(const Arguments& arguments);
  // Answers 0 for a text (cut after 2,082 bytes), otherwise undefined.
  static void ExportGetTaskTypeFromUrl(const Arguments& arguments);

  // --- Completions (korvane_helper_completion.cc)
  //
  // For a platform worker that delivers results later, on the script thread and
  // with a context entered.
  // Each calls the holder's function once, then frees the holder; without a
  // holder it does nothing. Each returns 0.

  // Calls back with a boolean and an array of integers.
  static int OnIsSSD(std::int32_t request_id, bool success,
                     const std::vector<std::int32_t>& values,
                     CallbackHolder* holder);
  // Calls back with a boolean (`success` not 0) and a number.
  static int OnGetDriveMediaType(std::int32_t success, std::int32_t media_type,
                                 CallbackHolder* holder);
  // Call back with an array of strings.
  // Quirk: each string's storage is read as 16-bit code units. A character is
  // two of them, and an element ends before the first that is zero: behind the
  // first character below U+10000, or before one whose low half is zero.
  static int OnGetCpuList(std::int32_t request_id,
                          const std::vector<std::wstring>& names,
                          CallbackHolder* holder);
  static int OnGetAppList(std::int32_t request_id,
                          const std::vector<std::wstring>& names,
                          CallbackHolder* holder);

  // --- Functions that do nothing on this platform
  //
  // A script can call every name without testing for it first; these read
  // nothing and answer undefined.

  static void PrintEtwLog(const Arguments&) {}
  static void PrintAdvancedEtwLog(const Arguments&) {}
  static void AttachShadowWindow(const Arguments&) {}
  static void DrawShadowWindow(const Arguments&) {}
  static void DestroyShadowWindow(const Arguments&) {}
  static void SetShadowWindowResizable(const Arguments&) {}
  static void InitGDIPlus(const Arguments&) {}
  static void UninitGDIPlus(const Arguments&) {}
  static void TsGetWindowLong(const Arguments&) {}
  static void TsSetWindowLong(const Arguments&) {}
  static void TsModifyStyle(const Arguments&) {}
  static void TsModifyStyleEx(const Arguments&) {}
  static void TsSetWindowFocus(const Arguments&) {}
  static void TsGetNextWindow(const Arguments&) {}
  static void AllowSetForegroundWindow(const Arguments&) {}
  static void SetForegroundWindow(const Arguments&) {}
  static void TsSetDllDirectory(const Arguments&) {}
  static void TsFindChildWindow(const Arguments&) {}
  static void GetClipBoardText(const Arguments&) {}
  static void QueryRegValue(const Arguments&) {}
  static void ReadRegString(const Arguments&) {}
  static void WriteRegValue(const Arguments&) {}
  static void DeleteRegValue(const Arguments&) {}
  static void DeleteRegKey(const Arguments&) {}
  static void CreateRegKey(const Arguments&) {}
  static void StopListenLocalNet(const Arguments&) {}
  static void InitClipBoard(const Arguments&) {}
  static void ReadINI(const Arguments&) {}
  static void RefreshIcon(const Arguments&) {}
  static void StartAutoUpdateWithUI(const Arguments&) {}
  static void StartManualUpdateWithUI(const Arguments&) {}
  static void StartUpdateWithUI(const Arguments&) {}
  static void InitLiveUD(const Arguments&) {}
  static void IsKorvaneOnUserFocus(const Arguments&) {}
  static void MoveSuspenWindow(const Arguments&) {}
  static void QkShellExecEx(const Arguments&) {}
  static void CopyTextToClipBoard(const Arguments&) {}
  static void EmptyClipBoard(const Arguments&) {}
  static void EndKorvaneStartProcess(const Arguments&) {}
  static void GetForegroundProcessName(const Arguments&) {}
  static void ExportGetDriveInfo(const Arguments&) {}
  static void ExportGetPartitionSpace(const Arguments&) {}
  static void ExportGetFreePartitionSpace(const Arguments&) {}
  static void ExportGetSystemTempPath(const Arguments&) {}
  static void ExportIsKorvanePrivateUrl(const Arguments&) {}
  static void ExportParseKorvanePrivateUrl(const Arguments&) {}
  static void ExportMakeKorvanePrivateUrl(const Arguments&) {}
  static void ExportParseFileNameFromP2spUrlPath(const Arguments&) {}
  static void ExportParseUrl(const Arguments&) {}
  static void ExportParseEd2kUrl(const Arguments&) {}
  static void ExportParseMagnetUrl(const Arguments&) {}
  static void ExportMakeUrl(const Arguments&) {}
  static void GetOsVersion(const Arguments&) {}
  static void TsIsWindowEnable(const Arguments&) {}
  static void TssetScreenSaveActive(const Arguments&) {}
  static void ExportExtractIcon2File(const Arguments&) {}
  static void GetFreeTime(const Arguments&) {}
  static void OpenURLByIEorDefault(const Arguments&) {}
  static void OpenURLByDefault(const Arguments&) {}
  static void DisableWindowAnimation(const Arguments&) {}
  static void SetBugreportCustomInfo(const Arguments&) {}
  static void SetBugreportShowMode(const Arguments&) {}
  static void GetMediaInfo(const Arguments&) {}
  static void CalculateFileCID(const Arguments&) {}
  static void CalculateFileGCID(const Arguments&) {}
  static void CalculateFileBCID(const Arguments&) {}
  static void AttachVirtualDisk(const Arguments&) {}
  static void DetachVirtualDisk(const Arguments&) {}
  static void GetVirtualDiskPhysicalPath(const Arguments&) {}
  static void TsIsIconic(const Arguments&) {}
  static void TsIsZoomed(const Arguments&) {}
  static void TsIsWindowVisible(const Arguments&) {}
  static void GetDriveMediaType(const Arguments&) {}
  static void IsSparseFile(const Arguments&) {}
  static void IsSparseDriver(const Arguments&) {}
  static void TrackEvent(const Arguments&) {}
  static void ModifyStyleOrEx(const Arguments&) {}  // not bound
};

#endif  // KORVANE_SCRIPT_KORVANE_HELPER_H_
