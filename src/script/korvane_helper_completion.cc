#include <memory>

#include "script/korvane_helper.h"

namespace {

// Calls the holder's function with the values that `make` returns, then frees
// the holder. One without an isolate is only freed: values are made in it.
template <typename MakeValues>
int complete(CallbackHolder* holder, const MakeValues& make) {
  const std::unique_ptr<CallbackHolder> owner(holder);
  if (holder == nullptr || holder->isolate == nullptr) return 0;
  const v8::HandleScope scope(holder->isolate);
  auto values = make(holder->isolate);
  holder->call(static_cast<int>(values.size()), values.data());
  return 0;
}

template <std::size_t count>
using Values = std::array<v8::Local<v8::Value>, count>;

}  // namespace

int KorvaneHelper::OnIsSSD(std::int32_t, bool success,
                           const std::vector<std::int32_t>& values,
                           CallbackHolder* holder) {
  return complete(holder, [&](v8::Isolate* isolate) {
    const auto list = make_list(isolate, values, [&](std::int32_t value) {
      return v8::Integer::New(isolate, value);
    });
    return Values<2>{v8::Boolean::New(isolate, success), list};
  });
}

int KorvaneHelper::OnGetDriveMediaType(std::int32_t success,
                                       std::int32_t media_type,
                                       CallbackHolder* holder) {
  return complete(holder, [&](v8::Isolate* isolate) {
    return Values<2>{v8::Boolean::New(isolate, success != 0),
                     v8::Number::New(isolate, media_type)};
  });
}

int KorvaneHelper::OnGetCpuList(std::int32_t,
                                const std::vector<std::wstring>& names,
                                CallbackHolder* holder) {
  return complete(holder, [&](v8::Isolate* isolate) {
    return Values<1>{make_list(isolate, names, [&](const std::wstring& name) {
      return make_string(isolate,
                         reinterpret_cast<const std::uint16_t*>(name.c_str()));
    })};
  });
}

int KorvaneHelper::OnGetAppList(std::int32_t request_id,
                                const std::vector<std::wstring>& names,
                                CallbackHolder* holder) {
  return OnGetCpuList(request_id, names, holder);
}
