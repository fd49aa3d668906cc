// XWindow on a display that fails where it is told to.
#include "x_window.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <vector>

#include "fake_display.h"

// Last: their macros are words of other headers.
#include <X11/Xlib.h>
#include <X11/Xproto.h>

namespace {

constexpr int kUntouched = -9;

// What an operation answered and wrote.
struct Outcome {
  int answer = 0;
  int a = kUntouched;
  int b = kUntouched;
  int c = kUntouched;
  int d = kUntouched;

  bool operator==(const Outcome& other) const {
    return answer == other.answer && a == other.a && b == other.b &&
           c == other.c && d == other.d;
  }
};

void PrintTo(const Outcome& o, std::ostream* out) {
  *out << "answer " << o.answer << ", written " << o.a << ' ' << o.b << ' '
       << o.c << ' ' << o.d;
}

constexpr Outcome answered(bool answer) { return {answer ? 1 : 0}; }

struct Operation {
  const char* name;
  Outcome (*run)();
  std::array<int, 4> requests;  // and zeros
};

constexpr Operation kSetWindowPos = {
    "SetWindowPos",
    []() -> Outcome {
      return {XWindow::SetWindowPos(5, 6, 1, 2, 3, 4, XWindow::kShow)};
    },
    {X_ConfigureWindow, X_MapWindow}};
constexpr Operation kHide = {"ShowWindow(hide)",
                             [] { return answered(XWindow::ShowWindow(5, 0)); },
                             {X_UnmapWindow}};
constexpr Operation kMaximise = {
    "ShowWindow(maximise)",
    [] { return answered(XWindow::ShowWindow(5, 3)); },
    {X_InternAtom, X_SendEvent}};
constexpr Operation kIsWindow = {"IsWindow",
                                 [] { return answered(XWindow::IsWindow(5)); },
                                 {X_ListProperties}};
constexpr Operation kBringToTop = {
    "BringWindowToTop",
    [] { return answered(XWindow::BringWindowToTop(5)); },
    {X_ConfigureWindow}};
constexpr Operation kEnable = {
    "EnableWindow",
    [] { return answered(XWindow::EnableWindow(5, true)); },
    {}};
constexpr Operation kGetRect = {
    "GetWindowRect",
    [] {
      Outcome o;
      o.answer = XWindow::GetWindowRect(5, o.a, o.b, o.c, o.d) ? 1 : 0;
      return o;
    },
    {X_GetWindowAttributes, X_GetGeometry, X_TranslateCoords}};
constexpr Operation kMove = {
    "MoveWindow",
    [] { return answered(XWindow::MoveWindow(5, 1, 2, 3, 4)); },
    {X_ConfigureWindow}};
constexpr Operation kIsInFullScreen = {
    "IsInFullScreen",
    [] { return answered(XWindow::IsInFullScreen()); },
    {X_GetInputFocus, X_GetWindowAttributes, X_GetGeometry, X_TranslateCoords}};
constexpr Operation kGetDisplay = {
    "GetDisplayWindowRect",
    [] {
      Outcome o;
      o.answer = XWindow::GetDisplayWindowRect(o.a, o.b) ? 1 : 0;
      return o;
    },
    {X_GetWindowAttributes, X_GetGeometry}};
constexpr Operation kGetCursor = {"GetCursorPos",
                                  [] {
                                    Outcome o;
                                    XWindow::GetCursorPos(o.a, o.b);
                                    return o;
                                  },
                                  {X_QueryPointer}};
constexpr Operation kKeyState = {
    "GetKeyState(key)",
    []() -> Outcome { return {XWindow::GetKeyState(65)}; },
    {X_GetKeyboardMapping, X_QueryKeymap}};
constexpr Operation kButtonState = {
    "GetKeyState(button)",
    []() -> Outcome { return {XWindow::GetKeyState(4)}; },
    {X_QueryPointer}};

constexpr const Operation* kOperations[] = {
    &kSetWindowPos, &kHide,        &kMaximise,      &kIsWindow,   &kBringToTop,
    &kEnable,       &kGetRect,     &kMove,          &kGetDisplay, &kGetCursor,
    &kKeyState,     &kButtonState, &kIsInFullScreen};

int refusals = 0;

int count_refusal(Display*, XErrorEvent*) {
  ++refusals;
  return 0;
}

class XWindowTest : public testing::Test {
 protected:
  XWindowTest() {
    display_.set("focus", 5);
    display_.set("w", 1280);
    display_.set("h", 1024);
  }
  FakeDisplay display_;
};

TEST_F(XWindowTest, AnswersFalseAndWritesNothingWithoutADisplay) {
  unsetenv("DISPLAY");
  for (const Operation* operation : kOperations) {
    const bool key = operation == &kKeyState || operation == &kButtonState;
    EXPECT_EQ(operation->run(), Outcome{key ? 1 : 0}) << operation->name;
  }
}

TEST_F(XWindowTest, TellsARefusedRequestFromOneThatWasNot) {
  struct {
    const Operation& operation;
    int refuse;
    Outcome want;
    int refusals;
  } const cases[] = {
      {kGetRect, 0, {1, 0, 0, 1280, 1024}, 0},
      {kGetRect, X_GetWindowAttributes, {0}, 1},
      {kGetRect, X_GetGeometry, {0}, 1},
      {kGetRect, X_TranslateCoords, {0}, 1},
      {kIsInFullScreen, 0, {1}, 0},
      {kIsInFullScreen, X_GetWindowAttributes, {0}, 1},
      {kIsInFullScreen, X_TranslateCoords, {0}, 1},
      {kGetDisplay, 0, {1, 1280, 1024}, 0},
      {kGetDisplay, X_GetWindowAttributes, {0}, 1},
      {kIsWindow, 0, {1}, 0},
      {kIsWindow, X_ListProperties, {0}, 1},
      {kGetCursor, X_QueryPointer, {0}, 1},
      // The server refuses these after the call was sent.
      {kMove, X_ConfigureWindow, {1}, 1},
      {kBringToTop, X_ConfigureWindow, {1}, 1},
      {kSetWindowPos, X_ConfigureWindow, {1}, 2},
      {kHide, X_UnmapWindow, {1}, 1},
      {kMaximise, X_SendEvent, {0}, 1},
      {kKeyState, X_QueryKeymap, {1}, 1},
  };
  const XErrorHandler usual = XSetErrorHandler(count_refusal);
  for (const auto& row : cases) {
    display_.set("refuse", row.refuse);
    refusals = 0;
    EXPECT_EQ(row.operation.run(), row.want)
        << row.operation.name << " refused " << row.refuse;
    EXPECT_EQ(refusals, row.refusals)
        << row.operation.name << " refused " << row.refuse;
  }
  XSetErrorHandler(usual);
}

TEST_F(XWindowTest, KnowsAWindowOnAnotherScreen) {
  display_.set("translated_x", -3);
  display_.set("translated_y", -4);
  display_.set("same_screen", 0);
  EXPECT_EQ(kGetRect.run(), (Outcome{0, -3, -4}));
  EXPECT_EQ(kIsInFullScreen.run(), Outcome{0});
  display_.set("root", 0x999);
  EXPECT_EQ(kGetDisplay.run(), Outcome{1});
}

TEST_F(XWindowTest, SendsNothingAboutWindow0) {
  Outcome outcome;
  EXPECT_FALSE(
      XWindow::GetWindowRect(0, outcome.a, outcome.b, outcome.c, outcome.d));
  EXPECT_FALSE(XWindow::IsWindow(0));
  EXPECT_EQ(outcome, Outcome{});
  EXPECT_EQ(display_.next_connection(), "");
  EXPECT_EQ(display_.next_connection(), "");
}

TEST_F(XWindowTest, LeavesTheErrorHandlersAlone) {
  const auto end = [](Display*) { return 0; };
  const XErrorHandler usual = XSetErrorHandler(count_refusal);
  const XIOErrorHandler usual_end = XSetIOErrorHandler(end);
  for (const Operation* operation : kOperations) {
    operation->run();
    EXPECT_EQ(XSetErrorHandler(count_refusal), &count_refusal)
        << operation->name;
    EXPECT_EQ(XSetIOErrorHandler(end), XIOErrorHandler{end}) << operation->name;
  }
  XSetErrorHandler(usual);
  XSetIOErrorHandler(usual_end);
}

TEST_F(XWindowTest, EndsTheProcessWhenTheConnectionBreaks) {
  // The X library's own words, whether it was reading or writing.
  const char* kBroken = "X connection to .* broken|XIO:  fatal IO error";
  for (const Operation* operation : kOperations) {
    std::vector<int> requests = {X_QueryExtension, X_FreeGC};  // the frame's
    requests.insert(requests.end(), operation->requests.begin(),
                    operation->requests.end());
    for (const int request : requests) {
      if (request == 0) continue;
      display_.set("close_at", request);
      EXPECT_EXIT(
          {
            operation->run();
            std::exit(0);
          },
          testing::ExitedWithCode(1), kBroken)
          << operation->name << " at " << request;
    }
  }
}

TEST_F(XWindowTest, WaitsAsLongAsTheServerTakes) {
  using std::chrono::seconds;
  for (const Operation* operation : kOperations) {
    for (const int request : operation->requests) {
      if (request == 0) continue;
      display_.set("hold_at", request);
      auto call = std::async(std::launch::async, operation->run);
      display_.wait_until_held();
      EXPECT_EQ(call.wait_for(seconds(0)), std::future_status::timeout)
          << operation->name << " at " << request;
      display_.set("hold_at", 0);
      call.wait();
    }
  }
}

TEST_F(XWindowTest, LeavesNoDescriptorAfter10000Calls) {
  const auto count = [] {
    const std::filesystem::directory_iterator open("/proc/self/fd");
    return std::distance(begin(open), end(open));
  };
  const std::size_t operations = std::size(kOperations);
  const XErrorHandler usual = XSetErrorHandler(count_refusal);
  const auto before = count();
  for (std::size_t call = 0; call < 10000; ++call) {
    // Every path: all succeeds, then one request after another is refused.
    if (call % 500 == 0) {
      const int refused[] = {0, X_GetWindowAttributes, X_TranslateCoords,
                             X_ListProperties};
      display_.set("refuse", refused[call / 500 % std::size(refused)]);
    }
    kOperations[call % operations]->run();
    display_.next_connection();
  }
  EXPECT_EQ(count(), before);
  XSetErrorHandler(usual);
}

}  // namespace
