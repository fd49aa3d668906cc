// How a script function reads its arguments and gives its answer.
//
// Three rules hold for every function of the module:
//
// 1. Arguments are tested before any is converted: the count first, then the
//    types in index order. A failed test gives the function's fallback answer.
// 2. An argument beyond the count reads as undefined.
// 3. Nothing throws into script. Text that cannot be read is empty, a number
//    that cannot be read is not-a-number, an answer that cannot be made is
//    undefined. Want of memory ends a function with the answer given so far.
#ifndef KORVANE_SCRIPT_SCRIPT_VALUES_H_
#define KORVANE_SCRIPT_SCRIPT_VALUES_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

#include "script/runtime_port.h"

using Arguments = v8::FunctionCallbackInfo<v8::Value>;

// A function that asks for memory, as the runtime may call it: no exception may
// reach the runtime, and nothing but want of memory throws.
template <v8::FunctionCallback function>
void guarded(const Arguments& arguments) noexcept {
  try {
    function(arguments);
  } catch (...) {
    return;
  }
}

// Stands around code that may run script code (conversions of objects, calls)
// and drops what it throws. A script that is being terminated stays so.
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

enum class Kind { kAny, kText, kNumber, kFunction };

// Whether `value` is of `kind`. Nothing is coerced: a string object is no text.
template <Kind kind>
bool is_a(v8::Local<v8::Value> value) {
  if constexpr (kind == Kind::kText) return value->IsString();
  if constexpr (kind == Kind::kNumber) return value->IsNumber();
  if constexpr (kind == Kind::kFunction) return value->IsFunction();
  return true;
}

// Whether the call has at least these arguments, of these kinds.
template <Kind... kinds>
bool accepts(const Arguments& arguments) {
  int index = 0;
  return arguments.Length() >= static_cast<int>(sizeof...(kinds)) &&
         (is_a<kinds>(arguments[index++]) && ...);
}

// Whether the call has exactly these arguments, of these kinds.
template <Kind... kinds>
bool accepts_exactly(const Arguments& arguments) {
  return arguments.Length() == static_cast<int>(sizeof...(kinds)) &&
         accepts<kinds...>(arguments);
}

// --- Reading arguments

// Any argument as script text; empty when it has none.
v8::Local<v8::String> read_text(const Arguments& arguments, int index);

// Fills `out` with zeros, then with the UTF-8 text of any argument, cut
// silently after capacity - 1 bytes.
void read_utf8(const Arguments& arguments, int index, char* out,
               std::size_t capacity);

// The same as an object: text of at most capacity - 1 bytes, terminated.
template <std::size_t capacity>
class Utf8Argument {
 public:
  Utf8Argument(const Arguments& arguments, int index) {
    read_utf8(arguments, index, bytes_.data(), capacity);
  }
  const char* c_str() const { return bytes_.data(); }

 private:
  std::array<char, capacity> bytes_;
};

// Converts the arguments 0 to count - 1 to text, in this order, and lets them
// go: what functions do that answer the same for every text. A script can
// watch it where the arguments may be objects.
void read_and_drop_texts(const Arguments& arguments, int count);

// Any argument as a number; not-a-number when it has none.
double read_number(const Arguments& arguments, int index);

// An argument that was tested to be a number, as 32 bits: truncated toward zero
// and wrapped modulo 2^32; 0 for not-a-number and the infinities.
std::int32_t read_int32(const Arguments& arguments, int index);
std::uint32_t read_uint32(const Arguments& arguments, int index);

// Whether an argument is the boolean true; nothing is coerced.
inline bool is_true(const Arguments& arguments, int index) {
  return arguments[index]->IsTrue();
}

// --- Making values

// `utf8` up to its first zero byte; undefined when the text cannot be made.
v8::Local<v8::Value> make_text(v8::Isolate* isolate, const char* utf8);

// 16-bit units up to the first zero unit; undefined when it cannot be made.
v8::Local<v8::Value> make_text(v8::Isolate* isolate,
                               const std::uint16_t* units);

// Sets one element of a list, or one property of an object.
void store(v8::Isolate* isolate, v8::Local<v8::Array> list, std::uint32_t index,
           v8::Local<v8::Value> value);
void store(v8::Isolate* isolate, v8::Local<v8::Object> object, const char* key,
           double value);

// --- Answering

inline void answer_integer(const Arguments& arguments, std::int32_t value) {
  arguments.GetReturnValue().Set(value);
}

inline void answer_number(const Arguments& arguments, double value) {
  arguments.GetReturnValue().Set(value);
}

// A whole number is the same value to a script, and made without a call.
inline void answer_number(const Arguments& arguments, std::int32_t value) {
  arguments.GetReturnValue().Set(value);
}

inline void answer_boolean(const Arguments& arguments, bool value) {
  arguments.GetReturnValue().Set(value);
}

inline void answer(const Arguments& arguments, v8::Local<v8::Value> value) {
  arguments.GetReturnValue().Set(value);
}

inline void answer_text(const Arguments& arguments, const char* utf8) {
  // The empty text is at hand.
  if (*utf8 == '\0') return arguments.GetReturnValue().SetEmptyString();
  answer(arguments, make_text(arguments.GetIsolate(), utf8));
}

struct NumberProperty {
  const char* key;
  std::int32_t value;
};

// Answers a new object with these properties, in this order.
void answer_object(const Arguments& arguments,
                   std::initializer_list<NumberProperty> properties);

#endif  // KORVANE_SCRIPT_SCRIPT_VALUES_H_
