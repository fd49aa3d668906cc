// A helper of a script test. The script runs as its child and talks to it over
// two pipes, so that it can wait for an answer without the event loop: it
// writes a line to descriptor 3 and reads one line from descriptor 4.
#ifndef KORVANE_TEST_SERVE_COMMANDS_H_
#define KORVANE_TEST_SERVE_COMMANDS_H_

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>

// Runs `command` and answers its lines until it ends; its exit code.
template <typename Answer>
int serve_commands(char** command, Answer answer) {
  std::array<int, 2> asked{};
  std::array<int, 2> told{};
  if (pipe(asked.data()) != 0 || pipe(told.data()) != 0) return 2;
  const pid_t child = fork();
  if (child == 0) {
    // The far ends first: they may have the wanted numbers.
    const int out = fcntl(asked[1], F_DUPFD, 10);
    const int in = fcntl(told[0], F_DUPFD, 10);
    dup2(out, 3);
    dup2(in, 4);
    closefrom(5);
    execvp(command[0], command);
    std::perror(command[0]);
    _exit(127);
  }
  close(asked[1]);
  close(told[0]);
  FILE* lines = fdopen(asked[0], "r");
  char* line = nullptr;
  std::size_t capacity = 0;
  while (getline(&line, &capacity, lines) > 0) {
    std::istringstream words(line);
    const std::string reply = answer(words) + "\n";
    if (write(told[1], reply.data(), reply.size()) < 0) break;
  }
  std::free(line);
  static_cast<void>(std::fclose(lines));
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}

#endif  // KORVANE_TEST_SERVE_COMMANDS_H_
