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

CallbackHolder::~CallbackHolder() { callback.Reset(); }

void CallbackHolder::call(int count, v8::Local<v8::Value>* values) {
  if (isolate == nullptr || callback.IsEmpty()) return;
  const v8::HandleScope scope(isolate);
  const ScriptGuard guard(isolate);
  const v8::Local<v8::Context> context = isolate->GetCurrentContext();
  const v8::Local<v8::Function> function =
      v8::Local<v8::Function>::New(isolate, callback);
  static_cast<void>(
      function->Call(context, context->Global(), count, values).IsEmpty());
}
