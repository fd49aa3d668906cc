// XWindow on a real server, bare and under a window manager. A client of the
// tests' own makes the windows and reads what became of them.
#include "platform/x_window.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <string>
#include <utility>
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

Rectangle rectangle_of(Window window) {
  Rectangle got{};
  EXPECT_TRUE(XWindow::GetWindowRect(window, got[0], got[1], got[2], got[3]));
  return got;
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
  const std::pair<std::vector<Nest>, Rectangle> cases[] = {
      {{{{0, 0, 50, 60}, 0}}, {0, 0, 50, 60}},
      {{{{10, 20, 50, 60}, 5}}, {25, 45, 50, 60}},
      {{{{100, 200, 90, 90}, 0}, {{-7, -9, 30, 20}, 1}}, {87, 183, 30, 20}},
      {{{{100, 200, 90, 90}, 1}, {{20, 30, 60, 50}, 2}, {{3, 4, 5, 6}, 7}},
       {136, 248, 5, 6}},
  };
  for (const auto& [nests, want] : cases) {
    EXPECT_EQ(rectangle_of(create_nested(client_, nests)), want);
  }
}

TEST_F(XWindowDisplayTest, TellsTheScreenAndThePointer) {
  const int right = screen()[2] - 1;
  const int bottom = screen()[3] - 1;
  Rectangle got{};
  EXPECT_TRUE(XWindow::GetDisplayWindowRect(got[2], got[3]));
  EXPECT_EQ(got, screen());
  const std::pair<int, int> corners[] = {
      {0, 0}, {right, 0}, {0, bottom}, {right, bottom}};
  for (const auto& [x, y] : corners) {
    XWarpPointer(client_.display(), None, client_.root(), 0, 0, 0, 0, x, y);
    XSync(client_.display(), False);
    XWindow::GetCursorPos(got[0], got[1]);
    EXPECT_EQ(std::pair(got[0], got[1]), std::pair(x, y));
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
  const std::pair<Rectangle, Rectangle> cases[] = {
      {{-300, 400, 1, 2000}, {-300, 400, 1, 2000}},
      {{32767, -32768, 65535, 1}, {32767, -32768, 65535, 1}},
      // The server keeps 16 bits.
      {{32768, -32769, -1, 65537}, {-32768, 32767, 65535, 1}},
      {{65536, 65541, 131074, -65533}, {0, 5, 2, 3}},
  };
  for (const auto& [at, want] : cases) {
    EXPECT_TRUE(XWindow::MoveWindow(middle, at[0], at[1], at[2], at[3]));
    EXPECT_EQ(client_.rectangle(middle), want);
  }
}

TEST_F(XWindowDisplayTest, LeavesRefusedRequestsToTheErrorHandler) {
  const Window fresh = client_.create(kPlace);
  const Window gone = 0x7654321;  // no client has used it
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[&] { XWindow::IsWindow(gone); }, "BadWindow"},
      {[&] { XWindow::MoveWindow(fresh, 1, 2, 0, 4); }, "BadValue"},
      {[&] { XWindow::MoveWindow(fresh, 1, 2, 3, 65536); }, "BadValue"},
      {[&] { XWindow::SetWindowPos(fresh, fresh, 1, 2, 3, 4, 3); }, "BadMatch"},
      {[&] { XWindow::SetWindowPos(fresh, gone, 1, 2, 3, 4, 0); }, "BadWindow"},
      {[&] { XWindow::SetWindowPos(fresh, ~0UL, 1, 2, 3, 4, 3); }, "BadWindow"},
  };
  for (const auto& [call, word] : cases) {
    EXPECT_EXIT((call(), std::exit(0)), testing::ExitedWithCode(1), word);
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
  EXPECT_EQ(rectangle_of(window), (Rectangle{want[0] + in_frame[0],
                                             want[1] + in_frame[1], 320, 260}));
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
