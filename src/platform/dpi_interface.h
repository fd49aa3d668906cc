// How much larger than the reference the display draws.
#ifndef KORVANE_PLATFORM_DPI_INTERFACE_H_
#define KORVANE_PLATFORM_DPI_INTERFACE_H_

#include <atomic>

class DPIInterface {
 public:
  // The default screen's horizontal dots per inch divided by the reference DPI,
  // truncated to two decimal places: 1.33 for 128 DPI. 1.0 without a display
  // and for a screen without a physical size.
  //
  // Quirk: each call leaves its display connection open until the process ends.
  // After some 250 calls the server refuses every new client of every program
  // ("Maximum number of clients"): the factor is 1.0, and XWindow behaves as
  // without a display. Call it once and keep the result.
  static double GetMonitorDPIFactor();
  // The same as GetMonitorDPIFactor.
  static double GetSysDPIFactor();

  static bool GetDPIAwareSupport();

  // Sets the reference DPI, by default 96, for the whole process; 0 and
  // negative values are ignored.
  static void SetDefaultDPI(int dpi);

 private:
  // Shared by the script threads of runtimes that have several.
  static std::atomic<int> s_default_dpi;
};

#endif  // KORVANE_PLATFORM_DPI_INTERFACE_H_
