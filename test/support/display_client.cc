#include "display_client.h"

#include <X11/Xatom.h>
#include <X11/Xutil.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>

DisplayClient::DisplayClient() : display_(XOpenDisplay(nullptr)) {
  if (display_ != nullptr) return;
  std::cerr << "no display " << XDisplayName(nullptr) << "\n";
  std::exit(2);
}

bool DisplayClient::has_manager() const {
  const Atom check = XInternAtom(display(), "_NET_SUPPORTING_WM_CHECK", False);
  int count = 0;
  Atom* properties = XListProperties(display(), root(), &count);
  const bool found =
      std::find(properties, properties + count, check) != properties + count;
  XFree(properties);
  return found;
}

Window DisplayClient::create(const Rectangle& place, int border, Window parent,
                             bool managed) const {
  XSetWindowAttributes attributes{};
  attributes.override_redirect = managed ? False : True;
  attributes.event_mask = StructureNotifyMask | PropertyChangeMask;
  const Window window = XCreateWindow(
      display(), parent == None ? root() : parent, place[0], place[1],
      static_cast<unsigned>(place[2]), static_cast<unsigned>(place[3]),
      static_cast<unsigned>(border), CopyFromParent, InputOutput, nullptr,
      CWOverrideRedirect | CWEventMask, &attributes);
  XStoreName(display(), window, "test window");
  XSync(display(), False);
  return window;
}

void DisplayClient::show(Window window) const {
  XMapWindow(display(), window);
  wait_until([&] { return is_shown(window); });
}

void DisplayClient::destroy(Window window) const {
  XDestroyWindow(display(), window);
  XSync(display(), False);
}

DisplayClient::Rectangle DisplayClient::rectangle(Window window) const {
  XWindowAttributes attributes{};
  XGetWindowAttributes(display(), window, &attributes);
  return {attributes.x, attributes.y, attributes.width, attributes.height};
}

DisplayClient::Rectangle DisplayClient::rectangle_on_root(Window window) const {
  const Rectangle place = rectangle(window);
  int x = 0;
  int y = 0;
  Window child = None;
  XTranslateCoordinates(display(), window, root(), 0, 0, &x, &y, &child);
  return {x, y, place[2], place[3]};
}

bool DisplayClient::is_shown(Window window) const {
  XWindowAttributes attributes{};
  XGetWindowAttributes(display(), window, &attributes);
  return attributes.map_state == IsViewable;
}

Window DisplayClient::child_of_root(Window window) const {
  Window top = None;
  Window parent = None;
  Window* children = nullptr;
  unsigned count = 0;
  XQueryTree(display(), window, &top, &parent, &children, &count);
  XFree(children);
  return parent == top ? window : child_of_root(parent);
}

std::vector<Window> DisplayClient::stacking(
    const std::vector<Window>& windows) const {
  Window top = None;
  Window parent = None;
  Window* children = nullptr;
  unsigned count = 0;
  XQueryTree(display(), root(), &top, &parent, &children, &count);
  std::vector<Window> order = windows;
  const auto place = [&](Window window) {
    return std::find(children, children + count, child_of_root(window));
  };
  std::sort(order.begin(), order.end(), [&](Window left, Window right) {
    return place(left) < place(right);
  });
  XFree(children);
  return order;
}

void DisplayClient::wait_until(const std::function<bool()>& holds) const {
  while (!holds()) {
    XEvent event{};
    XNextEvent(display(), &event);
  }
}
