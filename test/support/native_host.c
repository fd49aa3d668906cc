/* Loads the module as a runtime does and prints the record that it announces:
 * native_host MODULE. */
#include <dlfcn.h>
#include <stdio.h>

struct module_record {
  int version;
  unsigned flags;
  void* handle;
  const char* file_name;
  void (*register_function)(void);
  void (*context_register_function)(void);
  const char* module_name;
  void* private_data;
  struct module_record* link;
};

static int announced = 0;

void node_module_register(void* record);

void node_module_register(void* record) {
  const struct module_record* module = record;
  ++announced;
  printf("version %d\nflags %u\nhandle %d\nfile %s\nregister %d\n",
         module->version, module->flags, module->handle != NULL,
         module->file_name, module->register_function != NULL);
  printf("context %d\nname %s\nprivate %d\nlink %d\n",
         module->context_register_function != NULL, module->module_name,
         module->private_data != NULL, module->link != NULL);
}

int main(int argc, char** argv) {
  if (argc != 2 || dlopen(argv[1], RTLD_LAZY) == NULL) {
    fprintf(stderr, "%s\n", argc == 2 ? dlerror() : "native_host MODULE");
    return 1;
  }
  printf("announced %d\n", announced);
  return 0;
}
