// Loads the module as a runtime does, and prints the record that it announces:
// native_host MODULE
#include <dlfcn.h>
#include <node.h>

#include <cstdio>

extern "C" void node_module_register(void* record) {
  const auto* module = static_cast<node::node_module*>(record);
  for (const bool is_set :
       {module->nm_dso_handle != nullptr, module->nm_register_func != nullptr,
        module->nm_context_register_func != nullptr, module->nm_priv != nullptr,
        module->nm_link != nullptr}) {
    std::printf("%d ", is_set);
  }
  std::printf("%d %u %s %s\n", module->nm_version, module->nm_flags,
              module->nm_filename, module->nm_modname);
}

int main(int, char** argv) { return dlopen(argv[1], RTLD_LAZY) == nullptr; }
