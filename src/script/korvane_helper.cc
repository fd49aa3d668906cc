#include "script/korvane_helper.h"

#include <iterator>

const KorvaneHelper::Export KorvaneHelper::kExports[] = {
    {"printEtwLog", PrintEtwLog},
    {"printAdvancedEtwLog", PrintAdvancedEtwLog},
    {"attachShadowWindow", AttachShadowWindow},
    {"drawShadowWindow", DrawShadowWindow},
    {"destroyShadowWindow", DestroyShadowWindow},
    {"setShadowWindowResizable", SetShadowWindowResizable},
    {"initGDIPlus", InitGDIPlus},
    {"uninitGDIPlus", UninitGDIPlus},
    {"getMonitorDPIFactor", GetMonitorDPIFactor},
    {"getDPIAwareSupport", GetDPIAwareSupport},
    {"getSysDPIFactor", GetSysDPIFactor},
    {"setDefaultDPI", SetDefaultDPI},
    {"setWindowPos", TsSetWindowPos},
    {"getWindowLong", TsGetWindowLong},
    {"setWindowLong", TsSetWindowLong},
    {"modifyStyle", TsModifyStyle},
    {"modifyStyleEx", TsModifyStyleEx},
    {"setWindowFocus", TsSetWindowFocus},
    {"showWindow", TsShowWindow},
    {"getNextWindow", TsGetNextWindow},
    {"allowSetForegroundWindow", AllowSetForegroundWindow},
    {"setForegroundWindow", SetForegroundWindow},
    {"isWindowHandle", TsIsWindowHandle},
    {"setDllDirectory", TsSetDllDirectory},
    {"findChildWindow", TsFindChildWindow},
    {"bringWindowToTop", TsBringWindowToTop},
    {"getKeyState", TsGetKeyState},
    {"getPeerID", guarded<GetPeerID>},
    {"getDmideCode", GetDmideCode},
    {"getFileVersion", GetFileVersion},
    {"getClipBoardText", GetClipBoardText},
    {"queryRegValue", QueryRegValue},
    {"readRegString", ReadRegString},
    {"writeRegValue", WriteRegValue},
    {"deleteRegValue", DeleteRegValue},
    {"deleteRegKey", DeleteRegKey},
    {"createRegKey", CreateRegKey},
    {"getCurInternetState", GetCurInternetState},
    {"startListenLocalNet", StartListenLocalNet},
    {"stopListenLocalNet", StopListenLocalNet},
    {"shutDownMachine", ShutDownMachine},
    {"suspendMachine", SuspendMachine},
    {"rebootdMachine", RebootMachine},
    {"initClipBoard", InitClipBoard},
    {"attachClipBoard", guarded<AttachClipBoard>},
    {"getAppDataLocalLowPath", GetAppDataLocalLowPath},
    {"getRoamingAppDataPath", GetRoamingAppDataPath},
    {"getPublicUserDataPath", GetPublicUserDataPath},
    {"readINI", ReadINI},
    {"writeINI", WriteINI},
    {"notifyBrowserConfigChanged", NotifyBrowserConfigChanged},
    {"iSColdStartUp", ISColdStartUp},
    {"refreshIcon", RefreshIcon},
    {"startAutoUpdateWithUI", StartAutoUpdateWithUI},
    {"startManualUpdateWithUI", StartManualUpdateWithUI},
    {"startUpdateWithUI", StartUpdateWithUI},
    {"initLiveUD", InitLiveUD},
    {"isKorvaneOnUserFocus", IsKorvaneOnUserFocus},
    {"moveSuspenWindow", MoveSuspenWindow},
    {"shellExecute", QkShellExecEx},
    {"isPingHostValid", guarded<IsPingHostValid>},
    {"isWin7", IsWin7},
    {"copyTextToClipBoard", CopyTextToClipBoard},
    {"emptyClipBoard", EmptyClipBoard},
    {"endKorvaneStartProcess", EndKorvaneStartProcess},
    {"getForegroundProcessName", GetForegroundProcessName},
    {"isFullScreen", IsFullScreen},
    {"getLogicalDriveStrings", ExportGetLogicalDriveStrings},
    {"getDriveInfo", ExportGetDriveInfo},
    {"getDriveType", ExportGetDriveType},
    {"getPartitionSpace", ExportGetPartitionSpace},
    {"getFreePartitionSpace", ExportGetFreePartitionSpace},
    {"getSystemTempPath", ExportGetSystemTempPath},
    {"isFilePathValid", ExportIsFilePathValid},
    {"getDesktopPath", ExportGetDesktopPath},
    {"getDocumentPath", ExportGetDocumentPath},
    {"getInstallChannel", ExportGetInstallChannel},
    {"isKorvanePrivateUrl", ExportIsKorvanePrivateUrl},
    {"parseKorvanePrivateUrl", ExportParseKorvanePrivateUrl},
    {"makeKorvanePrivateUrl", ExportMakeKorvanePrivateUrl},
    {"parseFileNameFromP2spUrlPath", ExportParseFileNameFromP2spUrlPath},
    {"parseUrl", ExportParseUrl},
    {"parseEd2kUrl", ExportParseEd2kUrl},
    {"getTaskTypeFromUrl", guarded<ExportGetTaskTypeFromUrl>},
    {"parseMagnetUrl", ExportParseMagnetUrl},
    {"makeUrl", ExportMakeUrl},
    {"getOSVersion", GetOsVersion},
    {"getChannelID", ExportGetInstallChannel},
    {"isWindowEnable", TsIsWindowEnable},
    {"enableWindow", TsEnableWindow},
    {"setScreenSaveActive", TssetScreenSaveActive},
    {"getCpuFrequency", GetCpuFrequency},
    {"getCpuProcessors", GetCpuProcessors},
    {"getTickCount", GetTickCount},
    {"extractIcon", ExportExtractIcon2File},
    {"compareStr", ExportCompareStr},
    {"getFreeTime", GetFreeTime},
    {"setFileAttributes", SetFileAttributes},
    {"asynCopyFile", AsynCopyFile},
    {"asynMoveFile", AsynMoveFile},
    {"asynDeleteFile", AsynDeleteFile},
    {"queryFileExists", QueryFileExists},
    {"asynPreLoadFile", AsynPreLoadFile},
    {"initUpgrade", InitUpgrade},
    {"asyncUpgradeP2spTask", AsyncUpgradeP2spTask},
    {"asyncUpgradeBtTask", AsyncUpgradeBtTask},
    {"asyncUpgradeEmuleTask", AsyncUpgradeEmuleTask},
    {"asyncShellExecuteAndWait", AsynShellExecuteAndWait},
    {"asyncShellExecute", AsyncShellExecute},
    {"getLongPathName", GetLongPathName},
    {"getCommonFilesPath", GetCommonFilesPath},
    {"getDefaultBrowserPath", GetDefaultBrowserPath},
    {"openURLByIEorDefault", OpenURLByIEorDefault},
    {"openURLByDefault", OpenURLByDefault},
    {"isOpenLumo", IsOpenLumo},
    {"IsInFullScreen", IsInFullScreen},
    {"isDwmCompositionEnabled", IsDwmCompositionEnabled},
    {"isDropShadowEnabled", IsDropShadowEnabled},
    {"utf8StringEncodeToBinary", Utf8StringEncodeToBinary},
    {"utf8StringDecodeFromBinary", Utf8StringDecodeFromBinary},
    {"getCursorPos", GetCursorPosition},
    {"getDisplayWindowRect", GetDisplayWindowRect},
    {"getWndHandleFromPoint", GetWndHandleFromPonit},
    {"getParentWnd", GetParentWnd},
    {"asyncCalcuteFileMD5", AsyncCalcuteFileMD5},
    {"asyncDiskIdleInfo", DiskIdleInfo},
    {"asyncUnZipFile", AsyncUnZipFile},
    {"getIEProxy", GetIEProxy},
    {"getWindowClassName", GetWindowClassName},
    {"setProcessEnvironmentVariable", SetProcessEnvironmentVariable},
    {"removeProcessEnvironmentVariable", RemoveProcessEnvironmentVariable},
    {"asyncFindProcess", AsyncFindProcess},
    {"terminateProcessByName", TerminateProcessByName},
    {"emptyWorkingSet", EmptyWorkingSet},
    {"getNetAdapterInfo", AsyncGetNetAdapterInfo},
    {"getCpuID", GetCpuID},
    {"disableWindowAnimation", DisableWindowAnimation},
    {"setBugreportCustomInfo", SetBugreportCustomInfo},
    {"setBugreportShowMode", SetBugreportShowMode},
    {"createShortcut", CreateShortcut},
    {"updateDesktopIcon", UpdateDesktopIcon},
    {"getMediaInfo", GetMediaInfo},
    {"calculateFileCID", CalculateFileCID},
    {"calculateFileGCID", CalculateFileGCID},
    {"calculateFileBCID", CalculateFileBCID},
    {"attachVirtualDisk", AttachVirtualDisk},
    {"detachVirtualDisk", DetachVirtualDisk},
    {"getVirtualDiskPhysicalPath", GetVirtualDiskPhysicalPath},
    {"getWindowRect", TsGetWindowRect},
    {"isIconic", TsIsIconic},
    {"isZoomed", TsIsZoomed},
    {"moveWindow", TsMoveWindow},
    {"isWindowVisible", TsIsWindowVisible},
    {"getAppList", GetAppList},
    {"isSSD", IsSSD},
    {"getMemoryInfo", GetMemoryInfo},
    {"getHardDiskSpaceList", GetHardDiskSpaceList},
    {"getCpuList", GetCpuList},
    {"getDriveMediaType", GetDriveMediaType},
    {"IsSparseFile", IsSparseFile},
    {"IsSparseDriver", IsSparseDriver},
    {"System", guarded<System>},
    {"trackEvent", TrackEvent},
};
static_assert(std::size(KorvaneHelper::kExports) == 163);

