#include "platform/x_window.h"
#include "script/korvane_helper.h"

// Most functions widen a window's 32 bits with zeros. These widen them with the
// sign: -1 is all ones.
static std::uint64_t read_signed_window(const Call& call, int index) {
  return static_cast<std::uint64_t>(std::int64_t{read_int32(call, index)});
}

void KorvaneHelper::TsSetWindowPos(const Call& call) {
  // Quirk: false even when the operation succeeds.
  set_result(call, false);
  if (!accepts_exactly<kNumber, kNumber, kNumber, kNumber, kNumber, kNumber,
                       kNumber>(call)) {
    return;
  }
  XWindow::SetWindowPos(read_uint32(call, 0), read_signed_window(call, 1),
                        read_int32(call, 2), read_int32(call, 3),
                        read_int32(call, 4), read_int32(call, 5),
                        read_uint32(call, 6));
}

void KorvaneHelper::TsShowWindow(const Call& call) {
  // Quirk: false even when the operation succeeds.
  set_result(call, false);
  if (!accepts_exactly<kNumber, kNumber>(call)) return;
  XWindow::ShowWindow(read_uint32(call, 0), read_int32(call, 1));
}

void KorvaneHelper::TsIsWindowHandle(const Call& call) {
  set_result(call, accepts_exactly<kNumber>(call) &&
                       XWindow::IsWindow(read_uint32(call, 0)));
}

void KorvaneHelper::TsBringWindowToTop(const Call& call) {
  set_result(call, accepts_exactly<kNumber>(call) &&
                       XWindow::BringWindowToTop(read_uint32(call, 0)));
}

void KorvaneHelper::TsEnableWindow(const Call& call) {
  if (!accepts<kNumber, kAny>(call)) return;
  const std::uint64_t window = read_signed_window(call, 0);
  if (window == 0 || !XWindow::IsWindow(window)) return;
  set_result(call, XWindow::EnableWindow(window, call[1]->IsTrue()));
}

void KorvaneHelper::TsGetWindowRect(const Call& call) {
  if (!accepts<kAny>(call)) return;
  int left = 0;
  int top = 0;
  int right = 0;   // the width
  int bottom = 0;  // the height
  XWindow::GetWindowRect(read_signed_window(call, 0), left, top, right, bottom);
  set_result(call,
             {{"x", left}, {"y", top}, {"width", right}, {"height", bottom}});
}

void KorvaneHelper::TsMoveWindow(const Call& call) {
  if (call.Length() != 6) return;
  // Quirk: the window moves even when an argument is no number, to 0 there. The
  // last argument, whether to paint again, is ignored.
  XWindow::MoveWindow(read_uint32(call, 0), read_int32(call, 1),
                      read_int32(call, 2), read_int32(call, 3),
                      read_int32(call, 4));
}

void KorvaneHelper::GetDisplayWindowRect(const Call& call) {
  int width = 0;
  int height = 0;
  XWindow::GetDisplayWindowRect(width, height);
  set_result(call, {{"width", width}, {"height", height}});
}

void KorvaneHelper::GetCursorPosition(const Call& call) {
  int x = 0;
  int y = 0;
  XWindow::GetCursorPos(x, y);
  set_result(call, {{"x", x}, {"y", y}});
}

void KorvaneHelper::TsGetKeyState(const Call& call) {
  set_result(call, accepts_exactly<kNumber>(call)
                       ? XWindow::GetKeyState(read_int32(call, 0))
                       : 0);
}
