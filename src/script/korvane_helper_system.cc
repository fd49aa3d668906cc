#include <algorithm>
#include <limits>

#include "platform/dpi_interface.h"
#include "script/korvane_helper.h"

void KorvaneHelper::GetMonitorDPIFactor(const Call& call) {
  set_result(call, DPIInterface::GetMonitorDPIFactor());
}

void KorvaneHelper::GetSysDPIFactor(const Call& call) {
  set_result(call, DPIInterface::GetSysDPIFactor());
}

void KorvaneHelper::GetDPIAwareSupport(const Call& call) {
  set_result(call, DPIInterface::GetDPIAwareSupport());
}

void KorvaneHelper::SetDefaultDPI(const Call& call) {
  const double dpi = read_number(call, 0);
  constexpr double kMost = std::numeric_limits<int>::max();
  if (dpi >= 1)
    DPIInterface::SetDefaultDPI(static_cast<int>(std::min(dpi, kMost)));
}

// Caches that nothing fills on this platform.

void KorvaneHelper::GetRoamingAppDataPath(const Call& call) {
  static const std::string roaming_path;
  set_result(call, roaming_path.c_str());
}

void KorvaneHelper::GetAppDataLocalLowPath(const Call& call) {
  static const std::string low_path;
  set_result(call, low_path.c_str());
}

void KorvaneHelper::ExportGetInstallChannel(const Call& call) {
  static const std::string install_channel;
  set_result(call, install_channel.c_str());
}

void KorvaneHelper::ExportGetDriveType(const Call& call) {
  if (accepts_and_reads<kString>(call)) set_result(call, 0);
}
