// XWindow on a display that fails where it is told to; run by fake_display.js.
#include "x_window.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <string>
#include <tuple>

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

struct Operation {
  const char* name;
  void (*call)(Outcome&);
  std::array<int, 4> requests;  // and zeros
};

int number(bool answer) { return answer ? 1 : 0; }

void set_pos(Outcome& o) { o[0] = XWindow::SetWindowPos(5, 6, 1, 2, 3, 4, 64); }
void hide(Outcome& o) { o[0] = number(XWindow::ShowWindow(5, 0)); }
void show(Outcome& o) { o[0] = number(XWindow::ShowWindow(5, 5)); }
void maximise(Outcome& o) { o[0] = number(XWindow::ShowWindow(5, 3)); }
void is_window(Outcome& o) { o[0] = number(XWindow::IsWindow(5)); }
void to_top(Outcome& o) { o[0] = number(XWindow::BringWindowToTop(5)); }
void enable(Outcome& o) { o[0] = number(XWindow::EnableWindow(5, true)); }
void move(Outcome& o) { o[0] = number(XWindow::MoveWindow(5, 1, 2, 3, 4)); }
void full_screen(Outcome& o) { o[0] = number(XWindow::IsInFullScreen()); }
void cursor(Outcome& o) { XWindow::GetCursorPos(o[1], o[2]); }
void key(Outcome& o) { o[0] = XWindow::GetKeyState(65); }
void button(Outcome& o) { o[0] = XWindow::GetKeyState(4); }
void rectangle(Outcome& o) {
  o[0] = number(XWindow::GetWindowRect(5, o[1], o[2], o[3], o[4]));
}
void screen(Outcome& o) {
  o[0] = number(XWindow::GetDisplayWindowRect(o[1], o[2]));
}

constexpr Operation kOperations[] = {
    {"SetWindowPos", set_pos, {X_ConfigureWindow, X_MapWindow}},
    {"ShowWindow(hide)", hide, {X_UnmapWindow}},
    {"ShowWindow(show)", show, {X_MapWindow}},
    {"ShowWindow(maximise)", maximise, {X_InternAtom, X_SendEvent}},
    {"IsWindow", is_window, {X_ListProperties}},
    {"BringWindowToTop", to_top, {X_ConfigureWindow}},
    {"EnableWindow", enable, {}},
    {"GetWindowRect",
     rectangle,
     {X_GetWindowAttributes, X_GetGeometry, X_TranslateCoords}},
    {"MoveWindow", move, {X_ConfigureWindow}},
    {"IsInFullScreen",
     full_screen,
     {X_GetInputFocus, X_GetWindowAttributes, X_TranslateCoords}},
    {"GetDisplayWindowRect", screen, {X_GetWindowAttributes, X_GetGeometry}},
    {"GetCursorPos", cursor, {X_QueryPointer}},
    {"GetKeyState(key)", key, {X_GetKeyboardMapping, X_QueryKeymap}},
    {"GetKeyState(button)", button, {X_QueryPointer}},
};

Outcome run(void (*call)(Outcome&)) {
  Outcome outcome = kNothing;
  call(outcome);
  return outcome;
}

class XWindowTest : public testing::Test {
 protected:
  XWindowTest() {
    set("focus", 5);
    set("w", 1280);
    set("h", 1024);
  }
  ~XWindowTest() override { XSetErrorHandler(nullptr); }

  static int count_refusal(Display*, XErrorEvent*) {
    ++refusals;
    return 0;
  }

  static int refusals;
};

int XWindowTest::refusals = 0;

TEST_F(XWindowTest, WritesNothingWhereTheDisplayLetsNobodyIn) {
  // Closed at once, after a part of the answer, refused, asked for more, and
  // by what is no display.
  for (const int setup : {1, 2, 3, 4, 5, 6}) {
    set("setup", setup);
    for (const Operation& operation : kOperations) {
      Outcome want = kNothing;
      if (operation.call == key || operation.call == button) want[0] = 1;
      EXPECT_EQ(run(operation.call), want) << operation.name << " at " << setup;
    }
  }
  set("setup", 0);
}

TEST_F(XWindowTest, ShowWindowTellsOnlyOfTheTwoCommandsItCarriesOut) {
  for (const int command : {INT_MIN, -1, 0, 1, 2, 3, 4, 5, 6, 9, INT_MAX}) {
    EXPECT_EQ(XWindow::ShowWindow(5, command), command == 0 || command == 5)
        << command;
  }
}

