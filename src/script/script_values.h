// How a script function reads its arguments and sets its result.
//
// Three rules hold for every function of the module:
//
// 1. Arguments are tested before any is converted: the count first, then the
//    types in index order. When a test fails, the function returns its
//    fallback.
// 2. An argument beyond the count is undefined.
// 3. Nothing throws into script. A string that cannot be read is empty, a
//    number that cannot be read is not-a-number, a result that cannot be made
//    is undefined. Out of memory, a function ends with the result set so far.
#ifndef KORVANE_SCRIPT_SCRIPT_VALUES_H_
#define KORVANE_SCRIPT_SCRIPT_VALUES_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

#include "script/runtime_port.h"

// A call from script: its arguments, and the result that it returns.
using Call = v8::FunctionCallbackInfo<v8::Value>;

// A function that allocates, as the runtime may call it: no exception may reach
// the runtime, and nothing but a failed allocation throws.
template <v8::FunctionCallback function>
void guarded(const Call& call) noexcept {
  try {
    function(call);
  } catch (...) {
    return;
  }
}

// Drops what script code throws while the guard lives: conversions of objects,
// setters and calls run such code. A script that is being terminated stays so,
// if no other guard begins before the function ends.
class ScriptGuard {
 public:
  explicit ScriptGuard(v8::Isolate* isolate);
  ~ScriptGuard();
  ScriptGuard(const ScriptGuard&) = delete;
  ScriptGuard& operator=(const ScriptGuard&) = delete;

 private:
  v8::Isolate* isolate_;
  v8::TryCatch try_catch_;
};

// --- Testing arguments

enum Type { kAny, kString, kNumber, kFunction };

// Nothing is coerced: a string object is no string.
inline bool is_a(Type type, v8::Local<v8::Value> value) {
  if (type == kString) return value->IsString();
  if (type == kNumber) return value->IsNumber();
  if (type == kFunction) return value->IsFunction();
  return true;
}

// Whether the call has at least these arguments, of these types.
template <Type... types>
bool accepts(const Call& call) {
  int index = 0;
  return call.Length() >= static_cast<int>(sizeof...(types)) &&
         (is_a(types, call[index++]) && ...);
}

// Whether the call has exactly these arguments, of these types.
template <Type... types>
bool accepts_exactly(const Call& call) {
  return call.Length() == static_cast<int>(sizeof...(types)) &&
         accepts<types...>(call);
}

// --- Reading arguments

// Any argument as a string, by conversion.
v8::Local<v8::String> read_string(const Call& call, int index);

// Any argument as UTF-8, by conversion: at most capacity - 1 bytes, the rest is
// cut off.
template <std::size_t capacity>
class Utf8Argument {
 public:
  Utf8Argument(const Call& call, int index) {
    runtime_port::write_utf8(call.GetIsolate(), read_string(call, index),
                             bytes_.data(), static_cast<int>(capacity - 1));
  }
  const char* c_str() const { return bytes_.data(); }

 private:
  std::array<char, capacity> bytes_{};
};

// Any argument as a number, by conversion.
double read_number(const Call& call, int index);

// An argument as 32 bits: truncated toward zero and wrapped modulo 2^32; 0 for
// not-a-number and the infinities, and for what is no number.
std::int32_t read_int32(const Call& call, int index);
std::uint32_t read_uint32(const Call& call, int index);

// What functions do that return the same for all strings: returns accepts(),
// and when it is true converts the arguments that may be strings, in order. A
// script can watch that where they may be objects.
template <Type... types>
bool accepts_and_reads(const Call& call) {
  if (!accepts<types...>(call)) return false;
  int index = 0;
  for (const Type type : {types...}) {
    if (type == kAny || type == kString) {
      runtime_port::Utf16String(call.GetIsolate(), read_string(call, index));
    }
    ++index;
  }
  return true;
}

// --- Making values

// UTF-8 up to the first zero byte; undefined when it cannot be made.
v8::Local<v8::Value> make_string(v8::Isolate* isolate, const char* utf8);

// UTF-16 up to the first zero code unit; undefined when it cannot be made.
v8::Local<v8::Value> make_string(v8::Isolate* isolate,
                                 const std::uint16_t* utf16);

// An array of the values that `make` returns for the elements.
template <typename Elements, typename MakeElement>
v8::Local<v8::Array> make_list(v8::Isolate* isolate, const Elements& elements,
                               const MakeElement& make) {
  const auto list = v8::Array::New(isolate, static_cast<int>(elements.size()));
  const ScriptGuard guard(isolate);  // scripts may have put setters in the way
  std::uint32_t index = 0;
  for (const auto& element : elements) {
    list->Set(isolate->GetCurrentContext(), index++, make(element))
        .FromMaybe(false);
  }
  return list;
}

// --- Setting the result; without one, a call returns undefined

inline void set_result(const Call& call, bool value) {
  call.GetReturnValue().Set(value);
}

inline void set_result(const Call& call, std::int32_t value) {
  call.GetReturnValue().Set(value);
}

inline void set_result(const Call& call, double value) {
  call.GetReturnValue().Set(value);
}

inline void set_result(const Call& call, const char* utf8) {
  // The runtime has an empty string ready: a fifth of the time.
  if (*utf8 == '\0') return call.GetReturnValue().SetEmptyString();
  call.GetReturnValue().Set(make_string(call.GetIsolate(), utf8));
}

struct NumberProperty {
  const char* key;
  std::int32_t value;
};

// An object with these properties, in this order.
void set_result(const Call& call,
                std::initializer_list<NumberProperty> properties);

#endif  // KORVANE_SCRIPT_SCRIPT_VALUES_H_
