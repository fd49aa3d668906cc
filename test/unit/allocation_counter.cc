#include "allocation_counter.h"

#include <cstdlib>
#include <new>

thread_local std::size_t allocations = 0;
thread_local std::size_t failing_allocation = 0;

// The array and the nothrow forms of the library come down to these.
void* operator new(std::size_t size) {
  if (++allocations == failing_allocation) throw std::bad_alloc();
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}
