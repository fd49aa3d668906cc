// Operations on the windows of an X11 display.
//
// Windows are named by their X identifiers; all positions and sizes are pixels.
// Each call opens its own connection to the display that the environment names
// (DISPLAY, read on every call), waits until the server has taken its requests,
// and closes it. Without a display an operation answers false (0) and writes
// nothing.
//
// A request that the server refuses, such as one on a window that is gone, goes
// to the process's X error handler, which is left as it is: the X library's own
// ends the process. So does a connection that breaks in the middle of a call.
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
  // directly beneath it. Answers the X library's status of the move or resize,
  // 0 when `flags` keep both.
  static int SetWindowPos(std::uint64_t window, std::uint64_t insert_after,
                          int x, int y, int cx, int cy, std::uint32_t flags);

  // Whether a window was told to show or hide. Maximising asks the window
  // manager and always answers false.
  static bool ShowWindow(std::uint64_t window, int command);

  // Whether a window has a property: one without any, and window 0, are none.
  static bool IsWindow(std::uint64_t window);

  // Raises a window above its siblings.
  static bool BringWindowToTop(std::uint64_t window);

  // Opens and closes the display, no more: X11 windows have no such state.
  // Always false.
  static bool EnableWindow(std::uint64_t window, bool enable);

  // `right` and `bottom` receive the window's width and height, without its
  // border. `left` and `top` receive, in root coordinates, the point inside the
  // window that has the numbers of its position in its parent: where the
  // window is, plus that position once more. When only the position can be had,
  // it is written and the answer is false. False for window 0.
  static bool GetWindowRect(std::uint64_t window, int& left, int& top,
                            int& right, int& bottom);

  // Moves and resizes a window.
  static bool MoveWindow(std::uint64_t window, int x, int y, int width,
                         int height);

  // Whether the window with the input focus covers the default screen: its
  // position, as GetWindowRect tells it, is not right of or below the origin
  // and its size is at least the screen's.
  static bool IsInFullScreen();

  // The size of the default screen. True also when the root window's attributes
  // name no screen; nothing is written then.
  static bool GetDisplayWindowRect(int& width, int& height);

  // The pointer's position on the default screen; writes nothing without a
  // display.
  static void GetCursorPos(int& x, int& y);

  // Asks the server for the state of a mouse button (1 to 4) or of a key (a
  // keysym) and answers 1 whatever it is, without a display too.
  static int GetKeyState(int key);
};

#endif  // KORVANE_PLATFORM_X_WINDOW_H_
