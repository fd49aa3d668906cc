#include "platform/x_window.h"

#include <array>

#include "platform/open_display.h"

namespace {

int place(Display* display, Window window, int x, int y, int cx, int cy,
          std::uint32_t flags) {
  const bool keep_size = (flags & XWindow::kKeepSize) != 0;
  const bool keep_position = (flags & XWindow::kKeepPosition) != 0;
  const auto width = static_cast<unsigned>(cx);
  const auto height = static_cast<unsigned>(cy);
  if (keep_size && keep_position) return 0;
  if (keep_position) return XResizeWindow(display, window, width, height);
  if (keep_size) return XMoveWindow(display, window, x, y);
  return XMoveResizeWindow(display, window, x, y, width, height);
}

// Quirk: no redirect bit in the event mask, so the message reaches only clients
// that watch the root window's children.
void request_maximise(Display* display, Window window) {
  constexpr long kAdd = 1;
  XEvent event{};
  XClientMessageEvent& message = event.xclient;
  message.type = ClientMessage;
  message.window = window;
  message.message_type = XInternAtom(display, "_NET_WM_STATE", False);
  message.format = 32;
  message.data.l[0] = kAdd;
  message.data.l[1] = static_cast<long>(
      XInternAtom(display, "_NET_WM_STATE_MAXIMIZED_HORZ", False));
  message.data.l[2] = static_cast<long>(
      XInternAtom(display, "_NET_WM_STATE_MAXIMIZED_VERT", False));
  XSendEvent(display, XDefaultRootWindow(display), False,
             SubstructureNotifyMask, &event);
}

// Finds a window's size and position on the root window.
// Quirk: translates its position in its parent as if it were a point inside the
// window.
bool find_window(Display* display, Window window, XWindowAttributes& attributes,
                 int& x, int& y) {
  Window child;
  return XGetWindowAttributes(display, window, &attributes) != 0 &&
         XTranslateCoordinates(display, window, attributes.root, attributes.x,
                               attributes.y, &x, &y, &child) != False;
}

void query_pointer(Display* display, int& x, int& y) {
  Window root;
  Window child;
  int root_x;
  int root_y;
  unsigned buttons;
  XQueryPointer(display, XDefaultRootWindow(display), &root, &child, &root_x,
                &root_y, &x, &y, &buttons);
}

}  // namespace

int XWindow::SetWindowPos(std::uint64_t window, std::uint64_t insert_after,
                          int x, int y, int cx, int cy, std::uint32_t flags) {
  const Connection display = open_display();
  if (!display) return 0;
  const int status = place(display.get(), window, x, y, cx, cy, flags);
  if ((flags & kShow) != 0) {
    XMapWindow(display.get(), window);
  } else if ((flags & kHide) != 0) {
    XUnmapWindow(display.get(), window);
  }
  if (insert_after != 0) {
    // From top to bottom: `insert_after` ends up beneath.
    std::array<Window, 2> stack = {window, insert_after};
    XRestackWindows(display.get(), stack.data(), stack.size());
  }
  XFlush(display.get());
  return status;
}

bool XWindow::ShowWindow(std::uint64_t window, int command) {
  const Connection display = open_display();
  if (!display) return false;
  bool done = false;
  if (command == kCommandHide) {
    done = XUnmapWindow(display.get(), window) == 1;
  } else if (command == kCommandShow) {
    done = XMapWindow(display.get(), window) == 1;
  } else if (command == kCommandMaximise) {
    request_maximise(display.get(), window);
  }
  XFlush(display.get());
  return done;
}

bool XWindow::IsWindow(std::uint64_t window) {
  const Connection display = open_display();
  if (!display || window == 0) return false;
  int count;
  Atom* properties = XListProperties(display.get(), window, &count);
  if (properties == nullptr) return false;
  XFree(properties);
  return true;
}

bool XWindow::BringWindowToTop(std::uint64_t window) {
  const Connection display = open_display();
  if (!display) return false;
  const int status = XRaiseWindow(display.get(), window);
  XFlush(display.get());
  return status == 1;
}

bool XWindow::EnableWindow(std::uint64_t, bool) {
  open_display();
  return false;
}

bool XWindow::GetWindowRect(std::uint64_t window, int& left, int& top,
                            int& right, int& bottom) {
  const Connection display = open_display();
  if (!display || window == 0) return false;
  XWindowAttributes attributes;
  if (!find_window(display.get(), window, attributes, left, top)) return false;
  // Quirk: the size, not the edges.
  right = attributes.width;
  bottom = attributes.height;
  return true;
}

bool XWindow::MoveWindow(std::uint64_t window, int x, int y, int width,
                         int height) {
  const Connection display = open_display();
  if (!display) return false;
  const int status = XMoveResizeWindow(display.get(), window, x, y,
                                       static_cast<unsigned>(width),
                                       static_cast<unsigned>(height));
  XFlush(display.get());
  return status == 1;
}

bool XWindow::IsInFullScreen() {
  const Connection display = open_display();
  if (!display) return false;
  Window focus;
  int revert_to;
  XGetInputFocus(display.get(), &focus, &revert_to);
  if (focus == None || focus == PointerRoot) return false;
  XWindowAttributes attributes;
  int x;
  int y;
  if (!find_window(display.get(), focus, attributes, x, y)) return false;
  if (x > 0 || y > 0) return false;
  const int screen = XDefaultScreen(display.get());
  return attributes.width >= XDisplayWidth(display.get(), screen) &&
         attributes.height >= XDisplayHeight(display.get(), screen);
}

bool XWindow::GetDisplayWindowRect(int& width, int& height) {
  const Connection display = open_display();
  if (!display) return false;
  XWindowAttributes attributes;
  if (XGetWindowAttributes(display.get(), XDefaultRootWindow(display.get()),
                           &attributes) == 0) {
    return false;
  }
  if (attributes.screen == nullptr) return true;
  width = XWidthOfScreen(attributes.screen);
  height = XHeightOfScreen(attributes.screen);
  return true;
}

void XWindow::GetCursorPos(int& x, int& y) {
  const Connection display = open_display();
  if (!display) return;
  query_pointer(display.get(), x, y);
}

int XWindow::GetKeyState(int key) {
  constexpr int kPressed = 1;  // Quirk: whatever the state
  const Connection display = open_display();
  if (!display) return kPressed;
  if (key >= 1 && key <= 4) {
    int x;
    int y;
    query_pointer(display.get(), x, y);
  } else {
    XKeysymToKeycode(display.get(), static_cast<KeySym>(key));
    std::array<char, 32> keys{};
    XQueryKeymap(display.get(), keys.data());
  }
  return kPressed;
}
