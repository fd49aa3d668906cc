// What script functions do, written out with the runtime's and the X library's
// own calls. It links what the module links: with it loaded, the process is
// like the desktop program that the module is made for.
#include <node.h>

// After the runtime's header, whose names the X library's macros replace.
#include <X11/Xlib.h>

namespace {

using Arguments = v8::FunctionCallbackInfo<v8::Value>;

void empty(const Arguments&) {}

// Three texts and a function, tested and read.
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

int integer(const Arguments& arguments, int index) {
  return arguments[index]->Int32Value();
}

void set(v8::Isolate* isolate, v8::Local<v8::Object> object, const char* key,
         int value) {
  object->Set(v8::String::NewFromUtf8(isolate, key),
              v8::Integer::New(isolate, value));
}

// Returns a new window that stays until the process ends.
void create_window(const Arguments& arguments) {
  static Display* const display = XOpenDisplay(nullptr);
  const Window window = XCreateSimpleWindow(
      display, XDefaultRootWindow(display), 10, 20, 100, 80, 0, 0, 0);
  XSync(display, False);
  arguments.GetReturnValue().Set(static_cast<double>(window));
}

void get_cursor_pos(const Arguments& arguments) {
  Display* display = XOpenDisplay(nullptr);
  Window window = None;
  int at[4] = {};  // in the root window, then in this one
  unsigned buttons = 0;
  XQueryPointer(display, XDefaultRootWindow(display), &window, &window, &at[0],
                &at[1], &at[2], &at[3], &buttons);
  XCloseDisplay(display);
  v8::Isolate* isolate = arguments.GetIsolate();
  const v8::Local<v8::Object> position = v8::Object::New(isolate);
  set(isolate, position, "x", at[2]);
  set(isolate, position, "y", at[3]);
  arguments.GetReturnValue().Set(position);
}

void move_window(const Arguments& arguments) {
  Display* display = XOpenDisplay(nullptr);
  XMoveResizeWindow(display, arguments[0]->Uint32Value(), integer(arguments, 1),
                    integer(arguments, 2),
                    static_cast<unsigned>(integer(arguments, 3)),
                    static_cast<unsigned>(integer(arguments, 4)));
  XFlush(display);
  XCloseDisplay(display);
}

void register_functions(v8::Local<v8::Object> exports) {
  NODE_SET_METHOD(exports, "empty", empty);
  NODE_SET_METHOD(exports, "readThreeTexts", read_three_texts);
  NODE_SET_METHOD(exports, "createWindow", create_window);
  NODE_SET_METHOD(exports, "getCursorPos", get_cursor_pos);
  NODE_SET_METHOD(exports, "moveWindow", move_window);
}

}  // namespace

NODE_MODULE(by_hand, register_functions)
