// How every connection to the X server begins.
#ifndef KORVANE_PLATFORM_OPEN_DISPLAY_H_
#define KORVANE_PLATFORM_OPEN_DISPLAY_H_

#include <X11/Xlib.h>

// Connects to the display that DISPLAY names; null when that fails. Any thread
// may call it: libX11 before 1.8 asks for XInitThreads() first.
inline Display* open_display() {
  [[maybe_unused]] static const Status threads = XInitThreads();
  return XOpenDisplay(nullptr);
}

#endif  // KORVANE_PLATFORM_OPEN_DISPLAY_H_
