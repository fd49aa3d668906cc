// Does nothing but bring the libraries that the module links: once it is
// loaded, the process is like the desktop program that the module is made for.
#include <node.h>

namespace {

void register_nothing(v8::Local<v8::Object>) {}

}  // namespace

NODE_MODULE(desktop, register_nothing)
