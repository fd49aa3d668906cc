// As many functions as the module has, all of them empty.
#include <node.h>

#include <string>

namespace {

constexpr int kFunctions = 163;

void empty(const v8::FunctionCallbackInfo<v8::Value>&) {}

void register_functions(v8::Local<v8::Object> exports) {
  for (int i = 0; i < kFunctions; ++i) {
    const std::string name = "emptyFunction" + std::to_string(i);
    NODE_SET_METHOD(exports, name.c_str(), empty);
  }
}

}  // namespace

NODE_MODULE(functions, register_functions)