TEST_F(XWindowTest, TellsARefusedRequestFromOneThatWasNot) {
  struct {
    void (*call)(Outcome&);
    int refuse;
    Outcome want;
    int refusals;
  } const cases[] = {
      {rectangle, 0, {1, 0, 0, 1280, 1024}, 0},
      {rectangle, X_GetWindowAttributes, kNothing, 1},
      {rectangle, X_GetGeometry, kNothing, 1},
      {rectangle, X_TranslateCoords, kNothing, 1},
      {full_screen, 0, {1, -9, -9, -9, -9}, 0},
      {full_screen, X_GetWindowAttributes, kNothing, 1},
      {full_screen, X_TranslateCoords, kNothing, 1},
      {screen, 0, {1, 1280, 1024, -9, -9}, 0},
      {screen, X_GetWindowAttributes, kNothing, 1},
      {is_window, X_ListProperties, kNothing, 1},
      {cursor, X_QueryPointer, kNothing, 1},
      {to_top, X_ConfigureWindow, {1, -9, -9, -9, -9}, 1},  // told too late
      {set_pos, X_ConfigureWindow, {1, -9, -9, -9, -9}, 2},
  };
  XSetErrorHandler(count_refusal);
  for (const auto& row : cases) {
    set("refuse", row.refuse);
    refusals = 0;
    EXPECT_EQ(run(row.call), row.want) << "refused " << row.refuse;
    EXPECT_EQ(refusals, row.refusals) << "refused " << row.refuse;
  }
  set("refuse", 0);
}

TEST_F(XWindowTest, KnowsAWindowOnAnotherScreen) {
  set("translated_x", -3);
  set("same_screen", 0);
  EXPECT_EQ(run(rectangle), (Outcome{0, -3, 0, -9, -9}));
  EXPECT_EQ(run(full_screen), kNothing);
  set("same_screen", 1);
  set("root", 0x101);  // the position is one on the window's own screen
  EXPECT_EQ(run(rectangle), (Outcome{1, -3, 0, 1280, 1024}));
  EXPECT_EQ(run(full_screen), (Outcome{1, -9, -9, -9, -9}));
  set("root", 0x999);  // of no screen
  EXPECT_EQ(run(screen), (Outcome{1, -9, -9, -9, -9}));
  set("root", 0x100);
  set("translated_x", 0);
}

TEST_F(XWindowTest, TakesTheScreenThatTheDisplayNames) {
  const std::string first = XDisplayName(nullptr);
  setenv("DISPLAY", (first + ".1").c_str(), 1);
  set("root", 0x101);
  EXPECT_EQ(run(screen), (Outcome{1, 800, 600, -9, -9}));
  const std::tuple<int, int, bool> cases[] = {
      {800, 600, true}, {799, 600, false}, {800, 599, false}};
  for (const auto& [width, height, want] : cases) {
    set("w", width);
    set("h", height);
    EXPECT_EQ(XWindow::IsInFullScreen(), want) << width << "x" << height;
  }
  set("root", 0x100);
  setenv("DISPLAY", first.c_str(), 1);
}

TEST_F(XWindowTest, AnswersFourThreadsAtOnce) {
  std::array<std::future<int>, 4> threads;
  for (auto& thread : threads) {
    thread = std::async(std::launch::async, [] {
      int good = 0;
      for (int call = 0; call < 50; ++call) {
        if (run(rectangle) == Outcome{1, 0, 0, 1280, 1024}) ++good;
      }
      return good;
    });
  }
  for (auto& thread : threads) EXPECT_EQ(thread.get(), 50);
}

TEST_F(XWindowTest, LeavesTheErrorHandlersAlone) {
  const XIOErrorHandler end = [](Display*) { return 0; };
  XSetErrorHandler(count_refusal);
  XSetIOErrorHandler(end);
  for (const Operation& operation : kOperations) {
    run(operation.call);
    EXPECT_EQ(XSetErrorHandler(count_refusal), &count_refusal)
        << operation.name;
    EXPECT_EQ(XSetIOErrorHandler(end), end) << operation.name;
  }
  XSetIOErrorHandler(nullptr);
}

TEST_F(XWindowTest, EndsTheProcessWhenTheConnectionBreaks) {
  // The X library's own words, whether it was reading or writing.
  const char* kBroken = "X connection to .* broken|XIO:  fatal IO error";
  for (const Operation& operation : kOperations) {
    for (int request : operation.requests) {
      if (request == 0) request = X_FreeGC;  // while closing
      set("close_at", request);
      EXPECT_EXIT((run(operation.call), std::exit(0)),
                  testing::ExitedWithCode(1), kBroken)
          << operation.name << " at " << request;
    }
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
  EXPECT_EQ(call.get(), (Outcome{1, 0, 0, 1280, 1024}));
}

TEST_F(XWindowTest, LeavesNoDescriptorAfter10000Calls) {
  const auto count = [] {
    const std::filesystem::directory_iterator open("/proc/self/fd");
    return std::distance(begin(open), end(open));
  };
  const auto before = count();
  XSetErrorHandler(count_refusal);
  // Every path: all succeeds, then one request after another is refused.
  for (const int refused :
       {0, X_GetWindowAttributes, X_TranslateCoords, X_ListProperties}) {
    set("refuse", refused);
    for (std::size_t call = 0; call < 2500; ++call) {
      run(kOperations[call % std::size(kOperations)].call);
    }
  }
  set("refuse", 0);
  EXPECT_EQ(count(), before);
}

}  // namespace