// One registration. When it fails, its name is missing and the others are not.
static void set_method(v8::Local<v8::Object> exports,
                       const KorvaneHelper::Export& row) {
  v8::Isolate* isolate = v8::Isolate::GetCurrent();
  const v8::HandleScope scope(isolate);
  const v8::Local<v8::Context> context = isolate->GetCurrentContext();
  const auto from = v8::FunctionTemplate::New(isolate, row.function);
  v8::Local<v8::Function> function;
  v8::Local<v8::String> name;
  if (!from->GetFunction(context).ToLocal(&function) ||
      !v8::String::NewFromUtf8(isolate, row.name, v8::NewStringType::kNormal)
           .ToLocal(&name)) {
    return;
  }
  function->SetName(name);
  exports->Set(context, name, function).FromMaybe(false);
}

void KorvaneHelper::Register(v8::Local<v8::Object> exports) {
  // Scripts may have put setters in the way.
  const ScriptGuard guard(v8::Isolate::GetCurrent());
  for (const Export& row : kExports) set_method(exports, row);
}

// Runtimes differ in what they pass behind the exports.
template <typename... Unused>
static void init(v8::Local<v8::Object> exports, Unused...) {
  KorvaneHelper::Register(exports);
}

extern "C" {

static node::node_module _module = {
    NODE_MODULE_VERSION,     0,       nullptr,
    "../src/korvane_helper", init,    runtime_port::for_contexts(init),
    "KorvaneHelper",         nullptr, nullptr,
};

__attribute__((constructor)) static void _register_KorvaneHelper() {
  node_module_register(&_module);
}

}  // extern "C"
