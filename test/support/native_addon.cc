// An addon with what scripts cannot reach: the completion functions, which
// nothing on this platform calls, and a function without a name. It also makes
// windows, and knows what memory is in use.
#include <malloc.h>

#include <climits>

#include "script/korvane_helper.h"

// Last: its macros are words of other headers.
#include <X11/Xlib.h>

namespace {

const std::vector<std::wstring> kNames = {
    L"Core", L"", L"中文", L"😀A", {0x00410042, 0x00430044, 0x0045}};

using Holder = CallbackHolder*;
constexpr int (*kCompletions[])(Holder) = {
    [](Holder holder) {
      return KorvaneHelper::OnIsSSD(7, true, {1, 0, -1, INT_MAX}, holder);
    },
    [](Holder holder) {
      return KorvaneHelper::OnGetDriveMediaType(-1, INT_MIN, holder);
    },
    [](Holder holder) {
      return KorvaneHelper::OnGetDriveMediaType(0, 3, holder);
    },
    [](Holder holder) {
      return KorvaneHelper::OnGetCpuList(7, kNames, holder);
    },
    [](Holder holder) { return KorvaneHelper::OnGetAppList(7, {}, holder); },
};

// complete(row, callback); "no holder" and "no isolate" leave these out.
void complete(const Call& call) {
  const std::string callback = Utf8Argument<16>(call, 1).c_str();
  v8::Isolate* isolate = callback == "no isolate" ? nullptr : call.GetIsolate();
  auto* holder =
      callback == "no holder" ? nullptr : new CallbackHolder(isolate, call[1]);
  set_result(call, kCompletions[read_int32(call, 0)](holder));
}

// Makes a window at (10, 20) of 100 x 80 pixels and shows it.
void create_window(const Call& call) {
  static Display* const display = XOpenDisplay(nullptr);
  const Window window = XCreateSimpleWindow(display, DefaultRootWindow(display),
                                            10, 20, 100, 80, 0, 0, 0);
  XStoreName(display, window, "test window");
  XMapWindow(display, window);
  XSync(display, False);
  set_result(call, static_cast<double>(window));
}

// What is allocated beside the script engine's own heap.
void bytes_in_use(const Call& call) {
  set_result(call, static_cast<double>(mallinfo2().uordblks));
}

void register_functions(v8::Local<v8::Object> exports) {
  NODE_SET_METHOD(exports, "complete", complete);
  NODE_SET_METHOD(exports, "queryFileExists",
                  KorvaneHelper::ExportQueryFileExists);
  NODE_SET_METHOD(exports, "createWindow", create_window);
  NODE_SET_METHOD(exports, "bytesInUse", bytes_in_use);
}

}  // namespace

NODE_MODULE(native_addon, register_functions)
