#include "script/script_values.h"

#include <cstring>
#include <limits>

namespace {

v8::Local<v8::Value> value_or_undefined(v8::Isolate* isolate,
                                        v8::MaybeLocal<v8::String> text) {
  v8::Local<v8::String> made;
  if (text.ToLocal(&made)) return made;
  return v8::Undefined(isolate);
}

}  // namespace

ScriptGuard::ScriptGuard(v8::Isolate* isolate)
    : isolate_(isolate), try_catch_(isolate) {
  try_catch_.SetCaptureMessage(false);
}

ScriptGuard::~ScriptGuard() {
  // Never rethrown: older runtimes would throw a null, which scripts catch.
  if (try_catch_.HasTerminated()) isolate_->TerminateExecution();
}

v8::Local<v8::String> read_text(const Arguments& arguments, int index) {
  const v8::Local<v8::Value> value = arguments[index];
  if (value->IsString()) return value.As<v8::String>();
  v8::Isolate* isolate = arguments.GetIsolate();
  // A guard that begins now would end the termination on newer runtimes.
  if (isolate->IsExecutionTerminating()) return v8::String::Empty(isolate);
  const ScriptGuard guard(isolate);
  v8::Local<v8::String> text;
  if (value->ToString(isolate->GetCurrentContext()).ToLocal(&text)) return text;
  return v8::String::Empty(isolate);
}

void read_utf8(const Arguments& arguments, int index, char* out,
               std::size_t capacity) {
  std::memset(out, 0, capacity);
  runtime_port::write_utf8(arguments.GetIsolate(), read_text(arguments, index),
                           out, static_cast<int>(capacity - 1));
}

void read_and_drop_texts(const Arguments& arguments, int count) {
  for (int index = 0; index < count; ++index) {
    runtime_port::Utf16Text(arguments.GetIsolate(),
                            read_text(arguments, index));
  }
}

double read_number(const Arguments& arguments, int index) {
  v8::Isolate* isolate = arguments.GetIsolate();
  const ScriptGuard guard(isolate);
  return arguments[index]
      ->NumberValue(isolate->GetCurrentContext())
      .FromMaybe(std::numeric_limits<double>::quiet_NaN());
}

std::int32_t read_int32(const Arguments& arguments, int index) {
  return arguments[index]
      ->Int32Value(arguments.GetIsolate()->GetCurrentContext())
      .FromMaybe(0);
}

std::uint32_t read_uint32(const Arguments& arguments, int index) {
  return arguments[index]
      ->Uint32Value(arguments.GetIsolate()->GetCurrentContext())
      .FromMaybe(0);
}

v8::Local<v8::Value> make_text(v8::Isolate* isolate, const char* utf8) {
  return value_or_undefined(
      isolate,
      v8::String::NewFromUtf8(isolate, utf8, v8::NewStringType::kNormal));
}

v8::Local<v8::Value> make_text(v8::Isolate* isolate,
                               const std::uint16_t* units) {
  return value_or_undefined(
      isolate,
      v8::String::NewFromTwoByte(isolate, units, v8::NewStringType::kNormal));
}

// Setting runs script code where a script has put setters on the prototypes.

void store(v8::Isolate* isolate, v8::Local<v8::Array> list, std::uint32_t index,
           v8::Local<v8::Value> value) {
  const ScriptGuard guard(isolate);
  list->Set(isolate->GetCurrentContext(), index, value).FromMaybe(false);
}

void store(v8::Isolate* isolate, v8::Local<v8::Object> object, const char* key,
           double value) {
  const ScriptGuard guard(isolate);
  object
      ->Set(isolate->GetCurrentContext(), make_text(isolate, key),
            v8::Number::New(isolate, value))
      .FromMaybe(false);
}

void answer_object(const Arguments& arguments,
                   std::initializer_list<NumberProperty> properties) {
  v8::Isolate* isolate = arguments.GetIsolate();
  const v8::Local<v8::Object> object = v8::Object::New(isolate);
  for (const NumberProperty& property : properties) {
    store(isolate, object, property.key, property.value);
  }
  answer(arguments, object);
}
