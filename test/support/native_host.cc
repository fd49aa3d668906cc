// Loads the module as a runtime does, and prints the record that it announces:
// native_host MODULE
#include <dlfcn.h>
#include <node.h>

#include <iostream>

extern "C" void node_module_register(void* mod) {
  const auto& record = *static_cast<node::node_module*>(mod);
  std::cout << record.nm_version << ' ' << record.nm_flags << ' '
            << record.nm_filename << ' ' << record.nm_modname << ' '
            << record.nm_dso_handle << (record.nm_register_func != nullptr)
            << (record.nm_context_register_func != nullptr) << record.nm_priv
            << record.nm_link << '\n';
}

int main(int, char** argv) {
  return dlopen(argv[1], RTLD_LAZY) == nullptr ? 1 : 0;
}
