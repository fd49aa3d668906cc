// A client of the display that is none of the module's: it makes the windows
// that tests work on and reads from the server what became of them.
#ifndef KORVANE_TEST_DISPLAY_CLIENT_H_
#define KORVANE_TEST_DISPLAY_CLIENT_H_

#include <gtest/gtest.h>
#include <poll.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <memory>
#include <vector>

// Last: their macros are words of other headers.
#include <X11/Xlib.h>
#include <X11/Xutil.h>

class DisplayClient {
 public:
  // x, y in the parent, width, height; pixels, without the border.
  using Rectangle = std::array<int, 4>;

  DisplayClient() : display_(XOpenDisplay(nullptr)) {
    if (display_ != nullptr) return;
    std::cerr << "no display " << XDisplayName(nullptr) << "\n";
    std::exit(2);
  }

  Display* display() const { return display_.get(); }
  Window root() const { return DefaultRootWindow(display_.get()); }

  // Makes a window with one property, not shown. One that is `managed` is left
  // to the window manager, the others are not.
  Window create(const Rectangle& place, int border = 0, Window parent = None,
                bool managed = false) const {
    XSetWindowAttributes attributes{};
    attributes.override_redirect = managed ? False : True;
    attributes.event_mask = StructureNotifyMask;
    const Window window = XCreateWindow(
        display(), parent == None ? root() : parent, place[0], place[1],
        static_cast<unsigned>(place[2]), static_cast<unsigned>(place[3]),
        static_cast<unsigned>(border), CopyFromParent, InputOutput, nullptr,
        CWOverrideRedirect | CWEventMask, &attributes);
    XStoreName(display(), window, "test window");
    XSync(display(), False);
    return window;
  }

  // Shows a window and waits until it is shown.
  void show(Window window) const {
    XMapWindow(display(), window);
    wait_until([&] { return is_shown(window); });
  }

  Rectangle rectangle(Window window) const {
    const XWindowAttributes found = attributes(window);
    return {found.x, found.y, found.width, found.height};
  }

  // The window's inside, in root coordinates.
  Rectangle rectangle_on_root(Window window) const {
    const XWindowAttributes found = attributes(window);
    int x = 0;
    int y = 0;
    Window child = None;
    XTranslateCoordinates(display(), window, root(), 0, 0, &x, &y, &child);
    return {x, y, found.width, found.height};
  }

  bool is_shown(Window window) const {
    return attributes(window).map_state == IsViewable;
  }

  // Those of `windows` in the root's stacking order, bottom first; a window
  // that its manager put into a frame stands for the frame.
  std::vector<Window> stacking(const std::vector<Window>& windows) const {
    const std::vector<Window> all = tree(root()).children;
    std::vector<Window> order = windows;
    const auto place = [&](Window window) {
      return std::find(all.begin(), all.end(), child_of_root(window));
    };
    std::sort(order.begin(), order.end(), [&](Window left, Window right) {
      return place(left) < place(right);
    });
    return order;
  }

  // Waits for events of this client's windows until `holds`; 20 seconds without
  // one are a failure.
  void wait_until(const std::function<bool()>& holds) const {
    pollfd connection = {ConnectionNumber(display()), POLLIN, 0};
    while (!holds()) {
      if (XPending(display()) == 0 && poll(&connection, 1, 20000) == 0) {
        FAIL() << "no event in 20 seconds";
      }
      XEvent event{};
      XNextEvent(display(), &event);
    }
  }

 private:
  struct Tree {
    Window parent;
    std::vector<Window> children;
  };

  XWindowAttributes attributes(Window window) const {
    XWindowAttributes attributes{};
    XGetWindowAttributes(display(), window, &attributes);
    return attributes;
  }

  Tree tree(Window window) const {
    Window top = None;
    Tree found{};
    Window* children = nullptr;
    unsigned count = 0;
    XQueryTree(display(), window, &top, &found.parent, &children, &count);
    found.children.assign(children, children + count);
    XFree(children);
    return found;
  }

  Window child_of_root(Window window) const {
    const Window parent = tree(window).parent;
    return parent == root() ? window : child_of_root(parent);
  }

  struct Close {
    void operator()(Display* display) const { XCloseDisplay(display); }
  };
  std::unique_ptr<Display, Close> display_;
};

#endif  // KORVANE_TEST_DISPLAY_CLIENT_H_
