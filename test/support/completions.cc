// Gives a script what it cannot reach in the module: the completion functions,
// which nothing on this platform calls, and a function that has no name. The
// last argument of each becomes its holder. And tells what memory is in use.
#include <malloc.h>

#include "script/korvane_helper.h"

namespace {

template <typename Value>
std::vector<Value> read_list(const v8::Local<v8::Value>& list) {
  const v8::Local<v8::Array> array = list.As<v8::Array>();
  const auto context = v8::Isolate::GetCurrent()->GetCurrentContext();
  std::vector<Value> values;
  for (std::uint32_t i = 0; i < array->Length(); ++i) {
    const auto element = array->Get(context, i).ToLocalChecked();
    if constexpr (std::is_same_v<Value, std::wstring>) {
      values.emplace_back();
      for (const std::int32_t unit : read_list<std::int32_t>(element)) {
        values.back().push_back(static_cast<wchar_t>(unit));
      }
    } else {
      values.push_back(element->Int32Value(context).FromJust());
    }
  }
  return values;
}

// "none" is no holder, "no isolate" one that lacks it; anything that is no
// function makes a holder without one.
CallbackHolder* holder(const Call& call) {
  const v8::Local<v8::Value> last = call[call.Length() - 1];
  const std::string kind = Utf8Argument<16>(call, call.Length() - 1).c_str();
  if (kind == "none") return nullptr;
  return new CallbackHolder(kind == "no isolate" ? nullptr : call.GetIsolate(),
                            last);
}

// onIsSSD(success, values, callback)
void on_is_ssd(const Call& call) {
  set_result(call, KorvaneHelper::OnIsSSD(7, call[0]->IsTrue(),
                                          read_list<std::int32_t>(call[1]),
                                          holder(call)));
}

// onGetDriveMediaType(success, type, callback)
void on_get_drive_media_type(const Call& call) {
  set_result(call, KorvaneHelper::OnGetDriveMediaType(
                       read_int32(call, 0), read_int32(call, 1), holder(call)));
}

// onGetCpuList(names, callback), onGetAppList: a name is a list of wide units.
template <auto kFunction>
void on_names(const Call& call) {
  set_result(call,
             kFunction(7, read_list<std::wstring>(call[0]), holder(call)));
}

void query_file_exists(const Call& call) {
  KorvaneHelper::ExportQueryFileExists(call);
}

// What was allocated beside the script engine's own heap.
void bytes_in_use(const Call& call) {
  call.GetReturnValue().Set(static_cast<double>(mallinfo2().uordblks));
}

void register_functions(v8::Local<v8::Object> exports) {
  NODE_SET_METHOD(exports, "onIsSSD", on_is_ssd);
  NODE_SET_METHOD(exports, "onGetDriveMediaType", on_get_drive_media_type);
  NODE_SET_METHOD(exports, "onGetCpuList",
                  on_names<KorvaneHelper::OnGetCpuList>);
  NODE_SET_METHOD(exports, "onGetAppList",
                  on_names<KorvaneHelper::OnGetAppList>);
  NODE_SET_METHOD(exports, "queryFileExists", query_file_exists);
  NODE_SET_METHOD(exports, "bytesInUse", bytes_in_use);
}

}  // namespace

NODE_MODULE(completions, register_functions)
