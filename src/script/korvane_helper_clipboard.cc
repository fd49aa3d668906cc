#include <korvane/transcode.h>

#include <string_view>

#include "script/korvane_helper.h"

namespace {

// Nothing watches the clipboard on this platform: every registration receives
// one fixed link, a build setting.
constexpr std::wstring_view kClipboardLinks[] = {KORVANE_CLIPBOARD_LINK};

v8::Local<v8::Array> make_list(v8::Isolate* isolate) {
  const auto list = v8::Array::New(isolate, std::size(kClipboardLinks));
  const ScriptGuard guard(isolate);  // scripts may have put setters in the way
  std::uint32_t index = 0;
  for (const std::wstring_view link : kClipboardLinks) {
    if (link.empty()) continue;
    std::string utf8;
    qk::text::transcode::Unicode_to_UTF8(
        link.data(), static_cast<unsigned>(link.size()), utf8);
    list->Set(isolate->GetCurrentContext(), index++,
              make_string(isolate, utf8.c_str()))
        .FromMaybe(false);
  }
  return list;
}

}  // namespace

void KorvaneHelper::AttachClipBoard(const Call& call) {
  set_result(call, 0);
  if (!accepts<kFunction>(call)) return;
  v8::Isolate* isolate = call.GetIsolate();
  const v8::HandleScope scope(isolate);
  v8::Local<v8::Value> values[] = {v8::Number::New(isolate, 1),
                                   make_list(isolate)};
  // Never freed: a registration lasts as long as the process.
  auto* holder = new CallbackHolder(isolate, call[0]);
  holder->call(2, values);
}
