// A script function kept for a later call.
#ifndef KORVANE_SCRIPT_CALLBACK_HOLDER_H_
#define KORVANE_SCRIPT_CALLBACK_HOLDER_H_

#include <cstdint>

#include "script/runtime_port.h"

// One for each pending completion, on the heap, owned by whoever completes it.
struct CallbackHolder {
  // `callback` stays empty when `owner` is null or `function` is no function.
  CallbackHolder(v8::Isolate* owner, v8::Local<v8::Value> function);

  // Calls the function, if there is one, with the global object of the
  // isolate's current context as receiver. Drops its result and what it throws.
  void call(int count, v8::Local<v8::Value>* values);

  std::int32_t status = 0;  // not read
  v8::Isolate* isolate;
  v8::Global<v8::Function> callback;
};

#endif  // KORVANE_SCRIPT_CALLBACK_HOLDER_H_
