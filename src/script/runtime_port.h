// The one place that knows one script runtime from another.
#ifndef KORVANE_SCRIPT_RUNTIME_PORT_H_
#define KORVANE_SCRIPT_RUNTIME_PORT_H_

#include <node.h>

#include <cstddef>
#include <cstdint>

namespace runtime_port {

static_assert(NODE_MODULE_VERSION == KORVANE_RUNTIME_INTERFACE,
              "these are the headers of another runtime");

// Whether the runtime can load the module again, and in threads of their own.
inline constexpr bool kHasWorkers = NODE_MODULE_VERSION > 57;

// The text of any value as 16-bit units with a terminating zero. Converting
// a value that is not a string may run script code.
class Utf16Text {
 public:
#if NODE_MODULE_VERSION > 57
  Utf16Text(v8::Isolate* isolate, v8::Local<v8::Value> value)
      : value_(isolate, value) {}
#else
  Utf16Text(v8::Isolate*, v8::Local<v8::Value> value) : value_(value) {}
#endif
  // Null when the value has no text.
  const std::uint16_t* units() const { return *value_; }
  // Without the terminating zero.
  std::size_t length() const {
    return static_cast<std::size_t>(value_.length());
  }

 private:
  v8::String::Value value_;
};

// Writes at most `limit` bytes of UTF-8. A unit that does not fit is left out
// whole; of a surrogate pair that does not, the first may be written alone,
// though not from interface 137 on.
inline void write_utf8(v8::Isolate* isolate, v8::Local<v8::String> text,
                       char* out, int limit) {
#if NODE_MODULE_VERSION > 127
  text->WriteUtf8V2(isolate, out, static_cast<std::size_t>(limit));
#elif NODE_MODULE_VERSION > 57
  text->WriteUtf8(isolate, out, limit);
#else
  static_cast<void>(isolate);
  text->WriteUtf8(out, limit);
#endif
}

}  // namespace runtime_port

#endif  // KORVANE_SCRIPT_RUNTIME_PORT_H_
