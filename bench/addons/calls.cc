// What script calls are measured by and against.
#include <node.h>
#include <time.h>

namespace {

using Arguments = v8::FunctionCallbackInfo<v8::Value>;

// The calling thread's time on the processor, in nanoseconds.
void now(const Arguments& arguments) {
  timespec used{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
  arguments.GetReturnValue().Set(static_cast<double>(used.tv_sec) * 1e9 +
                                 static_cast<double>(used.tv_nsec));
}

void empty(const Arguments&) {}

// Three texts and a function, tested and read with the runtime's own calls.
void read_three_texts(const Arguments& arguments) {
  if (arguments.Length() >= 4 && arguments[0]->IsString() &&
      arguments[1]->IsString() && arguments[2]->IsString() &&
      arguments[3]->IsFunction()) {
    const v8::String::Value first(arguments[0]);
    const v8::String::Value second(arguments[1]);
    const v8::String::Value third(arguments[2]);
  }
  arguments.GetReturnValue().Set(0);
}

void register_functions(v8::Local<v8::Object> exports) {
  NODE_SET_METHOD(exports, "now", now);
  NODE_SET_METHOD(exports, "empty", empty);
  NODE_SET_METHOD(exports, "readThreeTexts", read_three_texts);
}

}  // namespace

NODE_MODULE(calls, register_functions)
