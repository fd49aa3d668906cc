// A client of the display that is none of the module's: it makes the windows
// that tests work on and reads from the server what became of them.
#ifndef KORVANE_TEST_DISPLAY_CLIENT_H_
#define KORVANE_TEST_DISPLAY_CLIENT_H_

#include <X11/Xlib.h>

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class DisplayClient {
 public:
  // x, y in the parent, width, height; pixels, without the border.
  using Rectangle = std::array<int, 4>;

  DisplayClient();

  Display* display() const { return display_.get(); }
  Window root() const { return DefaultRootWindow(display_.get()); }
  bool has_manager() const;

  // Makes a window with one property, not shown. One that is `managed` is left
  // to the window manager, the others are not.
  Window create(const Rectangle& place, int border = 0, Window parent = None,
                bool managed = false) const;
  // Shows a window and waits until it is shown.
  void show(Window window) const;
  void destroy(Window window) const;

  Rectangle rectangle(Window window) const;
  // The window's inside, in root coordinates.
  Rectangle rectangle_on_root(Window window) const;
  bool is_shown(Window window) const;
  // Those of `windows` in the root's stacking order, bottom first; a window
  // that its manager put into a frame stands for the frame.
  std::vector<Window> stacking(const std::vector<Window>& windows) const;

  // Waits for events of this client's windows until `holds`.
  void wait_until(const std::function<bool()>& holds) const;

 private:
  Window child_of_root(Window window) const;

  struct Close {
    void operator()(Display* display) const { XCloseDisplay(display); }
  };
  std::unique_ptr<Display, Close> display_;
};

#endif  // KORVANE_TEST_DISPLAY_CLIENT_H_
