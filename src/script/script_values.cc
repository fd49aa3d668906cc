#include "script/script_values.h"

#include <limits>

namespace {

v8::Local<v8::Value> value_or_undefined(v8::Isolate* isolate,
                                        v8::MaybeLocal<v8::String> made) {
  v8::Local<v8::String> string;
  if (made.ToLocal(&string)) return string;
  return v8::Undefined(isolate);
}

}  // namespace

ScriptGuard::ScriptGuard(v8::Isolate* isolate)
    : isolate_(isolate), try_catch_(isolate) {
  // With a message --abort-on-uncaught-exception would terminate the process.
  try_catch_.SetCaptureMessage(false);
}

ScriptGuard::~ScriptGuard() {
  // Never rethrown: older runtimes would throw a null, which scripts catch.
  if (try_catch_.HasTerminated()) isolate_->TerminateExecution();
}

v8::Local<v8::String> read_string(const Call& call, int index) {
  const v8::Local<v8::Value> value = call[index];
  if (value->IsString()) return value.As<v8::String>();
  v8::Isolate* isolate = call.GetIsolate();
  // A guard that begins now would end the termination on newer runtimes.
  if (isolate->IsExecutionTerminating()) return v8::String::Empty(isolate);
  const ScriptGuard guard(isolate);
  return value->ToString(isolate->GetCurrentContext())
      .FromMaybe(v8::String::Empty(isolate));
}

double read_number(const Call& call, int index) {
  v8::Isolate* isolate = call.GetIsolate();
  const ScriptGuard guard(isolate);
  return call[index]
      ->NumberValue(isolate->GetCurrentContext())
      .FromMaybe(std::numeric_limits<double>::quiet_NaN());
}

std::int32_t read_int32(const Call& call, int index) {
  return static_cast<std::int32_t>(read_uint32(call, index));
}

std::uint32_t read_uint32(const Call& call, int index) {
  if (!call[index]->IsNumber()) return 0;
  return call[index]
      ->Uint32Value(call.GetIsolate()->GetCurrentContext())
      .FromMaybe(0);
}

v8::Local<v8::Value> make_string(v8::Isolate* isolate, const char* utf8) {
  return value_or_undefined(
      isolate,
      v8::String::NewFromUtf8(isolate, utf8, v8::NewStringType::kNormal));
}

v8::Local<v8::Value> make_string(v8::Isolate* isolate,
                                 const std::uint16_t* utf16) {
  return value_or_undefined(
      isolate,
      v8::String::NewFromTwoByte(isolate, utf16, v8::NewStringType::kNormal));
}

void set_result(const Call& call,
                std::initializer_list<NumberProperty> properties) {
  v8::Isolate* isolate = call.GetIsolate();
  const v8::Local<v8::Object> object = v8::Object::New(isolate);
  const ScriptGuard guard(isolate);  // scripts may have put setters in the way
  for (const auto& [key, value] : properties) {
    object
        ->Set(isolate->GetCurrentContext(), make_string(isolate, key),
              v8::Integer::New(isolate, value))
        .FromMaybe(false);
  }
  call.GetReturnValue().Set(object);
}
