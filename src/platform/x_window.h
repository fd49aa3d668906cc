// Operations on the windows of an X11 display.
//
// A window is an X identifier; all positions and sizes are pixels. Each call
// opens a connection to the display that DISPLAY names, waits until the server
// has processed its requests, and closes it. Without a display an operation
// returns false (0) and writes nothing.
//
// A request that the server refuses, such as one on a window that is gone, goes
// to the process's X error handler; the X library's own terminates the process.
// So does a connection that breaks during a call.
#ifndef KORVANE_PLATFORM_X_WINDOW_H_
#define KORVANE_PLATFORM_X_WINDOW_H_

#include <cstdint>

class XWindow {
 public:
  // Bits of SetWindowPos; every other bit is ignored.
  enum Flag : std::uint32_t {
    kKeepSize = 0x1,
    kKeepPosition = 0x2,
    kShow = 0x40,
    kHide = 0x80,  // not with kShow
  };

  // Commands of ShowWindow; every other command does nothing.
  enum Command : std::int32_t {
    kCommandHide = 0,
    kCommandMaximise = 3,
    kCommandShow = 5,
  };

  // Moves, resizes, shows or hides a window and puts `insert_after` (0: none)
  // directly beneath it. Returns the X library's status of the move or resize,
  // 0 when `flags` keep both.
  static int SetWindowPos(std::uint64_t window, std::uint64_t insert_after,
                          int x, int y, int cx, int cy, std::uint32_t flags);

  // Whether a window was shown or hidden. Quirk: maximising sends a request to
  // the window manager and returns false.
  static bool ShowWindow(std::uint64_t window, int command);

  // Whether a window has a property. Quirk: without any it is no window.
  static bool IsWindow(std::uint64_t window);

  // Raises a window above its siblings.
  static bool BringWindowToTop(std::uint64_t window);

  // Only opens and closes the display: X11 windows have no such state. False.
  static bool EnableWindow(std::uint64_t window, bool enable);

  // Quirk: `right` and `bottom` receive the width and height, without the
  // border. Quirk: `left` and `top` receive the position on the root window
  // plus the position in the parent once more. False for window 0. When only
  // the position is known it is written, and the result is false.
  static bool GetWindowRect(std::uint64_t window, int& left, int& top,
                            int& right, int& bottom);

  // Moves and resizes a window.
  static bool MoveWindow(std::uint64_t window, int x, int y, int width,
                         int height);

  // Whether the window with the input focus covers the default screen: its
  // position, as GetWindowRect returns it, is not right of or below the origin,
  // and its size is at least the screen's.
  static bool IsInFullScreen();

  // The size of the default screen. True even when the root window's attributes
  // name no screen; nothing is written then.
  static bool GetDisplayWindowRect(int& width, int& height);

  // The pointer's position on the default screen; writes nothing without a
  // display.
  static void GetCursorPos(int& x, int& y);

  // Queries the state of a mouse button (1 to 4) or of a key (a keysym).
  // Quirk: returns 1 whatever it is, even without a display.
  static int GetKeyState(int key);
};

#endif  // KORVANE_PLATFORM_X_WINDOW_H_
