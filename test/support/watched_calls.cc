// Preloaded before a program: the call that FAULT names fails once, "ioctl 2"
// the second from then on, and FAULT is gone; "new" is what the module asks for
// memory by.
#include <dlfcn.h>
#include <iconv.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

bool fails(const char* name) {
  const char* fault = std::getenv("FAULT");
  const std::size_t length = std::strlen(name);
  if (fault == nullptr || std::strncmp(fault, name, length) != 0) return false;
  const long left = std::strtol(fault + length, nullptr, 10) - 1;
  if (left == 0) return unsetenv("FAULT") == 0;
  char later[40];
  std::snprintf(later, sizeof(later), "%s %ld", name, left);
  setenv("FAULT", later, 1);
  return false;
}

// The function of the libraries behind this one.
template <typename Function>
Function* next(Function*, const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

// Whether the module, or the C++ library for it, is refused memory.
__attribute__((noinline)) bool is_refused(const void* caller) {
  // Other threads are the runtime's own.
  if (syscall(SYS_gettid) != getpid() || std::getenv("FAULT") == nullptr) {
    return false;
  }
  Dl_info info{};
  return dladdr(caller, &info) != 0 &&
         (std::strstr(info.dli_fname, "KorvaneHelper") != nullptr ||
          std::strstr(info.dli_fname, "libstdc++") != nullptr) &&
         fails("new");
}

}  // namespace

// NOLINTNEXTLINE(cert-dcl54-cpp,misc-new-delete-overloads): delete is not ours
void* operator new(std::size_t size) {
  static auto* const real = next<void*(std::size_t)>(nullptr, "_Znwm");
  if (is_refused(__builtin_return_address(0))) throw std::bad_alloc();
  return real(size);
}

// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

std::FILE* popen(const char* command, const char* mode) {
  if (fails("popen")) return nullptr;
  return next(popen, "popen")(command, mode);
}

std::size_t fread(void* bytes, std::size_t size, std::size_t count,
                  std::FILE* stream) {
  if (fails("fread")) return 0;
  return next(fread, "fread")(bytes, size, count, stream);
}

iconv_t iconv_open(const char* to, const char* from) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the way iconv_open fails
  if (fails("iconv_open")) return reinterpret_cast<iconv_t>(-1);
  return next(iconv_open, "iconv_open")(to, from);
}

std::size_t iconv(iconv_t converter, char** input, std::size_t* input_left,
                  char** output, std::size_t* output_left) {
  if (fails("iconv ")) return static_cast<std::size_t>(-1);
  return next(iconv, "iconv")(converter, input, input_left, output,
                              output_left);
}

void* XOpenDisplay(const char* name) {
  if (fails("XOpenDisplay")) return nullptr;
  // The module brings its library, which is not behind this one.
  void* library = dlopen("libX11.so.6", RTLD_LAZY);
  return reinterpret_cast<void* (*)(const char*)>(
      dlsym(library, "XOpenDisplay"))(name);
}

int socket(int domain, int type, int protocol) {
  if (fails("socket")) {
    errno = EMFILE;
    return -1;
  }
  return next(socket, "socket")(domain, type, protocol);
}

int ioctl(int descriptor, unsigned long request, ...) {
  std::va_list arguments;
  va_start(arguments, request);
  void* record = va_arg(arguments, void*);
  va_end(arguments);
  if (fails("ioctl")) {
    errno = EIO;
    return -1;
  }
  return static_cast<int>(syscall(SYS_ioctl, descriptor, request, record));
}

}  // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
