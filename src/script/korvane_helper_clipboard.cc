#include "script/korvane_helper.h"

static_assert(sizeof(KORVANE_CLIPBOARD_LINK) > 1, "the link is not empty");

void KorvaneHelper::AttachClipBoard(const Call& call) {
  set_result(call, 0);
  if (!accepts<kFunction>(call)) return;
  v8::Isolate* isolate = call.GetIsolate();
  const v8::HandleScope scope(isolate);
  // Nothing watches the clipboard on this platform: every registration receives
  // one fixed link, a build setting.
  const std::array<const char*, 1> links = {KORVANE_CLIPBOARD_LINK};
  v8::Local<v8::Value> values[] = {
      v8::Number::New(isolate, 1),
      make_list(isolate, links, [isolate](const char* link) {
        return make_string(isolate, link);
      })};
  // Never freed: a registration lasts as long as the process.
  auto* holder = new CallbackHolder(isolate, call[0]);
  holder->call(2, values);
}
