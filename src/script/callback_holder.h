// A script function kept for a later call.
#ifndef KORVANE_SCRIPT_CALLBACK_HOLDER_H_
#define KORVANE_SCRIPT_CALLBACK_HOLDER_H_

#include <cstdint>

#include "script/runtime_port.h"

// One record a pending completion, on the heap, owned by whoever completes it.
struct CallbackHolder {
  // Both parts stay empty when `isolate` or the function is missing.
  CallbackHolder(v8::Isolate* owner, v8::Local<v8::Value> function);
  ~CallbackHolder();
  CallbackHolder(const CallbackHolder&) = delete;
  CallbackHolder& operator=(const CallbackHolder&) = delete;

  // Calls the function with the global object of the isolate's current context
  // as receiver. Its result and whatever it throws are dropped. Does nothing
  // when a part is missing.
  void call(int count, v8::Local<v8::Value>* values);

  std::int32_t status = 0;  // not read
  v8::Isolate* isolate;
  v8::Persistent<v8::Function> callback;
};

#endif  // KORVANE_SCRIPT_CALLBACK_HOLDER_H_
