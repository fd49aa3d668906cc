// The functions that a script can call, and the module that carries them.
//
// A function returns at once: none of the "asyn"/"async" family calls the
// function that it receives. "Strings", "numbers" and "functions" below are
// script types: nothing is coerced. See script_values.h.
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

  // Sets one function for each row on `exports`. Throws nothing and keeps no
  // state: every script thread may have its own.
  static void Register(v8::Local<v8::Object> exports);

  // --- Shell, processes and files (korvane_helper_shell.cc)

  // Runs a shell command (a string, cut after 1,023 bytes) and returns the
  // first 20,479 bytes of its standard output up to a zero byte; "" when it
  // cannot be started; undefined without a string. Blocks until the command
  // ends.
  static void System(const Call& call);
  // Runs "df -h > tmp.text" in the current directory.
  static void ExportGetLogicalDriveStrings(const Call& call);
  // Read their strings and return 0.
  static void AsynShellExecuteAndWait(const Call& call);
  static void AsyncUnZipFile(const Call& call);
  static void AsynCopyFile(const Call& call) { AsyncUnZipFile(call); }
  static void AsynMoveFile(const Call& call) { AsyncUnZipFile(call); }
  static void AsyncUpgradeP2spTask(const Call& call) { AsyncUnZipFile(call); }
  static void AsyncUpgradeEmuleTask(const Call& call);
  static void AsyncUpgradeBtTask(const Call& call) {
    AsyncUpgradeEmuleTask(call);
  }
  static void AsynPreLoadFile(const Call& call);
  // Read their string and return false.
  static void ExportIsFilePathValid(const Call& call);
  static void ExportQueryFileExists(const Call& call) {  // not bound
    ExportIsFilePathValid(call);
  }
  static void SetFileAttributes(const Call& call);
  static void InitUpgrade(const Call& call);

  static void AsyncShellExecute(const Call& call) { set_result(call, 0); }
  // Quirk: -1, where its siblings return 0.
  static void AsynDeleteFile(const Call& call) { set_result(call, -1); }
  static void QueryFileExists(const Call& call) { set_result(call, false); }
  static void EmptyWorkingSet(const Call& call) { set_result(call, false); }
  static void CreateShortcut(const Call& call) { set_result(call, false); }
  static void AsyncCalcuteFileMD5(const Call& call) { set_result(call, 0); }
  static void AsyncFindProcess(const Call& call) { set_result(call, 0); }
  static void TerminateProcessByName(const Call& call) { set_result(call, 0); }
  static void SetProcessEnvironmentVariable(const Call& call) {
    set_result(call, 0);
  }
  static void RemoveProcessEnvironmentVariable(const Call& call) {
    set_result(call, 0);
  }
  static void UpdateDesktopIcon(const Call& call) { set_result(call, 0); }
  static void ShutDownMachine(const Call&) {}
  static void SuspendMachine(const Call&) {}
  static void RebootMachine(const Call&) {}

  // --- System and paths (korvane_helper_system.cc)

  // The display's scale factor, see DPIInterface.
  static void GetMonitorDPIFactor(const Call& call);
  static void GetSysDPIFactor(const Call& call);
  static void GetDPIAwareSupport(const Call& call);
  // Converts any argument to a number, truncated and saturated to 32 bits; 0,
  // negative numbers and not-a-number leave the reference as it is.
  static void SetDefaultDPI(const Call& call);
  // Return "", from a cache.
  static void GetRoamingAppDataPath(const Call& call);
  static void GetAppDataLocalLowPath(const Call& call);
  static void ExportGetInstallChannel(const Call& call);
  // Returns 0 for a string, otherwise undefined.
  static void ExportGetDriveType(const Call& call);

  static void GetPublicUserDataPath(const Call& call) { set_result(call, ""); }
  static void ExportGetDesktopPath(const Call& call) { set_result(call, ""); }
  static void ExportGetDocumentPath(const Call& call) { set_result(call, ""); }
  static void GetCommonFilesPath(const Call& call) { set_result(call, ""); }
  static void GetDefaultBrowserPath(const Call& call) { set_result(call, ""); }
  static void GetLongPathName(const Call& call) { set_result(call, ""); }
  static void GetCpuID(const Call& call) { set_result(call, ""); }
  static void GetDmideCode(const Call& call) { set_result(call, ""); }
  static void Utf8StringDecodeFromBinary(const Call& call) {
    set_result(call, "");
  }
  static void Utf8StringEncodeToBinary(const Call& call) {
    Utf8StringDecodeFromBinary(call);
  }
  static void GetFileVersion(const Call& call) { set_result(call, "1.0.0.1"); }
  static void GetCpuProcessors(const Call& call) { set_result(call, 1); }
  static void GetCpuFrequency(const Call& call) { set_result(call, 0); }
  static void DiskIdleInfo(const Call& call) { set_result(call, 0); }
  static void WriteINI(const Call& call) { set_result(call, 0); }
  static void IsWin7(const Call& call) { set_result(call, 0); }
  // Quirk: true, where every other question returns false.
  static void IsOpenLumo(const Call& call) { set_result(call, true); }
  static void IsDwmCompositionEnabled(const Call& call) {
    set_result(call, false);
  }
  static void IsDropShadowEnabled(const Call& call) { set_result(call, false); }
  static void NotifyBrowserConfigChanged(const Call& call) {
    set_result(call, false);
  }
  static void GetCpuList(const Call&) {}
  static void GetAppList(const Call&) {}
  static void IsSSD(const Call&) {}
  static void GetHardDiskSpaceList(const Call&) {}
  static void GetMemoryInfo(const Call&) {}
  static void IsFullScreen(const Call&) {}
  static void GetIEProxy(const Call&) {}
  static void GetTickCount(const Call&) {}
  static void ISColdStartUp(const Call&) {}
  static void GetWndHandleFromPonit(const Call&) {}
  static void GetParentWnd(const Call&) {}

  // --- Network (korvane_helper_network.cc)

  // Returns 1 when the host of a URL (any value, as a string, cut after 8,181
  // bytes) resolves, otherwise 0. Blocks as long as the resolver takes.
  static void IsPingHostValid(const Call& call);

  static void GetCurInternetState(const Call& call) { set_result(call, 0); }
  static void AsyncGetNetAdapterInfo(const Call& call) { set_result(call, 0); }
  static void StartListenLocalNet(const Call&) {}

  // --- Clipboard (korvane_helper_clipboard.cc)

  // Calls a function once, before it returns, with 1 and an array of links, and
  // keeps it for the life of the process. Returns 0.
  static void AttachClipBoard(const Call& call);

  // --- Windows (korvane_helper_window.cc)

  static void TsSetWindowPos(const Call& call);
  static void TsShowWindow(const Call& call);
  static void TsIsWindowHandle(const Call& call);
  static void TsBringWindowToTop(const Call& call);
  static void TsEnableWindow(const Call& call);
  static void TsGetWindowRect(const Call& call);
  static void TsMoveWindow(const Call& call);
  static void GetDisplayWindowRect(const Call& call);
  static void GetCursorPosition(const Call& call);
  static void TsGetKeyState(const Call& call);

  // Quirk: asks no display, unlike XWindow::IsInFullScreen.
  static void IsInFullScreen(const Call& call) { set_result(call, false); }
  static void GetWindowClassName(const Call& call) { set_result(call, ""); }

  // --- Identity (korvane_helper_identity.cc)

  // Returns the network adapter's address and "007V", see LinuxShell; writes
  // trace lines to standard output.
  static void GetPeerID(const Call& call);
  // (string, string): the collation of the second against the first, each read
  // as the bytes of its UTF-16 up to the first zero byte, so that only the
  // first character below U+0100 counts. 0 for other arguments.
  static void ExportCompareStr(const Call& call);
  // Returns 0 for a string (cut after 2,082 bytes), otherwise undefined.
  static void ExportGetTaskTypeFromUrl(const Call& call);

  // --- Completions (korvane_helper_completion.cc)
  //
  // For a platform worker that delivers results later, on the script thread and
  // with a context entered. Each calls the holder's function once, then frees
  // the holder; without a holder it does nothing. Each returns 0.

  // Calls back with a boolean and an array of integers.
  static int OnIsSSD(std::int32_t request_id, bool success,
                     const std::vector<std::int32_t>& values,
                     CallbackHolder* holder);
  // Calls back with a boolean (whether `success` is not 0) and a number.
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
  // A script can call every name without testing for it first.

  static void PrintEtwLog(const Call&) {}
  static void PrintAdvancedEtwLog(const Call&) {}
  static void AttachShadowWindow(const Call&) {}
  static void DrawShadowWindow(const Call&) {}
  static void DestroyShadowWindow(const Call&) {}
  static void SetShadowWindowResizable(const Call&) {}
  static void InitGDIPlus(const Call&) {}
  static void UninitGDIPlus(const Call&) {}
  static void TsGetWindowLong(const Call&) {}
  static void TsSetWindowLong(const Call&) {}
  static void TsModifyStyle(const Call&) {}
  static void TsModifyStyleEx(const Call&) {}
  static void TsSetWindowFocus(const Call&) {}
  static void TsGetNextWindow(const Call&) {}
  static void AllowSetForegroundWindow(const Call&) {}
  static void SetForegroundWindow(const Call&) {}
  static void TsSetDllDirectory(const Call&) {}
  static void TsFindChildWindow(const Call&) {}
  static void GetClipBoardText(const Call&) {}
  static void QueryRegValue(const Call&) {}
  static void ReadRegString(const Call&) {}
  static void WriteRegValue(const Call&) {}
  static void DeleteRegValue(const Call&) {}
  static void DeleteRegKey(const Call&) {}
  static void CreateRegKey(const Call&) {}
  static void StopListenLocalNet(const Call&) {}
  static void InitClipBoard(const Call&) {}
  static void ReadINI(const Call&) {}
  static void RefreshIcon(const Call&) {}
  static void StartAutoUpdateWithUI(const Call&) {}
  static void StartManualUpdateWithUI(const Call&) {}
  static void StartUpdateWithUI(const Call&) {}
  static void InitLiveUD(const Call&) {}
  static void IsKorvaneOnUserFocus(const Call&) {}
  static void MoveSuspenWindow(const Call&) {}
  static void QkShellExecEx(const Call&) {}
  static void CopyTextToClipBoard(const Call&) {}
  static void EmptyClipBoard(const Call&) {}
  static void EndKorvaneStartProcess(const Call&) {}
  static void GetForegroundProcessName(const Call&) {}
  static void ExportGetDriveInfo(const Call&) {}
  static void ExportGetPartitionSpace(const Call&) {}
  static void ExportGetFreePartitionSpace(const Call&) {}
  static void ExportGetSystemTempPath(const Call&) {}
  static void ExportIsKorvanePrivateUrl(const Call&) {}
  static void ExportParseKorvanePrivateUrl(const Call&) {}
  static void ExportMakeKorvanePrivateUrl(const Call&) {}
  static void ExportParseFileNameFromP2spUrlPath(const Call&) {}
  static void ExportParseUrl(const Call&) {}
  static void ExportParseEd2kUrl(const Call&) {}
  static void ExportParseMagnetUrl(const Call&) {}
  static void ExportMakeUrl(const Call&) {}
  static void GetOsVersion(const Call&) {}
  static void TsIsWindowEnable(const Call&) {}
  static void TssetScreenSaveActive(const Call&) {}
  static void ExportExtractIcon2File(const Call&) {}
  static void GetFreeTime(const Call&) {}
  static void OpenURLByIEorDefault(const Call&) {}
  static void OpenURLByDefault(const Call&) {}
  static void DisableWindowAnimation(const Call&) {}
  static void SetBugreportCustomInfo(const Call&) {}
  static void SetBugreportShowMode(const Call&) {}
  static void GetMediaInfo(const Call&) {}
  static void CalculateFileCID(const Call&) {}
  static void CalculateFileGCID(const Call&) {}
  static void CalculateFileBCID(const Call&) {}
  static void AttachVirtualDisk(const Call&) {}
  static void DetachVirtualDisk(const Call&) {}
  static void GetVirtualDiskPhysicalPath(const Call&) {}
  static void TsIsIconic(const Call&) {}
  static void TsIsZoomed(const Call&) {}
  static void TsIsWindowVisible(const Call&) {}
  static void GetDriveMediaType(const Call&) {}
  static void IsSparseFile(const Call&) {}
  static void IsSparseDriver(const Call&) {}
  static void TrackEvent(const Call&) {}
  static void ModifyStyleOrEx(const Call&) {}  // not bound
};

#endif  // KORVANE_SCRIPT_KORVANE_HELPER_H_
