// The one place that knows one script runtime from another.
#ifndef KORVANE_SCRIPT_RUNTIME_PORT_H_
#define KORVANE_SCRIPT_RUNTIME_PORT_H_

#include <node.h>

#include <cstddef>
#include <cstdint>

namespace runtime_port {

static_assert(NODE_MAJOR_VERSION == KORVANE_RUNTIME,
              "these are the headers of another runtime");
static_assert(KORVANE_RUNTIME != 8 || NODE_MODULE_VERSION == 57,
              "the product's runtime has Node.js ABI 57");

// What the module's record names to load the module again, and in threads of
// their own, where the runtime can.
constexpr node::addon_context_register_func for_contexts(
    node::addon_context_register_func init) {
  return NODE_MODULE_VERSION > 57 ? init : nullptr;
}

// A string as UTF-16 with a terminating zero.
class Utf16String {
 public:
#if NODE_MODULE_VERSION > 57
  Utf16String(v8::Isolate* isolate, v8::Local<v8::Value> string)
      : value_(isolate, string) {}
#else
  Utf16String(v8::Isolate*, v8::Local<v8::Value> string) : value_(string) {}
#endif
  // Null when memory is short.
  const std::uint16_t* data() const { return *value_; }

 private:
  v8::String::Value value_;
};

// Writes at most `limit` bytes of UTF-8. A character that does not fit is left
// out whole; but before Node.js ABI 137 half a surrogate pair may be written.
inline void write_utf8(v8::Isolate* isolate, v8::Local<v8::String> string,
                       char* out, int limit) {
#if NODE_MODULE_VERSION > 127
  string->WriteUtf8V2(isolate, out, static_cast<std::size_t>(limit));
#elif NODE_MODULE_VERSION > 57
  string->WriteUtf8(isolate, out, limit);
#else
  static_cast<void>(isolate);
  string->WriteUtf8(out, limit);
#endif
}

}  // namespace runtime_port

#endif  // KORVANE_SCRIPT_RUNTIME_PORT_H_
