// How every connection to the X server begins.
#ifndef KORVANE_PLATFORM_OPEN_DISPLAY_H_
#define KORVANE_PLATFORM_OPEN_DISPLAY_H_

#include <X11/Xlib.h>

#include <memory>

struct CloseDisplay {
  void operator()(Display* display) const { XCloseDisplay(display); }
};

using Connection = std::unique_ptr<Display, CloseDisplay>;

// Connects to the display that DISPLAY names; null when that fails. Any thread
// may call it: libX11 before 1.8 asks for XInitThreads() first.
inline Connection open_display() {
  [[maybe_unused]] static const Status threads = XInitThreads();
  return Connection(XOpenDisplay(nullptr));
}

#endif  // KORVANE_PLATFORM_OPEN_DISPLAY_H_
