// An addon with what scripts cannot reach: functions without a name, and
// results that the module drops. It also makes windows.
#include <climits>
#include <cstdio>

#include "platform/linux_shell.h"
#include "platform/x_window.h"
#include "script/korvane_helper.h"

// Last: its macros are words of other headers.
#include <X11/Xlib.h>

namespace {

// complete(callback): every completion, which nothing on this platform calls;
// "no holder" and "no isolate" leave these out.
void complete(const Call& call) {
  const std::string callback = Utf8Argument<16>(call, 0).c_str();
  v8::Isolate* isolate = callback == "no isolate" ? nullptr : call.GetIsolate();
  const auto holder = [&] {
    return callback == "no holder" ? nullptr
                                   : new CallbackHolder(isolate, call[0]);
  };
  const std::vector<std::wstring> names = {
      L"Core", L"", L"中文", L"😀A", {0x00410042, 0x00430044, 0x0045}};
  int result = KorvaneHelper::OnIsSSD(7, true, {1, 0, -1, INT_MAX}, holder());
  result |= KorvaneHelper::OnGetDriveMediaType(-1, INT_MIN, holder());
  result |= KorvaneHelper::OnGetDriveMediaType(0, 3, holder());
  result |= KorvaneHelper::OnGetCpuList(7, names, holder());
  result |= KorvaneHelper::OnGetAppList(7, {}, holder());
  set_result(call, result);
}

// compareNull(place): the string in this place is null.
void compare_null(const Call& call) {
  const bool is_first = read_int32(call, 0) == 0;
  LinuxShell::CompareStr(is_first ? nullptr : "", is_first ? "" : nullptr);
}

void get_ip(const Call& call) {
  set_result(call, LinuxShell::MacId::GetIp().c_str());
}

Display* display() {
  static Display* const display = XOpenDisplay(nullptr);
  return display;
}

// createWindow(x, y, width, height, border, parent): shows it.
void create_window(const Call& call) {
  const Window parent = read_uint32(call, 5);
  const Window window = XCreateSimpleWindow(
      display(), parent == None ? DefaultRootWindow(display()) : parent,
      read_int32(call, 0), read_int32(call, 1), read_uint32(call, 2),
      read_uint32(call, 3), read_uint32(call, 4), 0, 0);
  XStoreName(display(), window, "test window");
  XMapWindow(display(), window);
  XSync(display(), False);
  set_result(call, static_cast<double>(window));
}

// The names of the operations on a window that succeed.
void successes(const Call& call) {
  const Window window = read_uint32(call, 0);
  const auto place = [&](unsigned flags) {
    return XWindow::SetWindowPos(window, 0, 1, 2, 3, 4, flags) != 0;
  };
  int n = 0;
  const std::pair<const char*, bool> results[] = {
      {"cover ", XWindow::IsInFullScreen()},
      {"place ", place(0)},
      {"move ", place(1)},
      {"resize ", place(2)},
      {"keep ", place(3)},
      {"hide ", XWindow::ShowWindow(window, 0)},
      {"maximise ", XWindow::ShowWindow(window, 3)},
      {"show ", XWindow::ShowWindow(window, 5)},
      {"other ", XWindow::ShowWindow(window, 6)},
      {"find ", XWindow::GetWindowRect(window, n, n, n, n)},
      {"screen ", XWindow::GetDisplayWindowRect(n, n)},
      {"move back ", XWindow::MoveWindow(window, 1, 2, 3, 4)}};
  std::string names;
  for (const auto& [name, is_success] : results)
    names += is_success ? name : "";
  set_result(call, names.c_str());
}

// maximise(window): the message that watchers of the root's children receive.
void maximise(const Call& call) {
  XSelectInput(display(), DefaultRootWindow(display()), SubstructureNotifyMask);
  XSync(display(), True);
  XWindow::ShowWindow(read_uint32(call, 0), 3);
  XEvent event{};
  XNextEvent(display(), &event);
  const auto name = [](auto atom) {
    return XGetAtomName(display(), static_cast<Atom>(atom));
  };
  const XClientMessageEvent& message = event.xclient;
  const long* const data = message.data.l;
  char text[200] = {};
  std::snprintf(text, sizeof(text), "%d %lu %d %s %ld %s %s %ld %ld",
                message.type, message.window, message.format,
                name(message.message_type), data[0], name(data[1]),
                name(data[2]), data[3], data[4]);
  set_result(call, text);
}

void register_functions(v8::Local<v8::Object> exports) {
  NODE_SET_METHOD(exports, "complete", complete);
  NODE_SET_METHOD(exports, "compareNull", compare_null);
  NODE_SET_METHOD(exports, "getIp", get_ip);
  NODE_SET_METHOD(exports, "createWindow", create_window);
  NODE_SET_METHOD(exports, "successes", successes);
  NODE_SET_METHOD(exports, "maximise", maximise);
}

}  // namespace

NODE_MODULE(native_addon, register_functions)
