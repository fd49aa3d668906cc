#include "failing_calls.h"

#include <iconv.h>

#include <cstdlib>
#include <new>

namespace {

thread_local Call counted = Call::kNew;
thread_local std::size_t calls = 0;
thread_local std::size_t failing_call = 0;
thread_local std::ptrdiff_t held_now = 0;

bool fails(Call kind) { return kind == counted && ++calls == failing_call; }

}  // namespace

CallCounter::CallCounter(Call kind, std::size_t failing) {
  counted = kind;
  calls = 0;
  failing_call = failing;
}

CallCounter::~CallCounter() { failing_call = 0; }

std::size_t CallCounter::count() { return calls; }

std::ptrdiff_t held() { return held_now; }

// The array and the nothrow forms of the library come down to these.
void* operator new(std::size_t size) {
  void* memory =
      fails(Call::kNew) ? nullptr : std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  ++held_now;
  return memory;
}

void operator delete(void* memory) noexcept {
  if (memory != nullptr) --held_now;
  std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
  operator delete(memory);
}

// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp): what
// the linker calls them
extern "C" {

iconv_t __real_iconv_open(const char* to, const char* from);
std::size_t __real_iconv(iconv_t converter, char** input, std::size_t* left,
                         char** output, std::size_t* room);
int __real_iconv_close(iconv_t converter);

iconv_t __wrap_iconv_open(const char* to, const char* from) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr)
  if (fails(Call::kIconvOpen)) return reinterpret_cast<iconv_t>(-1);
  ++held_now;
  return __real_iconv_open(to, from);
}

std::size_t __wrap_iconv(iconv_t converter, char** input, std::size_t* left,
                         char** output, std::size_t* room) {
  if (fails(Call::kIconv)) return static_cast<std::size_t>(-1);
  return __real_iconv(converter, input, left, output, room);
}

int __wrap_iconv_close(iconv_t converter) {
  --held_now;
  return __real_iconv_close(converter);
}

}  // extern "C"
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
