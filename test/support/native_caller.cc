// Native code in a host's process, which calls what no script reaches:
//   native_caller mac | ip | null-first | null-second
//   native_caller link MODULE TEXT    makes a private link by the module
#include <dlfcn.h>

#include <cstdio>
#include <string>

#include "platform/linux_shell.h"

extern "C" void node_module_register(void*) {}

static std::string private_link(const char* module, const char* text) {
  void* const found = dlsym(dlopen(module, RTLD_LAZY),
                            "_ZN13korvane_url_tIcE6encodeB5cxx11EPKc");
  return reinterpret_cast<std::string (*)(const char*)>(found)(text);
}

int main(int argc, char** argv) {
  const std::string what = argc > 1 ? argv[1] : "";
  std::string result;
  if (what == "mac") result = LinuxShell::GetMacAddrId();
  if (what == "ip") {
    result = LinuxShell::MacId::GetIp();
    result += "\nagain: " + LinuxShell::MacId::GetIp();
  }
  if (what == "null-first") LinuxShell::CompareStr(nullptr, "");
  if (what == "null-second") LinuxShell::CompareStr("", nullptr);
  if (what == "link" && argc == 4) result = private_link(argv[2], argv[3]);
  std::printf("%s\n", result.c_str());
  return 0;
}
