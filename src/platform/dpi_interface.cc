#include "platform/dpi_interface.h"

#include "platform/open_display.h"

std::atomic<int> DPIInterface::s_default_dpi = 96;

double DPIInterface::GetMonitorDPIFactor() {
  constexpr double kMillimetresPerInch = 25.4;
  // Quirk: the connection stays open.
  Display* const display = open_display().release();
  if (display == nullptr) return 1.0;
  const int screen = DefaultScreen(display);
  const int pixels = DisplayWidth(display, screen);
  const int millimetres = DisplayWidthMM(display, screen);
  if (pixels == 0 || millimetres == 0) return 1.0;
  const double inches = millimetres / kMillimetresPerInch;
  const double hundredths = pixels * 100 / inches / s_default_dpi;
  return static_cast<int>(hundredths) / 100.0;
}

double DPIInterface::GetSysDPIFactor() { return GetMonitorDPIFactor(); }

bool DPIInterface::GetDPIAwareSupport() { return true; }

void DPIInterface::SetDefaultDPI(int dpi) {
  if (dpi > 0) s_default_dpi = dpi;
}
