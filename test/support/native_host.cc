// Loads the module as a runtime does, and prints the record that it announces:
// native_host MODULE
#include <dlfcn.h>
#include <node.h>

#include <cstdio>

extern "C" void node_module_register(void* record) {
  const auto& module = *static_cast<node::node_module*>(record);
  std::printf("%d %u %s %s handle %p init %d for contexts %d private %p %p\n",
              module.nm_version, module.nm_flags, module.nm_filename,
              module.nm_modname, module.nm_dso_handle,
              module.nm_register_func != nullptr,
              module.nm_context_register_func != nullptr, module.nm_priv,
              static_cast<void*>(module.nm_link));
}

int main(int, char** argv) { return dlopen(argv[1], RTLD_LAZY) == nullptr; }
