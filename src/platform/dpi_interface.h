// How much larger than the reference the display draws.
#ifndef KORVANE_PLATFORM_DPI_INTERFACE_H_
#define KORVANE_PLATFORM_DPI_INTERFACE_H_

#include <atomic>

class DPIInterface {
 public:
  // The default screen's dots per inch, across, divided by the reference DPI,
  // truncated to two decimal places: 1.33 for 128 DPI. 1.0 without a display
  // and for a screen without a physical size.
  //
  // The display connection that a call opens stays open until the process ends.
  // After some 250 calls the server refuses every new client of every program
  // ("Maximum number of clients"): the factor is 1.0 and every operation of
  // XWindow answers as without a display. Ask once and keep the answer.
  static double GetMonitorDPIFactor();
  // The same as GetMonitorDPIFactor.
  static double GetSysDPIFactor();

  static bool GetDPIAwareSupport();

  // Sets the reference DPI, 96 at first, for the whole process; 0 and negative
  // values are ignored.
  static void SetDefaultDPI(int dpi);

 private:
  // Script threads share it where a runtime has several.
  static std::atomic<int> s_default_dpi;
};

#endif  // KORVANE_PLATFORM_DPI_INTERFACE_H_
