#include <memory>

#include "script/korvane_helper.h"

// Values are made in the holder's isolate; a holder without one is only freed.

int KorvaneHelper::OnIsSSD(std::int32_t, bool success,
                           const std::vector<std::int32_t>& values,
                           CallbackHolder* holder) {
  const std::unique_ptr<CallbackHolder> owner(holder);
  if (holder == nullptr || holder->isolate == nullptr) return 0;
  v8::Isolate* isolate = holder->isolate;
  const v8::HandleScope scope(isolate);
  const auto list = v8::Array::New(isolate, static_cast<int>(values.size()));
  std::uint32_t index = 0;
  for (const std::int32_t value : values) {
    store(isolate, list, index++, v8::Integer::New(isolate, value));
  }
  v8::Local<v8::Value> results[] = {v8::Boolean::New(isolate, success), list};
  holder->call(2, results);
  return 0;
}

int KorvaneHelper::OnGetDriveMediaType(std::int32_t success,
                                       std::int32_t media_type,
                                       CallbackHolder* holder) {
  const std::unique_ptr<CallbackHolder> owner(holder);
  if (holder == nullptr || holder->isolate == nullptr) return 0;
  v8::Isolate* isolate = holder->isolate;
  const v8::HandleScope scope(isolate);
  v8::Local<v8::Value> results[] = {v8::Boolean::New(isolate, success != 0),
                                    v8::Number::New(isolate, media_type)};
  holder->call(2, results);
  return 0;
}

int KorvaneHelper::OnGetCpuList(std::int32_t,
                                const std::vector<std::wstring>& names,
                                CallbackHolder* holder) {
  const std::unique_ptr<CallbackHolder> owner(holder);
  if (holder == nullptr || holder->isolate == nullptr) return 0;
  v8::Isolate* isolate = holder->isolate;
  const v8::HandleScope scope(isolate);
  const auto list = v8::Array::New(isolate, static_cast<int>(names.size()));
  std::uint32_t index = 0;
  for (const std::wstring& name : names) {
    const auto* units = reinterpret_cast<const std::uint16_t*>(name.c_str());
    store(isolate, list, index++, make_text(isolate, units));
  }
  v8::Local<v8::Value> results[] = {list};
  holder->call(1, results);
  return 0;
}

int KorvaneHelper::OnGetAppList(std::int32_t request_id,
                                const std::vector<std::wstring>& names,
                                CallbackHolder* holder) {
  return OnGetCpuList(request_id, names, holder);
}
