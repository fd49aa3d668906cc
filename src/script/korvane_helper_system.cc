// Facts about the machine and the desktop. Only the display scale is a real
// query here; functions given to the others are neither kept nor called.
#include <cmath>
#include <limits>

#include "platform/dpi_interface.h"
#include "script/korvane_helper.h"

namespace {

// Truncates toward zero; saturates; not-a-number gives 0.
int saturated(double value) {
  using Limits = std::numeric_limits<int>;
  if (std::isnan(value)) return 0;
  if (value <= Limits::min()) return Limits::min();
  if (value >= Limits::max()) return Limits::max();
  return static_cast<int>(value);
}

}  // namespace

void KorvaneHelper::GetMonitorDPIFactor(const Arguments& arguments) {
  answer_number(arguments, DPIInterface::GetMonitorDPIFactor());
}

void KorvaneHelper::GetSysDPIFactor(const Arguments& arguments) {
  answer_number(arguments, DPIInterface::GetSysDPIFactor());
}

void KorvaneHelper::GetDPIAwareSupport(const Arguments& arguments) {
  answer_boolean(arguments, DPIInterface::GetDPIAwareSupport());
}

void KorvaneHelper::SetDefaultDPI(const Arguments& arguments) {
  DPIInterface::SetDefaultDPI(saturated(read_number(arguments, 0)));
}

// The three cached texts stay empty here; a platform that fills one at its
// first call answers from memory afterwards.

void KorvaneHelper::GetRoamingAppDataPath(const Arguments& arguments) {
  static const std::string roaming_path;
  answer_text(arguments, roaming_path.c_str());
}

void KorvaneHelper::GetAppDataLocalLowPath(const Arguments& arguments) {
  static const std::string low_path;
  answer_text(arguments, low_path.c_str());
}

void KorvaneHelper::ExportGetInstallChannel(const Arguments& arguments) {
  static const std::string install_channel;
  answer_text(arguments, install_channel.c_str());
}

void KorvaneHelper::GetPublicUserDataPath(const Arguments& arguments) {
  answer_text(arguments, "");
}

void KorvaneHelper::ExportGetDesktopPath(const Arguments& arguments) {
  answer_text(arguments, "");
}

void KorvaneHelper::ExportGetDocumentPath(const Arguments& arguments) {
  answer_text(arguments, "");
}

void KorvaneHelper::GetCommonFilesPath(const Arguments& arguments) {
  answer_text(arguments, "");
}

void KorvaneHelper::GetDefaultBrowserPath(const Arguments& arguments) {
  answer_text(arguments, "");
}

void KorvaneHelper::GetLongPathName(const Arguments& arguments) {
  answer_text(arguments, "");
}

void KorvaneHelper::GetCpuID(const Arguments& arguments) {
  answer_text(arguments, "");
}

void KorvaneHelper::GetDmideCode(const Arguments& arguments) {
  answer_text(arguments, "");
}

void KorvaneHelper::Utf8StringDecodeFromBinary(const Arguments& arguments) {
  answer_text(arguments, "");
}

void KorvaneHelper::Utf8StringEncodeToBinary(const Arguments& arguments) {
  Utf8StringDecodeFromBinary(arguments);
}

void KorvaneHelper::GetFileVersion(const Arguments& arguments) {
  answer_text(arguments, "1.0.0.1");
}

void KorvaneHelper::GetCpuProcessors(const Arguments& arguments) {
  answer_integer(arguments, 1);
}

void KorvaneHelper::GetCpuFrequency(const Arguments& arguments) {
  answer_integer(arguments, 0);
}

void KorvaneHelper::DiskIdleInfo(const Arguments& arguments) {
  answer_integer(arguments, 0);
}

void KorvaneHelper::WriteINI(const Arguments& arguments) {
  answer_integer(arguments, 0);
}

void KorvaneHelper::IsWin7(const Arguments& arguments) {
  answer_number(arguments, 0);
}

void KorvaneHelper::ExportGetDriveType(const Arguments& arguments) {
  if (!accepts<Kind::kText>(arguments)) return;
  read_and_drop_texts(arguments, 1);
  answer_number(arguments, 0);
}

void KorvaneHelper::IsOpenLumo(const Arguments& arguments) {
  answer_boolean(arguments, true);
}

void KorvaneHelper::IsDwmCompositionEnabled(const Arguments& arguments) {
  answer_boolean(arguments, false);
}

void KorvaneHelper::IsDropShadowEnabled(const Arguments& arguments) {
  answer_boolean(arguments, false);
}

void KorvaneHelper::NotifyBrowserConfigChanged(const Arguments& arguments) {
  answer_boolean(arguments, false);
}

void KorvaneHelper::GetCpuList(const Arguments&) {}

void KorvaneHelper::GetAppList(const Arguments&) {}

void KorvaneHelper::IsSSD(const Arguments&) {}

void KorvaneHelper::GetHardDiskSpaceList(const Arguments&) {}

void KorvaneHelper::GetMemoryInfo(const Arguments&) {}

void KorvaneHelper::IsFullScreen(const Arguments&) {}

void KorvaneHelper::GetIEProxy(const Arguments&) {}

void KorvaneHelper::GetTickCount(const Arguments&) {}

void KorvaneHelper::ISColdStartUp(const Arguments&) {}

void KorvaneHelper::GetWndHandleFromPonit(const Arguments&) {}

void KorvaneHelper::GetParentWnd(const Arguments&) {}
