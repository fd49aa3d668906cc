// XWindow on a display that fails where it is told to; run by fake_display.js.
#include "platform/x_window.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <string>

// Last: their macros are words of other headers.
#include <X11/Xlib.h>
#include <X11/Xproto.h>

namespace {

// Asks the display, and waits for its answer.
std::string ask(const std::string& line) {
  std::string answer;
  const std::string sent = line + "\n";
  if (write(3, sent.data(), sent.size()) < 0) std::abort();
  for (char byte = 0; read(4, &byte, 1) == 1 && byte != '\n';) answer += byte;
  return answer;
}

void set(const std::string& key, int value) {
  ask(key + " " + std::to_string(value));
}

// What an operation answered and wrote; -9 where it wrote nothing.
using Outcome = std::array<int, 5>;
constexpr Outcome kNothing = {0, -9, -9, -9, -9};
constexpr Outcome kTrue = {1, -9, -9, -9, -9};
constexpr Outcome kWhole = {1, 0, 0, 1280, 1024};
using Operation = void (*)(Outcome&);

int number(bool answer) { return answer ? 1 : 0; }

void set_pos(Outcome& o) { o[0] = XWindow::SetWindowPos(5, 6, 1, 2, 3, 4, 64); }
void show(Outcome& o) { o[0] = number(XWindow::ShowWindow(5, 5)); }
void is_window(Outcome& o) { o[0] = number(XWindow::IsWindow(5)); }
void to_top(Outcome& o) { o[0] = number(XWindow::BringWindowToTop(5)); }
void move(Outcome& o) { o[0] = number(XWindow::MoveWindow(5, 1, 2, 3, 4)); }
void full_screen(Outcome& o) { o[0] = number(XWindow::IsInFullScreen()); }
void cursor(Outcome& o) { XWindow::GetCursorPos(o[1], o[2]); }
void rectangle(Outcome& o) {
  o[0] = number(XWindow::GetWindowRect(5, o[1], o[2], o[3], o[4]));
}
void screen(Outcome& o) {
  o[0] = number(XWindow::GetDisplayWindowRect(o[1], o[2]));
}

Outcome run(Operation operation) {
  Outcome outcome = kNothing;
  operation(outcome);
  return outcome;
}

int refusals = 0;

int count_refusal(Display*, XErrorEvent*) {
  ++refusals;
  return 0;
}

auto open_descriptors() {
  const std::filesystem::directory_iterator open("/proc/self/fd");
  return std::distance(begin(open), end(open));
}

class XWindowTest : public testing::Test {
 protected:
  XWindowTest() {
    set("focus", 5);
    set("w", 1280);
    set("h", 1024);
  }
};

// 10,000 calls on every path leave no descriptor and the handlers as they were.
TEST_F(XWindowTest, TellsARefusedRequestFromOneThatWasNot) {
  const struct {
    Operation operation;
    int refuse;
    Outcome want;
    int refusals;
  } cases[] = {
      {rectangle, 0, kWhole, 0},
      {rectangle, X_GetWindowAttributes, kNothing, 1},
      {rectangle, X_GetGeometry, kNothing, 1},
      {rectangle, X_TranslateCoords, kNothing, 1},
      {full_screen, 0, kTrue, 0},
      {full_screen, X_GetWindowAttributes, kNothing, 1},
      {full_screen, X_TranslateCoords, kNothing, 1},
      {screen, 0, {1, 1280, 1024, -9, -9}, 0},
      {screen, X_GetWindowAttributes, kNothing, 1},
      {is_window, 0, kTrue, 0},
      {is_window, X_ListProperties, kNothing, 1},
      {cursor, 0, {0, 0, 0, -9, -9}, 0},
      {cursor, X_QueryPointer, kNothing, 1},
      {move, 0, kTrue, 0},
      {show, 0, kTrue, 0},
      {to_top, X_ConfigureWindow, kTrue, 1},  // told too late
      {set_pos, X_ConfigureWindow, kTrue, 2},
  };
  const auto before = open_descriptors();
  const XIOErrorHandler end = [](Display*) { return 0; };
  XSetErrorHandler(count_refusal);
  XSetIOErrorHandler(end);
  for (const auto& row : cases) {
    SCOPED_TRACE("row " + std::to_string(&row - cases));
    set("refuse", row.refuse);
    refusals = 0;
    for (int call = 0; call < 600; ++call) {
      ASSERT_EQ(run(row.operation), row.want);
    }
    EXPECT_EQ(refusals, 600 * row.refusals);
    EXPECT_EQ(XSetErrorHandler(count_refusal), &count_refusal);
    EXPECT_EQ(XSetIOErrorHandler(end), end);
  }
  set("refuse", 0);
  XSetErrorHandler(nullptr);
  XSetIOErrorHandler(nullptr);
  EXPECT_EQ(open_descriptors(), before);
}

TEST_F(XWindowTest, WritesNothingWithoutADisplayOrAWindow) {
  const std::string display = XDisplayName(nullptr);
  setenv("DISPLAY", ":65000", 1);
  for (const Operation operation : {set_pos, show, is_window, to_top, move,
                                    full_screen, cursor, rectangle, screen}) {
    EXPECT_EQ(run(operation), kNothing);
  }
  setenv("DISPLAY", display.c_str(), 1);
  EXPECT_FALSE(XWindow::IsWindow(0));
  int untouched = -9;
  EXPECT_FALSE(
      XWindow::GetWindowRect(0, untouched, untouched, untouched, untouched));
  EXPECT_EQ(untouched, -9);
}

TEST_F(XWindowTest, ShowWindowTellsOnlyOfTheTwoCommandsItCarriesOut) {
  for (const int command : {INT_MIN, -1, 0, 1, 2, 3, 4, 5, 6, 9, INT_MAX}) {
    EXPECT_EQ(XWindow::ShowWindow(5, command), command == 0 || command == 5)
        << command;
  }
}

TEST_F(XWindowTest, KnowsAWindowOnAnotherScreen) {
  set("translated_x", -3);
  set("same_screen", 0);
  EXPECT_EQ(run(rectangle), (Outcome{0, -3, 0, -9, -9}));
  EXPECT_EQ(run(full_screen), kNothing);
  set("same_screen", 1);
  set("root", 0x101);  // the position is one on the window's own screen
  EXPECT_EQ(run(rectangle), (Outcome{1, -3, 0, 1280, 1024}));
  EXPECT_EQ(run(full_screen), kTrue);
  set("root", 0x999);  // of no screen
  EXPECT_EQ(run(screen), kTrue);
  set("root", 0x100);
  set("translated_x", 0);
}

TEST_F(XWindowTest, IsInFullScreenLooksAtTheScreenThatTheDisplayNames) {
  const std::string first = XDisplayName(nullptr);
  setenv("DISPLAY", (first + ".1").c_str(), 1);
  set("root", 0x101);
  EXPECT_EQ(run(screen), (Outcome{1, 800, 600, -9, -9}));
  const struct {
    int focus, x, y, w, h;
    bool want;
  } cases[] = {
      {5, 0, 0, 800, 600, true},   {5, 0, 0, 801, 601, true},
      {5, -5, -5, 800, 600, true}, {5, 0, 0, 799, 600, false},
      {5, 0, 0, 800, 599, false},  {5, 1, 0, 800, 600, false},
      {5, 0, 1, 800, 600, false},  {0, 0, 0, 800, 600, false},
      {1, 0, 0, 800, 600, false},  {2, 0, 0, 800, 600, true},
  };
  for (const auto& row : cases) {
    set("focus", row.focus);
    set("translated_x", row.x);
    set("translated_y", row.y);
    set("w", row.w);
    set("h", row.h);
    EXPECT_EQ(XWindow::IsInFullScreen(), row.want) << "row " << &row - cases;
  }
  set("translated_x", 0);
  set("translated_y", 0);
  set("root", 0x100);
  setenv("DISPLAY", first.c_str(), 1);
}

TEST_F(XWindowTest, EndsTheProcessWhenTheConnectionBreaks) {
  // The X library's own words, whether it was reading or writing.
  const char* kBroken = "X connection to .* broken|XIO:  fatal IO error";
  const std::pair<Operation, int> cases[] = {
      {set_pos, X_ConfigureWindow},
      {show, X_MapWindow},
      {is_window, X_ListProperties},
      {rectangle, X_TranslateCoords},
      {full_screen, X_GetInputFocus},
      {screen, X_GetGeometry},
      {cursor, X_QueryPointer},
      {move, X_FreeGC}};  // the last while closing
  for (const auto& [operation, request] : cases) {
    set("close_at", request);
    EXPECT_EXIT((run(operation), std::exit(0)), testing::ExitedWithCode(1),
                kBroken)
        << request;
  }
  set("close_at", 0);
}

TEST_F(XWindowTest, WaitsAsLongAsTheServerTakes) {
  set("hold_at", X_GetGeometry);
  auto call = std::async(std::launch::async, run, rectangle);
  ask("held");
  EXPECT_EQ(call.wait_for(std::chrono::seconds(0)),
            std::future_status::timeout);
  set("hold_at", 0);
  EXPECT_EQ(call.get(), kWhole);
}

}  // namespace
