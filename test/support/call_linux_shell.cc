// Calls what no script function reaches: call_linux_shell ip | null-first |
// null-second.
#include <cstdio>
#include <string_view>

#include "platform/linux_shell.h"

int main(int argc, char** argv) {
  const std::string_view what = argc == 2 ? argv[1] : "";
  if (what == "ip") {
    std::printf("%s\n", LinuxShell::MacId::GetIp().c_str());
    std::printf("again: %s\n", LinuxShell::MacId::GetIp().c_str());
  }
  if (what == "null-first") LinuxShell::CompareStr(nullptr, "");
  if (what == "null-second") LinuxShell::CompareStr("", nullptr);
  return 0;
}
