// make_windows COMMAND...: runs a command beside two windows, WINDOW and OTHER
// in its environment, and a window that is gone, GONE.
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "display_client.h"

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  const DisplayClient client;
  const auto create = [&](const char* name) {
    const Window window = client.create({10, 20, 100, 80});
    setenv(name, std::to_string(window).c_str(), 1);
    return window;
  };
  create("WINDOW");
  create("OTHER");
  client.destroy(create("GONE"));
  if (fork() == 0) {
    execvp(argv[1], argv + 1);
    _exit(127);
  }
  int status = 0;
  wait(&status);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
