// The one place that knows one script runtime from another.
#ifndef KORVANE_RUNTIME_PORT_H_
#define KORVANE_RUNTIME_PORT_H_

#include <node.h>

#include <cstdint>

namespace runtime_port {

static_assert(NODE_MODULE_VERSION == 57, "built for module interface 57");

// The text of any value as 16-bit units with a terminating zero. Converting
// a value that is not a string may run script code.
class Utf16Text {
 public:
  Utf16Text(v8::Isolate*, v8::Local<v8::Value> value) : value_(value) {}
  // Null when the value has no text.
  const std::uint16_t* units() const { return *value_; }

 private:
  v8::String::Value value_;
};

// Writes at most `limit` bytes of UTF-8. A unit that does not fit is left out
// whole; of a surrogate pair that does not, the first may be written alone.
inline void write_utf8(v8::Isolate*, v8::Local<v8::String> text, char* out,
                       int limit) {
  text->WriteUtf8(out, limit);
}

}  // namespace runtime_port

#endif  // KORVANE_RUNTIME_PORT_H_
