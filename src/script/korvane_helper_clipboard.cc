#include <korvane/transcode.h>
#include "script/korvane_helper.h"

namespace {

// The links found on the clipboard. Nothing watches it on this platform: every
// registration is answered with one fixed link, a build setting.
std::vector<std::wstring> clipboard_links() { return {KORVANE_CLIPBOARD_LINK}; }

v8::Local<v8::Array> script_list(v8::Isolate* isolate,
                                 const std::vector<std::wstring>& links) {
  const auto list = v8::Array::New(isolate, static_cast<int>(links.size()));
  std::uint32_t stored = 0;
  for (const std::wstring& link : links) {
    if (link.empty()) continue;
    std::string utf8;
    qk::text::transcode::Unicode_to_UTF8(
        link.data(), static_cast<unsigned>(link.size()), utf8);
    store(isolate, list, stored++, make_text(isolate, utf8.c_str()));
  }
  return list;
}

}  // namespace

void KorvaneHelper::AttachClipBoard(const Arguments& arguments) {
  answer_number(arguments, 0);
  if (!accepts<Kind::kFunction>(arguments)) return;
  v8::Isolate* isolate = arguments.GetIsolate();
  const v8::HandleScope scope(isolate);
  const std::vector<std::wstring> links = clipboard_links();
  v8::Local<v8::Value> values[] = {v8::Number::New(isolate, 1),
                                   v8::Undefined(isolate)};
  if (!links.empty()) values[1] = script_list(isolate, links);
  // Never freed: a registration lasts as long as the process.
  auto* holder = new CallbackHolder(isolate, arguments[0]);
  holder->call(2, values);
}
