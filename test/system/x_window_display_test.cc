// XWindow on a real server, bare and under a window manager. A client of the
// tests' own makes the windows and reads what became of them.
#include "x_window.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "display_client.h"

namespace {

using Rectangle = DisplayClient::Rectangle;
using Windows = std::vector<Window>;

const Rectangle kPlace = {10, 20, 100, 80};

class XWindowDisplayTest : public testing::Test {
 protected:
  Rectangle screen() const { return client_.rectangle(client_.root()); }

  // A window that the manager has put into its frame.
  Window show_managed(const Rectangle& place) const {
    const Window window = client_.create(place, 0, None, true);
    client_.show(window);
    return window;
  }

  DisplayClient client_;
};

TEST_F(XWindowDisplayTest, SetWindowPosObeysEveryCombinationOfFlags) {
  for (unsigned row = 0; row < 128; ++row) {
    const unsigned bits = (row & 3) | ((row & 12) << 4);
    const bool restack = (row & 16) != 0;
    const unsigned flags = bits | ((row & 32) != 0 ? ~0xc3U : 0);
    const bool shown = (row & 64) != 0;
    const Window target = client_.create(kPlace);
    const Window other = client_.create(kPlace);
    if (shown) client_.show(target);
    const int status = XWindow::SetWindowPos(target, restack ? other : 0, -30,
                                             40, 150, 160, flags);
    const Rectangle wants[] = {
        {-30, 40, 150, 160}, {-30, 40, 100, 80}, {10, 20, 150, 160}, kPlace};
    const bool want_shown[] = {shown, true, false, true};
    SCOPED_TRACE("flags " + std::to_string(flags) +
                 (restack ? " restacked" : "") + (shown ? " shown" : ""));
    EXPECT_EQ(status, (bits & 3) == 3 ? 0 : 1);
    EXPECT_EQ(client_.rectangle(target), wants[bits & 3]);
    EXPECT_EQ(client_.is_shown(target), want_shown[bits >> 6]);
    EXPECT_EQ(client_.stacking({target, other}),
              restack ? (Windows{other, target}) : (Windows{target, other}));
  }
}

TEST_F(XWindowDisplayTest, AsksTheRootWindowToMaximise) {
  Display* display = client_.display();
  XSelectInput(display, client_.root(), SubstructureNotifyMask);
  const Window window = client_.create(kPlace);
  EXPECT_FALSE(XWindow::ShowWindow(window, 3));
  XEvent event{};
  const auto is_message = [](Display*, XEvent* seen, XPointer) -> Bool {
    return seen->type == ClientMessage ? True : False;
  };
  XIfEvent(display, &event, is_message, nullptr);
  const XClientMessageEvent& message = event.xclient;
  const auto atom = [&](const char* name) {
    return XInternAtom(display, name, True);
  };
  using Words = std::vector<unsigned long>;
  Words got = {message.window, message.message_type,
               static_cast<Words::value_type>(message.format)};
  got.insert(got.end(), std::begin(message.data.l), std::end(message.data.l));
  EXPECT_TRUE(message.send_event);
  EXPECT_EQ(got, (Words{window, atom("_NET_WM_STATE"), 32, 1,
                        atom("_NET_WM_STATE_MAXIMIZED_HORZ"),
                        atom("_NET_WM_STATE_MAXIMIZED_VERT"), 0, 0}));
  EXPECT_EQ(client_.rectangle(window), kPlace);
}

// A window for each place, each in the one before; the innermost.
struct Nest {
  Rectangle place;
  int border;
};

Window create_nested(const DisplayClient& client,
                     const std::vector<Nest>& nests) {
  Window window = None;
  for (const Nest& nest : nests) {
    window = client.create(nest.place, nest.border, window);
    client.show(window);
  }
  return window;
}

TEST_F(XWindowDisplayTest, GetWindowRectCountsThePositionTwice) {
  struct {
    std::vector<Nest> nests;
    Rectangle want;
  } const cases[] = {
      {{{{0, 0, 50, 60}, 0}}, {0, 0, 50, 60}},
      {{{{10, 20, 50, 60}, 0}}, {20, 40, 50, 60}},
      {{{{10, 20, 50, 60}, 5}}, {25, 45, 50, 60}},
      {{{{-10, -20, 50, 60}, 5}}, {-15, -35, 50, 60}},
      {{{{100, 200, 90, 90}, 5}, {{7, 9, 30, 20}, 3}}, {122, 226, 30, 20}},
      {{{{100, 200, 90, 90}, 0}, {{-7, -9, 30, 20}, 1}}, {87, 183, 30, 20}},
      {{{{100, 200, 90, 90}, 1}, {{20, 30, 60, 50}, 2}, {{3, 4, 5, 6}, 7}},
       {136, 248, 5, 6}},
  };
  for (const auto& row : cases) {
    const Window window = create_nested(client_, row.nests);
    Rectangle got{};
    EXPECT_TRUE(XWindow::GetWindowRect(window, got[0], got[1], got[2], got[3]));
    EXPECT_EQ(got, row.want);
  }
}

TEST_F(XWindowDisplayTest, IsInFullScreenLooksAtTheWindowInFocus) {
  const int w = screen()[2];
  const int h = screen()[3];
  struct {
    std::vector<Nest> nests;
    bool want;
  } const cases[] = {
      {{{{0, 0, w, h}, 0}}, true},
      {{{{0, 0, w + 1, h + 1}, 0}}, true},
      {{{{-5, -5, w, h}, 0}}, true},
      {{{{0, 0, w - 1, h}, 0}}, false},
      {{{{0, 0, w, h - 1}, 0}}, false},
      {{{{0, 0, w, h}, 1}}, false},  // inside at 1, 1
      {{{{1, 0, w, h}, 0}}, false},
      {{{{0, 1, w, h}, 0}}, false},
      {{{{-1, 0, w, h}, 1}}, false},  // counted twice: -1, 1
      {{{{0, -1, w, h}, 1}}, false},
      {{{{-10, -10, w, h}, 0}, {{5, 5, w, h}, 0}}, true},  // at 0, 0
      {{{{-9, -10, w, h}, 0}, {{5, 5, w, h}, 0}}, false},  // at 1, 0
      {{{{100, 100, 200, 200}, 0}}, false},
  };
  Display* display = client_.display();
  const auto focus_on = [&](Window window) {
    XSetInputFocus(display, window, RevertToNone, CurrentTime);
    XSync(display, False);
  };
  for (const Window none : {Window{None}, Window{PointerRoot}}) {
    focus_on(none);
    EXPECT_FALSE(XWindow::IsInFullScreen()) << none;
  }
  // A window manager that has just lost the focus may step in.
  const auto ask_in_focus = [&](Window window) {
    const auto limit =
        std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (std::chrono::steady_clock::now() < limit) {
      focus_on(window);
      const bool answer = XWindow::IsInFullScreen();
      Window focus = None;
      int revert_to = 0;
      XGetInputFocus(display, &focus, &revert_to);
      if (focus == window) return answer;
    }
    ADD_FAILURE() << "the focus stays elsewhere";
    return false;
  };
  for (const auto& row : cases) {
    const Window window = create_nested(client_, row.nests);
    const Rectangle& place = row.nests.back().place;
    EXPECT_EQ(ask_in_focus(window), row.want)
        << testing::PrintToString(place) << " in " << row.nests.size();
  }
}

TEST_F(XWindowDisplayTest, TellsTheScreenAndThePointer) {
  const int right = screen()[2] - 1;
  const int bottom = screen()[3] - 1;
  int width = 0;
  int height = 0;
  EXPECT_TRUE(XWindow::GetDisplayWindowRect(width, height));
  EXPECT_EQ(width, right + 1);
  EXPECT_EQ(height, bottom + 1);
  const std::pair<int, int> corners[] = {
      {0, 0}, {right, 0}, {0, bottom}, {right, bottom}, {321, 123}};
  for (const auto& corner : corners) {
    XWarpPointer(client_.display(), None, client_.root(), 0, 0, 0, 0,
                 corner.first, corner.second);
    XSync(client_.display(), False);
    std::pair<int, int> got = {-1, -1};
    XWindow::GetCursorPos(got.first, got.second);
    EXPECT_EQ(got, corner);
  }
}

TEST_F(XWindowDisplayTest, TellsAWindowByItsProperties) {
  const Window window = client_.create(kPlace);
  EXPECT_TRUE(XWindow::IsWindow(window));
  EXPECT_FALSE(XWindow::EnableWindow(window, true));
  XDeleteProperty(client_.display(), window,
                  XInternAtom(client_.display(), "WM_NAME", True));
  XSync(client_.display(), False);
  EXPECT_FALSE(XWindow::IsWindow(window));
}

TEST_F(XWindowDisplayTest, RaisesAndMoves) {
  const Window bottom = client_.create(kPlace);
  const Window middle = client_.create(kPlace);
  const Window top = client_.create(kPlace);
  EXPECT_TRUE(XWindow::BringWindowToTop(bottom));
  EXPECT_EQ(client_.stacking({bottom, middle, top}),
            (Windows{middle, top, bottom}));
  struct {
    Rectangle given;
    Rectangle want;
  } const cases[] = {
      {{-300, 400, 1, 2000}, {-300, 400, 1, 2000}},
      {{32767, -32768, 65535, 1}, {32767, -32768, 65535, 1}},
      // The server keeps 16 bits.
      {{32768, -32769, -1, 65537}, {-32768, 32767, 65535, 1}},
      {{65536, 65541, 131074, -65533}, {0, 5, 2, 3}},
  };
  for (const auto& row : cases) {
    const Rectangle& at = row.given;
    EXPECT_TRUE(XWindow::MoveWindow(middle, at[0], at[1], at[2], at[3]));
    EXPECT_EQ(client_.rectangle(middle), row.want);
  }
}

int error_code = 0;

int keep_error(Display*, XErrorEvent* error) {
  error_code = error->error_code;
  return 0;
}

TEST_F(XWindowDisplayTest, LeavesRefusedRequestsToTheErrorHandler) {
  const Window fresh = client_.create(kPlace);
  const Window gone = 0x7654321;  // no client has used it
  int x = 0;
  struct {
    std::function<int()> call;
    int code;
    int want;  // under a handler that returns
  } const cases[] = {
      {[&] { return XWindow::IsWindow(gone); }, BadWindow, 0},
      {[&] { return XWindow::GetWindowRect(gone, x, x, x, x); }, BadWindow, 0},
      {[&] { return XWindow::BringWindowToTop(gone); }, BadWindow, 1},
      {[&] { return XWindow::ShowWindow(gone, 0); }, BadWindow, 1},
      {[&] { return XWindow::ShowWindow(gone, 5); }, BadWindow, 1},
      {[&] { return XWindow::MoveWindow(gone, 1, 2, 3, 4); }, BadWindow, 1},
      {[&] { return XWindow::MoveWindow(0, 1, 2, 3, 4); }, BadWindow, 1},
      {[&] { return XWindow::MoveWindow(fresh, 1, 2, 0, 4); }, BadValue, 1},
      {[&] { return XWindow::MoveWindow(fresh, 1, 2, 3, 65536); }, BadValue, 1},
      {[&] { return XWindow::SetWindowPos(fresh, fresh, 1, 2, 3, 4, 3); },
       BadMatch, 0},
      {[&] { return XWindow::SetWindowPos(fresh, gone, 1, 2, 3, 4, 0); },
       BadWindow, 1},
      {[&] { return XWindow::SetWindowPos(fresh, ~0UL, 1, 2, 3, 4, 3); },
       BadWindow, 0},
  };
  for (const auto& row : cases) {
    const std::map<int, const char*> words = {{BadWindow, "BadWindow"},
                                              {BadValue, "BadValue"},
                                              {BadMatch, "BadMatch"}};
    SCOPED_TRACE("row " + std::to_string(&row - cases));
    EXPECT_EXIT((row.call(), std::exit(0)), testing::ExitedWithCode(1),
                words.at(row.code));
    // A host's own handler, in a process of its own.
    EXPECT_EXIT(
        {
          XSetErrorHandler(keep_error);
          const bool good = row.call() == row.want && error_code == row.code;
          std::exit(good ? 0 : 3);
        },
        testing::ExitedWithCode(0), "");
  }
}

// --- Windows that a window manager has put into a frame

class ManagedWindowTest : public XWindowDisplayTest {};

TEST_F(ManagedWindowTest, MovesWithItsFrameAndIsNotMaximisedByTheMessage) {
  const Window window = show_managed({200, 200, 300, 250});
  const Rectangle in_frame = client_.rectangle(window);
  ASSERT_GT(in_frame[1], 0) << "no frame";
  // The manager takes requests in order: behind the move it has seen both.
  EXPECT_FALSE(XWindow::ShowWindow(window, 3));
  const Rectangle want = {60 + in_frame[0], 70 + in_frame[1], 320, 260};
  EXPECT_EQ(XWindow::SetWindowPos(window, 0, 60, 70, 320, 260, 0), 1);
  client_.wait_until([&] { return client_.rectangle_on_root(window) == want; });
  Rectangle got{};
  EXPECT_TRUE(XWindow::GetWindowRect(window, got[0], got[1], got[2], got[3]));
  EXPECT_EQ(
      got, (Rectangle{want[0] + in_frame[0], want[1] + in_frame[1], 320, 260}));
}

TEST_F(ManagedWindowTest, HidesShowsAndRisesButIsNotRestacked) {
  XSelectInput(client_.display(), client_.root(), SubstructureNotifyMask);
  const Window lower = show_managed({100, 100, 300, 250});
  const Window upper = show_managed({150, 150, 300, 250});
  client_.wait_until([&] {
    return client_.stacking({lower, upper}) == (Windows{lower, upper});
  });
  EXPECT_TRUE(XWindow::BringWindowToTop(lower));
  client_.wait_until([&] {
    return client_.stacking({lower, upper}) == (Windows{upper, lower});
  });
  EXPECT_TRUE(XWindow::ShowWindow(lower, 0));
  client_.wait_until([&] { return !client_.is_shown(lower); });
  EXPECT_TRUE(XWindow::ShowWindow(lower, 5));
  client_.wait_until([&] { return client_.is_shown(lower); });
  EXPECT_EXIT(XWindow::SetWindowPos(lower, upper, 1, 2, 3, 4, 3),
              testing::ExitedWithCode(1), "BadMatch");
}

}  // namespace
