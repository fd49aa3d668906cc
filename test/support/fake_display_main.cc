// fake_display COMMAND...: runs a command on a display of the tests' own.
//   KEY VALUE   sets a number, answers "set"
//   next        answers the requests of the next connection
#include "fake_display.h"
#include "serve_commands.h"

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  FakeDisplay display;
  return serve_commands(argv + 1, [&](std::istream& words) -> std::string {
    std::string key;
    int value = 0;
    words >> key >> value;
    if (key == "next") return display.next_connection();
    display.set(key, value);
    return "set";
  });
}
