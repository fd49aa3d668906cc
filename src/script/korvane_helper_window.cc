#include "platform/x_window.h"
#include "script/korvane_helper.h"

namespace {

constexpr Kind kNumber = Kind::kNumber;

// A window handle of up to 32 bits, widened with zeros.
std::uint64_t read_window(const Arguments& arguments, int index) {
  return read_uint32(arguments, index);
}

// The same read as a signed number and widened with its sign: -1 is all ones.
std::uint64_t read_signed_window(const Arguments& arguments, int index) {
  return static_cast<std::uint64_t>(std::int64_t{read_int32(arguments, index)});
}

bool is_number(const Arguments& arguments, int index) {
  return is_a<kNumber>(arguments[index]);
}

std::int32_t read_int32_or_zero(const Arguments& arguments, int index) {
  return is_number(arguments, index) ? read_int32(arguments, index) : 0;
}

}  // namespace

void KorvaneHelper::TsSetWindowPos(const Arguments& arguments) {
  answer_boolean(arguments, false);
  if (!accepts_exactly<kNumber, kNumber, kNumber, kNumber, kNumber, kNumber,
                       kNumber>(arguments)) {
    return;
  }
  // The status is not passed on (kept: callers rely on false).
  XWindow::SetWindowPos(read_window(arguments, 0),
                        read_signed_window(arguments, 1),
                        read_int32(arguments, 2), read_int32(arguments, 3),
                        read_int32(arguments, 4), read_int32(arguments, 5),
                        read_uint32(arguments, 6));
}

void KorvaneHelper::TsShowWindow(const Arguments& arguments) {
  answer_boolean(arguments, false);
  if (!accepts_exactly<kNumber, kNumber>(arguments)) return;
  // The answer is not passed on (kept: callers rely on false).
  XWindow::ShowWindow(read_window(arguments, 0), read_int32(arguments, 1));
}

void KorvaneHelper::TsIsWindowHandle(const Arguments& arguments) {
  answer_boolean(arguments, accepts_exactly<kNumber>(arguments) &&
                                XWindow::IsWindow(read_window(arguments, 0)));
}

void KorvaneHelper::TsBringWindowToTop(const Arguments& arguments) {
  answer_boolean(arguments,
                 accepts_exactly<kNumber>(arguments) &&
                     XWindow::BringWindowToTop(read_window(arguments, 0)));
}

void KorvaneHelper::TsEnableWindow(const Arguments& arguments) {
  if (!accepts<kNumber, Kind::kAny>(arguments)) return;
  const std::uint64_t window = read_signed_window(arguments, 0);
  if (window == 0 || !XWindow::IsWindow(window)) return;
  answer_boolean(arguments,
                 XWindow::EnableWindow(window, is_true(arguments, 1)));
}

void KorvaneHelper::TsGetWindowRect(const Arguments& arguments) {
  if (!accepts<Kind::kAny>(arguments)) return;
  const std::uint64_t window =
      is_number(arguments, 0) ? read_signed_window(arguments, 0) : 0;
  int left = 0;
  int top = 0;
  int right = 0;   // receives the width
  int bottom = 0;  // receives the height
  XWindow::GetWindowRect(window, left, top, right, bottom);
  answer_object(
      arguments,
      {{"x", left}, {"y", top}, {"width", right}, {"height", bottom}});
}

void KorvaneHelper::TsMoveWindow(const Arguments& arguments) {
  if (arguments.Length() != 6) return;
  // What is no number is 0, and the window moves all the same (kept: callers
  // rely on it). The last argument, whether to paint again, has no meaning.
  const std::uint64_t window =
      is_number(arguments, 0) ? read_window(arguments, 0) : 0;
  XWindow::MoveWindow(window, read_int32_or_zero(arguments, 1),
                      read_int32_or_zero(arguments, 2),
                      read_int32_or_zero(arguments, 3),
                      read_int32_or_zero(arguments, 4));
}

void KorvaneHelper::GetDisplayWindowRect(const Arguments& arguments) {
  int width = 0;
  int height = 0;
  XWindow::GetDisplayWindowRect(width, height);
  answer_object(arguments, {{"width", width}, {"height", height}});
}

void KorvaneHelper::GetCursorPosition(const Arguments& arguments) {
  int x = 0;
  int y = 0;
  XWindow::GetCursorPos(x, y);
  answer_object(arguments, {{"x", x}, {"y", y}});
}

void KorvaneHelper::TsGetKeyState(const Arguments& arguments) {
  if (!accepts_exactly<kNumber>(arguments)) {
    answer_number(arguments, 0);
    return;
  }
  const auto key = static_cast<std::int32_t>(read_uint32(arguments, 0));
  answer_number(arguments, XWindow::GetKeyState(key));
}

// Does not look at the display, unlike XWindow::IsInFullScreen (kept: callers
// rely on false).
void KorvaneHelper::IsInFullScreen(const Arguments& arguments) {
  answer_boolean(arguments, false);
}

void KorvaneHelper::GetWindowClassName(const Arguments& arguments) {
  answer_text(arguments, "");
}
