// What runtimes with workers call, by its name, when the module's file is
// loaded already: for a second exports object, or for a thread of its own.
#include "script/korvane_helper.h"

extern "C" NODE_MODULE_EXPORT void NODE_MODULE_INITIALIZER(
    v8::Local<v8::Object> exports, v8::Local<v8::Value>,
    v8::Local<v8::Context>) {
  KorvaneHelper::Register(exports);
}
