// Native code that finds a function of the loaded module and calls it: makes a
// private link. call_module MODULE TEXT
#include <dlfcn.h>

#include <cstdio>
#include <string>

extern "C" void node_module_register(void*) {}

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  void* module = dlopen(argv[1], RTLD_LAZY);
  const auto encode = reinterpret_cast<std::string (*)(const char*)>(
      module == nullptr
          ? nullptr
          : dlsym(module, "_ZN13korvane_url_tIcE6encodeB5cxx11EPKc"));
  if (encode == nullptr) {
    std::fprintf(stderr, "%s\n", dlerror());
    return 1;
  }
  std::printf("%s", encode(argv[2]).c_str());
  return 0;
}
