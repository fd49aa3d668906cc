#include "script/callback_holder.h"

#include "script/script_values.h"

CallbackHolder::CallbackHolder(v8::Isolate* owner,
                               v8::Local<v8::Value> function)
    : isolate(owner) {
  if (isolate == nullptr || function.IsEmpty() || !function->IsFunction()) {
    return;
  }
  callback.Reset(isolate, function.As<v8::Function>());
}

void CallbackHolder::call(int count, v8::Local<v8::Value>* values) {
  if (callback.IsEmpty()) return;
  const v8::HandleScope scope(isolate);
  const ScriptGuard guard(isolate);
  const v8::Local<v8::Context> context = isolate->GetCurrentContext();
  [[maybe_unused]] const auto dropped =
      callback.Get(isolate)->Call(context, context->Global(), count, values);
}
