// XWindow on a real server of two screens, bare and under a window manager. A
// client of the tests' own makes the windows and reads what became of them.
#include "platform/x_window.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

// Last: their macros are words of other headers.
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace {

// x, y in the parent, width, height; pixels, without the border.
using Rectangle = std::array<int, 4>;

const Rectangle kPlace = {10, 20, 100, 80};
const Rectangle kUntouched = {-9, -9, -9, -9};
constexpr Window kGone = 0x7654321;  // no client has used it

class XWindowTest : public testing::Test {
 protected:
  ~XWindowTest() override {
    use_display(XDisplayString(display_));
    XCloseDisplay(display_);
  }

  static void use_display(const std::string& name) {
    setenv("DISPLAY", name.c_str(), 1);
  }
  void use_second_screen() const {
    use_display(XDisplayString(display_) + std::string(".1"));
  }

  // A window with one property, not shown. One that is `managed` is left to the
  // window manager, the others are not.
  Window create(const Rectangle& place, int border = 0, Window parent = None,
                bool managed = false) const {
    XSetWindowAttributes attributes{};
    attributes.override_redirect = managed ? False : True;
    attributes.event_mask = StructureNotifyMask;
    const Window window = XCreateWindow(
        display_, parent == None ? root_ : parent, place[0], place[1],
        static_cast<unsigned>(place[2]), static_cast<unsigned>(place[3]),
        static_cast<unsigned>(border), CopyFromParent, InputOutput, nullptr,
        CWOverrideRedirect | CWEventMask, &attributes);
    XStoreName(display_, window, "test window");
    XSync(display_, False);
    return window;
  }

  Window show(Window window) const {
    XMapWindow(display_, window);
    wait_until([&] { return attributes(window).map_state == IsViewable; });
    return window;
  }

  // Waits for events of this client's windows, without an end.
  void wait_until(const std::function<bool()>& holds) const {
    for (XEvent event; !holds();) XNextEvent(display_, &event);
  }

  XWindowAttributes attributes(Window window) const {
    XWindowAttributes attributes{};
    XGetWindowAttributes(display_, window, &attributes);
    return attributes;
  }

  Rectangle rectangle(Window window) const {
    const XWindowAttributes found = attributes(window);
    return {found.x, found.y, found.width, found.height};
  }

  // The root's uppermost child.
  Window top() const {
    Window root = None;
    Window parent = None;
    Window* list = nullptr;
    unsigned count = 0;
    XQueryTree(display_, root_, &root, &parent, &list, &count);
    const Window last = list[count - 1];
    XFree(list);
    return last;
  }

  bool get_rectangle(Window window) {
    got_ = kUntouched;
    return XWindow::GetWindowRect(window, got_[0], got_[1], got_[2], got_[3]);
  }

  Display* display_ = XOpenDisplay(nullptr);
  Window root_ = DefaultRootWindow(display_);
  Rectangle got_ = kUntouched;
};

TEST_F(XWindowTest, SetWindowPosObeysEveryCombinationOfFlags) {
  for (unsigned row = 0; row < 128; ++row) {
    const unsigned bits = (row & 3) | ((row & 12) << 4);
    const bool restack = (row & 16) != 0;
    const unsigned flags = bits | ((row & 32) != 0 ? ~0xc3U : 0);
    const bool shown = (row & 64) != 0;
    const Window target = create(kPlace);
    const Window other = create(kPlace);
    if (shown) show(target);
    SCOPED_TRACE(row);
    EXPECT_EQ(XWindow::SetWindowPos(target, restack ? other : 0, -30, 40, 150,
                                    160, flags),
              (bits & 3) == 3 ? 0 : 1);
    const Rectangle wants[] = {
        {-30, 40, 150, 160}, {-30, 40, 100, 80}, {10, 20, 150, 160}, kPlace};
    const bool want_shown[] = {shown, true, false, true};
    EXPECT_EQ(rectangle(target), wants[bits & 3]);
    EXPECT_EQ(attributes(target).map_state == IsViewable,
              want_shown[bits >> 6]);
    EXPECT_EQ(top(), restack ? target : other);
  }
}

TEST_F(XWindowTest, ShowWindowTellsOnlyOfShowingAndHiding) {
  const Window window = create(kPlace);
  for (const int command : {-1, 0, 1, 2, 3, 4, 5, 6, 9}) {
    EXPECT_EQ(XWindow::ShowWindow(window, command),
              command == 0 || command == 5);
    EXPECT_EQ(attributes(window).map_state == IsViewable, command >= 5);
  }
}

TEST_F(XWindowTest, MaximisingSendsAMessageToWhoWatchesTheRoot) {
  use_second_screen();
  const auto maximise = [&](long mask) {
    XSelectInput(display_, RootWindow(display_, 1), mask);
    XSync(display_, True);
    EXPECT_FALSE(XWindow::ShowWindow(kGone, 3));
    XSync(display_, False);
    return XPending(display_);
  };
  EXPECT_EQ(maximise(SubstructureRedirectMask), 0);
  ASSERT_EQ(maximise(SubstructureNotifyMask), 1);
  XEvent event{};
  XNextEvent(display_, &event);
  const XClientMessageEvent& message = event.xclient;
  const auto atom = [&](const char* name) {
    return static_cast<long>(XInternAtom(display_, name, True));
  };
  EXPECT_EQ(message.type, ClientMessage);
  EXPECT_EQ(message.window, kGone);
  EXPECT_EQ(message.format, 32);
  EXPECT_EQ(message.message_type, XInternAtom(display_, "_NET_WM_STATE", True));
  EXPECT_EQ(std::vector(message.data.l, message.data.l + 5),
            (std::vector{1L, atom("_NET_WM_STATE_MAXIMIZED_HORZ"),
                         atom("_NET_WM_STATE_MAXIMIZED_VERT"), 0L, 0L}));
}

TEST_F(XWindowTest, GetWindowRectCountsThePositionTwice) {
  const auto expect = [&](Window window, const Rectangle& want) {
    EXPECT_TRUE(get_rectangle(window));
    EXPECT_EQ(got_, want);
    return window;
  };
  expect(create({0, 0, 50, 60}), {0, 0, 50, 60});
  expect(create({10, 20, 50, 60}, 5), {25, 45, 50, 60});
  const Window outer = create({100, 200, 90, 90}, 1);
  const Window inner = expect(create({20, 30, 60, 50}, 2, outer),  //
                              {143, 263, 60, 50});
  expect(create({-3, 4, 5, 6}, 7, inner), {124, 248, 5, 6});
  // On the second screen, asked through the first.
  expect(create(kPlace, 0, RootWindow(display_, 1)), {20, 40, 100, 80});
}

TEST_F(XWindowTest, KnowsTheScreenAndThePointer) {
  XWarpPointer(display_, None, root_, 0, 0, 0, 0, 70, 900);
  XSync(display_, False);
  XWindow::GetCursorPos(got_[0], got_[1]);
  EXPECT_TRUE(XWindow::GetDisplayWindowRect(got_[2], got_[3]));
  EXPECT_EQ(got_, (Rectangle{70, 900, 1280, 1024}));
  EXPECT_EQ(XWindow::GetKeyState(1), 1);
  EXPECT_EQ(XWindow::GetKeyState('A'), 1);
  use_second_screen();
  EXPECT_TRUE(XWindow::GetDisplayWindowRect(got_[2], got_[3]));
  EXPECT_EQ(got_, (Rectangle{70, 900, 800, 600}));
}

TEST_F(XWindowTest, AWindowWithoutPropertiesIsNone) {
  const Window window = create(kPlace);
  EXPECT_TRUE(XWindow::IsWindow(window));
  EXPECT_FALSE(XWindow::EnableWindow(window, true));
  XDeleteProperty(display_, window, XInternAtom(display_, "WM_NAME", True));
  XSync(display_, False);
  EXPECT_FALSE(XWindow::IsWindow(window));
}

TEST_F(XWindowTest, RaisesAndMoves) {
  const Window bottom = create(kPlace);
  create(kPlace);
  EXPECT_TRUE(XWindow::BringWindowToTop(bottom));
  EXPECT_EQ(top(), bottom);
  EXPECT_TRUE(XWindow::MoveWindow(bottom, 32767, -32768, 65535, 1));
  EXPECT_EQ(rectangle(bottom), (Rectangle{32767, -32768, 65535, 1}));
}

TEST_F(XWindowTest, IsInFullScreenIfTheFocusCoversTheDefaultScreen) {
  const auto with_focus = [&](Window window) {
    XSetInputFocus(display_, window, RevertToNone, CurrentTime);
    XSync(display_, False);
    return XWindow::IsInFullScreen();
  };
  const auto covers = [&](const Rectangle& place, int border = 0) {
    return with_focus(show(create(place, border)));
  };
  EXPECT_TRUE(covers({0, 0, 1280, 1024}));
  EXPECT_TRUE(covers({-5, -5, 1281, 1025}));
  EXPECT_FALSE(covers({0, 0, 1279, 1024}));
  EXPECT_FALSE(covers({0, 0, 1280, 1023}));
  // The border counts once, the position twice: x 1, y -1, and x -1, y 1.
  EXPECT_FALSE(covers({0, -1, 1280, 1024}, 1));
  EXPECT_FALSE(covers({-1, 0, 1280, 1024}, 1));
  EXPECT_FALSE(with_focus(None));
  EXPECT_FALSE(with_focus(PointerRoot));
  use_second_screen();
  EXPECT_TRUE(covers({0, 0, 800, 600}));
}

TEST_F(XWindowTest, WritesNothingWithoutAWindowOrADisplay) {
  const auto ignore = [](Display*, XErrorEvent*) { return 0; };
  const XErrorHandler usual = XSetErrorHandler(ignore);
  EXPECT_FALSE(get_rectangle(kGone));
  EXPECT_EQ(XSetErrorHandler(usual), ignore);
  EXPECT_FALSE(get_rectangle(0));
  EXPECT_FALSE(XWindow::IsWindow(0));
  use_display(":65000");
  EXPECT_EQ(XWindow::SetWindowPos(kGone, 0, 1, 2, 3, 4, 0), 0);
  EXPECT_FALSE(XWindow::ShowWindow(kGone, 5));
  EXPECT_FALSE(XWindow::IsWindow(kGone));
  EXPECT_FALSE(XWindow::BringWindowToTop(kGone));
  EXPECT_FALSE(XWindow::MoveWindow(kGone, 1, 2, 3, 4));
  EXPECT_FALSE(XWindow::IsInFullScreen());
  EXPECT_EQ(XWindow::GetKeyState(1), 1);
  EXPECT_FALSE(get_rectangle(kGone));
  EXPECT_FALSE(XWindow::GetDisplayWindowRect(got_[2], got_[3]));
  XWindow::GetCursorPos(got_[0], got_[1]);
  EXPECT_EQ(got_, kUntouched);
}

TEST_F(XWindowTest, LeavesRefusalsToTheXLibrary) {
  const Window fresh = create(kPlace);
  const auto ends = [](const char* word, const std::function<void()>& call) {
    EXPECT_EXIT((call(), std::exit(0)), testing::ExitedWithCode(1), word);
  };
  ends("BadWindow", [&] { XWindow::IsWindow(kGone); });
  ends("BadWindow", [&] { get_rectangle(kGone); });
  ends("BadWindow", [&] { XWindow::MoveWindow(0, 1, 2, 3, 4); });
  ends("BadWindow", [&] { XWindow::BringWindowToTop(kGone); });
  ends("BadWindow", [&] { XWindow::ShowWindow(kGone, 0); });
  ends("BadValue", [&] { XWindow::MoveWindow(fresh, 1, 2, 3, 65536); });
  ends("BadWindow", [&] { XWindow::SetWindowPos(fresh, ~0UL, 1, 2, 3, 4, 3); });
}

TEST_F(XWindowTest, ManagedWindowMovesWithItsFrameAndIsNotMaximised) {
  XSelectInput(display_, root_, SubstructureNotifyMask);
  const Window window = show(create({200, 200, 300, 250}, 0, None, true));
  const Rectangle in_frame = rectangle(window);
  ASSERT_GT(in_frame[1], 0) << "no frame";
  // The manager takes requests in order: behind the move it has seen both.
  EXPECT_FALSE(XWindow::ShowWindow(window, 3));
  EXPECT_EQ(XWindow::SetWindowPos(window, 0, 60, 70, 320, 260, 0), 1);
  // The frame is at (60, 70), and the place in the frame counts twice.
  const Rectangle want = {60 + 2 * in_frame[0], 70 + 2 * in_frame[1], 320, 260};
  wait_until([&] { return get_rectangle(window) && got_ == want; });
  const Window other = create(kPlace);
  EXPECT_EXIT(XWindow::SetWindowPos(window, other, 1, 2, 3, 4, 3),
              testing::ExitedWithCode(1), "BadMatch");
}

}  // namespace
